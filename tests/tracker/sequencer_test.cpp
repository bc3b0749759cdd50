#include "tracker/sequencer.h"

#include <gtest/gtest.h>

#include "app/commands.h"
#include "fakes/test_program.h"

namespace ng {
namespace {

using Strings = std::vector<std::string>;

/// Performs the command and tells the caption and who is displayed.
std::string Step(TestProgram& program, const char* command) {
  program.Do(command);
  const MainForm& main = program.main;
  return main.sequencer.lblPhase() + " / " + main.header.lblName2;
}

TEST(Sequencer, RollsByTheModeOfTheCombatant) {
  TestProgram program;
  PlayerRecord& ash = program.Add("Ash");
  ash.CurInitNatural = 1;
  ash.CurInitAugmented = 3;
  ash.CurReactNatural = 4;
  ash.CurReactAugmented = 6;
  program.uniform.PushFaces({2, 5, 6});
  EXPECT_EQ(program.main.sequencer.RollInitiative(1).Value(), 19);
  ash.CurInitMode = 7;  // anything but 0 is astral
  program.uniform.PushFaces({3});
  EXPECT_EQ(program.main.sequencer.RollInitiative(1).Value(), 27);
  ash.CurInitNatural = -1;
  ash.CurReactNatural = 32767;
  EXPECT_EQ(ErrorNumber::Overflow, [&] {
    try {
      program.main.sequencer.RollInitiative(1);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return ErrorNumber::TypeMismatch;
  }());
}

TEST(Sequencer, OrdersByScoreThenAugmentedThenNaturalReaction) {
  TestProgram program;
  const auto add = [&](const char* name, int rolled, int augmented, int natural) {
    PlayerRecord& record = program.Add(name, rolled);
    record.CurReactAugmented = augmented;
    record.CurReactNatural = natural;
    return &record;
  };
  add("low", 4, 9, 9);
  add("natural", 10, 5, 3);
  add("plain", 10, 5, 2);
  add("augmented", 10, 6, 1);
  PlayerRecord* wounded = add("wounded", 12, 1, 1);
  wounded->TNDamMod = 3;
  add("stunned", 30, 9, 9)->CurDamStun = 10;
  program.main.sequencer.SortInitiative();
  EXPECT_EQ(program.Order(), "augmented natural plain wounded low stunned");
  EXPECT_EQ(wounded->FRSLT.Value(), 9);
  EXPECT_EQ(program.fight.Players[6].RRSLT.Value(), 0);
}

TEST(Sequencer, AnExchangeWithAThirdTurnsFullTiesRound) {
  TestProgram program;
  for (const char* name : {"first", "second", "third"}) program.Add(name, 5);
  program.fight.Players[3].RRSLT = 9;
  program.main.sequencer.SortInitiative();
  EXPECT_EQ(program.Order(), "third second first");
}

TEST(Sequencer, StepsThroughPassesToTheEndOfTheTurn) {
  TestProgram program;
  program.Add("Ash", 23);
  program.Add("Birch", 8);
  EXPECT_EQ(Step(program, "mnuTReset"), "Beginning of turn: Phase 0 / ");
  EXPECT_EQ(Step(program, "mnuTNext"), "NEW-Phase: 1 / Ash");
  EXPECT_EQ(Step(program, "mnuTNext"), "NEW-Phase: 1 / Birch");
  EXPECT_EQ(Step(program, "mnuTNext"), "NEW-Phase: 2 / Ash");
  EXPECT_EQ(Step(program, "mnuTNext"), "NEW-Phase: 3 / Ash");
  EXPECT_EQ(program.main.GridX.RowAt(1).colour[0], InitiativeGrid::Colour::Green);
  program.fight.GlobalEvents = "Ash:Rocket explodes\r\n";
  EXPECT_EQ(Step(program, "mnuTNext"), "End of turn! / Ash");
  EXPECT_EQ(program.prompts.TakeLog(), Strings{"message \"Ash:Rocket explodes%0D%0A\""});
  EXPECT_EQ(program.fight.GlobalEvents, "");
  EXPECT_EQ(program.main.GridX.RowAt(1).colour[0], InitiativeGrid::Colour::White);
  EXPECT_EQ(Step(program, "mnuTNext"), "End of turn / Ash");
  EXPECT_EQ(program.prompts.TakeLog(), Strings{"beep"});
  EXPECT_EQ(program.fight.TurnHistory[5].Turn.Value(), 100);
  // A step back and the end again: nobody has the turn there.
  EXPECT_EQ(Step(program, "mnuTPrev"), "History-Phase: 3 / Ash");
  EXPECT_EQ(Step(program, "mnuTNext"), "End of turn / Ash");
  EXPECT_EQ(program.main.GridX.RowAt(1).colour[0], InitiativeGrid::Colour::White);
  EXPECT_EQ(Step(program, "mnuTReset"), "Beginning of turn: Phase 0 / Ash");
  EXPECT_EQ(program.fight.RoundCount.Value(), 2);
  EXPECT_EQ(program.fight.TurnHistory[1].Turn.Value(), 0);
  EXPECT_EQ(program.fight.TurnHistory[1].TwoTurn.Value(), 1);
}

TEST(Sequencer, LooksBackAndPlaysTheStepsAgain) {
  TestProgram program;
  for (const auto& [name, rolled] : {std::pair{"Ash", 9}, {"Birch", 8}, {"Cedar", 7}}) {
    program.Add(name, rolled);
  }
  program.Do("mnuTReset");
  EXPECT_EQ(Step(program, "mnuTPrev"), "Beginning of turn: Phase 0 / ");
  EXPECT_EQ(program.prompts.TakeLog(), Strings{"beep"});
  for (int i = 0; i < 3; ++i) program.Do("mnuTNext");
  EXPECT_EQ(Step(program, "mnuTPrev"), "History-Phase: 1 / Cedar");
  EXPECT_EQ(Step(program, "mnuTPrev"), "History-Phase: 1 / Cedar");
  EXPECT_EQ(program.main.GridX.RowAt(1).colour[0], InitiativeGrid::Colour::Green);
  program.Do("GridX_Click", 1);
  // The row of the replayed step is green; the sheet is that of the combatant who has the turn.
  EXPECT_EQ(Step(program, "mnuTNext"), "History-Phase: 1 / Cedar");
  EXPECT_EQ(program.main.GridX.RowAt(2).colour[0], InitiativeGrid::Colour::Green);
  EXPECT_EQ(program.fight.LTurn.Value(), 3);
  program.fight.TurnHistory[3].TwoTurn = 99;
  EXPECT_EQ(Step(program, "mnuTNext"), "Delayed / Cedar");
  EXPECT_EQ(program.main.GridX.RowAt(3).colour[0], InitiativeGrid::Colour::Yellow);
  program.fight.TurnHistory[2].TwoTurn = 99;
  EXPECT_EQ(Step(program, "mnuTPrev"), "History-Delayed / Cedar");
}

TEST(Sequencer, ADelayMetInTheScanIsALastChance) {
  TestProgram program;
  PlayerRecord& ash = program.Add("Ash", 15);
  program.Add("Birch", 8);
  program.Do("mnuTReset");
  ash.Delay = true;
  ash.roundcnt = 1;
  EXPECT_EQ(Step(program, "mnuTNext"), "Phase: 1 / Ash");
  EXPECT_EQ(program.prompts.TakeLog(),
            (Strings{"beep",
                     "message \"Possible loss of turn.%0D%0ATake turn or press NEXT to lose.\""}));
  EXPECT_FALSE(static_cast<bool>(ash.Delay));
  EXPECT_EQ(Step(program, "mnuTNext"), "NEW-Phase: 1 / Ash");

  // Declared in an earlier combat turn it goes into the next pass and stays declared.
  ash.Delay = true;
  ash.roundcnt = 0;
  ash.TurnDone = false;
  EXPECT_EQ(Step(program, "mnuTNext"), "Phase: 1 / Ash");
  EXPECT_EQ(program.prompts.TakeLog().back(),
            "message \"SPECIAL: Delay Into Next Initiative Pass\"");
  EXPECT_TRUE(static_cast<bool>(ash.Delay));
  EXPECT_EQ(Step(program, "mnuTNext"), "NEW-Phase: 1 / Birch");
}

TEST(Sequencer, GrenadesOfEarlierTurnsGoOffWhenTheirThrowerIsPassed) {
  TestProgram program;
  PlayerRecord& ash = program.Add("Ash", 0);
  program.Add("Birch", 8);
  program.Do("mnuTReset");
  ash.Events = "boom";
  ash.roundcnt = 1;
  program.Do("mnuTNext");
  EXPECT_TRUE(program.prompts.TakeLog().empty());
  program.Do("mnuTReset");
  program.Do("mnuTNext");  // Birch stands first; Ash is passed by the next step
  program.Do("mnuTNext");
  EXPECT_EQ(program.prompts.TakeLog(), Strings{"message \"boom\""});
  ash.Events = "again";
  program.fight.GlobalEvents = "rocket";
  program.Do("mnuTClear");
  EXPECT_EQ(ash.Events + program.fight.GlobalEvents, "");
}

TEST(Sequencer, RerollSparesTheInactiveAndSharesCopies) {
  TestProgram program;
  for (const char* name : {"Orc", "Big Orc::2", "Orc::1", "Elf"}) {
    program.Add(name).CurInitAugmented = 1;
  }
  program.fight.Players[4].inactive = Boolean::FromRaw(1);  // any value but 0 counts here
  const auto push = [&] {
    for (const int face : {6, 2, 3, 4}) {
      program.uniform.PushFaces({face});
      program.uniform.Push(500, 1000);
    }
  };
  push();
  program.Do("mnuTReroll");
  EXPECT_EQ(program.Order(), "Orc Orc::1 Big Orc::2 Elf");
  EXPECT_EQ(program.fight.Players[4].RRSLT.Value(), 0);
  EXPECT_EQ(program.fight.Players[4].Random.Value(), 500);
  EXPECT_EQ(program.uniform.Left(), 0U);
  program.session.environment.settings.CloneInit = true;
  push();
  program.Do("mnuTReroll");
  // Containment, not a beginning: "Big Orc::2" shares with "Orc" as well.
  for (const Slot slot : SlotsUpTo(3)) EXPECT_EQ(program.fight.Players[slot].RRSLT.Value(), 6);
}

TEST(Sequencer, CountersStartAnewAndPoolsFillAtTheTurn) {
  TestProgram program;
  PlayerRecord& ash = program.Add("Ash", 15);
  program.main.characters.entries[1].pools[0] = "6";
  program.main.characters.entries[1].spellPool = "4";
  ash.ArmorCPmod = 8;
  ash.SD = 3;
  ash.TBTTPrim = "2";
  ash.TBTTSec = "3";
  program.Do("mnuTReset");
  EXPECT_EQ(ash.CP.Value(), 0);
  EXPECT_EQ(ash.SP.Value(), 1);
  EXPECT_EQ(ash.TBTTPrim + ash.TBTTSec, "00");
  ash.Resumed = true;
  ash.TBTTPrim = "5";
  program.Do("mnuTNext");
  EXPECT_EQ(ash.TBTTPrim, "5");
  program.Do("mnuTNext");
  EXPECT_EQ(ash.TBTTPrim, "0");
}

TEST(Sequencer, StopsAtAnEmptyTableAndAtAHundredSteps) {
  TestProgram program;
  program.Do("mnuTNext");
  EXPECT_EQ(program.fight.SeqNum.Value(), 1);
  EXPECT_TRUE(program.prompts.log.empty());
  for (int i = 1; i <= 21; ++i) program.Add("c" + std::to_string(i), 50);
  program.Do("mnuTReset");
  for (int i = 0; i < 100; ++i) program.Do("mnuTNext");
  EXPECT_TRUE(program.prompts.log.empty());
  program.Do("mnuTNext");
  EXPECT_EQ(program.prompts.log, Strings{"message \"Subscript out of range\""});
}

TEST(MainForm, WithNobodyDisplayedNothingChanges) {
  TestProgram program;
  program.Add("Ash", 5);
  program.main.XFerPC(0);
  const Fight before = program.fight;
  for (const Command& command : Commands()) {
    const std::string name = command.name;
    const bool edits = name.starts_with("txt") || name.starts_with("chk") ||
                       name.starts_with("opt") || name.starts_with("lst");
    if (edits) program.Do(name, 0, "7");
  }
  EXPECT_EQ(program.fight, before);
  EXPECT_EQ(program.main.weapons.txtRC[0], "0");
  EXPECT_TRUE(program.prompts.log.empty());
}

TEST(MainForm, ANumberOutOfRangeIsRefusedAndNothingIsBlocked) {
  TestProgram program;
  PlayerRecord& ash = program.Add("Ash", 5);
  ash.PrimWeapStatAmmo = "99999(c)";
  program.Do("mnuTReset");
  program.Do("mnuTNext");
  program.Do("cmdKPplus");
  for (const char* box : {"txtSP", "txtCP", "txtPainResistance", "txtTBTT", "txtShots", "txtRC"}) {
    program.prompts.TakeLog();
    program.Do(box, 0, "99999");
    EXPECT_EQ(program.prompts.log, Strings{"message \"Overflow\""}) << box;
  }
  program.prompts.TakeLog();
  program.Do("mnuTReset");
  program.Do("mnuTNext");
  EXPECT_TRUE(program.prompts.log.empty());
  EXPECT_EQ(ash.KP.Value(), 1);  // the button's die was not lost
  EXPECT_EQ(program.main.RoundsLeft(Weapon::Primary), "");
}

TEST(MainForm, EditsGoIntoTheRecordOfTheDisplayed) {
  TestProgram program;
  PlayerRecord& ash = program.Add("Ash", 5);
  program.Add("Birch", 4);
  program.main.GridX.RefreshGrid();
  program.Do("GridX_Click", 1);
  program.Do("txtRRSLT", 0, "21");
  program.Do("txtInit", 1, "3");
  program.Do("txtReac", 0, "6");
  program.Do("optInitMode", 1);
  program.Do("txtRC", 1, "2");
  program.Do("txtShots", 0, "9");
  program.Do("chkLaserSight", 1);
  program.Do("chkTwoGuns");
  program.Do("optRangeSel", 6);
  program.Do("txtPainResistance", 0, "2.5");
  program.Do("txtNotes", 0, "runs\r\nfast");
  program.Do("tabMain", 3);
  const PlayerRecord edited = ash;
  EXPECT_EQ(edited.RRSLT.Value(), 21);
  EXPECT_EQ(program.main.GridX.RowAt(1).text[1], "21");
  EXPECT_EQ(edited.CurInitAugmented.Value(), 3);
  EXPECT_EQ(edited.CurReactNatural.Value(), 6);
  EXPECT_EQ(edited.CurInitMode, 1);
  EXPECT_EQ(edited.RCSec, "2");
  EXPECT_EQ(edited.PrimAmmo, "9");
  EXPECT_EQ(edited.LaserSec.Value(), 1);
  EXPECT_EQ(edited.TwoGuns.Value(), 1);
  EXPECT_EQ(edited.RangeSelSec.Value(), 2);
  EXPECT_EQ(edited.PainResistance.Value(), 2);
  EXPECT_EQ(edited.lastTab.Value(), 3);
  program.Do("GridX_Click", 2);
  EXPECT_EQ(program.main.txtNotes, "");
  EXPECT_EQ(program.main.weapons.optRangeSel[1], 0);
  program.Do("GridX_Click", 1);
  EXPECT_EQ(program.main.txtNotes, "runs\r\nfast");
  EXPECT_EQ(program.main.weapons.optRangeSel[1], 2);
  EXPECT_EQ(ash, edited);
  program.Do("chkTwoGuns");
  EXPECT_EQ(ash.TwoGuns.Value(), 0);
  program.Do("txtRC", 2, "1");
  EXPECT_EQ(program.prompts.log.back(), "message \"Subscript out of range\"");
}

}  // namespace
}  // namespace ng
