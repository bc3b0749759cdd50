#pragma once

#include <QMainWindow>
#include <array>
#include <memory>

#include "import/character_display.h"
#include "ui/wiring/acts.h"

class QLabel;
class QTreeWidget;

namespace ng {

class Binder;
class GmWindow;
class HelpWindow;
class InfoWindow;
class InitiativeGridView;
class LogWindow;
class PhaseLabel;
class ReferenceWindow;
class RollerWindow;
class Session;

/// The frame of the main window: menus, toolbar, grid, header, pages, status bar. It knows no
/// rules; what the user does becomes an act, and then the window paints itself from the forms.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(Session& session);
  ~MainWindow() override;

  /// The one way in which the window changes anything.
  void Do(const Act& act);
  void PaintAll();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildLeftPane(QWidget* parent);
  void BuildRightPane(QWidget* parent);
  void BuildStatusBar();
  void Place();
  /// Keeps the place for the next start.
  void KeepPlace(const QRect& place);
  void BringToFront(const Act& act);
  void FindLists();
  void PaintMarks();
  void PaintColours();
  void PaintCounts();
  template <typename Window>
  void PaintSideWindow(Window*& window, bool wanted);
  void PaintSideWindows();

  Session& session_;
  PhaseLabel* phase_ = nullptr;
  InitiativeGridView* grid_ = nullptr;
  /// The lists of the pages, in the order of SheetList.
  std::array<QTreeWidget*, kSheetLists> lists_{};
  QLabel* combatants_ = nullptr;
  QLabel* combatTurn_ = nullptr;
  QLabel* pass_ = nullptr;
  QLabel* roller_ = nullptr;
  GmWindow* gameMaster_ = nullptr;
  LogWindow* log_ = nullptr;
  ReferenceWindow* reference_ = nullptr;
  HelpWindow* help_ = nullptr;
  InfoWindow* itemInfo_ = nullptr;
  RollerWindow* ngdr_ = nullptr;
  std::unique_ptr<Binder> binder_;
};

}  // namespace ng
