#pragma once

#include <QDialog>

namespace ng {

class Session;

/// The dialog in which the base level or the specialisation of a skill is picked: the window of the
/// form behind frmSelSkillLevel.
class SkillLevelDialog : public QDialog {
  Q_OBJECT

 public:
  SkillLevelDialog(Session& session, QWidget* parent);

  /// Closing the dialog by its frame chooses nothing.
  void reject() override;

 private:
  void Do(const char* control, int index = 0);

  Session& session_;
};

}  // namespace ng
