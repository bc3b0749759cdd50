#include "ui/wiring/code_page_input.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QValidator>
#include <algorithm>
#include <utility>

#include "base/code_page.h"

namespace ng {
namespace {

/// The toolkit keeps a character beyond the first 65,536 as two, neither of which is in the page.
bool IsForeign(QChar character) { return !InCodePage(character.unicode()); }

/// Says it once the edit is over: painting in the middle of it would change the text under it.
void TellLater(QWidget& edit, const Perform& perform) {
  QMetaObject::invokeMethod(
      &edit, [perform] { perform({kLeftOutAct}); }, Qt::QueuedConnection);
}

class CodePageValidator : public QValidator {
 public:
  CodePageValidator(QLineEdit& edit, Perform perform)
      : QValidator(&edit), edit_(edit), perform_(std::move(perform)) {}

  State validate(QString& text, int& cursor) const override {
    const qsizetype before = text.size();
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
      if (!IsForeign(text[i])) continue;
      text.remove(i, 1);
      if (i < cursor) --cursor;
    }
    if (text.size() != before) TellLater(edit_, perform_);
    return Acceptable;
  }

 private:
  QLineEdit& edit_;
  Perform perform_;
};

/// Returns whether there was something to take out.
bool TakeOut(QPlainTextEdit& edit) {
  const QString text = edit.toPlainText();
  if (std::ranges::none_of(text, IsForeign)) return false;
  QTextCursor cursor(edit.document());
  // With the typing it is one step, so that Ctrl+Z does not bring the character back.
  cursor.joinPreviousEditBlock();
  for (qsizetype i = text.size() - 1; i >= 0; --i) {
    if (!IsForeign(text[i])) continue;
    cursor.setPosition(static_cast<int>(i));
    cursor.setPosition(static_cast<int>(i) + 1, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
  }
  cursor.endEditBlock();
  return true;
}

}  // namespace

void KeepToCodePage(QLineEdit& edit, const Perform& perform) {
  edit.setValidator(new CodePageValidator(edit, perform));
}

void KeepToCodePage(QPlainTextEdit& edit, const Perform& perform) {
  QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [&edit, perform] {
    const QSignalBlocker quiet(edit);
    if (TakeOut(edit)) TellLater(edit, perform);
  });
}

}  // namespace ng
