#include "ui/main/weapon_column.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <string_view>

#include "ui/look/layout_kit.h"
#include "ui/look/theme.h"
#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

constexpr int kTitlePoints = 11;
constexpr int kTotalPoints = 17;
constexpr int kRoundsLeftPoints = 14;
constexpr int kTotalWidth = 52;
constexpr int kLevelWidth = 18;
constexpr int kRecoilBoxWidth = 50;
constexpr int kFiredBoxWidth = 42;
constexpr int kReloadWidth = 80;
constexpr int kLeastReloadWidth = 56;
constexpr int kLeastTriggerHeight = 34;
constexpr int kTriggerHeight = 48;
/// Where the words of a check box or radio button begin.
constexpr int kIndicatorIndent = 20;
constexpr int kFigureColumns = 4;

/// Where the two weapons' controls are named apart.
struct WeaponNames {
  const char* title;
  const char* caption;
  const char* skill;
  const char* skillLevel;
  const char* total;
  const char* ranges;
};

constexpr std::array<WeaponNames, 2> kWeapons = {
    {{"Primary", "lblPrimary", "lblSkillPrimary", "lblSkillPrimaryLevel", "lblWPrim", "lblPRng"},
     {"Secondary", "lblSecondary", "lblSkillSecondary", "lblSkillSecondaryLevel", "lblWSec",
      "lblSRng"}}};

struct Words {
  const char* name;
  const char* text;
  const char* tip;
};

constexpr std::array<Words, kFigureColumns> kRanges = {
    {{"Short", "Short", "Short range, up to the number below"},
     {"Medium", "Med.", "Medium range, up to the number below"},
     {"Long", "Long", "Long range, up to the number below"},
     {"Extreme", "Extr.", "Extreme range, up to the number below"}}};

constexpr std::array<Words, kFigureColumns> kRecoil = {
    {{"txtTBTT", "TBTT", "Rounds fired this turn"},
     {"txtRC", "RC", "Recoil compensation"},
     {"txtGyro", "Gyro", "Gyro compensation"},
     {"txtURC", "URC", "Uncompensated recoil, calculated from the boxes beside it"}}};

constexpr std::array<Words, 3> kSights = {{{"chkSmL", "Smartlink", "Smartlink in use"},
                                           {"chkLaserSight", "Laser", "Laser sight in use"},
                                           {"chkSmtGoggles", "Goggles", "Smart goggles in use"}}};

constexpr std::array<Words, 3> kTriggers = {
    {{"cmdShots1", "1 shot", "Fire one round"},
     {"cmdShots3", "3 shots", "Fire a burst of three rounds"},
     {"cmdShotsFA", "Full auto", "Fire full automatic"}}};

const WeaponNames& NamesOf(int index) { return kWeapons[static_cast<std::size_t>(index)]; }

QGridLayout* MakeFourColumns() {
  auto* grid = new QGridLayout;
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  for (int column = 0; column < kFigureColumns; ++column) grid->setColumnStretch(column, 1);
  return grid;
}

}  // namespace

WeaponColumn::WeaponColumn(Weapon weapon, QWidget* parent)
    : QWidget(parent), index_(static_cast<int>(weapon)) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kRowGap);
  rows->addLayout(MakeTitle());
  rows->addLayout(MakeFigures());
  rows->addStretch(3);
  rows->addLayout(MakeRanges());
  rows->addStretch(2);
  rows->addLayout(MakeRecoil());
  rows->addLayout(MakeSights());
  rows->addStretch(3);
  rows->addLayout(MakeRounds());
  // The triggers grow first.
  rows->addLayout(MakeTriggers(), 20);
}

QGridLayout* WeaponColumn::MakeTitle() {
  const WeaponNames& names = NamesOf(index_);
  auto* hand = new QLabel(names.title, this);
  hand->setProperty("tone", "accent");
  Embolden(hand);
  QLabel* level = MakeValue(names.skillLevel, this);
  level->setFixedWidth(kLevelWidth);
  level->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  level->setToolTip("Dice of the firing skill");
  ElidedLabel* skill = MakeElided(names.skill, this);
  skill->setProperty("tone", "muted");
  ElidedLabel* caption = MakeElided(names.caption, this);
  caption->setFont(InterfaceFont(kTitlePoints, true));
  caption->setProperty("emptyText", QStringLiteral("– none –"));
  QLabel* total = MakeValue(names.total, this);
  total->setFont(InterfaceFont(kTotalPoints, true));
  total->setFixedWidth(kTotalWidth);
  total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  total->setToolTip("Total target number modifier of this weapon");

  QHBoxLayout* skillRow = MakeRow(6);
  skillRow->addWidget(hand);
  skillRow->addSpacing(-kRowGap);
  skillRow->addWidget(level);
  skillRow->addWidget(skill, 1);
  auto* grid = new QGridLayout;
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addLayout(skillRow, 0, 0);
  grid->addWidget(caption, 1, 0);
  grid->addWidget(total, 0, 1, 2, 1);
  grid->setColumnStretch(0, 1);
  return grid;
}

