#pragma once

#include "ui/dialogs/form_dialog.h"

class QLabel;
class QListWidget;

namespace ng {

class DirectoryPicker;

/// The dialog in which character files are picked: the window of the loader form, frmLoader.
class LoaderDialog : public FormDialog {
  Q_OBJECT

 public:
  LoaderDialog(const Session& session, const Perform& door, QWidget* parent);

 private:
  void BuildLayout();
  void Connect();
  void TakeSelection();

  DirectoryPicker* directories_;
  QListWidget* files_;
  QLabel* unlisted_;
};

}  // namespace ng
