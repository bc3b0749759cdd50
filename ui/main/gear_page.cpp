#include "ui/main/gear_page.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

/// The total weight. It has room for any, so that the width of the lists beside it does not change.
QLabel* MakeWeight(const QString& name, QWidget* parent) {
  QLabel* weight = MakeValue(name, parent);
  weight->ensurePolished();
  weight->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  weight->setToolTip("Weight of everything worn and carried");
  weight->setMinimumWidth(
      weight->fontMetrics().horizontalAdvance(QStringLiteral("Total Weight: 0000.00")));
  return weight;
}

struct ButtonWidths {
  int least;
  int full;
};

constexpr ButtonWidths kHandButton{72, 86};
constexpr ButtonWidths kInfoButton{52, 64};
constexpr int kWeightColumn = 58;
constexpr int kNameWidth = 80;
constexpr int kLeastNameWidth = 40;

QPushButton* MakeWideButton(const Naming& naming, const QString& text, ButtonWidths widths,
                            QWidget* parent) {
  QPushButton* button = MakeButton(naming, text, parent);
  button->setFixedHeight(kButtonHeight);
  button->setMinimumWidth(widths.least);
  button->setMaximumWidth(widths.full);
  return button;
}

/// The button that shows all about the selected line of a list.
QPushButton* MakeInfoButton(const QString& name, const QString& what, const QString& text,
                            QWidget* parent) {
  return MakeWideButton({name, "Info on the selected " + what,
                         TipWithKey("Show all details of the selected " + what, "Enter")},
                        text, kInfoButton, parent);
}

/// The rows of a group whose title, with the weight of its list, the program fills in.
QVBoxLayout* MakeWeighedRows(const QString& name, QGroupBox* group) {
  group->setObjectName(name);
  QVBoxLayout* rows = MakeGroupRows(group);
  rows->setSpacing(6);
  return rows;
}

QHBoxLayout* MakeHandRow(QWidget* parent) {
  ElidedLabel* name = MakeElided("lblNameX", parent);
  Embolden(name);
  name->setMinimumWidth(kLeastNameWidth);
  name->setMaximumWidth(kNameWidth);
  QHBoxLayout* row = MakeRow(6);
  row->addWidget(name, 8);
  row->addWidget(MakeCaption("Ready selected weapon as:", parent));
  row->addSpacing(4);
  row->addWidget(MakeWideButton({"cmdSetPrim", "Ready the selected weapon as primary",
                                 "Ready the selected weapon as the primary one"},
                                "&Primary", kHandButton, parent),
                 8);
  row->addWidget(MakeWideButton({"cmdSetSecond", "Ready the selected weapon as secondary",
                                 "Ready the selected weapon as the secondary one"},
                                "&Secondary", kHandButton, parent),
                 8);
  row->addStretch(1);
  row->addWidget(MakeInfoButton("cmdInfoWeapon", "weapon", "&Info", parent));
  return row;
}

QGroupBox* MakeWeapons(QWidget* parent) {
  QGroupBox* group = MakeGroup("Weapons", parent);
  QVBoxLayout* rows = MakeWeighedRows("grpWeapon", group);
  rows->addWidget(
      MakeList(
          {"lstWeapon", "Weapons", "Check mark: carried. The selected weapon can be readied below"},
          {ListColumn{"Carried weapon"}, ListColumn{"Damage", 100, Qt::AlignLeft, 62},
           ListColumn{"Conceal", 62, Qt::AlignLeft, 52},
           ListColumn{"Details", 128, Qt::AlignLeft, 60}, ListColumn{"Ammo", 54, Qt::AlignLeft, 46},
           ListColumn{"Weight", kWeightColumn, Qt::AlignRight, 50}},
          group),
      1);
  rows->addLayout(MakeHandRow(group));
  return group;
}

QHBoxLayout* MakeArmourFigures(QWidget* parent) {
  struct Figure {
    const char* name;
    int width;
    const char* tip;
  };
  static constexpr Figure kFigures[] = {
      {"lblBAL2", 50, "BAL: ballistic armour"},
      {"lblIMP2", 50, "IMP: impact armour"},
      {"lblQCKmod2", 58, "QCK: quickness lost to heavy armour"},
      {"lblCPmod2", 100, "CPmod: combat pool lost to heavy armour"}};
  QHBoxLayout* row = MakeRow(6);
  for (const auto& [name, width, tip] : kFigures) {
    ElidedLabel* figure = MakeElided(name, parent);
    Embolden(figure);
    figure->setFixedWidth(width);
    figure->setToolTip(tip);
    row->addWidget(figure);
  }
  row->addStretch();
  row->addWidget(MakeWeight("lblWeight2", parent));
  row->addSpacing(4);
  row->addWidget(MakeInfoButton("cmdInfoArmor", "armour", "Inf&o", parent));
  return row;
}

QGroupBox* MakeArmour(QWidget* parent) {
  QGroupBox* group = MakeGroup("Armour", parent);
  QVBoxLayout* rows = MakeWeighedRows("grpArmor", group);
  rows->addWidget(MakeList({"lstArmor", "Armour", "Check mark: worn"},
                           {ListColumn{"Worn armour"}, ListColumn{"Conceal", 62, Qt::AlignRight},
                            ListColumn{"Ballistic", 66, Qt::AlignRight},
                            ListColumn{"Impact", 62, Qt::AlignRight},
                            ListColumn{"Weight", kWeightColumn + 4, Qt::AlignRight}},
                           group),
                  1);
  rows->addLayout(MakeArmourFigures(group));
  return group;
}

QGroupBox* MakeGear(QWidget* parent) {
  QGroupBox* group = MakeGroup("Gear", parent);
  QVBoxLayout* rows = MakeWeighedRows("grpGear", group);
  rows->addWidget(MakeList({"lstGear", "Gear", "Check mark: carried"},
                           {ListColumn{"Carried gear"},
                            ListColumn{"Weight", kWeightColumn + 6, Qt::AlignRight, 48}},
                           group),
                  1);
  QHBoxLayout* row = MakeRow(6);
  row->addWidget(MakeInfoButton("cmdInfoGear", "gear", "I&nfo", group));
  row->addWidget(MakeWeight("lblWeight", group), 1);
  rows->addLayout(row);
  return group;
}

}  // namespace

GearPage::GearPage(QWidget* parent) : FittedPage(parent) {
  auto* left = new QVBoxLayout;
  left->setSpacing(kGroupGap);
  left->addWidget(MakeWeapons(this), 3);
  left->addWidget(MakeArmour(this), 2);
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, kPageMargin, 0, 0);
  columns->setSpacing(kGroupGap);
  columns->addLayout(left, 5);
  columns->addWidget(MakeGear(this), 2);
  MeasureText();
}

}  // namespace ng
