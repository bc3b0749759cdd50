#pragma once

#include "ui/side/side_window.h"

class QTreeWidget;

namespace ng {

/// The help: the topics with a box that looks through all of them, and the topic chosen.
class HelpWindow : public SideWindow {
  Q_OBJECT

 public:
  HelpWindow(const Perform& perform, QWidget* parent);

 private:
  void Opened() override;

  QTreeWidget* topics_;
};

}  // namespace ng
