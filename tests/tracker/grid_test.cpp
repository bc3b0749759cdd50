#include "tracker/grid.h"

#include <gtest/gtest.h>

#include "fakes/expect_error.h"
#include "fakes/test_program.h"

namespace ng {
namespace {

using Colour = InitiativeGrid::Colour;

TEST(Grid, RowsShowTheOrderAndTheLastColourWins) {
  TestProgram program;
  program.Add("Ash", 9).SetGreen = true;
  PlayerRecord& birch = program.Add("Birch", 5);
  birch.SetGreen = true;
  birch.Delay = true;
  birch.CondCode = "0L";
  PlayerRecord& cedar = program.Add("Cedar", 3);
  cedar.Delay = true;
  cedar.inactive = true;
  InitiativeGrid& grid = program.main.GridX;
  grid.RefreshGrid();
  ASSERT_EQ(grid.RowCount(), 3);
  EXPECT_EQ(grid.RowAt(2).text, (std::array<std::string, 3>{"Birch", "5", "0L"}));
  EXPECT_EQ(grid.RowAt(1).colour[2], Colour::Green);
  EXPECT_EQ(grid.RowAt(2).colour[0], Colour::Yellow);
  EXPECT_EQ(grid.RowAt(3).colour[1], Colour::Red);
  EXPECT_EQ(program.fight.lastGreen.Value(), 2);
  for (const int row : {-1, 4}) EXPECT_RUNTIME_ERROR(grid.RowAt(row), "Subscript out of range");
  grid.PaintRowGreen(0);
  EXPECT_EQ(program.fight.lastGreen.Value(), 2);

  // A stored 1 is not true.
  birch.SetGreen = Boolean::FromRaw(1);
  birch.Delay = false;
  grid.SetCurrent(3, 1);
  birch.Name.clear();
  program.fight.InitOrder[2] = 3;
  grid.RefreshGrid();
  EXPECT_EQ(grid.RowCount(), 2);
  EXPECT_EQ(grid.CurrentRow(), 2);
  EXPECT_EQ(grid.RowAt(2).text[0], "Cedar");
}

TEST(Grid, TypingEditsTheCellAndTheRollAtOnce) {
  TestProgram program;
  program.Add("Ash", 9);
  program.Add("Birch", 5);
  program.main.GridX.RefreshGrid();
  const auto type = [&](std::string_view keys) {
    for (const char key : keys) program.Do("GridX_KeyPress", static_cast<unsigned char>(key));
  };
  const auto cell = [&](int row, int column) {
    return program.main.GridX.RowAt(row).text[static_cast<std::size_t>(column)];
  };
  type("5");  // no current cell yet
  EXPECT_EQ(cell(1, 1), "9");
  program.Do("GridX_Click", 1);
  type("17");
  EXPECT_EQ(cell(1, 1), "17");
  EXPECT_EQ(program.fight.Players[1].RRSLT.Value(), 17);
  EXPECT_EQ(program.main.header.txtRRSLT, "17");
  type("\r7");  // Enter moves on; a first character in another row replaces
  EXPECT_EQ(cell(2, 1), "7");
  type("x");
  EXPECT_EQ(cell(2, 1), "7x");
  EXPECT_EQ(program.fight.Players[2].RRSLT.Value(), 7);
  type("-");
  EXPECT_EQ(cell(2, 1), "-");
  type(".");
  EXPECT_EQ(cell(2, 1), "");
  // What is no whole number leaves the roll alone, and gives way to it when the grid is written.
  EXPECT_EQ(program.fight.Players[2].RRSLT.Value(), 7);
  program.main.GridX.RefreshGrid();
  EXPECT_EQ(cell(2, 1), "7");
  type("\b4\x1b");
  EXPECT_EQ(cell(2, 1), "4");
  type("\b-12");
  EXPECT_EQ(program.fight.Players[2].RRSLT.Value(), -12);
  program.Do("GridX_PM", 2);
  type("zz");
  EXPECT_EQ(cell(2, 2), "zz");
  EXPECT_EQ(program.fight.Players[2].CondCode, "zz");
  program.Do("GridX_Name", 1);
  type("Q");
  EXPECT_EQ(cell(1, 0), "Ash");
  program.Do("GridX_Roll", 1);
  type("99999");
  EXPECT_EQ(program.prompts.log, (std::vector<std::string>{"message \"Overflow\""}));
  // A row whose place in the order nobody holds edits nobody.
  program.fight.InitOrder[1] = 0;
  type(".5");
  EXPECT_EQ(program.fight.Players[0], PlayerRecord{});
}

TEST(Grid, TypingCanBeTakenBackUntilTheCellIsLeft) {
  TestProgram program;
  for (const char* name : {"Ash", "Birch", "Cedar"}) program.Add(name);
  for (const Slot slot : SlotsUpTo(3)) program.fight.Players[slot].RRSLT = 12 - slot.Value();
  program.Do("mnuTReset");
  const auto type = [&](std::string_view keys) {
    for (const char key : keys) program.Do("GridX_KeyPress", static_cast<unsigned char>(key));
  };
  const auto roll = [&](Slot slot) { return program.fight.Players[slot].RRSLT.Value(); };
  program.Do("GridX_Click", 2);
  type("3x");
  program.Do("GridX_Restore");
  EXPECT_EQ(program.main.GridX.RowAt(2).text[1], "10");
  EXPECT_EQ(roll(2), 10);
  EXPECT_EQ(program.main.header.txtRRSLT, "10");
  program.Do("GridX_Restore");
  EXPECT_EQ(roll(2), 10);
  program.Do("GridX_PM", 2);
  type("dazed");
  program.Do("GridX_Restore");
  EXPECT_EQ(program.fight.Players[2].CondCode, "");

  // Left, or written over, it is not taken back.
  type("x");
  program.Do("GridX_Roll", 1);
  program.Do("GridX_Roll", 2);
  type(".3");
  program.Do("mnuTNext");
  program.Do("GridX_Roll", 1);
  program.Do("GridX_Roll", 2);
  program.Do("GridX_Restore");
  EXPECT_EQ(program.fight.Players[2].CondCode, "x");
  EXPECT_EQ(program.main.GridX.RowAt(2).text[1], "3");
  program.Do("GridX_Click", 2);
  type("5");
  program.Do("txtRRSLT", 0, "8");
  program.Do("GridX_Restore");
  EXPECT_EQ(roll(2), 8);
}

TEST(Grid, TheCellStaysWithItsCombatant) {
  TestProgram program;
  for (const char* name : {"Ash", "Birch", "Cedar"}) program.Add(name);
  for (const Slot slot : SlotsUpTo(3)) program.fight.Players[slot].RRSLT = 12 - slot.Value();
  program.Do("mnuTReset");
  program.Do("GridX_Roll", 1);
  program.Do("GridX_Click", 1);
  program.Do("cmdSDam", 0);  // a wound sorts Ash to the end
  EXPECT_EQ(program.Order(), "Birch Cedar Ash");
  EXPECT_EQ(program.main.GridX.CurrentRow(), 3);
  program.Do("GridX_KeyPress", '7');
  EXPECT_EQ(program.fight.Players[1].RRSLT.Value(), 7);
  // With its combatant gone it stays in its row, if there is one.
  program.Do("GridX_Roll", 2);
  program.Do("GridX_Click", 2);
  program.Do("mnuPRemove");
  EXPECT_EQ(program.Order(), "Birch Ash");
  EXPECT_EQ(program.main.GridX.CurrentRow(), 2);
  program.Do("GridX_KeyPress", '4');
  EXPECT_EQ(program.fight.Players[1].RRSLT.Value(), 4);
}

TEST(Grid, AClickKeepsTheTurnAndStoresTheSheetBefore) {
  TestProgram program;
  program.Add("Ash", 9);
  program.Add("Birch", 5);
  program.Do("mnuTReset");
  program.Do("mnuTNext");
  program.Do("txtCP", 0, "4x");
  program.Do("GridX_Click", 2);
  EXPECT_EQ(program.main.header.lblName2, "Birch");
  EXPECT_EQ(program.fight.LTurn.Value(), 1);
  EXPECT_EQ(program.fight.Players[1].CP.Value(), 4);
  EXPECT_EQ(program.main.TurnBadge(), TurnState::Waiting);
  for (const int row : {0, 3, -1}) program.Do("GridX_Click", row);
  EXPECT_EQ(program.main.header.lblName2, "Birch");
}

}  // namespace
}  // namespace ng
