#pragma once

#include "ui/side/side_window.h"

class QLineEdit;
class QPlainTextEdit;
class QTreeWidget;

namespace ng {

/// A read-only text of the reference file, with this object name.
QPlainTextEdit* MakeEntryText(const QString& name, QWidget* parent);

/// The game master's list of notes.
class GmWindow : public SideWindow {
  Q_OBJECT

 public:
  GmWindow(const Perform& perform, QWidget* parent);

 private:
  void Opened() override;

  QTreeWidget* lines_;
};

/// What the log file holds.
class LogWindow : public SideWindow {
  Q_OBJECT

 public:
  LogWindow(const Perform& perform, QWidget* parent);
};

/// The names of the reference file with a filter, and the entry of the one chosen.
class ReferenceWindow : public SideWindow {
  Q_OBJECT

 public:
  ReferenceWindow(const Perform& perform, QWidget* parent);

 private:
  void Opened() override;

  QLineEdit* filter_;
};

}  // namespace ng
