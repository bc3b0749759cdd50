#pragma once

#include <vector>

#include "ui/side/side_window.h"

class QFrame;
class QTabBar;

namespace ng {

/// The window in which tests are rolled. It stays open beside the main window.
class RollerWindow : public SideWindow {
  Q_OBJECT

 public:
  RollerWindow(const Perform& perform, QWidget* parent);

 private:
  void Opening() override;
  QFrame* MakeStrip();
  QTabBar* MakeTabs();
  void BuildMenu(const Perform& perform);
  void ShowPage(int page);
  void PlaceBesideMainWindow();

  /// What the strip shows on some pages only: the page's bit is set in `pages`.
  struct StripPart {
    QWidget* widget;
    unsigned pages;
  };
  std::vector<StripPart> stripParts_;
  bool placed_ = false;
};

}  // namespace ng
