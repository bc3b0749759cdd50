#include "tracker/turn_status.h"

#include <gtest/gtest.h>

#include "fakes/test_program.h"

namespace ng {
namespace {

TEST(TurnStatus, OnTurnIsWhoMayAttackAndNotWhoeverIsGreen) {
  TestProgram program;
  program.Add("Ash", 9);
  program.Add("Birch", 8);
  const auto badge = [&](int row) {
    program.Do("GridX_Click", row);
    return program.main.TurnBadge();
  };
  EXPECT_EQ(program.main.TurnBadge(), TurnState::Nobody);
  program.Do("mnuTReset");
  EXPECT_EQ(badge(1), TurnState::Waiting);  // no step has been taken
  program.Do("mnuTNext");
  EXPECT_EQ(badge(1), TurnState::OnTurn);

  // A wound takes Ash's score to 7 and its row, still green, to the second place.
  program.Do("cmdMDam", 1);
  ASSERT_EQ(program.Order(), "Birch Ash");
  EXPECT_EQ(program.main.GridX.RowAt(2).colour[0], RowColour::Green);
  EXPECT_EQ(badge(2), TurnState::Waiting);
  program.Do("cmdShots1", 0);
  EXPECT_EQ(badge(1), TurnState::OnTurn);
  program.Do("cmdShots1", 0);
  EXPECT_EQ(program.prompts.log,
            (std::vector<std::string>{"message \"Can only shoot on PC's turn!\"",
                                      "message \"Weapon empty\""}));

  program.Do("mnuPDelay");
  EXPECT_EQ(program.main.TurnBadge(), TurnState::Delayed);
  program.Do("mnuPInactive");
  EXPECT_EQ(program.main.TurnBadge(), TurnState::Inactive);
}

}  // namespace
}  // namespace ng
