#include "ui/main/damage_group.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <string_view>

#include "ui/look/layout_kit.h"
#include "ui/look/theme.h"
#include "ui/widgets/damage_bar.h"
#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

constexpr int kMaxHeight = 168;
/// "Physical" in the larger text.
constexpr int kTrackNameWidth = 55;
constexpr int kCountWidth = 34;
constexpr int kWordsGap = 4;
constexpr int kCountPoints = 17;
constexpr int kTallButton = 42;
/// Every pixel more is missing from the names of the wounds in the least window.
constexpr int kTallButtonWidth = kSmallButtonWidth;
/// Room between the wounds and the single steps.
constexpr int kPartGap = 4;

struct TrackNames {
  const char* title;
  const char* level;
  const char* count;
};

constexpr std::array<TrackNames, 2> kTracks = {
    {{"Physical", "lblPhysical", "lblPDam"}, {"Stun", "lblStun", "lblSDam"}}};

enum class Face { Wound, Step };

struct DamageButton {
  const char* name;
  const char* text;
  Face face;
  const char* accessible;
  const char* tip;
};

constexpr std::array<DamageButton, 7> kButtons = {{
    {"cmdLDam", "L", Face::Wound, "Light wound", "a Light wound, 1 box"},
    {"cmdMDam", "M", Face::Wound, "Moderate wound", "a Moderate wound, 3 boxes"},
    {"cmdSDam", "S", Face::Wound, "Serious wound", "a Serious wound, 6 boxes"},
    {"cmdDDam", "D", Face::Wound, "Deadly wound", "a Deadly wound, 10 boxes"},
    {"cmdReduce", "–", Face::Step, "one box less", "one box less"},
    {"cmdIncrease", "+", Face::Step, "one box more", "one box more"},
    {"cmdDamZero", "0", Face::Step, "clear all damage", "clear all damage"},
}};

QVBoxLayout* MakeBar(Track track, QWidget* parent) {
  const auto index = static_cast<std::size_t>(track);
  const TrackNames& names = kTracks[index];
  auto* title = new QLabel(names.title, parent);
  Embolden(title);
  title->setFixedWidth(kTrackNameWidth);
  ElidedLabel* level = MakeElided(names.level, parent);
  level->setProperty("tone", "muted");
  auto* bar = new DamageBar(track, parent);
  bar->setObjectName(ElementName("arPBDamage", static_cast<int>(index)));
  bar->setToolTip(QStringLiteral("%1 damage: filled boxes of ten").arg(names.title));

  QHBoxLayout* words = MakeRow(kWordsGap);
  words->addWidget(title);
  words->addWidget(level, 1);
  auto* rows = new QVBoxLayout;
  rows->setSpacing(1);
  rows->addLayout(words);
  rows->addWidget(bar);
  return rows;
}

QHBoxLayout* MakeTrack(Track track, QWidget* parent) {
  const auto index = static_cast<std::size_t>(track);
  const TrackNames& names = kTracks[index];
  QHBoxLayout* row = MakeRow();
  row->addLayout(MakeBar(track, parent), 1);
  QLabel* count = MakeValue(names.count, parent);
  count->setFont(InterfaceFont(kCountPoints, true));
  count->setAlignment(Qt::AlignCenter);
  count->setFixedWidth(kCountWidth);
  count->setToolTip(QStringLiteral("%1 boxes, overflow included").arg(names.title));
  row->addWidget(count);
  for (const DamageButton& button : kButtons) {
    const QString tip = QStringLiteral("%1: %2").arg(names.title, button.tip);
    QPushButton* widget =
        MakeButton({ElementName(button.name, static_cast<int>(index)),
                    QStringLiteral("%1: %2").arg(names.title, button.accessible), tip},
                   button.text, parent);
    widget->setFixedWidth(kTallButtonWidth);
    widget->setMaximumHeight(kTallButton);
    widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    if (button.face == Face::Wound) Embolden(widget);
    if (button.name == std::string_view("cmdReduce")) row->addSpacing(kPartGap);
    row->addWidget(widget);
  }
  return row;
}

QHBoxLayout* MakeFigures(QWidget* parent) {
  QLabel* modifier = MakeValue("lblDamMod", parent);
  modifier->setFixedWidth(100);
  modifier->setToolTip("Wound modifier: raises target numbers and lowers the initiative result");
  QLabel* overflow = MakeValue("lblOverDamage", parent);
  overflow->setFixedWidth(48);
  overflow->setToolTip("Physical boxes beyond the tenth");
  QLineEdit* pain = MakeBox(
      {"txtPainResistance", "Pain resistance", "Damage boxes ignored by the wound modifier"}, 40,
      parent);
  QLabel* painCaption = MakeCaption("Pain &resistance", parent);
  painCaption->setBuddy(pain);

  QHBoxLayout* row = MakeRow(6);
  row->addWidget(modifier);
  row->addWidget(MakeCaption("Overflow", parent));
  row->addWidget(overflow);
  row->addStretch();
  row->addWidget(painCaption);
  row->addWidget(pain);
  return row;
}

}  // namespace

QGroupBox* MakeDamageGroup(QWidget* parent) {
  QGroupBox* group = MakeGroup("Damage", parent);
  group->setMaximumHeight(kMaxHeight);
  QVBoxLayout* rows = MakeTightRows(group);
  rows->setSpacing(kRowGap + 2);
  rows->addLayout(MakeTrack(Track::Physical, group));
  rows->addLayout(MakeTrack(Track::Stun, group));
  rows->addLayout(MakeFigures(group));
  return group;
}

}  // namespace ng
