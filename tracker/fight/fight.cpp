#include "tracker/fight/fight.h"

#include <utility>

namespace ng {

const PlayerRecord& Fight::RecordOf(Slot slot) const {
  return Players[slot >= 0 && slot <= kLastSlot ? slot : Slot(0)];
}

Integer Fight::CountPlayers() {
  int count = 0;
  for (int slot = 1; slot <= kLastSlot; ++slot) {
    if (!Players[slot].Name.empty()) ++count;
  }
  NumPlayers = count;
  return NumPlayers;
}

OrderPosition Fight::FindInOrder(Slot slot) const {
  if (slot == 0) return 0;
  for (int p = 1; p <= kLastSlot; ++p) {
    if (InitOrder[p] == slot) return p;
  }
  return 0;
}

Slot Fight::FindFreeSlot() const {
  for (int slot = 1; slot <= kLastSlot; ++slot) {
    if (Players[slot].CharacterData == 0) return slot;
  }
  return 0;
}

void Fight::SwapOrder(OrderPosition p, OrderPosition q) { std::swap(InitOrder[p], InitOrder[q]); }

void Fight::ClearTurnDone() {
  const Integer n = CountPlayers();
  for (int slot = 1; slot <= n; ++slot) Players[slot].TurnDone = false;
}

void Fight::SetGreenAt(OrderPosition p) {
  const Integer n = CountPlayers();
  for (int k = 1; k <= n; ++k) {
    if (InitOrder[k] != 0) Players[InitOrder[k]].SetGreen = k == p;
  }
}

bool Fight::MyTurn() const { return FindInOrder(CurrentPCpointer) == LTurn; }

const std::vector<FightField>& FightFields() {
  static const std::vector<FightField> fields = {{"NumPlayers", &Fight::NumPlayers},
                                                 {"InfoCnt", &Fight::InfoCnt},
                                                 {"InitPhase", &Fight::InitPhase},
                                                 {"RoundCount", &Fight::RoundCount},
                                                 {"CurrentPCpointer", &Fight::CurrentPCpointer},
                                                 {"PhaseCnt", &Fight::PhaseCnt},
                                                 {"SeqNum", &Fight::SeqNum},
                                                 {"TurnNum", &Fight::TurnNum},
                                                 {"LTurn", &Fight::LTurn},
                                                 {"grenadeCnt", &Fight::grenadeCnt},
                                                 {"CurGreen", &Fight::CurGreen},
                                                 {"lastGreen", &Fight::lastGreen}};
  return fields;
}

}  // namespace ng
