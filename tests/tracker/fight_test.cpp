#include "tracker/fight/fight.h"

#include <gtest/gtest.h>

#include "fakes/test_program.h"

namespace ng {
namespace {

TEST(Fight, CountingAndFreeSlotsGoByDifferentRules) {
  Fight fight;
  fight.Players[2].Name = "named";
  fight.Players[3].CharacterData = 1;  // a sheet without a name: neither counted nor free
  EXPECT_EQ(fight.CountPlayers().Value(), 1);
  EXPECT_EQ(fight.FindFreeSlot().Value(), 1);
  for (const Slot slot : AllSlots()) fight.Players[slot].CharacterData = 1;
  EXPECT_EQ(fight.FindFreeSlot().Value(), 0);
}

TEST(Fight, TheTurnStandsAtOnePosition) {
  TestProgram program;
  for (const char* name : {"a", "b", "c"}) program.Add(name);
  Fight& fight = program.fight;
  fight.SetGreenAt(2);
  EXPECT_TRUE(static_cast<bool>(fight.Players[fight.InitOrder[2]].SetGreen));
  fight.SetGreenAt(0);
  for (const PlayerRecord& record : fight.Players) EXPECT_FALSE(static_cast<bool>(record.SetGreen));

  EXPECT_TRUE(fight.MyTurn());  // nobody is displayed and nobody has the turn
  fight.LTurn = 2;
  EXPECT_FALSE(fight.MyTurn());
  fight.CurrentPCpointer = fight.InitOrder[2];
  EXPECT_TRUE(fight.MyTurn());
  // Slot 0 stands in no position, though unused positions hold 0.
  EXPECT_EQ(fight.FindInOrder(0).Value(), 0);
}

TEST(Fight, LoopsBySlotPassOverACombatantBeyondAHole) {
  Fight fight;
  for (const Slot slot : {Slot(1), Slot(3)}) {
    fight.Players[slot].Name = "x";
    fight.Players[slot].TurnDone = true;
  }
  fight.ClearTurnDone();
  EXPECT_FALSE(static_cast<bool>(fight.Players[1].TurnDone));
  EXPECT_TRUE(static_cast<bool>(fight.Players[3].TurnDone));
}

}  // namespace
}  // namespace ng
