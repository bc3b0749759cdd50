#pragma once

#include <array>

#include "tracker/fight/fight.h"

namespace ng {

/// What a combatant is doing in the combat turn. `Nobody` is the state of slot 0.
enum class TurnState { Nobody, Waiting, OnTurn, Delayed, Inactive };

/// The back colours of the grid's rows, 0xBBGGRR.
enum class RowColour { White = 0xFFFFFF, Green = 0x00FF00, Yellow = 0x00FFFF, Red = 0x0000FF };

/// What a state is called, and its row colour.
struct TurnLook {
  TurnState state;
  /// What the badge says.
  const char* badge;
  /// What the legend says of the colour; empty for white.
  const char* legend;
  RowColour colour;
  const char* colourName;
};

/// The one table of states and row colours: grid, legend, badge and icons read it.
inline constexpr std::array<TurnLook, 5> kTurnLooks = {{
    {TurnState::Nobody, "\x96", "", RowColour::White, "white"},
    {TurnState::Waiting, "Waiting", "", RowColour::White, "white"},
    {TurnState::OnTurn, "On turn", "turn", RowColour::Green, "green"},
    {TurnState::Delayed, "Delayed", "delay", RowColour::Yellow, "yellow"},
    {TurnState::Inactive, "Inactive", "inactive", RowColour::Red, "red"},
}};

const TurnLook& LookOf(TurnState state);
/// The first state that has the colour; for white one that no row shows.
const TurnLook& LookOf(RowColour colour);

/// Being inactive goes before a delay, and both before the turn. On turn is who may act now: that
/// is not always the green row, for a sort may move it away from the position that has the turn.
TurnState TurnStateOf(const Fight& fight, Slot slot);

}  // namespace ng
