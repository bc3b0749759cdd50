#pragma once

#include "ui/side/side_window.h"

class QLineEdit;
class QTextBrowser;
class QTreeWidget;

namespace ng {

/// The help: the topics with a box that looks through all of them, and the topic chosen.
class HelpWindow : public SideWindow {
  Q_OBJECT

 public:
  HelpWindow(const Perform& perform, QWidget* parent);
  void Paint(const MainForm& form);

 private:
  QLineEdit* filter_;
  QTreeWidget* topics_;
  QTextBrowser* topic_;
  std::vector<std::string> shownTopics_;
  /// What the browser was last given; it gives back something else.
  QString shownTopic_;
};

}  // namespace ng
