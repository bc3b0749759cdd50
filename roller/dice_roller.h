#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "base/fixed_table.h"
#include "base/integer.h"
#include "base/ports.h"
#include "roller/modifier_board.h"
#include "roller/visability_table.h"
#include "tracker/fight/fight.h"

namespace ng {

/// The window in which success tests are rolled: the form behind ngdr. Number boxes are read
/// leniently, so that a text without a number counts as 0.
class DiceRoller {
 public:
  static constexpr const char* kRuleOfOne = "Rule of One!";

  /// A list of kinds of visibility.
  struct VisibilityChoice {
    /// The modifier box that it fills.
    int box;
    /// The entry chosen.
    int index = 0;
    /// What the choice wrote, to tell it from what was cleared or typed since.
    std::string written;
  };

  /// Hands the combat pool that a test leaves to the combatant whose dice it took.
  using PoolFunction = std::function<void(Slot, Integer)>;

  /// What the roller asks the rules of weapons, which lie above it.
  class Weapons {
   public:
    virtual ~Weapons() = default;
    /// Whether the combatant wields this weapon with a melee skill.
    virtual bool WieldsInMelee(const PlayerRecord& combatant, Weapon weapon) const = 0;
    /// The total modifier of this weapon.
    virtual Integer WeaponModifier(const PlayerRecord& combatant, Weapon weapon) const = 0;
  };

  DiceRoller(const Fight& fight, Uniform& uniform, Prompts& prompts, const Weapons& weapons,
             PoolFunction CP);

  // What the main window hands over before it starts a test.
  std::string DamageCode;
  /// Rounds fired last.
  Integer BulletCount;
  /// The skill's level, and its name.
  std::string skill;
  std::string lblSkill;
  /// The augmented Body of the displayed combatant, as plain text; BodyOfTest is shown.
  std::string Body;
  /// The total modifiers of the displayed combatant's two weapons. They count when both are there,
  /// at the end of the command.
  void URCprimary(Integer modifier) { displayedModifiers_[0] = modifier; }
  void URCsecondary(Integer modifier) { displayedModifiers_[1] = modifier; }
  /// The number of dice.
  void vNumDice(Integer dice);

  // What the controls show.
  bool visible = false;
  TestPage tabTest = TestPage::Ranged;
  std::string txtNumDice = "0";
  /// A fraction is compared as it is.
  std::string txtTargetNum = "4";
  /// Combat-pool dice not committed to the test.
  std::string txtCPx = "0";
  std::string txtRangeTargetNumber = "4";
  std::string txtMeleeNumber = "4";
  /// The totals of the last roll in rolling order, of two digits at least, a blank behind each.
  std::string txtResult;
  std::string txtSuccess;
  std::string txtHighNumber;
  /// The attacker's successes, which the defender rolls against.
  std::string txtLastSuccesses = "0";
  /// Shown; its caption is kRuleOfOne.
  bool lblRuleOfOne = false;
  ModifierBoard board;
  /// Entries of both visibility lists.
  std::vector<std::string> visibilityNames;
  /// The entries chosen in the three lists.
  VisibilityChoice cmbVisability{kVisibilityBox, 0, {}};
  VisibilityChoice cmbVisability2{kVisibility2Box, 0, {}};
  int cmbAttackerMove = 0;
  /// "Base 5  +  modifiers 4  =  9": what the target number is made of, whatever is typed over it.
  std::string lblSum;

  /// Fills the lists. A visibility table that cannot be read is reported and kept as far as it was
  /// read; the roller works without it.
  void Form_Load(Files& files, const std::string& datDir);

  /// Opens a page and starts its test for the displayed combatant: dice, combat pool, base number
  /// and whatever the combatant brings along are filled in again. What the game master set about
  /// the situation stays.
  void tabTest_Click(TestPage page);

  /// Rolls the test, shows what came of it, hands back the combat pool left over, and beeps.
  void cmdRoll();

  void txtNumDice_Change(const std::string& text);
  /// What the game master types here stays until something that the target number is made of
  /// changes.
  void txtTargetNum_Change(const std::string& text) { txtTargetNum = text; }
  void txtCPx_Change(const std::string& text);
  void txtRangeTargetNumber_Change(const std::string& text);
  void txtMeleeNumber_Change(const std::string& text);
  void txtRVar_Change(int box, const std::string& text);
  /// Index 0 adds a die, index 1 takes one away.
  void cmdDicePlusMinus(int index);
  /// Index 0 moves a die from the pool to the dice, index 1 moves one back. Neither moves a die
  /// that its box does not have.
  void cmdCPplusMinus(int index);

  void cmbVisability_Click(int index);
  void cmbVisability2_Click(int index);
  void cmbAttackerMove_Click(int index);
  void Caption_Click(const Caption& caption);
  /// The right click or Shift+click on a box's caption. A list that fills the box goes back to its
  /// first entry.
  void ClearBox(int box);
  /// Sets all boxes of the page to 0.
  void cmdZeroAll();

  /// To be called when a command has run: what the combatant who tests brings along and the pool
  /// are taken up again. The pool stays with its owner, whoever is displayed, as long as dice of it
  /// are in the test, and goes up and down with the owner's pool.
  void Follow();
  /// What was started is over, as when another fight is loaded.
  void EndTest() { testOpen_ = false; }
  int TestsStarted() const { return testsStarted_; }
  /// Whose test this is: from its start to its roll the one it was started for, whoever is
  /// displayed; otherwise the displayed combatant.
  Slot Tester() const;
  /// Who the last test was started for, 0 before the first, and whose pool its dice come from.
  Slot TestOwner() const { return testOwner_; }
  Slot PoolOwner() const { return poolOwner_; }
  /// The augmented Body of the combatant who tests.
  const std::string& BodyOfTest() const { return testOpen_ ? testBody_ : Body; }

  /// The main window's choice of a range bracket; the base number of the weapon that attacked last
  /// follows it.
  void optRangeSel_Click(Weapon weapon);

  // What the window shows beside the boxes.
  /// The base number of the open page.
  std::string BaseNumber() const;
  /// What it is the base of: "Base number (medium range)".
  std::string BaseCaption() const;
  /// The odds of this roll in plain words; empty while a box holds a number that cannot be rolled.
  std::string OddsLine() const;
  /// The totals of the last roll's first 100 dice at the indices 1 to 100, 0 where none was rolled.
  const FixedTable<Integer, 100>& DieTotals() const { return dieTotals_; }

 private:
  const PlayerRecord& Testing() const { return fight_.RecordOf(Tester()); }
  CombatantModifiers Brought() const;
  Integer ModifierOf(Weapon weapon) const;
  void SelectRange();
  void UpdateTargetNumber();
  void FollowCombatant();
  void FollowPool();
  void Choose(VisibilityChoice& list, int index);
  void LookAgain(VisibilityChoice& list);
  void TakePool();

  const Fight& fight_;
  Uniform& uniform_;
  Prompts& prompts_;
  const Weapons& weapons_;
  PoolFunction CP_;
  VisabilityTable visability_;
  std::array<Integer, 2> displayedModifiers_;
  /// What the boxes were last filled with.
  CombatantModifiers brought_;
  FixedTable<Integer, 100> dieTotals_;
  int testsStarted_ = 0;
  Slot testOwner_;
  /// The test was started and not yet rolled.
  bool testOpen_ = false;
  std::string testBody_;
  /// The range bracket of the shot, 0 short to 3 extreme; -1 when the test is no shot.
  int bracket_ = -1;
  /// Whose combat pool `txtCPx` was filled from, and how large it was.
  Slot poolOwner_;
  Integer poolTaken_;
};

}  // namespace ng
