#include "ui/main/pools_group.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "ui/look/layout_kit.h"
#include "ui/wiring/button_keys.h"

namespace ng {
namespace {

constexpr int kCodeWidth = 21;
constexpr int kPoolBoxWidth = 52;
constexpr int kLeastPoolBoxWidth = 40;

struct Pool {
  const char* code;
  const char* text;
  const char* accessible;
  const char* box;
  const char* minus;
  const char* plus;
  const char* minusTip;
  const char* plusTip;
  /// In the box; none where keys of the whole window do the same.
  const char* minusKey;
  const char* plusKey;
};

constexpr std::array<Pool, 5> kPools = {{
    {"CP", "Combat", "Combat pool", "txtCP", "cmdCPnegative", "cmdCPplus",
     "Take a die from the combat pool", "Add a die to the combat pool", nullptr, nullptr},
    {"SP", "Spell", "Spell pool", "txtSP", "cmdSPnegative", "cmdSPplus",
     "Take a die from the spell pool", "Add a die to the spell pool", "Down in the box",
     "Up in the box"},
    {"SD", "Set aside", "Set aside", "txtSD", "cmdSDnegative", "cmdSDplus",
     "Give a die back to the spell pool", "Set a die of the spell pool aside", "Down in the box",
     "Up in the box"},
    // The names of this pair differ; both are names of commands.
    {"AS", "Astral", "Astral pool", "txtAS", "cmdASnegative", "cmdADplus",
     "Take a die from the astral pool", "Add a die to the astral pool", "Down in the box",
     "Up in the box"},
    {"KP", "Karma", "Karma pool", "txtKP", "cmdKPnegative", "cmdKPplus",
     "Take a die from the karma pool", "Add a die to the karma pool", "Down in the box",
     "Up in the box"},
}};

QString TipOf(const char* tip, const char* key) {
  return key == nullptr ? QString(tip) : TipWithKey(tip, key);
}

void AddPool(QGridLayout* grid, const Pool& pool, QWidget* parent) {
  auto* code = new QLabel(pool.code, parent);
  Embolden(code);
  code->setFixedWidth(kCodeWidth);
  QLabel* caption = MakeCaption(pool.text, parent);
  QPushButton* minus =
      MakeButton({pool.minus, QStringLiteral("%1: take a die").arg(pool.accessible),
                  TipOf(pool.minusTip, pool.minusKey)},
                 "–", parent);
  QLineEdit* box = MakeBox({pool.box, pool.accessible, "Dice left"}, kPoolBoxWidth, parent);
  QPushButton* plus = MakeButton({pool.plus, QStringLiteral("%1: add a die").arg(pool.accessible),
                                  TipOf(pool.plusTip, pool.plusKey)},
                                 "+", parent);
  box->setMinimumWidth(kLeastPoolBoxWidth);
  minus->setFixedSize(kSmallButtonWidth, kSmallButtonHeight);
  plus->setFixedSize(kSmallButtonWidth, kSmallButtonHeight);
  caption->setBuddy(box);
  PressWithKey(Qt::Key_Up, box, plus);
  PressWithKey(Qt::Key_Down, box, minus);

  QHBoxLayout* words = MakeRow(0);
  words->addWidget(code);
  words->addWidget(caption, 1);
  const int row = grid->rowCount();
  grid->addLayout(words, row, 0);
  grid->addWidget(minus, row, 1);
  grid->addWidget(box, row, 2);
  grid->addWidget(plus, row, 3);
}

}  // namespace

QGroupBox* MakePoolsGroup(QWidget* parent) {
  QGroupBox* group = MakeGroup("Dice pools", parent);
  group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* grid = new QGridLayout;
  MakeGroupRows(group)->addLayout(grid);
  grid->setSpacing(kRowGap);
  grid->setColumnStretch(0, 1);
  for (const Pool& pool : kPools) AddPool(grid, pool, group);
  return group;
}

}  // namespace ng
