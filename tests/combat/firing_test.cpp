#include "combat/firing.h"

#include <gtest/gtest.h>
#include <utility>

#include "base/number_text.h"
#include "fakes/test_program.h"

namespace ng {
namespace {

using Kind = ScriptedPrompts::Answer::Kind;
using Log = std::vector<std::string>;

/// Ash (20) has the turn and is displayed, Birch (18) comes next; both have a pistol and a machine
/// gun in their lists.
class FiringTest : public testing::Test {
 protected:
  FiringTest() {
    program.files.Put("C:\\DATA\\gear.dat", "");
    program.files.Put("C:\\DATA\\range.dat", "PIST|Pistol|5|20|40|60\nHMG|Heavy|40|80|150|400\n");
    program.files.Put("C:\\DATA\\skilconv.dat", "PIST|Pistols\nHMG|Gunnery\n");
    program.files.Put("C:\\DATA\\visability.dat", "Full light|0|0|0|0|0\nHalf light|2|1|0|2|1\n");
    main.Form_Load();
    roller.Form_Load(program.files, "C:\\DATA");
    sheet.Filename = "sheet";
    sheet.pools[0] = "5";
    sheet.attributes[0] = "5(6)";
    sheet.weapons = {{"X:Slug  pistol (PIST)\t9M\t5\tSA\t12(c)\t1", true},
                     {"Mower (old) (HMG)\t10S\t-\tFA\t40(belt)\t15", false}};
    sheet.skills = {"Pistols\t[4/6]", "Gunnery\t[3]", "ma: kick\t[2/7]", "Unarmed\t4", ""};
    main.characters.entries[2] = sheet;
    program.Add("Ash", 20);
    program.Add("Birch", 18);
    program.Do("mnuTReset");
    program.Do("mnuTNext");
  }

  void Ready(const char* button, int row) {
    program.Do("lstWeapon_Select", row);
    program.Do(button);
  }
  void FullAuto(const char* answer) {
    program.prompts.answers.push_back({Kind::Input, answer, {}});
    program.Do("cmdShotsFA");
  }
  /// `answer` is given in the level selector; without one it must not open.
  void Choose(const char* button, int row, const Act& answer = {}) {
    if (!answer.control.empty()) program.prompts.answers.push_back({Kind::Modal, {}, {answer}});
    program.Do("lstActive_Select", row);
    program.Do(button);
  }

