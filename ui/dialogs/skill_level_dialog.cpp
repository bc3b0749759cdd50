#include "ui/dialogs/skill_level_dialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "roller/skill_level.h"
#include "ui/look/layout_kit.h"

namespace ng {

SkillLevelDialog::SkillLevelDialog(const Session& session, const Perform& door, QWidget* parent)
    : FormDialog("frmSelSkillLevel", "Skill Level", session, door, parent) {
  setMinimumWidth(380);
  auto* skill = new QLabel(this);
  skill->setObjectName(QStringLiteral("lblSkill"));
  skill->setFont(InterfaceFont(11, true));
  skill->setAlignment(Qt::AlignCenter);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  for (const int index : {SkillLevelForm::kBase, SkillLevelForm::kSpecialisation}) {
    auto* button = new QPushButton(this);
    button->setObjectName(ElementName("cmdSkillSelect", index));
    button->setFont(InterfaceFont(10, true));
    button->setMinimumHeight(42);
    button->setDefault(index == SkillLevelForm::kBase);
    buttons->addWidget(button, 1);
  }
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 18, 16, 16);
  column->setSpacing(16);
  column->addWidget(skill);
  column->addLayout(buttons);
  Paint();
}

}  // namespace ng
