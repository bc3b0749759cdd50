#pragma once

#include <QDialog>

#include "ui/wiring/acts.h"

class QBoxLayout;

namespace ng {

class MainForm;

/// A window beside the main one that follows a form: shown while the form is open, brought to the
/// front when it is asked for again. Closing it is an act, and F1 asks for the help on it.
class SideWindow : public QDialog {
  Q_OBJECT

 public:
  SideWindow(const QString& name, const QString& title, const char* closeAct, Perform perform,
             QWidget* parent);

  void reject() override;
  /// Shows the window above the one that asked for it.
  void BringToFront();

 protected:
  void Do(const Act& act) { perform_(act); }
  void SetOpen(bool open);
  /// Gives the layout of the whole window the edges and gaps that all of them have.
  static void SetEdges(QBoxLayout& layout);

 private:
  const char* closeAct_;
  Perform perform_;
};

}  // namespace ng
