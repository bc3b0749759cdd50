#pragma once

#include <QDialog>

class QBoxLayout;
class QCheckBox;
class QLineEdit;

namespace ng {

class DirectoryPicker;
class Session;

/// The dialog in which the two directories and the two switches are set: the window of the options
/// form, frmOptions.
class OptionsDialog : public QDialog {
  Q_OBJECT

 public:
  /// At the first start nobody asked for the dialog, so it says what it is for.
  enum class Occasion { FirstStart, Wanted };

  OptionsDialog(Session& session, Occasion occasion, QWidget* parent);

  /// Closing the dialog by its frame cancels.
  void reject() override;

 private:
  /// A directory to be set: the group with its picker and the path chosen.
  struct Group {
    DirectoryPicker* picker = nullptr;
    QLineEdit* path = nullptr;
  };

  Group AddGroup(QBoxLayout& row, const QString& title, const char* word);
  QWidget* BuildSwitches();
  QCheckBox* AddSwitch(QBoxLayout& column, const char* name, const QString& text);
  QBoxLayout* BuildButtons();
  void Do(const std::string& control, const std::string& text = {});
  void Paint();
  static void PaintGroup(const Group& group, const std::string& directory);

  Session& session_;
  Group characters_;
  Group data_;
  QCheckBox* cloneInit_ = nullptr;
  QCheckBox* disableRoller_ = nullptr;
};

}  // namespace ng
