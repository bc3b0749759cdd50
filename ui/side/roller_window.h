#pragma once

#include <memory>
#include <vector>

#include "ui/side/side_window.h"

class QFrame;
class QTabBar;

namespace ng {

class Binder;

/// The window in which tests are rolled. It stays open beside the main window, and is made once,
/// hidden, when the program starts.
class RollerWindow : public SideWindow {
  Q_OBJECT

 public:
  RollerWindow(const Perform& perform, QWidget* parent);
  ~RollerWindow() override;

  /// Shows or hides the window as the form has it; a hidden one is painted when it is shown.
  void Paint(const MainForm& form);

 private:
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
  std::unique_ptr<Binder> binder_;
};

}  // namespace ng