  TestProgram program;
  MainForm& main = program.main;
  WeaponPanel& panel = main.weapons;
  DiceRoller& roller = main.ngdr;
  CharacterEntry& sheet = main.characters.entries[1];
  PlayerRecord& ash = program.fight.Players[1];
  const Act specialisation{"frmSelSkillLevel.cmdSkillSelect", 1};
};

TEST_F(FiringTest, AttacksWaitForTheTurnAndReactionsForTheOthers) {
  Ready("cmdSetPrim", 0);
  program.Do("cmdBody");
  EXPECT_EQ(program.prompts.TakeLog(), Log{"message \"Cannot Dodge/Body on your turn\""});
  const std::string shoot = "message \"Can only shoot on PC's turn!\"";
  for (const Slot displayed : {Slot(0), Slot(2), Slot(1)}) {
    if (displayed == 1) program.Do("mnuTPrev");  // Ash stands first, but before the first step
    main.XFerPC(displayed);
    program.prompts.TakeLog();
    const PlayerRecord before = program.fight.Players[displayed];
    for (const char* act : {"cmdShots1", "cmdShots3", "cmdShotsFA", "cmdUnarmed"}) program.Do(act);
    EXPECT_EQ(program.prompts.TakeLog(),
              (Log{shoot, shoot, shoot, "message \"Can only fight on PC's turn!\""}));
    EXPECT_EQ(program.fight.Players[displayed], before) << displayed.Value();
  }
  EXPECT_FALSE(roller.visible);
  program.Do("cmdBody");
  EXPECT_TRUE(roller.visible);
  EXPECT_EQ(roller.tabTest, TestPage::BodyDodge);
}

TEST_F(FiringTest, FiresUntilTheMagazineIsEmpty) {
  Ready("cmdSetPrim", 1);
  // The button, or the answer to full auto; rounds, rounds in all, burst flag.
  const std::tuple<const char*, int, std::string, bool> cases[] = {
      {"18.6", 19, "19", true},      {"0.3", 0, "19", false}, {"18.5", 18, "37", true},
      {"cmdShots1", 1, "38", false}, {"1.4", 1, "39", false}, {"cmdShots3", 1, "40", true}};
  for (const auto& [act, rounds, total, burst] : cases) {
    *act == 'c' ? program.Do(act) : FullAuto(act);
    EXPECT_EQ(roller.BulletCount.Value(), rounds) << act;
    EXPECT_EQ(panel.txtTBTT[0] + panel.txtShots[0] + ash.PrimAmmo, total + total + total);
    EXPECT_EQ(main.firing.BurstFire(), Boolean(burst)) << act;
    EXPECT_EQ(ash.FiredThisTurn, Boolean(rounds > 0)) << act;
    EXPECT_EQ(std::exchange(main.statusMessage, ""),
              "No firing skill chosen for this weapon: base number 4 at any range");
  }
  program.prompts.TakeLog();
  program.Do("cmdShots1");
  program.Do("cmdShotsFA");
  program.Do("cmdShots3", 1);  // nothing in the second hand
  EXPECT_EQ(program.prompts.TakeLog(), Log(3, "message \"Weapon empty\""));
  EXPECT_EQ(main.statusMessage, "");

  program.Do("cmdShotsZ");
  EXPECT_EQ(main.gmLog.lstGMinfo(), (Log{"Ash", "Reload:Mower (old) (HMG)Shots fired:40"}));
  EXPECT_EQ(panel.txtShots[0] + ash.PrimAmmo, "00");
  const PlayerRecord before = ash;
  const std::string question = "input \" Enter Full Auto Number of shots (1-18)\"";
  for (const char* answer : {"19", "", "0", "-1", "all"}) {
    FullAuto(answer);
    EXPECT_EQ(program.prompts.TakeLog(),
              (Log{question, "message \"Number of shots must be between 1 and 18\""}));
    EXPECT_EQ(ash, before);
  }
  program.Do("txtTBTT", 0, "7");
  program.Do("cmdShots1");
  EXPECT_EQ(panel.txtTBTT[0] + panel.txtShots[0], "81");
}

TEST_F(FiringTest, RecoilCountsRoundsLessCompensation) {
  for (const std::size_t hand : {0, 1, 2}) {  // a pistol before and after a burst, a machine gun
    Ready("cmdSetPrim", hand == 2 ? 1 : 0);
    if (hand == 1) program.Do("cmdShots3");
    // Rounds this turn, both compensations, and the recoil of the three.
    for (const auto& [rounds, compensation, gyro, recoil] : {std::tuple{"0", "0", "0", "000"},
                                                             {"1", "0", "0", "000"},
                                                             {"2", "0", "0", "124"},
                                                             {"3", "0", "0", "236"},
                                                             {"4", "1", "0", "336"},
                                                             {"4", "1", "0.5", "224"},
                                                             {"4", "x", "2.5", "224"},
                                                             {"4", "3", "2", "000"}}) {
      program.Do("txtTBTT", 0, rounds);
      program.Do("txtRC", 0, compensation);
      program.Do("txtGyro", 0, gyro);
      EXPECT_EQ(panel.txtURC[0] + ash.URCPrim, std::string(2, recoil[hand])) << hand << rounds;
    }
  }
  for (const char* code : {"(ShtG)", "(MMG)", "(LMG)", "(HMG)", "(ACan)", "(MinG)"}) {
    EXPECT_TRUE(IsHeavyWeapon(std::string("Gun ") + code + " II")) << code;
  }
  EXPECT_FALSE(IsHeavyWeapon("Gun (hmg) HMG (SMG)"));
}

TEST_F(FiringTest, SightsTwoGunsAndWoundsAddUp) {
  program.Do("txtTBTT", 0, "2");
  for (const auto& [sight, marks, sum] : {std::tuple{"chkSmL", "100", "Mod:-1"},
                                          {"chkLaserSight", "010", "Mod:+0"},
                                          {"chkSmtGoggles", "001", "Mod:+0"},
                                          {"chkSmL", "100", "Mod:-1"},
                                          {"chkSmtGoggles", "001", "Mod:+0"},
                                          {"chkSmtGoggles", "000", "Mod:+1"}}) {
    program.Do(sight);
    EXPECT_EQ(PlainText(ash.SmLPrim * 100 + ash.LaserPrim * 10 + ash.SmtGogPrim + 1000).substr(1),
              marks);
    EXPECT_EQ(panel.lblTNMod, sum) << sight;
  }
  program.Do("chkLaserSight", 1);
  EXPECT_EQ(panel.lblWPrim + panel.lblWSec, "+1-1");

  Ready("cmdSetSecond", 0);
  program.Do("txtTBTT", 0, "4");
  program.Do("chkTwoGuns");
  program.Do("cmdMDam");
  const std::pair<Log, const char*> cases[] = {{{"Ambidexterity", "Ambidexterity-8"}, "+8/+3"},
                                               {{"Tough", "Ambidexterity-2"}, "+2/+3"},
                                               {{"Ambidexterity-4"}, "+7/+2"},
                                               {{"Ambidexterity-6"}, "+6/+2"},
                                               {{"Ambidexterity-8, not Ambidexterity-2"}, "+6/+1"},
                                               {{"ambidexterity-8"}, "+8/+3"}};
  for (const auto& [edges, sum] : cases) {
    sheet.edges = edges;
    main.XFerPC(1);
    EXPECT_EQ(panel.lblTNMod, std::string("Mod:") + sum) << edges.front();
  }
}

TEST_F(FiringTest, WeaponsComeFromTheListAndGo) {
  panel.txtShots[1] = "9";
  Ready("cmdSetSecond", 0);
  Ready("cmdSetPrim", 1);
  EXPECT_EQ(panel.lblSecondary + panel.lblDamage[1] + panel.lblConceal[1] + ash.SecAmmo,
            "Slug pistol (PIST)9M50");
  EXPECT_EQ(panel.lblSRng, (std::array<std::string, 4>{"5", "20", "40", "60"}));
  EXPECT_EQ(ash.PrimHand + ash.PrimWeapStatAmmo + ash.PrimWeapStatRng4,
            "Mower (old) (HMG)40(belt)400");
  main.rangeTable = {};
  Ready("cmdSetPrim", 1);
  EXPECT_EQ(panel.lblPRng, (std::array<std::string, 4>{}));
  EXPECT_EQ(ClassCode("Slug pistol (PIST"), "");
  program.Do("cmdDisarm", 1);
  EXPECT_EQ(panel.lblTNMod, "Mod:+0");
  EXPECT_EQ(panel.lblDamage[1] + panel.lblConceal[1] + panel.lblAmmo[1] + panel.lblSRng[0], "");
  EXPECT_EQ(ash.SecHand + ash.SecWeapStatDamage + ash.PrimWeapStatDamage, "10S");
}

TEST_F(FiringTest, SkillsAreChosenAndHandedOver) {
  for (const auto& [answer, level] : {std::pair{Act{"frmSelSkillLevel.cmdSkillSelect", 0}, 4},
                                      {specialisation, 6},
                                      {Act{"frmSelSkillLevel.Close"}, 6}}) {
    Choose("cmdSkillPrimary", 0, answer);
    EXPECT_EQ(ash.SkillPrimaryValue.Value(), level);
  }
  EXPECT_EQ(main.skillTests.lblSkill + ash.SkillPrimaryName, "Pistols      [4/6]Pistols\t[4/6]");
  Choose("cmdSkillSecondary", 1);
  const PlayerRecord before = ash;
  for (const int row : {0, 3, 4}) Choose("cmdMeleeSkill", row);
  Choose("cmdSkillPrimary", 4);  // an empty line is no skill
  EXPECT_EQ(ash, before);
  Choose("cmdMeleeSkill", 2, specialisation);

  program.session.environment.settings.DisableNGDR = true;
  Ready("cmdSetSecond", 1);
  program.Do("cmdShots3", 1);
  EXPECT_EQ(roller.lblSkill + roller.skill + roller.DamageCode, "Gunnery\t[3]310S");
  EXPECT_EQ(main.statusMessage, "Ready");
  EXPECT_EQ(ash.SkillWeapType.Value(), 2);
  program.Do("cmdUnarmed");
  EXPECT_EQ(roller.lblSkill + roller.txtNumDice, "ma: kick\t[2/7]7");
  EXPECT_EQ(roller.BulletCount.Value(), 0);
  EXPECT_EQ(roller.tabTest, TestPage::Melee);
  EXPECT_EQ(roller.txtTargetNum, "4");  // the gun's recoil is of no concern
  EXPECT_FALSE(roller.visible);
}

TEST_F(FiringTest, DiceInATestStayTheirOwners) {
  Ready("cmdSetPrim", 0);
  const int before = ash.CP.Value();
  program.Do("cmdShots1");
  program.Do("ngdr.cmdCPplusMinus", 0);
  program.Do("ngdr.cmdCPplusMinus", 0);
  // A look at somebody else neither gives them back nor charges the one looked at.
  program.Do("GridX_Click", 2);
  EXPECT_EQ(roller.txtCPx, std::to_string(before - 2));
  const Integer others = program.fight.Players[2].CP;
  program.uniform.RepeatFace(2);
  program.Do("ngdr.cmdRoll");
  EXPECT_EQ(ash.CP.Value(), before - 2);
  EXPECT_EQ(program.fight.Players[2].CP, others);
  // Without dice in the test the box follows who is displayed, and what is added elsewhere counts.
  EXPECT_EQ(roller.txtCPx, std::to_string(others.Value()));
  program.Do("GridX_Click", 1);
  program.Do("ngdr.cmdCPplusMinus", 0);
  program.Do("cmdCPplus");
  EXPECT_EQ(roller.txtCPx, std::to_string(before - 2));
  program.Do("ngdr.cmdRoll");
  EXPECT_EQ(main.pools.txtCP, std::to_string(before - 2));
  // A die lost elsewhere while all are in the test leaves none, not less.
  for (int die = before - 2; die > 0; --die) program.Do("ngdr.cmdCPplusMinus", 0);
  program.Do("cmdCPnegative");
  EXPECT_EQ(roller.txtCPx, "0");
  // Nor are dice left in the box when their owner is gone.
  program.Do("ngdr.txtCPx", 0, "9");
  program.Do("mnuPRemove");
  EXPECT_EQ(roller.txtCPx, "0");
}

TEST_F(FiringTest, AnOpenTestIsItsShootersWhoeverIsDisplayed) {
  const auto test = [this] {
    std::string boxes = roller.txtTargetNum + "|" + roller.lblSum + "|" + roller.txtNumDice + "|" +
                        roller.BaseCaption() + "|" + roller.BodyOfTest() + "|" + roller.DamageCode;
    for (const std::string& box : roller.board.txtRVar) boxes += "|" + box;
    return boxes;
  };
  PlayerRecord& birch = program.fight.Players[2];
  birch.TNDamMod = 3;
  birch.natLowLight = true;
  birch.RangeSelPrim = 3;
  birch.SkillWeapType = 2;
  Choose("cmdSkillSecondary", 0, specialisation);
  Ready("cmdSetSecond", 0);
  program.Do("optRangeSel", 5);
  program.Do("cmdShots3", 1);
  program.Do("ngdr.cmbVisability", 1);
  program.Do("ngdr.txtTargetNum", 0, "11");
  const std::string shot = test();
  program.Do("GridX_Click", 2);
  for (const char* act : {"chkSmL", "cmdMDam", "cmdIncrease", "chkTwoGuns"}) program.Do(act, 0);
  program.Do("optRangeSel", 3);
  EXPECT_EQ(test(), shot);
  program.Do("GridX_Click", 1);
  EXPECT_EQ(test(), shot);
  // The shooter's own wounds count, and they are not the displayed combatant's.
  program.Do("cmdLDam", 0);
  EXPECT_EQ(roller.lblSum, "Base 5  +  modifiers 6  =  11");
  program.Do("cmdLDam", 1);
  program.Do("GridX_Click", 2);
  EXPECT_EQ(roller.lblSum, "Base 5  +  modifiers 7  =  12");
  // With the roll, or with the shooter, the test is over.
  program.uniform.RepeatFace(2);
  program.Do("ngdr.cmdRoll");
  EXPECT_NE(test(), shot);
  EXPECT_EQ(roller.Tester(), program.fight.CurrentPCpointer);
  program.Do("GridX_Click", 1);
  program.Do("cmdShots1", 1);
  program.Do("mnuPRemove");
  EXPECT_EQ(roller.Tester().Value(), 0);
}

TEST_F(FiringTest, ASheetThatIsNotShownAgainGoesOverTheClearedCounts) {
  // Ash, without a score, is looked at before Birch acts again: the count is cleared, and the sheet
  // that still shows three rounds is stored before the look at Birch.
  ash.RRSLT = 0;
  program.Do("mnuTReset");
  program.Do("mnuTNext");
  program.Do("GridX_Click", 2);
  program.Do("txtTBTT", 0, "3");
  program.Do("mnuTNext");
  EXPECT_EQ(program.fight.CurrentPCpointer.Value(), 2);
  EXPECT_EQ(ash.TBTTPrim, "3");
}

TEST_F(FiringTest, WoundsCountForADodgeOnceAsked) {
  program.Do("GridX_Click", 2);
  program.Do("cmdLDam", 0);
  program.Do("cmdBody");
  const std::string& box = roller.board.txtRVar[kBodyWoundsBox];
  EXPECT_EQ(box, "0");
  program.Do("ngdr.lblBodyWounds");
  EXPECT_EQ(box, "+1");
  program.Do("cmdMDam", 0);
  EXPECT_EQ(box, "+2");
  program.Do("cmdDamZero", 0);
  EXPECT_EQ(box, "0");
  program.Do("cmdMDam", 0);
  EXPECT_EQ(box, "0");
}

TEST_F(FiringTest, AWholeExchange) {
  // Ash: a burst of 3 at medium range, recoil 3, smartlink -2, half light +2, aim -1.
  Choose("cmdSkillPrimary", 0, specialisation);
  Ready("cmdSetPrim", 0);
  program.Do("optRangeSel", 1);
  program.Do("chkSmL");
  program.Do("cmdShots3");
  EXPECT_EQ(roller.lblSum, "Base 5  +  modifiers 1  =  6");
  EXPECT_EQ(roller.DamageCode + "/" + roller.txtNumDice + "/" + roller.txtCPx, "9M/6/5");
  program.Do("ngdr.cmbVisability", 1);
  program.Do("ngdr.Label4");
  program.Do("ngdr.cmdCPplusMinus", 0);
  program.Do("ngdr.cmdCPplusMinus", 0);
  EXPECT_EQ(roller.txtTargetNum + "/" + roller.txtNumDice, "7/8");
  program.uniform.PushFaces({6, 1, 5, 6, 6, 2, 1, 2, 3, 4, 6, 5});
  program.Do("ngdr.cmdRoll");
  EXPECT_EQ(roller.txtResult, "07 05 14 01 02 03 04 11 ");
  EXPECT_EQ(roller.txtSuccess + "/" + main.pools.txtCP, "3/3");

  // Birch resists with its augmented Body against one burst; the attacker's count stays.
  program.Do("GridX_Click", 2);
  program.Do("cmdBody");
  EXPECT_EQ(roller.lblSum + ", " + roller.txtNumDice, "Base 4  +  modifiers 1  =  5, 6");
  program.uniform.PushFaces({5, 5, 1, 2, 3, 4});
  program.Do("ngdr.cmdRoll");
  EXPECT_EQ(roller.txtSuccess + "/" + roller.txtLastSuccesses, "2/3");
  EXPECT_EQ(ash.CP.Value(), 3);
  program.Do("cmdMDam");
  EXPECT_EQ(main.header.lblFRSLT + panel.lblTNMod, "16Mod:+2");

  // Birch shoots back, wounded, with better eyes; the aim is still on the board.
  program.fight.Players[2].natLowLight = true;
  program.Do("mnuTNext");
  Choose("cmdSkillPrimary", 1);
  Ready("cmdSetPrim", 1);
  program.Do("cmdShots1");
  EXPECT_EQ(roller.lblSum + ", " + roller.txtNumDice, "Base 4  +  modifiers 1  =  5, 3");
  EXPECT_EQ(roller.board.txtRVar[kVisibilityBox] + roller.board.txtRVar[kWeaponBox], "0+2");
}

}  // namespace
}  // namespace ng
