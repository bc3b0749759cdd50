#pragma once

#include <QDialog>
#include <memory>

#include "ui/wiring/acts.h"

class QBoxLayout;

namespace ng {

class Binder;
class Session;
struct FormWindow;

/// A window beside the main one that follows a form: shown while the form is open, brought to the
/// front when it is asked for again. Closing it is an act, and F1 asks for the help on it.
class SideWindow : public QDialog {
  Q_OBJECT

 public:
  /// `name` is that of its row in the table of windows.
  SideWindow(const char* name, const QString& title, Perform perform, QWidget* parent);
  ~SideWindow() override;

  /// Shows or hides the window as the form has it; a hidden one is painted when it is shown.
  void Paint(const Session& session);
  void reject() override;
  /// Shows the window above the one that asked for it.
  void BringToFront();

 protected:
  /// Before the window is shown, painted already, and after it.
  virtual void Opening() {}
  virtual void Opened() {}
  void Do(const Act& act) { perform_(act); }
  /// Gives the layout of the whole window the edges and gaps that all of them have.
  static void SetEdges(QBoxLayout& layout);

 private:
  const FormWindow& window_;
  Perform perform_;
  std::unique_ptr<Binder> binder_;
};

}  // namespace ng
