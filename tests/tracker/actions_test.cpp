#include "tracker/actions.h"

#include <gtest/gtest.h>

#include "fakes/test_program.h"

namespace ng {
namespace {

using Strings = std::vector<std::string>;
using Colour = InitiativeGrid::Colour;

/// Three combatants of 15, 8 and 5 at the beginning of combat turn 1.
class ActionsTest : public testing::Test {
 protected:
  ActionsTest() {
    for (const auto& [name, rolled] : {std::pair{"Ash", 15}, {"Birch", 8}, {"Cedar", 5}}) {
      program.Add(name, rolled);
    }
    program.Do("mnuTReset");
  }

  PlayerRecord& Of(Slot slot) { return program.fight.Players[slot]; }
  void Answer(const std::string& text) {
    program.prompts.answers.push_back({ScriptedPrompts::Answer::Kind::Input, text, {}});
  }
  /// What the command showed and asked.
  Strings Shown(const std::string& command) {
    program.prompts.TakeLog();
    program.Do(command);
    return program.prompts.TakeLog();
  }

  TestProgram program;
  Fight& fight = program.fight;
};

TEST_F(ActionsTest, ADelayOutOfTurnIsRefusedAndLeavesTheMark) {
  program.Do("mnuTNext");
  program.Do("GridX_Click", 2);
  const Fight before = fight;
  EXPECT_EQ(Shown("mnuPDelay"), Strings{"message \"Can only delay on that player's turn\""});
  EXPECT_TRUE(program.main.actions.delayChecked);
  EXPECT_EQ(fight, before);
  program.Do("GridX_Click", 2);
  EXPECT_FALSE(program.main.actions.delayChecked);
}

TEST_F(ActionsTest, ADelayedCombatantInterruptsTheStep) {
  program.Do("mnuTNext");
  EXPECT_EQ(Shown("mnuPDelay"), Strings{});
  EXPECT_EQ(fight.TurnHistory[1].TwoTurn.Value(), 99);
  EXPECT_EQ(program.main.GridX.RowAt(1).colour[0], Colour::Yellow);
  program.Do("mnuTNext");
  EXPECT_EQ(program.main.header.lblName2, "Birch");
  program.Do("GridX_Click", 1);
  EXPECT_EQ(Shown("mnuPDelay"), Strings{});
  // Ash has the turn in its own pass; Birch gets its action back.
  EXPECT_TRUE(fight.MyTurn());
  EXPECT_EQ(fight.TurnHistory[2].Turn.Value(), 1);
  EXPECT_EQ(fight.TurnHistory[2].TwoTurn.Value(), 1);
  EXPECT_TRUE(static_cast<bool>(Of(1).TurnDone));
  EXPECT_FALSE(static_cast<bool>(Of(2).TurnDone));
  EXPECT_EQ(program.main.GridX.RowAt(1).colour[0], Colour::Green);
  program.Do("mnuTNext");
  EXPECT_EQ(program.main.header.lblName2, "Birch");
}

TEST_F(ActionsTest, ADelayOfAnEarlierTurnEndsWithItsMessage) {
  program.Do("mnuTNext");
  program.Do("mnuPDelay");
  program.Do("mnuTNext");
  program.Do("GridX_Click", 1);
  fight.RoundCount += 1;
  EXPECT_EQ(Shown("mnuPDelay"), Strings{"message \"SPECIAL: Delay into Next Initiative Pass\""});
  EXPECT_TRUE(static_cast<bool>(Of(1).TurnDone));
  EXPECT_FALSE(static_cast<bool>(Of(1).Delay));
}

TEST_F(ActionsTest, ADelayGoesThroughThePassesUntilItIsUsedOrTheTurnBegins) {
  const auto next = [this] {
    program.Do("mnuTNext");
    return program.main.sequencer.lblPhase() + " " + program.main.header.lblName2;
  };
  Of(2).RRSLT = 18;
  program.Do("mnuTReset");
  EXPECT_EQ(next(), "NEW-Phase: 1 Birch");
  EXPECT_EQ(next(), "NEW-Phase: 1 Ash");
  program.Do("mnuPDelay");
  EXPECT_EQ(next(), "NEW-Phase: 1 Cedar");
  EXPECT_EQ(next(), "NEW-Phase: 2 Birch");
  // Held since pass 1, the action is used in pass 2, whose own action Ash still has.
  program.Do("GridX_Click", 2);
  program.Do("mnuPDelay");
  EXPECT_EQ(Of(1).PhaseNum.Value(), 2);
  EXPECT_EQ(next(), "NEW-Phase: 2 Birch");
  EXPECT_EQ(next(), "NEW-Phase: 2 Ash");
  program.Do("mnuPDelay");
  program.Do("mnuPInactive");
  EXPECT_EQ(Of(1).PhaseNum.Value(), 0);
  program.uniform.RepeatFace(1);
  program.Do("mnuPInactive");

  // Taken up in the next pass and declared again, it is met once in each.
  Of(1).RRSLT = 15;
  program.Do("mnuTReset");
  EXPECT_EQ(next(), "NEW-Phase: 1 Birch");
  EXPECT_EQ(next(), "NEW-Phase: 1 Ash");
  program.Do("mnuPDelay");
  for (const char* step : {"NEW-Phase: 1 Cedar", "NEW-Phase: 2 Birch", "Phase: 2 Ash"}) {
    EXPECT_EQ(next(), step);
  }
  EXPECT_EQ(Of(1).PhaseNum.Value(), 2);
  program.Do("mnuPDelay");
  EXPECT_EQ(next(), "Phase: 3 Ash");
  program.Do("mnuPDelay");
  program.Do("mnuTReset");
  EXPECT_EQ(next(), "NEW-Phase: 1 Birch");
  EXPECT_EQ(next(), "NEW-Phase: 1 Ash");
}

TEST_F(ActionsTest, InactiveCombatantsLoseTheirRollAndComeBackWithAFreshOne) {
  program.Do("GridX_Click", 2);
  Of(2).CurInitAugmented = 1;
  Of(2).CurReactAugmented = 4;
  program.Do("mnuPInactive");
  EXPECT_EQ(Of(2).RRSLT.Value(), 0);
  EXPECT_EQ(Of(2).FRSLT.Value(), 8);  // not before the next sort
  EXPECT_EQ(program.main.header.txtRRSLT, "0");
  EXPECT_EQ(program.main.GridX.RowAt(2).colour[0], Colour::Red);
  EXPECT_EQ(program.main.TurnBadge(), TurnState::Inactive);
  program.uniform.PushFaces({3});
  program.Do("mnuPInactive");
  EXPECT_EQ(Of(2).RRSLT.Value(), 7);
  EXPECT_TRUE(static_cast<bool>(Of(2).TurnDone));
  EXPECT_EQ(program.main.GridX.RowAt(2).colour[0], Colour::White);
}

TEST_F(ActionsTest, GrenadesAndRocketsGoOffWhenTheyShould) {
  program.Do("GridX_Click", 1);
  for (const char* command : {"mnuPGrenade", "mnuPRocket"}) {
    EXPECT_EQ(Shown(command),
              Strings{"message \"Grenade attacks can only occur on that character's turn\""});
    EXPECT_EQ(program.main.statusMessage, "Ready");
  }
  program.Do("mnuTNext");
  program.Do("mnuPGrenade");
  program.Do("mnuPGrenade");
  EXPECT_EQ(Of(1).Events,
            "Ash:Grenade toss/fired explodes.#1\r\nAsh:Grenade toss/fired explodes.#2\r\n");
  program.Do("mnuTNext");
  program.Do("mnuPGrenade");
  EXPECT_EQ(Of(2).Events, "Birch:Grenade toss/fired explodes.#1\r\n");
  program.Do("mnuPRocket");
  program.Do("mnuPRocket");
  EXPECT_EQ(Shown("mnuTNext"), Strings{});  // Cedar
  EXPECT_EQ(Shown("mnuTNext"), Strings{});  // Ash in pass 2
  EXPECT_EQ(Shown("mnuTNext"),
            Strings{"message \"Birch:Rocket explodes%0D%0ABirch:Rocket explodes%0D%0A\""});
  program.Do("mnuTReset");
  EXPECT_EQ(Shown("mnuTNext"), Strings{"message \"Ash:Grenade toss/fired explodes.#1%0D%0A"
                                       "Ash:Grenade toss/fired explodes.#2%0D%0A\""});
  const Strings log = {"Ash expended a grenade.", "Ash expended a grenade.",
                       "Birch expended a grenade.", "Birch expended a rocket.",
                       "Birch expended a rocket."};
  EXPECT_EQ(program.main.gmLog.lstGMinfo(), log);
  EXPECT_TRUE(program.files.ReadWhole("C:\\tracker\\ngtracker.txt")
                  .ends_with("Birch expended a rocket.\r\nBirch expended a rocket.\r\n"));
  // A combat turn begun by hand has forgotten the rockets of the one before.
  program.Do("mnuPRocket");
  program.Do("mnuTReset");
  program.prompts.TakeLog();
  for (int step = 0; step < 5; ++step) program.Do("mnuTNext");
  EXPECT_EQ(program.prompts.TakeLog(),
            Strings{"message \"Birch:Grenade toss/fired explodes.#1%0D%0A\""});
  EXPECT_EQ(program.main.sequencer.lblPhase(), "End of turn!");
}

TEST_F(ActionsTest, CopiesAreWholeAndTheirNumberIsHeldToItsRange) {
  program.Do("GridX_Click", 2);
  program.Do("txtRC", 0, "3");
  for (const char* number : {"22", "-1", "21.5"}) {
    Answer(number);
    EXPECT_EQ(Shown("mnuPMult").back(), "message \" Number between 1...20\"") << number;
  }
  for (const char* none : {"", "0", "0.5", "many"}) {
    Answer(none);
    EXPECT_EQ(Shown("mnuPMult"), Strings{"input \" Enter number of additional copies needed\""});
  }
  EXPECT_EQ(fight.CountPlayers().Value(), 3);
  Answer("21");
  program.Do("mnuPMult");
  EXPECT_EQ(fight.CountPlayers().Value(), 24);
  EXPECT_EQ(Of(24).Name, "Birch::21");
  EXPECT_EQ(Of(24).RCPrim, "3");
  EXPECT_EQ(fight.InitOrder[24].Value(), 24);
  EXPECT_EQ(program.main.statusMessage, "21 copies made");
}

TEST_F(ActionsTest, CopiesStopWhereTheTableIsFull) {
  for (int slot = 4; slot <= 98; ++slot) program.Add("filler");
  program.Do("GridX_Click", 1);
  Answer("20");
  program.Do("mnuPMult");
  EXPECT_EQ(fight.CountPlayers().Value(), 100);
  EXPECT_EQ(program.main.statusMessage, "The table is full: 2 of 20 copies made");
}

TEST_F(ActionsTest, ADeletionLeavesAHoleThatACopyFillsWithoutLoss) {
  EXPECT_EQ(Shown("mnuPRemove"), Strings{"message \"Must click on PC first\""});
  program.Do("GridX_Click", 2);
  Of(2).Events = "pending";
  program.Do("mnuPRemove");
  EXPECT_EQ(Of(2), PlayerRecord{});
  EXPECT_EQ(program.Order(), "Ash Cedar");
  EXPECT_EQ(program.main.header.lblName2, "");
  EXPECT_EQ(program.main.GridX.RowCount(), 2);
  // Cedar stands beyond the count of 2, so a new combat turn does not clear its flag.
  Of(3).TurnDone = true;
  program.Do("mnuTReset");
  EXPECT_TRUE(static_cast<bool>(Of(3).TurnDone));
  program.Do("GridX_Click", 1);
  Answer("1");
  program.Do("mnuPMult");
  EXPECT_EQ(program.Order(), "Ash Ash::1 Cedar");
  program.Do("mnuFileNew");
  EXPECT_EQ(fight.CountPlayers().Value(), 0);
}

TEST_F(ActionsTest, ASheetIsReleasedWithItsLastUser) {
  CharacterTable& characters = program.main.characters;
  for (const CharacterIndex index : IndexRange<CharacterIndex>(1, 3))
    characters.entries[index].Filename = "file";
  program.Do("GridX_Click", 1);
  Answer("1");
  program.Do("mnuPMult");
  program.Do("mnuPRemove");
  EXPECT_EQ(characters.entries[1].Filename, "file");  // the copy still uses it
  program.Do("GridX_Click", fight.FindInOrder(4).Value());
  EXPECT_EQ(program.main.header.lblName2, "Ash::1");
  program.Do("mnuPRemove");
  EXPECT_EQ(characters.entries[1].Filename, "");
  EXPECT_EQ(fight.InfoCnt.Value(), 2);
  EXPECT_EQ(characters.FindFree().Value(), 1);
}

}  // namespace
}  // namespace ng
