#include "ui/main/person_page.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTreeWidget>
#include <array>

#include "import/character_sheet.h"
#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

constexpr int kCaptionWidth = 48;
constexpr int kFirstColumnWidth = 234;
constexpr int kAttributeRows = kAttributeCount / 2;

constexpr std::array<const char*, kAttributeCount> kAttributeTips = {
    "Body",      "Quickness", "Strength", "Charisma", "Intelligence",
    "Willpower", "Essence",   "Magic",    "Reaction", "Initiative dice"};

constexpr std::array<const char*, 7> kPools = {"Combat", "Control", "Hacking", "Spell",
                                               "Task",   "Astral",  "Karma"};

/// The tip of a list, and how to see the details of its lines.
QString WithInfo(const QString& tip) {
  return TipWithKey(tip, "Enter: all details of the selected line");
}

/// A caption and the value named `name` beside it, at a cell of the grid.
void AddFigure(QGridLayout* grid, int row, int column, const QString& caption, const QString& tip,
               const QString& name) {
  QWidget* parent = grid->parentWidget();
  QLabel* label = MakeCaption(caption, parent);
  label->setToolTip(tip);
  label->setMinimumWidth(kCaptionWidth);
  ElidedLabel* value = MakeElided(name, parent);
  Embolden(value);
  value->setAccessibleDescription(tip);
  grid->addWidget(label, row, column);
  grid->addWidget(value, row, column + 1);
}

QGroupBox* MakeAttributes(QWidget* parent) {
  QGroupBox* group = MakeGroup("Attributes", parent);
  group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  QVBoxLayout* rows = MakeGroupRows(group);
  ElidedLabel* name = MakeElided("lblNameY", group);
  Embolden(name);
  rows->addWidget(name);
  auto* grid = new QGridLayout;
  rows->addLayout(grid);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(kRowGap);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  for (int i = 0; i < static_cast<int>(kAttributeCount); ++i) {
    const auto index = static_cast<std::size_t>(i);
    AddFigure(grid, i % kAttributeRows, i < kAttributeRows ? 0 : 2, kAttributeLabels[index],
              kAttributeTips[index], ElementName("lblAttr", i));
  }
  return group;
}

QGroupBox* MakePools(QWidget* parent) {
  QGroupBox* group = MakeGroup("Pools on the sheet", parent);
  group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  QVBoxLayout* rows = MakeGroupRows(group);
  auto* grid = new QGridLayout;
  rows->addLayout(grid);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(kRowGap);
  grid->setColumnStretch(1, 1);
  int row = 0;
  for (const char* pool : kPools) {
    AddFigure(grid, row, 0, pool, QStringLiteral("%1 pool of the sheet").arg(pool),
              ElementName("lblPool", row));
    ++row;
  }
  return group;
}

QGroupBox* MakeRace(QWidget* parent) {
  QGroupBox* group = MakeGroup("Race", parent);
  QVBoxLayout* rows = MakeGroupRows(group);
  ElidedLabel* race = MakeElided("lblrace", group);
  Embolden(race);
  auto* run = new QLabel(group);
  run->setObjectName("lblRunMult");
  run->setProperty("tone", "muted");
  run->setToolTip("Running speed as a multiple of quickness");
  QHBoxLayout* title = MakeRow(6);
  title->addWidget(race, 1);
  title->addWidget(run);
  rows->addLayout(title);
  rows->addWidget(MakePlainList({"lstRace", "Racial traits", WithInfo("Racial traits")}, group), 1);
  ElidedLabel* attacks = MakeElided("lblAttacks", group);
  attacks->setToolTip("Natural attacks");
  rows->addWidget(attacks);
  return group;
}

QGroupBox* MakeListGroup(const QString& title, const Naming& naming, QWidget* parent) {
  QGroupBox* group = MakeGroup(title, parent);
  MakeGroupRows(group)->addWidget(MakePlainList(naming, group), 1);
  return group;
}

QGroupBox* MakeMagic(QWidget* parent) {
  QGroupBox* group = MakeGroup("Magic", parent);
  QVBoxLayout* rows = MakeGroupRows(group);
  ElidedLabel* type = MakeElided("lblMageType", group);
  type->setProperty("tone", "muted");
  type->setToolTip("Kind of magician");
  rows->addWidget(type);
  rows->addWidget(
      MakePlainList({"lstMagic", "Spells, powers and geasa", WithInfo("Spells, powers and geasa")},
                    group),
      1);
  return group;
}

}  // namespace

PersonPage::PersonPage(QWidget* parent) : FittedPage(parent) {
  auto* first = new QWidget(this);
  first->setFixedWidth(kFirstColumnWidth);
  QVBoxLayout* figures = MakeColumn();
  first->setLayout(figures);
  figures->addWidget(MakeAttributes(first));
  figures->addWidget(MakePools(first));
  figures->addWidget(MakeRace(first), 1);
  QVBoxLayout* abilities = MakeColumn();
  abilities->addWidget(
      MakeListGroup("Augments",
                    {"lstAugments", "Cyberware and bioware", WithInfo("Cyberware and bioware")},
                    this),
      3);
  abilities->addWidget(MakeMagic(this), 2);
  QVBoxLayout* knowledge = MakeColumn();
  knowledge->addWidget(
      MakeListGroup("Edges and flaws", {"lstEdges", "Edges and flaws", WithInfo("Edges and flaws")},
                    this),
      1);
  knowledge->addWidget(MakeListGroup("Languages and knowledge",
                                     {"lstOther", "Languages and knowledge",
                                      WithInfo("Languages and knowledge skills")},
                                     this),
                       1);

  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, kPageMargin, 0, 0);
  columns->setSpacing(kGroupGap);
  columns->addWidget(first);
  columns->addLayout(abilities, 1);
  columns->addLayout(knowledge, 1);
}

}  // namespace ng
