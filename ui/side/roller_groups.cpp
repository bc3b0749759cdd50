#include "ui/side/roller_groups.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "roller/dice_roller.h"
#include "ui/look/layout_kit.h"
#include "ui/wiring/button_keys.h"

namespace ng {
namespace {

constexpr int kDiceBoxWidth = 60;
constexpr int kDiceButtonWidth = 46;
constexpr int kDiceRowHeight = 34;
constexpr int kResultHeight = 42;
constexpr int kRollHeight = 44;
constexpr int kOddsLines = 2;

/// Selects the whole text of a box that takes the focus, by the mouse too: the press that brings
/// the focus would set the cursor afterwards.
class SelectOnFocus : public QObject {
 public:
  explicit SelectOnFocus(QLineEdit* box) : QObject(box) {
    afterwards_.setSingleShot(true);
    connect(&afterwards_, &QTimer::timeout, box, &QLineEdit::selectAll);
    box->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) afterwards_.start(0);
    return false;
  }

 private:
  QTimer afterwards_;
};

QLineEdit* MakeLargeBox(const Naming& naming, QWidget* parent) {
  QLineEdit* box = MakeBox(naming, kDiceBoxWidth, parent);
  box->setFixedHeight(kDiceRowHeight);
  box->setFont(InterfaceFont(14, true));
  return box;
}

QPushButton* MakeStepButton(const Naming& naming, const QString& text, QWidget* parent) {
  QPushButton* button = MakeButton(naming, text, parent);
  button->setFixedSize(kDiceButtonWidth, kDiceRowHeight);
  return button;
}

/// A row of the dice: caption, box, and the buttons on either side of it.
void AddDiceRow(QGridLayout* grid, const QString& words, QLineEdit* box, QPushButton* less,
                QPushButton* more) {
  auto* caption = new QLabel(words, box->parentWidget());
  caption->setBuddy(box);
  const int row = grid->rowCount();
  grid->addWidget(caption, row, 0);
  if (less != nullptr) grid->addWidget(less, row, 1);
  grid->addWidget(box, row, 2);
  if (more != nullptr) grid->addWidget(more, row, 3);
  if (less == nullptr || more == nullptr) return;
  PressWithKey(Qt::Key_Down, box, less);
  PressWithKey(Qt::Key_Up, box, more);
}

QPushButton* MakeRollButton(QWidget* parent) {
  QPushButton* roll =
      MakeButton({"cmdRoll", "Roll", TipWithKey("Roll the test", "Ctrl+R")}, "&Roll", parent);
  roll->setFont(InterfaceFont(13, true));
  roll->setFixedHeight(kRollHeight);
  roll->setDefault(true);
  return roll;
}

QLabel* MakeOddsLine(QWidget* parent) {
  auto* odds = new QLabel(parent);
  odds->setObjectName("lblOdds");
  odds->setProperty("tone", "muted");
  odds->setToolTip("The odds of this roll");
  odds->setWordWrap(true);
  odds->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  odds->setFixedHeight(kOddsLines * odds->fontMetrics().lineSpacing());
  return odds;
}

/// A result under its caption.
QLineEdit* AddResult(QGridLayout* grid, const QString& words, const Naming& naming, double points,
                     QWidget* parent) {
  QLineEdit* box = MakeBox(naming, kDiceBoxWidth, parent);
  box->setMaximumWidth(QWIDGETSIZE_MAX);
  box->setFixedHeight(kResultHeight);
  box->setFont(InterfaceFont(points, true));
  QLabel* caption = MakeCaption(words, parent);
  caption->setBuddy(box);
  const int column = grid->count() / 2;
  grid->addWidget(caption, 0, column);
  grid->addWidget(box, 1, column);
  return box;
}

}  // namespace

QGroupBox* MakeDiceGroup(QWidget* parent) {
  QGroupBox* group = MakeGroup("Dice", parent);
  QVBoxLayout* rows = MakeTightRows(group);
  auto* grid = new QGridLayout;
  grid->setSpacing(kRowGap);
  grid->setColumnStretch(0, 1);
  QPushButton* minus = MakeStepButton({"cmdDicePlusMinus_1", "Number of dice: one less",
                                       TipWithKey("Take a die away", "Down in the box")},
                                      "–", group);
  QLineEdit* dice = MakeLargeBox(
      {"txtNumDice", "Number of dice", TipWithKey("How many dice are rolled", "Ctrl+D")}, group);
  new SelectOnFocus(dice);
  QPushButton* plus = MakeStepButton(
      {"cmdDicePlusMinus_0", "Number of dice: one more", TipWithKey("Add a die", "Up in the box")},
      "+", group);
  AddDiceRow(grid, "&Number of dice", dice, minus, plus);
  QLineEdit* target = MakeLargeBox({"txtTargetNum", "Target number",
                                    TipWithKey("What a die must reach to be a success", "Ctrl+T")},
                                   group);
  AddDiceRow(grid, "&Target number", target, nullptr, nullptr);
  QPushButton* back =
      MakeStepButton({"cmdCPplusMinus_1", "Combat pool: take a die back",
                      TipWithKey("Put a die back into the combat pool", "Down in the box")},
                     "Back", group);
  QLineEdit* pool = MakeLargeBox(
      {"txtCPx", "Combat pool", TipWithKey("Dice left in the combat pool", "Alt+C")}, group);
  QPushButton* use =
      MakeStepButton({"cmdCPplusMinus_0", "Combat pool: use a die",
                      TipWithKey("Add a die of the combat pool to this roll", "Up in the box")},
                     "Use", group);
  AddDiceRow(grid, "&Combat pool", pool, back, use);
  rows->addLayout(grid);
  rows->addWidget(MakeOddsLine(group));
  rows->addWidget(MakeRollButton(group));
  return group;
}

QGroupBox* MakeResultGroup(QWidget* parent) {
  QGroupBox* group = MakeGroup("Result", parent);
  QVBoxLayout* rows = MakeTightRows(group);
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(2);
  grid->setHorizontalSpacing(kGroupGap);
  QLineEdit* successes =
      AddResult(grid, "Successes",
                {"txtSuccess", "Successes", "Dice that reached the target number"}, 18, group);
  successes->setReadOnly(true);
  successes->setProperty("tone", "accent");
  QLineEdit* highest = AddResult(
      grid, "Highest", {"txtHighNumber", "Highest total", "Highest total of a die"}, 14, group);
  highest->setReadOnly(true);
  AddResult(grid, "Last successes",
            {"txtLastSuccesses", "Last successes",
             "The attacker's successes, against which the defender rolls"},
            14, group);
  auto* totals = new QPlainTextEdit(group);
  totals->setObjectName("txtResult");
  totals->setAccessibleName("Totals of the dice");
  totals->setToolTip("The total of every die, in rolling order");
  totals->setReadOnly(true);
  totals->setTabChangesFocus(true);
  totals->setFont(FixedFont(13));
  totals->setMinimumHeight(48);
  QLabel* ruleOfOne = MakeValue("lblRuleOfOne", group);
  ruleOfOne->setText(DiceRoller::kRuleOfOne);
  ruleOfOne->setToolTip("Every face rolled was a 1");
  ruleOfOne->setProperty("tone", "alarm");
  ruleOfOne->setFont(InterfaceFont(12, true));
  ruleOfOne->setAlignment(Qt::AlignCenter);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  ruleOfOne->setSizePolicy(policy);
  rows->addLayout(grid);
  rows->addWidget(totals, 1);
  rows->addWidget(ruleOfOne);
  return group;
}

}  // namespace ng
