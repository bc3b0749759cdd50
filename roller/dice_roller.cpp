#include "roller/dice_roller.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "roller/dice.h"
#include "roller/odds.h"

namespace ng {
namespace {

constexpr const char* kPlainBase = "4";
constexpr int kBurstRounds = 3;

/// Short, medium, long, extreme.
const char* RangeBase(Integer range) {
  switch (range.Value()) {
    case 1:
      return "5";
    case 2:
      return "6";
    case 3:
      return "9";
    default:
      return kPlainBase;
  }
}

void AppendTotal(std::string& result, Integer total) {
  if (total < 10) result += '0';
  result.append(PlainText(total)) += ' ';
}

}  // namespace

DiceRoller::DiceRoller(const Fight& fight, Uniform& uniform, Prompts& prompts,
                       const Weapons& weapons, PoolFunction CP)
    : fight_(fight), uniform_(uniform), prompts_(prompts), weapons_(weapons), CP_(std::move(CP)) {
  UpdateTargetNumber();
}

void DiceRoller::vNumDice(Integer dice) { txtNumDice = PlainText(dice); }

void DiceRoller::Form_Load(Files& files, const std::string& datDir) {
  LoadedVisability loaded = LoadVisability(files, datDir);
  visability_ = std::move(loaded.table);
  visibilityNames = visability_.Names();
  if (!loaded.message.empty()) prompts_.Message(loaded.message);
}

void DiceRoller::tabTest_Click(TestPage page) {
  tabTest = page;
  ++testsStarted_;
  testOwner_ = fight_.CurrentPCpointer;
  testOpen_ = testOwner_ != 0;
  testBody_ = Body;
  // The dice of an earlier test are not this one's.
  txtResult.clear();
  txtSuccess.clear();
  txtHighNumber.clear();
  lblRuleOfOne = false;
  SelectRange();
  brought_ = Brought();
  board.Fill(brought_);
  LookAgain(cmbVisability);
  LookAgain(cmbVisability2);
  if (page == TestPage::BodyDodge) {
    board.Clear(kBodyWoundsBox);
    board.txtRVar[kBurstBox] = ModifierText(BulletCount.Value() / kBurstRounds);
  }
  vNumDice(LenientInteger(page == TestPage::BodyDodge ? Body : skill));
  TakePool();
  UpdateTargetNumber();
}

void DiceRoller::TakePool() {
  poolOwner_ = Tester();
  poolTaken_ = Testing().CP;
  txtCPx = PlainText(poolTaken_);
}

Slot DiceRoller::Tester() const { return testOpen_ ? testOwner_ : fight_.CurrentPCpointer; }

void DiceRoller::Follow() {
  // Whoever was removed has no test any more.
  if (testOpen_ && fight_.RecordOf(testOwner_).Name.empty()) testOpen_ = false;
  FollowCombatant();
  FollowPool();
}

void DiceRoller::FollowPool() {
  const PlayerRecord& owner = fight_.RecordOf(poolOwner_);
  if (txtCPx == PlainText(poolTaken_) || owner.Name.empty()) {
    if (poolOwner_ != Tester() || poolTaken_ != Testing().CP) TakePool();
    return;
  }
  const double change = owner.CP.Value() - poolTaken_.Value();
  if (change == 0) return;
  poolTaken_ = owner.CP;
  txtCPx = PlainText(std::max(LeadingNumber(txtCPx) + change, 0.0));
}

void DiceRoller::cmdRoll() {
  dieTotals_ = {};
  const int dice = LenientInteger(txtNumDice).Value();
  // A roll without dice shows the rule of one, too: no die clears the flag.
  bool allOnes = true;
  Integer successes;
  Integer highest;
  std::string result;
  for (int number = 1; number <= dice; ++number) {
    const DieRoll die = RollOpenEnded(uniform_);
    allOnes = allOnes && die.allOnes;
    if (die.total.Value() >= LeadingNumber(txtTargetNum)) successes += 1;
    highest = std::max(highest, die.total);
    if (number <= dieTotals_.kLast) dieTotals_[number] = die.total;
    AppendTotal(result, die.total);
  }
  txtResult = std::move(result);
  txtSuccess = PlainText(successes);
  txtHighNumber = PlainText(highest);
  lblRuleOfOne = allOnes;
  poolTaken_ = LenientInteger(txtCPx);
  CP_(poolOwner_, poolTaken_);
  testOpen_ = false;
  // A defender rolls against the attacker's count, so only attacks leave one.
  if (tabTest == TestPage::Ranged || tabTest == TestPage::Melee) txtLastSuccesses = txtSuccess;
  prompts_.Beep();
}

void DiceRoller::txtNumDice_Change(const std::string& text) {
  // A number that is too large stays as it was typed, for the game master to mend.
  txtNumDice = text;
  vNumDice(LenientInteger(text));
}

void DiceRoller::txtCPx_Change(const std::string& text) {
  txtCPx = text;
  txtCPx = PlainText(AtLeast(LenientInteger(text), 0));
}

void DiceRoller::txtRangeTargetNumber_Change(const std::string& text) {
  txtRangeTargetNumber = text;
  UpdateTargetNumber();
}

void DiceRoller::txtMeleeNumber_Change(const std::string& text) {
  txtMeleeNumber = text;
  UpdateTargetNumber();
}

void DiceRoller::txtRVar_Change(int box, const std::string& text) {
  board.txtRVar[box] = text;
  UpdateTargetNumber();
}

void DiceRoller::cmdDicePlusMinus(int index) {
  const Integer dice = LenientInteger(txtNumDice) + (index == 0 ? 1 : -1);
  vNumDice(AtLeast(dice, 0));
}

void DiceRoller::cmdCPplusMinus(int index) {
  const Integer pool = LenientInteger(txtCPx);
  const Integer dice = LenientInteger(txtNumDice);
  const Integer toDice = index == 0 ? 1 : -1;
  if ((toDice == 1 ? pool : dice) < 1) return;
  const Integer newPool = AtLeast(pool, 0) - toDice;
  vNumDice(AtLeast(dice, 0) + toDice);
  txtCPx = PlainText(newPool);
}

void DiceRoller::cmbVisability_Click(int index) { Choose(cmbVisability, index); }

void DiceRoller::cmbVisability2_Click(int index) { Choose(cmbVisability2, index); }

void DiceRoller::cmbAttackerMove_Click(int index) {
  const std::span<const AttackerMove> moves = AttackerMoves();
  if (index < 0 || static_cast<std::size_t>(index) >= moves.size()) return;
  cmbAttackerMove = index;
  txtRVar_Change(kAttackerMoveBox, moves[static_cast<std::size_t>(index)].modifier);
}

void DiceRoller::Caption_Click(const Caption& caption) {
  board.Step(caption, Brought());
  UpdateTargetNumber();
}

void DiceRoller::ClearBox(int box) {
  for (VisibilityChoice* list : {&cmbVisability, &cmbVisability2}) {
    if (list->box == box) *list = {box, 0, {}};
  }
  if (box == kAttackerMoveBox) cmbAttackerMove = 0;
  board.Clear(box);
  UpdateTargetNumber();
}

void DiceRoller::cmdZeroAll() {
  for (const int box : BoxesOf(tabTest)) ClearBox(box);
}

void DiceRoller::optRangeSel_Click(Weapon weapon) {
  // The bracket of another weapon or of somebody else is no concern of this test.
  if (Tester() != fight_.CurrentPCpointer) return;
  if (Testing().SkillWeapType != static_cast<int>(weapon) + 1) return;
  const std::string before = BaseNumber();
  SelectRange();
  if (BaseNumber() != before) UpdateTargetNumber();
}

std::string DiceRoller::BaseNumber() const {
  if (tabTest == TestPage::Ranged) return txtRangeTargetNumber;
  return tabTest == TestPage::Melee ? txtMeleeNumber : kPlainBase;
}

std::string DiceRoller::BaseCaption() const {
  constexpr std::array<const char*, 4> kRanges = {"short", "medium", "long", "extreme"};
  const bool shot = bracket_ >= 0 && bracket_ < static_cast<int>(kRanges.size());
  if (tabTest != TestPage::Ranged || !shot) return "Base number";
  return std::string("Base number (") + kRanges[static_cast<std::size_t>(bracket_)] + " range)";
}

std::string DiceRoller::OddsLine() const {
  try {
    return OddsSentence(LenientInteger(txtNumDice), LeadingNumber(txtTargetNum));
  } catch (const RuntimeError&) {
    return {};
  }
}

CombatantModifiers DiceRoller::Brought() const {
  const PlayerRecord& combatant = Testing();
  CombatantModifiers brought;
  if (combatant.SkillWeapType == 1) brought.weapon = ModifierOf(Weapon::Primary);
  if (combatant.SkillWeapType == 2) brought.weapon = ModifierOf(Weapon::Secondary);
  brought.wounds = combatant.TNDamMod;
  return brought;
}

Integer DiceRoller::ModifierOf(Weapon weapon) const {
  if (Tester() == fight_.CurrentPCpointer) {
    return displayedModifiers_[static_cast<std::size_t>(weapon)];
  }
  return weapons_.WeaponModifier(Testing(), weapon);
}

void DiceRoller::SelectRange() {
  const PlayerRecord& combatant = Testing();
  // The bracket of somebody else's shot must not linger.
  txtRangeTargetNumber = kPlainBase;
  bracket_ = -1;
  if (combatant.SkillWeapType == 1 && !weapons_.WieldsInMelee(combatant, Weapon::Primary)) {
    bracket_ = combatant.RangeSelPrim.Value();
    txtRangeTargetNumber = RangeBase(bracket_);
  } else if (combatant.SkillWeapType == 2 &&
             !weapons_.WieldsInMelee(combatant, Weapon::Secondary)) {
    bracket_ = combatant.RangeSelSec.Value();
    txtRangeTargetNumber = RangeBase(bracket_);
  } else {
    txtMeleeNumber = kPlainBase;
  }
}

void DiceRoller::UpdateTargetNumber() {
  const double base = LeadingNumber(BaseNumber());
  const double modifiers = board.Sum(tabTest);
  const double target = base + modifiers;
  if (!std::isfinite(target)) ThrowOverflow();
  txtTargetNum = PlainText(target);
  lblSum =
      "Base " + PlainText(base) + "  +  modifiers " + PlainText(modifiers) + "  =  " + txtTargetNum;
}

void DiceRoller::FollowCombatant() {
  const CombatantModifiers now = Brought();
  // What the game master typed stays while nothing changes.
  if (now == brought_) return;
  // Where a dodge counts the wounds, it counts what they are now.
  std::string& dodge = board.txtRVar[kBodyWoundsBox];
  if (brought_.wounds != 0 && dodge == ModifierText(brought_.wounds)) {
    dodge = ModifierText(now.wounds);
  }
  brought_ = now;
  board.Fill(now);
  UpdateTargetNumber();
}

void DiceRoller::Choose(VisibilityChoice& list, int index) {
  if (index < 0 || index >= visability_.count) return;
  list.index = index;
  list.written = VisibilityModifier(visability_.rows[index], Testing());
  txtRVar_Change(list.box, list.written);
}

/// The eyes may be another combatant's by now.
void DiceRoller::LookAgain(VisibilityChoice& list) {
  if (list.written.empty()) return;
  if (board.txtRVar[list.box] == list.written) Choose(list, list.index);
}

}  // namespace ng
