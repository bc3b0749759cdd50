#include "tracker/fight/fight.h"

#include <type_traits>
#include <utility>

namespace ng {

const PlayerRecord& Fight::RecordOf(Slot slot) const {
  return Players[slot >= 0 && slot <= kLastSlot ? slot : Slot(0)];
}

Integer Fight::CountPlayers() const {
  int count = 0;
  for (const Slot slot : AllSlots()) {
    if (!Players[slot].Name.empty()) ++count;
  }
  return count;
}

OrderPosition Fight::FindInOrder(Slot slot) const {
  if (slot == 0) return 0;
  for (const OrderPosition p : PositionsUpTo(kLastSlot)) {
    if (InitOrder[p] == slot) return p;
  }
  return 0;
}

Slot Fight::FindFreeSlot() const {
  for (const Slot slot : AllSlots()) {
    if (Players[slot].CharacterData == 0) return slot;
  }
  return 0;
}

void Fight::SwapOrder(OrderPosition p, OrderPosition q) { std::swap(InitOrder[p], InitOrder[q]); }

void Fight::ClearTurnDone() {
  for (const Slot slot : SlotsUpTo(CountPlayers())) Players[slot].TurnDone = false;
}

void Fight::SetGreenAt(OrderPosition p) {
  for (const OrderPosition k : PositionsUpTo(CountPlayers())) {
    if (InitOrder[k] != 0) Players[InitOrder[k]].SetGreen = k == p;
  }
}

bool Fight::MyTurn() const { return FindInOrder(CurrentPCpointer) == LTurn; }

Integer NumberIn(const Fight& fight, const FightNumber& which) {
  return std::visit([&fight](auto member) { return Integer((fight.*member).Value()); }, which);
}

void StoreNumber(Fight& fight, const FightNumber& which, Integer value) {
  const auto store = [&](auto member) {
    if constexpr (std::is_same_v<decltype(member), Integer Fight::*>) {
      fight.*member = value;
    } else {
      fight.*member = std::remove_reference_t<decltype(fight.*member)>::From(value);
    }
  };
  std::visit(store, which);
}

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
