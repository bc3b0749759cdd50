#pragma once

#include "ui/side/note_windows.h"

namespace ng {

/// Every figure of the line marked last on the pages, over what the reference file says of it.
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
