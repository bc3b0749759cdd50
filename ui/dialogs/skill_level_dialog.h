#pragma once

#include "ui/dialogs/form_dialog.h"

namespace ng {

/// The dialog in which the base level or the specialisation of a skill is picked: the window of the
/// form behind frmSelSkillLevel.
class SkillLevelDialog : public FormDialog {
  Q_OBJECT

 public:
  SkillLevelDialog(const Session& session, const Perform& door, QWidget* parent);
};

}  // namespace ng
