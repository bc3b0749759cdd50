#pragma once

#include <QMainWindow>
#include <memory>
#include <string_view>
#include <vector>

#include "ui/wiring/acts.h"

namespace ng {

class Binder;
class InitiativeGridView;
class Session;
class SideWindow;

/// The frame of the main window: menus, toolbar, grid, header, pages, status bar. It knows no
/// rules; what the user does becomes an act, and then the window paints itself from the forms. It
/// sees the forms and cannot change them: its acts go through the door.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow(const Session& session, Perform door);
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
  /// A warning in the status bar that is there while it has words, and dismissed by a click.
  void AddNotice(const char* name, const char* tip);
  void Place();
  /// Keeps the place for the next start.
  void KeepPlace(const QRect& place);
  void ConnectLists();
  void PaintColours() const;
  void PaintSideWindows();
  SideWindow* FindSideWindow(std::string_view name) const;
  void BringToFront(const Act& act) const;

  /// A window beside this one. It is made when it is first wanted, which keeps the start short; its
  /// form is there from the start.
  struct Side {
    const char* name;
    SideWindow* (*make)(const Perform& perform, QWidget* parent);
    /// Null before it is wanted.
    SideWindow* window = nullptr;
  };

  const Session& session_;
  Perform door_;
  InitiativeGridView* grid_ = nullptr;
  std::vector<Side> sides_;
  std::unique_ptr<Binder> binder_;
};

}  // namespace ng
