#pragma once

#include <QDialog>

class QLabel;
class QListWidget;

namespace ng {

class DirectoryPicker;
class Session;

/// The dialog in which character files are picked: the window of the loader form, frmLoader.
class LoaderDialog : public QDialog {
  Q_OBJECT

 public:
  LoaderDialog(Session& session, QWidget* parent);

  /// Closing the dialog by its frame cancels.
  void reject() override;

 private:
  void BuildLayout();
  void Connect();
  void Do(const char* control, int index = 0, const std::string& text = {});
  void Paint();
  void PaintFiles();
  void TakeSelection();

  Session& session_;
  DirectoryPicker* directories_;
  QListWidget* files_;
  QLabel* unlisted_;
  bool painting_ = false;
};

}  // namespace ng
