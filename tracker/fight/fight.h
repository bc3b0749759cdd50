#pragma once

#include <string>
#include <variant>
#include <vector>

#include "base/fixed_table.h"
#include "base/integer.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// One step of the combat turn that "previous" and a repeated "next" play again.
struct HistoryStep {
  /// The number of the slot that acted; kEndOfTurn marks the end of the combat turn, 0 no entry.
  Integer Turn;
  /// The pass in which it acted; kDelayed marks a delay. The column "2Turn".
  Integer TwoTurn;

  static constexpr int kEndOfTurn = 100;
  static constexpr int kDelayed = 99;

  /// The slot that `Turn` names where it is no mark.
  Slot Actor() const { return Slot::From(Turn); }

  friend bool operator==(const HistoryStep&, const HistoryStep&) = default;
};

/// A whole fight: a plain value that can be copied, compared and written down.
struct Fight {
  static constexpr int kLastSlot = 100;

  /// Slot 0 is never a combatant and is never changed.
  FixedTable<PlayerRecord, kLastSlot, Slot> Players;
  /// The slot at each order position; grid row p shows `InitOrder[p]`.
  FixedTable<Slot, kLastSlot, OrderPosition> InitOrder;
  FixedTable<HistoryStep, kLastSlot> TurnHistory;

  /// Combatants, as Recount last counted them.
  Integer NumPlayers;
  /// Imported character sheets.
  Integer InfoCnt;
  /// Kept in saved fights only.
  Integer InitPhase;
  /// The number of the combat turn.
  Integer RoundCount;
  /// The slot whose sheet is displayed, 0 for none.
  Slot CurrentPCpointer;
  /// Rockets that go off at the end of the combat turn, a line each, ended by CR LF.
  std::string GlobalEvents;
  /// The initiative pass, 1 to 10; every pass takes 10 from the scores.
  Integer PhaseCnt;
  /// Steps since the reset, 0 to 100; indexes `TurnHistory`.
  Integer SeqNum;
  /// The last step of the history that a saved fight keeps; the reset sets it to 0.
  Integer TurnNum;
  /// The order position that has the turn.
  OrderPosition LTurn;
  /// Grenades thrown since the last "next".
  Integer grenadeCnt;
  /// The grid row painted green last, 0 for none.
  OrderPosition CurGreen;
  /// The grid row that was green last and is painted white again at the end of the turn.
  OrderPosition lastGreen;

  /// The record of a slot; record 0, nobody's, for a number outside the table, which a damaged
  /// state file may hold. For what is shown: nothing that a window shows ends a command.
  const PlayerRecord& RecordOf(Slot slot) const;
  /// The number of slots whose `Name` is not empty.
  Integer CountPlayers() const;
  /// Stores that number as `NumPlayers`; due whenever a combatant has come or gone.
  void Recount() { NumPlayers = CountPlayers(); }
  /// The first order position that holds `slot`, or 0; slot 0 has no position.
  OrderPosition FindInOrder(Slot slot) const;
  /// The first slot without a character sheet, or 0. "Free" goes by the sheet while CountPlayers
  /// goes by the name: a combatant without a name does not fight, but keeps its slot.
  Slot FindFreeSlot() const;
  void SwapOrder(OrderPosition p, OrderPosition q);
  /// Opens a pass: clears `TurnDone` on slots 1 to CountPlayers(), by slot and not by position, so
  /// that a combatant beyond a hole is passed over.
  void ClearTurnDone();
  /// Gives the turn to position `p` and takes it from everybody else; 0 takes it from all.
  void SetGreenAt(OrderPosition p);
  /// Whether the displayed combatant is the one at `LTurn`. With nobody displayed that is so only
  /// while `LTurn` is 0 as well.
  bool MyTurn() const;

  friend bool operator==(const Fight&, const Fight&) = default;
};

/// All slots of combatants, or those up to a count, from slot 1 on.
constexpr IndexRange<Slot> AllSlots() { return {1, Fight::kLastSlot}; }
constexpr IndexRange<Slot> SlotsUpTo(Integer n) { return {1, Slot::From(n)}; }
/// The order positions up to a count, from position 1 on.
constexpr IndexRange<OrderPosition> PositionsUpTo(Integer n) { return {1, OrderPosition::From(n)}; }

/// A fight-wide number, whatever it counts or points to.
using FightNumber = std::variant<Integer Fight::*, Slot Fight::*, OrderPosition Fight::*>;
Integer NumberIn(const Fight& fight, const FightNumber& which);
void StoreNumber(Fight& fight, const FightNumber& which, Integer value);

/// Every fight-wide number with its name, for those who go through all of them.
struct FightField {
  const char* name;
  FightNumber member;
};
const std::vector<FightField>& FightFields();

}  // namespace ng
