#pragma once

#include "ui/side/side_window.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTreeWidget;

namespace ng {

/// A read-only text of the reference file, with this object name.
QPlainTextEdit* MakeEntryText(const QString& name, QWidget* parent);
/// Shows an entry, its fields below one another.
void ShowEntry(QPlainTextEdit& widget, const std::string& entry);

/// The game master's list of notes.
class GmWindow : public SideWindow {
  Q_OBJECT

 public:
  GmWindow(const Perform& perform, QWidget* parent);
  void Paint(const MainForm& form);

 private:
  QTreeWidget* lines_;
  std::vector<std::string> shown_;
};

/// What the log file holds.
class LogWindow : public SideWindow {
  Q_OBJECT

 public:
  LogWindow(const Perform& perform, QWidget* parent);
  void Paint(const MainForm& form);

 private:
  QTreeWidget* lines_;
  std::vector<std::string> shown_;
  QLabel* count_;
};

/// The names of the reference file with a filter, and the entry of the one chosen.
class ReferenceWindow : public SideWindow {
  Q_OBJECT

 public:
  ReferenceWindow(const Perform& perform, QWidget* parent);
  void Paint(const MainForm& form);

 private:
  QLineEdit* filter_;
  QTreeWidget* names_;
  std::vector<std::string> shown_;
  QPlainTextEdit* entry_;
};

}  // namespace ng
