#include "ui/wiring/code_page_input.h"

#include <QLineEdit>
#include <QValidator>
#include <utility>

#include "ui/wiring/text.h"

namespace ng {
namespace {

class CodePageValidator : public QValidator {
 public:
  CodePageValidator(QLineEdit& edit, Perform perform)
      : QValidator(&edit), edit_(edit), perform_(std::move(perform)) {}

  State validate(QString& text, int& cursor) const override {
    const QString kept = WithoutForeign(text);
    if (kept == text) return Acceptable;
    cursor = static_cast<int>(WithoutForeign(text.left(cursor)).size());
    text = kept;
    // Once the edit is over: painting in the middle of it would change the text under it.
    QMetaObject::invokeMethod(
        &edit_, [perform = perform_] { perform({kLeftOutAct}); }, Qt::QueuedConnection);
    return Acceptable;
  }

 private:
  QLineEdit& edit_;
  Perform perform_;
};

}  // namespace

void KeepToCodePage(QLineEdit& edit, const Perform& perform) {
  edit.setValidator(new CodePageValidator(edit, perform));
}

}  // namespace ng
