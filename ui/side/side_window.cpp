#include "ui/side/side_window.h"

#include <QBoxLayout>
#include <QShortcut>
#include <utility>

#include "app/commands.h"
#include "app/form_windows.h"
#include "ui/look/layout_kit.h"
#include "ui/wiring/bind.h"
#include "ui/wiring/button_keys.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kEdge = 12;

}  // namespace

SideWindow::SideWindow(const char* name, const QString& title, Perform perform, QWidget* parent)
    : QDialog(parent), window_(FindFormWindow(name)), perform_(std::move(perform)) {
  setObjectName(QString::fromLatin1(name));
  setWindowTitle(title);
  setModal(false);
  // The shortcuts of the main window's menus do not work in this one.
  const QString key = QString::fromLatin1(FindCommand("mnuHelpContents")->shortcut);
  auto* help = new QShortcut(QKeySequence(key, QKeySequence::PortableText), this);
  connect(help, &QShortcut::activated, this, [this] {
    Do({"mnuHelpContents", 0, FromQString(objectName())});
  });
  AddUndoKeys(*this, perform_);
}

SideWindow::~SideWindow() = default;

void SideWindow::Paint(const Session& session) {
  const bool open = window_.open(session);
  const bool opens = open && !isVisible();
  if (open) {
    if (binder_ == nullptr) binder_ = std::make_unique<Binder>(*this, perform_, window_.prefix);
    binder_->Paint([&](ControlVisitor& visitor) { window_.visit(session, visitor); });
  }
  if (opens) Opening();
  if (open != isVisible()) setVisible(open);
  if (!opens) return;
  activateWindow();
  Opened();
}

void SideWindow::reject() { Do({window_.close}); }

void SideWindow::BringToFront() {
  raise();
  activateWindow();
}

void SideWindow::SetEdges(QBoxLayout& layout) {
  layout.setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  layout.setSpacing(kGroupGap);
}

}  // namespace ng
