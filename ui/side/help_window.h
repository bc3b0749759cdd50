#pragma once

#include "ui/side/side_window.h"

class QLineEdit;
class QTextBrowser;
class QTreeWidget;

namespace ng {

class HelpForm;
struct Theme;

/// The help: the topics with a box that looks through all of them, and the topic chosen.
class HelpWindow : public SideWindow {
  Q_OBJECT

 public:
  HelpWindow(const Perform& perform, QWidget* parent);
  void Paint(const MainForm& form);

 private:
  /// What the browser shows, and the colours that it was written in.
  struct Shown {
    std::string topic;
    std::string filter;
    const Theme* theme = nullptr;
    bool operator==(const Shown&) const = default;
  };

  void ShowTopic(const HelpForm& help);

  QLineEdit* filter_;
  QTreeWidget* topics_;
  QTextBrowser* topic_;
  std::vector<std::string> shownTopics_;
  Shown shown_;
};

}  // namespace ng
