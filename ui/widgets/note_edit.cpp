#include "ui/widgets/note_edit.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

#include "ui/wiring/text.h"

namespace ng {

void NoteEdit::keyPressEvent(QKeyEvent* event) {
  // The second key of Redo, which the toolkit does not know here.
  if (event->keyCombination() == (Qt::CTRL | Qt::Key_Y)) return redo();
  if (WithoutForeign(event->text()) == event->text()) return QPlainTextEdit::keyPressEvent(event);
  emit LeftOut();
}

void NoteEdit::inputMethodEvent(QInputMethodEvent* event) {
  const QString text = WithoutForeign(event->commitString());
  QInputMethodEvent kept(event->preeditString(), event->attributes());
  kept.setCommitString(text, event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&kept);
  if (text != event->commitString()) emit LeftOut();
}

void NoteEdit::insertFromMimeData(const QMimeData* source) {
  QMimeData kept;
  kept.setText(WithoutForeign(source->text()));
  QPlainTextEdit::insertFromMimeData(&kept);
  if (kept.text() != source->text()) emit LeftOut();
}

}  // namespace ng
