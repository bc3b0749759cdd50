#include "ui/main/weapons_group.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "ui/look/layout_kit.h"
#include "ui/main/weapon_column.h"

namespace ng {
namespace {

constexpr int kMaxHeight = 424;

QHBoxLayout* MakeFooter(QWidget* parent) {
  QCheckBox* twoGuns =
      MakeCheck({"chkTwoGuns", "Two guns", "Fire both weapons at once"}, "T&wo guns", parent);
  QLabel* modifiers = MakeValue("lblTNMod", parent);
  modifiers->setMinimumWidth(80);
  modifiers->setToolTip("Target number modifiers: primary/secondary weapon");
  QPushButton* disarmPrimary = MakeButton(
      {"cmdDisarm_0", "Disarm primary", "Put the primary weapon away"}, "Disarm primary", parent);
  QPushButton* disarmSecondary =
      MakeButton({"cmdDisarm_1", "Disarm secondary", "Put the secondary weapon away"},
                 "Disarm secondary", parent);

  QHBoxLayout* row = MakeRow(6);
  row->addWidget(twoGuns);
  row->addSpacing(12);
  row->addWidget(modifiers);
  row->addStretch();
  row->addWidget(disarmPrimary);
  row->addWidget(disarmSecondary);
  return row;
}

}  // namespace

QGroupBox* MakeWeaponsGroup(QWidget* parent) {
  QGroupBox* group = MakeGroup("Weapons", parent);
  group->setMaximumHeight(kMaxHeight);
  group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  QHBoxLayout* columns = MakeRow(8);
  columns->addWidget(new WeaponColumn(Weapon::Primary, group), 1);
  columns->addWidget(MakeLine(Qt::Vertical, group));
  columns->addWidget(new WeaponColumn(Weapon::Secondary, group), 1);
  QVBoxLayout* rows = MakeTightRows(group);
  rows->addLayout(columns, 1);
  rows->addWidget(MakeLine(Qt::Horizontal, group));
  rows->addLayout(MakeFooter(group));
  return group;
}

}  // namespace ng
