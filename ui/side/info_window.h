#pragma once

#include "ui/side/note_windows.h"

namespace ng {

/// All details of the line selected last on the pages, above its entry in the reference file.
class InfoWindow : public SideWindow {
  Q_OBJECT

 public:
  InfoWindow(const Perform& perform, QWidget* parent);
  void Paint(const MainForm& form);

 private:
  QLabel* item_;
  QTreeWidget* figures_;
  QPlainTextEdit* reference_;
  std::vector<std::string> shown_;
};

}  // namespace ng
