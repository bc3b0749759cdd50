#include "ui/dialogs/form_dialog.h"

#include <utility>

#include "app/form_windows.h"
#include "ui/wiring/bind.h"

namespace ng {

FormDialog::FormDialog(const char* name, const QString& title, const Session& session, Perform door,
                       QWidget* parent)
    : QDialog(parent), window_(FindFormWindow(name)), session_(session), door_(std::move(door)) {
  setObjectName(QString::fromLatin1(name));
  setWindowTitle(title);
}

FormDialog::~FormDialog() = default;

void FormDialog::reject() { Do({window_.close}); }

void FormDialog::Do(const Act& act) {
  door_(act);
  Paint();
  if (!window_.open(session_)) done(Accepted);
}

void FormDialog::Paint() {
  if (binder_ == nullptr) {
    const Perform perform = [this](const Act& act) { Do(act); };
    binder_ = std::make_unique<Binder>(*this, perform, window_.prefix);
  }
  binder_->Paint([this](ControlVisitor& visitor) { window_.visit(session_, visitor); });
}

bool FormDialog::Painting() const { return binder_ != nullptr && binder_->Painting(); }

}  // namespace ng
