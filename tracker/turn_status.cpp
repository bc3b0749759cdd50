#include "tracker/turn_status.h"

#include <algorithm>

#include "tracker/turn.h"

namespace ng {

const TurnLook& LookOf(TurnState state) {
  return *std::ranges::find(kTurnLooks, state, &TurnLook::state);
}

const TurnLook& LookOf(RowColour colour) {
  return *std::ranges::find(kTurnLooks, colour, &TurnLook::colour);
}

TurnState TurnStateOf(const Fight& fight, Slot slot) {
  if (slot <= 0 || slot > Fight::kLastSlot) return TurnState::Nobody;
  const PlayerRecord& record = fight.Players[slot];
  if (record.inactive) return TurnState::Inactive;
  if (record.Delay) return TurnState::Delayed;
  return MayActNow(fight, slot) ? TurnState::OnTurn : TurnState::Waiting;
}

}  // namespace ng
