#pragma once

#include "ui/dialogs/form_dialog.h"

class QBoxLayout;

namespace ng {

/// The dialog in which the two directories and the two switches are set: the window of the options
/// form, frmOptions.
class OptionsDialog : public FormDialog {
  Q_OBJECT

 public:
  /// At the first start nobody asked for the dialog, so it says what it is for.
  enum class Occasion { FirstStart, Wanted };

  OptionsDialog(const Session& session, const Perform& door, Occasion occasion, QWidget* parent);

 private:
  /// A directory to be set: the group with its picker and the path chosen.
  void AddGroup(QBoxLayout& row, const QString& title, const char* word);
  QWidget* BuildSwitches();
  QBoxLayout* BuildButtons();
};

}  // namespace ng
