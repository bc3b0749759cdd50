#include "combat/damage_monitor.h"

#include <gtest/gtest.h>

#include "fakes/test_program.h"

namespace ng {
namespace {

constexpr int kPhysical = 0;
constexpr int kStun = 1;

/// Ash (20) is displayed, Birch (18) stands behind.
class DamageTest : public testing::Test {
 protected:
  DamageTest() {
    program.Add("Ash", 20);
    program.Add("Birch", 18);
    program.main.XFerPC(1);
  }

  TestProgram program;
  PlayerRecord& ash = program.fight.Players[1];
  DamagePanel& panel = program.main.damage;
};

TEST_F(DamageTest, LevelsNamesLettersAndSteps) {
  struct Case {
    int boxes;
    const char* physical;
    const char* stun;
    const char* code;
    int modifier;
  };
  const std::vector<Case> cases = {{0, "No Phys. Damage", "No Stun Damage", "00", 0},
                                   {1, "Light Phys. Damage", "Light Stun Damage", "LL", 2},
                                   {2, "Light Phys. Damage", "Light Stun Damage", "LL", 2},
                                   {3, "Mod. Phys. Damage", "Mod. Stun Damage", "MM", 4},
                                   {5, "Mod. Phys. Damage", "Mod. Stun Damage", "MM", 4},
                                   {6, "Ser. Phys. Damage", "Ser. Stun Damage", "SS", 6},
                                   {9, "Ser. Phys. Damage", "Ser. Stun Damage", "SS", 6},
                                   {10, "Dying", "Unconscious", "UD", 6}};
  for (const Case& c : cases) {
    ash.CurDamPhysical = c.boxes;
    ash.CurDamStun = c.boxes;
    program.main.damageMonitor.UpdateDamageDisplay();
    EXPECT_EQ(panel.lblPhysical, c.physical);
    EXPECT_EQ(panel.lblStun, c.stun);
    EXPECT_EQ(ash.CondCode, c.code);
    EXPECT_EQ(panel.lblDamMod, "DamMod:+" + std::to_string(c.modifier));
    EXPECT_EQ(panel.arPBDamage[kStun].Value(), c.boxes);
  }
}

TEST_F(DamageTest, AWoundLowersTheScoreAndReordersAtOnce) {
  program.Do("cmdMDam", kPhysical);
  EXPECT_EQ(ash.TNDamMod.Value(), 2);
  EXPECT_EQ(ash.FRSLT.Value(), 18);
  EXPECT_EQ(program.Order(), "Ash Birch");
  program.Do("cmdIncrease", kStun);
  EXPECT_EQ(ash.FRSLT.Value(), 17);
  EXPECT_EQ(program.main.header.lblFRSLT, "17");
  EXPECT_EQ(program.Order(), "Birch Ash");
  EXPECT_EQ(program.main.GridX.RowAt(2).text[2], "LM");
  EXPECT_EQ(ash.RRSLT.Value(), 20);
  program.Do("cmdDamZero", kStun);
  EXPECT_EQ(program.main.header.lblFRSLT, "18");
}

TEST_F(DamageTest, StunRunsOverIntoThePhysicalTrack) {
  ash.CurDamStun = 9;
  program.Do("cmdLDam", kStun);
  EXPECT_EQ(ash.CondCode, "U0");
  program.Do("cmdLDam", kStun);
  EXPECT_EQ(ash.CurDamStun.Value(), 10);
  EXPECT_EQ(panel.lblPDam, "1");
  EXPECT_EQ(panel.lblPhysical, "Light Phys. Damage");
  EXPECT_EQ(program.fight.Players[1].RRSLT.Value(), 0);  // the sort wipes the unconscious
}

TEST_F(DamageTest, TheDyingTakeOneBoxAtATime) {
  ash.CurDamPhysical = 4;
  program.Do("cmdDDam", kPhysical);
  EXPECT_EQ(panel.lblPDam, "14");
  EXPECT_EQ(panel.arPBDamage[kPhysical].Value(), 10);
  EXPECT_EQ(panel.lblOverDamage, "4");
  EXPECT_EQ(program.main.header.txtRRSLT, "0");
  int boxes = 14;
  for (const char* wound : {"cmdLDam", "cmdMDam", "cmdSDam", "cmdDDam"}) {
    program.Do(wound, kPhysical);
    EXPECT_EQ(ash.CurDamPhysical.Value(), ++boxes) << wound;
  }
  Integer amount = 6;
  program.main.damageMonitor.ApplyDamage(Track::Physical, amount);
  EXPECT_EQ(amount.Value(), 1);
  program.Do("cmdReduce", kPhysical);
  EXPECT_EQ(ash.CurDamPhysical.Value(), 18);
  program.Do("cmdDamZero", kPhysical);
  EXPECT_EQ(panel.lblOverDamage, "0");
  EXPECT_EQ(ash.CondCode, "00");
}

TEST_F(DamageTest, PainResistanceIsSpentOnStunFirst) {
  struct Case {
    int pain, stun, physical, modifier;
  };
  for (const Case& c : {Case{4, 3, 3, 1}, Case{3, 3, 3, 2}, Case{0, 3, 3, 4}, Case{5, 10, 0, 2},
                        Case{20, 9, 9, 0}, Case{2, 1, 14, 3}, Case{5, 0, 14, 2}}) {
    program.Do("txtPainResistance", 0, std::to_string(c.pain));
    ash.CurDamStun = c.stun;
    ash.CurDamPhysical = c.physical;
    program.main.damageMonitor.UpdateDamageDisplay();
    EXPECT_EQ(ash.TNDamMod.Value(), c.modifier) << c.pain << " " << c.stun << " " << c.physical;
  }
}

TEST_F(DamageTest, TracksStayWithinTheirBounds) {
  program.Do("cmdReduce", kStun);
  program.Do("cmdReduce", kPhysical);
  EXPECT_EQ(panel.lblPDam + panel.lblSDam, "00");
  ash.CurDamPhysical = 32767;
  program.Do("cmdLDam", kPhysical);
  EXPECT_EQ(program.prompts.log.back(), "message \"Overflow\"");
  EXPECT_EQ(ash.CurDamPhysical.Value(), 32767);
}

TEST(Pools, ButtonsMoveOneDieAndNeverBelowNought) {
  for (const auto& [text, up, down] : {std::tuple{"3", "4", "2"},
                                       {"0", "1", "0"},
                                       {"0.4", "1.4", "0"},
                                       {"0.6", "1.6", "0"},
                                       {"x", "1", "0"},
                                       {"-2", "-1", "0"},
                                       {"2.5", "3.5", "1.5"}}) {
    EXPECT_EQ(IncPool(text), up) << text;
    EXPECT_EQ(DecPool(text), down) << text;
  }
  TestProgram program;
  PlayerRecord& ash = program.Add("Ash");
  program.main.XFerPC(1);
  program.Do("cmdCPplus");
  program.Do("cmdSPplus");
  program.Do("cmdSPplus");
  EXPECT_EQ(ash.CP.Value(), 1);
  EXPECT_EQ(ash.SP.Value(), 0);  // only the box, until the sheet is synchronised
  program.Do("cmdSDplus");
  program.Do("cmdSDplus");
  program.Do("cmdSDplus");
  EXPECT_EQ(program.main.pools.txtSP + program.main.pools.txtSD, "02");
  program.Do("cmdSDnegative");
  program.Do("cmdADplus");
  program.Do("cmdKPnegative");
  program.main.CP(4);
  program.Do("mnuTNext");
  EXPECT_EQ(program.main.pools.txtCP, "4");
  EXPECT_EQ(ash.SP.Value() + ash.SD.Value(), 2);
  EXPECT_EQ(ash.AS.Value(), 1);
  program.Do("cmdCPnegative");
  EXPECT_EQ(ash.CP.Value(), 3);
}

}  // namespace
}  // namespace ng
