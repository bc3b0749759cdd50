#include "ui/dialogs/skill_level_dialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "app/session.h"
#include "ui/look/theme.h"
#include "ui/wiring/text.h"

namespace ng {

SkillLevelDialog::SkillLevelDialog(Session& session, QWidget* parent)
    : QDialog(parent), session_(session) {
  const SkillLevelForm& form = session_.main.skillLevel;
  setObjectName(QStringLiteral("frmSelSkillLevel"));
  setWindowTitle("Skill Level");
  setMinimumWidth(380);
  QString line = ToQString(form.lblSkill);
  auto* skill = new QLabel(line.replace(QLatin1Char('\t'), QLatin1String("     ")), this);
  skill->setObjectName(QStringLiteral("lblSkill"));
  skill->setTextFormat(Qt::PlainText);
  skill->setFont(InterfaceFont(11, true));
  skill->setAlignment(Qt::AlignCenter);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  int index = 0;
  for (const std::string& caption : form.cmdSkillSelect) {
    auto* button = new QPushButton(ToQString(caption), this);
    button->setObjectName(QStringLiteral("cmdSkillSelect_%1").arg(index));
    button->setFont(InterfaceFont(10, true));
    button->setMinimumHeight(42);
    button->setDefault(index == SkillLevelForm::kBase);
    connect(button, &QPushButton::clicked, this,
            [this, index] { Do("frmSelSkillLevel.cmdSkillSelect", index); });
    buttons->addWidget(button, 1);
    ++index;
  }
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 18, 16, 16);
  column->setSpacing(16);
  column->addWidget(skill);
  column->addLayout(buttons);
}

void SkillLevelDialog::reject() { Do("frmSelSkillLevel.Close"); }

void SkillLevelDialog::Do(const char* control, int index) {
  session_.Do({control, index, {}});
  if (!session_.main.skillLevel.open) done(Accepted);
}

}  // namespace ng
