#include "roller/dice_roller.h"

#include <gtest/gtest.h>

#include "fakes/expect_error.h"
#include "fakes/fakes.h"
#include "roller/skill_level.h"

namespace ng {
namespace {

/// A roller beside a fight of two: Vex in slot 1, displayed, and Marrow in slot 2.
struct Roller : testing::Test, DiceRoller::Weapons {
  Roller() {
    fight.CurrentPCpointer = 1;
    vex.Name = "Vex";
    fight.Players[2].Name = "Marrow";
    vex.SkillWeapType = 1;
    files.Put("D:\\visability.dat", "Full light|0|0|0|0|0\nHalf light|2|1|0|2|1\n");
    roller.Form_Load(files, "D:");
  }
  FakeFiles files;
  ScriptedUniform uniform;
  ScriptedPrompts prompts;
  Fight fight;
  PlayerRecord& vex = fight.Players[1];
  bool melee = false;
  bool WieldsInMelee(const PlayerRecord&, Weapon) const override { return melee; }
  Integer WeaponModifier(const PlayerRecord& who, Weapon) const override { return who.TNDamMod; }
  DiceRoller roller{fight, uniform, prompts, *this, [this](Slot, Integer pool) { vex.CP = pool; }};
};

TEST_F(Roller, AnExchangeFromShotToShot) {
  // Vex fires 8 rounds at medium range; recoil leaves +2.
  vex.RangeSelPrim = 1;
  vex.CP = 5;
  roller.URCprimary(2);
  roller.BulletCount = 8;
  roller.skill = "5";
  roller.tabTest_Click(TestPage::Ranged);
  roller.cmbVisability_Click(1);
  roller.Caption_Click(*FindCaption("Label4"));
  EXPECT_EQ(roller.lblSum, "Base 5  +  modifiers 3  =  8");
  roller.cmdCPplusMinus(0);
  EXPECT_EQ(roller.OddsLine(), "At least one success: 59.2 %.\nOn average: 0.83.");
  uniform.PushFaces({6, 6, 2, 6, 2, 5, 4, 1, 6, 1});
  roller.cmdRoll();
  EXPECT_EQ(roller.txtResult, "14 08 05 04 01 07 ");
  EXPECT_EQ(roller.txtSuccess + "/" + roller.txtLastSuccesses, "2/2");
  EXPECT_EQ(vex.CP.Value(), 4);
  EXPECT_EQ(prompts.TakeLog(), (std::vector<std::string>{"beep"}));

  // Marrow resists with Body 4 against two bursts; the attacker's count stays.
  fight.CurrentPCpointer = 2;
  roller.Body = "4";
  roller.tabTest_Click(TestPage::BodyDodge);
  EXPECT_EQ(roller.lblSum, "Base 4  +  modifiers 2  =  6");
  uniform.PushFaces({5, 6, 1, 2, 4});
  roller.cmdRoll();
  EXPECT_EQ(roller.txtSuccess + "/" + roller.txtLastSuccesses, "1/2");

  // Wounded, Marrow shoots back at long range with better eyes; the aim is still on the board.
  roller.URCsecondary(3);
  fight.Players[2].TNDamMod = 3;
  fight.Players[2].natLowLight = true;
  fight.Players[2].SkillWeapType = 2;
  fight.Players[2].RangeSelSec = 2;
  roller.tabTest_Click(TestPage::Ranged);
  EXPECT_EQ(roller.lblSum, "Base 6  +  modifiers 2  =  8");
  roller.tabTest_Click(TestPage::BodyDodge);  // wounds count for dodging only, once asked for
  roller.Caption_Click(*FindCaption("lblBodyWounds"));
  EXPECT_EQ(roller.txtTargetNum, "9");
  roller.tabTest_Click(TestPage::BodyDodge);
  EXPECT_EQ(roller.txtTargetNum, "6");
}

TEST_F(Roller, CountsSuccessesAndOnesEvenWithoutTheVisibilityTable) {
  roller.Form_Load(files, "E:");
  EXPECT_EQ(prompts.TakeLog(),
            std::vector<std::string>{"message \"File not found%0D%0AE:\\visability.dat\""});
  uniform.RepeatFace(5);
  roller.vNumDice(32767);
  roller.cmdRoll();
  EXPECT_EQ(roller.txtSuccess, "32767");
  EXPECT_EQ(roller.DieTotals()[100].Value(), 5);
  // Dice, target, faces; then totals, successes and highest total; the rule of one.
  const std::tuple<const char*, const char*, std::vector<int>, const char*, bool> cases[] = {
      {"0", "4", {}, "/0/0", true},
      {"3", "4", {3, 6, 6, 2, 1}, "03 14 01 /1/14", false},
      {"2", "4", {1, 1}, "01 01 /0/1", true},
      {"1", "4", {6, 1}, "07 /1/7", false},
      {"2", "5.5", {5, 6, 1}, "05 07 /1/7", false},
      {"2.5", "none", {1, 2}, "01 02 /2/2", false}};
  for (const auto& [dice, target, faces, result, ruleOfOne] : cases) {
    roller.txtNumDice = dice;
    roller.txtTargetNum_Change(target);
    for (const int face : faces) uniform.Push(face, 6);
    roller.cmdRoll();
    EXPECT_EQ(roller.txtResult + "/" + roller.txtSuccess + "/" + roller.txtHighNumber, result);
    EXPECT_EQ(roller.lblRuleOfOne, ruleOfOne) << result;
  }
  EXPECT_EQ(roller.DieTotals()[100].Value(), 0);
}

TEST_F(Roller, EachPageHasItsBoxesItsBaseAndItsSuccesses) {
  // With a power of two in each box every set of boxes has a sum of its own.
  const std::pair<const char*, const char*> cases[] = {
      {"2051", "0"}, {"15720452", "0"}, {"50333700", "2"}, {"1048580", "2"}};
  for (int page = 0; page < 4; ++page) {
    roller.tabTest_Click(TestPage{page});
    for (int box = 1; box <= 26; ++box) roller.txtRVar_Change(box, std::to_string(1 << (box - 1)));
    EXPECT_EQ(roller.txtTargetNum, cases[page].first);
    roller.txtLastSuccesses = "2";
    roller.cmdRoll();
    EXPECT_EQ(roller.txtLastSuccesses, cases[page].second) << page;
    roller.cmdZeroAll();
    EXPECT_EQ(roller.txtTargetNum, "4");
  }
}

TEST_F(Roller, TheTargetNumberFollowsTheRangeAndWhatChanges) {
  for (const auto& [range, number] : {std::pair{0, "4"}, {1, "5"}, {2, "6"}, {3, "9"}}) {
    vex.RangeSelPrim = range;
    roller.optRangeSel_Click(Weapon::Primary);
    EXPECT_EQ(roller.txtTargetNum, number);
  }
  // A number typed over it stands while nothing that it is made of changes.
  roller.txtTargetNum_Change("11");
  roller.URCsecondary(5);
  roller.Follow();
  roller.optRangeSel_Click(Weapon::Primary);
  EXPECT_EQ(roller.txtTargetNum, "11");
  roller.URCprimary(-1);
  roller.Follow();
  roller.txtRangeTargetNumber_Change("4.5");
  roller.cmbAttackerMove_Click(1);
  EXPECT_EQ(roller.txtTargetNum, "9.5");
  roller.ClearBox(kAttackerMoveBox);
  EXPECT_EQ(roller.lblSum, "Base 4.5  +  modifiers -1  =  3.5");
  EXPECT_EQ(roller.cmbAttackerMove, 0);
  // What is typed over the light stays, and with its box emptied the light is chosen no more.
  roller.cmbVisability_Click(1);
  roller.txtRVar_Change(kVisibilityBox, "7");
  roller.tabTest_Click(TestPage::Ranged);
  EXPECT_EQ(roller.board.txtRVar[kVisibilityBox], "7");
  roller.ClearBox(kVisibilityBox);
  EXPECT_EQ(roller.cmbVisability.index, 0);
  // Another's eyes, in close combat, too.
  roller.cmbVisability2_Click(1);
  vex.natLowLight = true;
  melee = true;
  roller.txtMeleeNumber_Change("7");
  roller.tabTest_Click(TestPage::Melee);
  EXPECT_EQ(roller.board.txtRVar[roller.cmbVisability2.box], "0");
  EXPECT_EQ(roller.txtTargetNum, "4");
}

TEST_F(Roller, DiceMoveBetweenTheBoxesAndNeverBelowNothing) {
  roller.txtCPx = "1";
  for (const auto& [index, expected] : {std::pair{1, "0/1"}, {0, "1/0"}, {0, "1/0"}, {1, "0/1"}}) {
    roller.cmdCPplusMinus(index);
    EXPECT_EQ(roller.txtNumDice + "/" + roller.txtCPx, expected);
  }
  roller.txtNumDice = "99999";
  EXPECT_EQ(roller.OddsLine(), "");
  for (const auto& [typed, less] : {std::pair{"3x", "2"}, {"", "0"}, {"2.5", "1"}}) {
    roller.txtNumDice_Change(typed);
    roller.cmdDicePlusMinus(1);
    EXPECT_EQ(roller.txtNumDice, less);
  }
}

TEST(SkillLevel, IsReadOrLeftToTheButtons) {
  SkillLevelForm form;
  const std::tuple<const char*, int, bool> cases[] = {
      {"Pistols 4", 0, false}, {"Pistols [4]", 4, false}, {"[2.5] [3/4]", 2, false},
      {"[high]", 0, false},    {"[]", 0, false},          {"Pistols [ 4 dice/6]", 9, true}};
  for (const auto& [line, level, choice] : cases) {
    form.SelValue = 9;
    form.SkillString(line);
    EXPECT_EQ(form.SelValue.Value(), level) << line;
    EXPECT_EQ(form.valid(), Boolean(choice)) << line;
  }
  EXPECT_EQ(form.cmdSkillSelect, (std::array<std::string, 2>{"Base : 4", "Spec : 6"}));
  for (const auto& [index, level] : {std::pair{1, 6}, {0, 4}}) {
    form.cmdSkillSelect_Click(index);
    EXPECT_EQ(form.SelValue.Value(), level);
  }
  EXPECT_RUNTIME_ERROR(form.SkillString("Pistols ]4["), "Overflow");
  EXPECT_RUNTIME_ERROR(form.SkillString("Pistols [4"), "Overflow");
}

}  // namespace
}  // namespace ng
