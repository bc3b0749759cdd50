#include "ui/main/skills_group.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "ui/look/layout_kit.h"
#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

constexpr int kTestHeight = 34;
constexpr int kRatingWidth = 64;
/// "Secondary" in the smaller text.
constexpr int kLeastUseWidth = 68;

QPushButton* MakeWideButton(const Naming& naming, const QString& text, int height,
                            QWidget* parent) {
  QPushButton* button = MakeButton(naming, text, parent);
  button->setFixedHeight(height);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return button;
}

QHBoxLayout* MakeUses(QWidget* parent) {
  QHBoxLayout* row = MakeRow();
  row->addWidget(MakeWideButton({"cmdSkillPrimary", "Use the selected skill for the primary weapon",
                                 "Fire the primary weapon with the selected skill"},
                                "&Primary", kButtonHeight, parent),
                 1);
  QPushButton* secondary =
      MakeWideButton({"cmdSkillSecondary", "Use the selected skill for the secondary weapon",
                      "Fire the secondary weapon with the selected skill"},
                     "&Secondary", kButtonHeight, parent);
  secondary->setMinimumWidth(kLeastUseWidth);
  row->addWidget(secondary, 1);
  row->addWidget(
      MakeWideButton({"cmdMeleeSkill", "Use the selected skill for unarmed combat",
                      "Fight unarmed with the selected skill, if it is one to fight with"},
                     "&Melee", kButtonHeight, parent),
      1);
  return row;
}

QHBoxLayout* MakeTests(QWidget* parent) {
  QPushButton* unarmed = MakeWideButton(
      {"cmdUnarmed", "Unarmed test", "Roll an unarmed attack in the combatant's own turn"},
      "&Unarmed", kTestHeight, parent);
  QPushButton* body = MakeWideButton(
      {"cmdBody", "Body or dodge test", "Roll to dodge or resist, out of the combatant's own turn"},
      "&Body / Dodge", kTestHeight, parent);
  Embolden(unarmed);
  Embolden(body);
  QHBoxLayout* row = MakeRow();
  row->addWidget(unarmed, 1);
  row->addWidget(body, 1);
  return row;
}

}  // namespace

QGroupBox* MakeSkillsGroup(QWidget* parent) {
  QGroupBox* group = MakeGroup("S&kills and tests", parent);
  QVBoxLayout* rows = MakeGroupRows(group);
  rows->addWidget(MakeList({"lstActive", "Active skills",
                            "Select a skill, then choose below what to use it for"},
                           {ListColumn{}, ListColumn{"", kRatingWidth, Qt::AlignRight}}, group),
                  1);
  rows->addWidget(MakeCaption("Use the selected skill for", group));
  rows->addLayout(MakeUses(group));
  ElidedLabel* chosen = MakeElided("lblSkill", group);
  chosen->setToolTip("The skill chosen last");
  rows->addWidget(chosen);
  rows->addLayout(MakeTests(group));
  return group;
}

}  // namespace ng
