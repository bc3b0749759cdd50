#include "ui/wiring/code_page_input.h"

#include <QLineEdit>
#include <QTimer>
#include <QValidator>
#include <utility>

#include "ui/wiring/text.h"

namespace ng {
namespace {

class CodePageValidator : public QValidator {
 public:
  CodePageValidator(QLineEdit& edit, Perform perform)
      : QValidator(&edit), afterwards_(new QTimer(this)) {
    afterwards_->setSingleShot(true);
    connect(afterwards_, &QTimer::timeout, this,
            [perform = std::move(perform)] { perform({kLeftOutAct}); });
  }

  State validate(QString& text, int& cursor) const override {
    const QString kept = WithoutForeign(text);
    if (kept == text) return Acceptable;
    cursor = static_cast<int>(WithoutForeign(text.left(cursor)).size());
    text = kept;
    afterwards_->start(0);
    return Acceptable;
  }

 private:
  /// Says it once the edit is over: painting in the middle of it would change the text under it.
  QTimer* afterwards_;
};

}  // namespace

void KeepToCodePage(QLineEdit& edit, const Perform& perform) {
  edit.setValidator(new CodePageValidator(edit, perform));
}

}  // namespace ng
