#pragma once

#include "ui/side/side_window.h"

class QTreeWidget;

namespace ng {

/// The history window: what happened, newest at the end, with commands to go back to any of it.
class HistoryWindow : public SideWindow {
  Q_OBJECT

 public:
  HistoryWindow(const Perform& perform, QWidget* parent);

 protected:
  void Opened() override;

 private:
  QBoxLayout* BuildFilters();
  QBoxLayout* BuildButtons();
  void CopySelected() const;

  QTreeWidget* lines_;
};

}  // namespace ng
