#pragma once

#include <QPlainTextEdit>

namespace ng {

/// A text of several lines that holds only characters of the program's code page: others are left
/// out as they are typed, pasted or dropped.
class NoteEdit : public QPlainTextEdit {
  Q_OBJECT

 public:
  using QPlainTextEdit::QPlainTextEdit;

 signals:
  /// Characters were left out.
  void LeftOut();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace ng