QHBoxLayout* WeaponColumn::MakeFigures() {
  struct Figure {
    Words words;
    int share;
    int leastWidth;
  };
  // The magazine comes last and has the most room: its text is the longest.
  static constexpr std::array<Figure, 3> kFigures = {
      {{{"lblDamage", "Damage", "Damage code"}, 92, 28},
       {{"lblConceal", "Conceal", "Concealability"}, 75, 14},
       {{"lblAmmo", "Mag.", "Magazine: rounds and how it is loaded"}, 129, 38}}};
  QHBoxLayout* row = MakeRow(2);
  for (const auto& [words, share, leastWidth] : kFigures) {
    ElidedLabel* figure = MakeElided(Own(words.name), this);
    Embolden(figure);
    figure->setMinimumWidth(leastWidth);
    figure->setToolTip(words.tip);
    QHBoxLayout* slot = MakeRow();
    slot->addWidget(MakeCaption(words.text, this));
    slot->addWidget(figure, 1);
    row->addLayout(slot, share);
  }
  return row;
}

QGridLayout* WeaponColumn::MakeRanges() {
  QGridLayout* grid = MakeFourColumns();
  for (int column = 0; column < kFigureColumns; ++column) {
    const Words& words = kRanges[static_cast<std::size_t>(column)];
    auto* bracket = new QRadioButton(words.text, this);
    bracket->setObjectName(ElementName("optRangeSel", index_ * kFigureColumns + column));
    bracket->setAccessibleName(Spoken(words.name) + " range");
    bracket->setToolTip(words.tip);
    ElidedLabel* limit = MakeElided(ElementName(NamesOf(index_).ranges, column), this);
    Embolden(limit);
    limit->setIndent(kIndicatorIndent);
    limit->setProperty("emptyText", QStringLiteral("–"));
    grid->addWidget(bracket, 0, column);
    grid->addWidget(limit, 1, column);
  }
  return grid;
}

QGridLayout* WeaponColumn::MakeRecoil() {
  QGridLayout* grid = MakeFourColumns();
  for (int column = 0; column < kFigureColumns; ++column) {
    const Words& words = kRecoil[static_cast<std::size_t>(column)];
    const QString tip = QStringLiteral("%1: %2").arg(words.text, words.tip);
    QLineEdit* box = MakeBox({Own(words.name), Spoken(words.tip), tip}, kRecoilBoxWidth, this);
    if (words.name == std::string_view("txtURC")) {
      box->setReadOnly(true);
      Embolden(box);
    }
    QLabel* caption = MakeCaption(words.text, this);
    caption->setToolTip(tip);
    caption->setBuddy(box);
    grid->addWidget(caption, 0, column);
    grid->addWidget(box, 1, column, Qt::AlignLeft);
  }
  return grid;
}

QHBoxLayout* WeaponColumn::MakeSights() {
  QHBoxLayout* row = MakeRow(4);
  for (const auto& [name, text, tip] : kSights) {
    row->addWidget(MakeCheck({Own(name), Spoken(text), tip}, text, this));
  }
  row->addStretch();
  return row;
}

QHBoxLayout* WeaponColumn::MakeRounds() {
  QLineEdit* fired =
      MakeBox({Own("txtShots"), Spoken("rounds fired"), "Rounds fired since the last reload"},
              kFiredBoxWidth, this);
  QLabel* firedCaption = MakeCaption("Fired", this);
  firedCaption->setBuddy(fired);
  ElidedLabel* left = MakeElided(Own("lblLeft"), this);
  left->setFont(InterfaceFont(kRoundsLeftPoints, true));
  left->setProperty("alarmText", QStringLiteral("0"));
  left->setToolTip("Rounds left in the magazine");
  QPushButton* reload =
      MakeButton({Own("cmdShotsZ"), Spoken("Reload"), "Fill the magazine"}, "Reload", this);
  reload->setMinimumSize(kLeastReloadWidth, kSmallButtonHeight + 2);
  reload->setMaximumWidth(kReloadWidth);
  reload->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

  QHBoxLayout* row = MakeRow(6);
  row->addWidget(firedCaption);
  row->addWidget(fired);
  row->addWidget(MakeCaption("Left", this));
  row->addWidget(left, 1);
  row->addWidget(reload, 1);
  return row;
}

QHBoxLayout* WeaponColumn::MakeTriggers() {
  QHBoxLayout* row = MakeRow();
  for (const Words& words : kTriggers) {
    QPushButton* trigger =
        MakeButton({Own(words.name), Spoken(words.text), words.tip}, words.text, this);
    Embolden(trigger);
    trigger->setMinimumHeight(kLeastTriggerHeight);
    trigger->setMaximumHeight(kTriggerHeight);
    trigger->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    row->addWidget(trigger, 1);
  }
  return row;
}

QString WeaponColumn::Own(const char* name) const { return ElementName(name, index_); }

QString WeaponColumn::Spoken(const char* words) const {
  return QStringLiteral("%1: %2").arg(NamesOf(index_).title, words);
}

}  // namespace ng
