#pragma once

#include <string>
#include <vector>

#include "base/fixed_table.h"
#include "base/integer.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// One step of the combat turn that "previous" and a repeated "next" play again.
struct HistoryStep {
  /// The slot that acted; kEndOfTurn marks the end of the combat turn, 0 no entry.
  Integer Turn;
  /// The pass in which it acted; kDelayed marks a delay. The column "2Turn".
  Integer TwoTurn;

  static constexpr int kEndOfTurn = 100;
  static constexpr int kDelayed = 99;

  friend bool operator==(const HistoryStep&, const HistoryStep&) = default;
};

/// A whole fight: a plain value that can be copied, compared and written down.
struct Fight {
  static constexpr int kLastSlot = 100;

  /// Slot 0 is never a combatant and is never changed.
  FixedTable<PlayerRecord, kLastSlot> Players;
  /// The slot at each order position; grid row p shows `InitOrder[p]`.
  FixedTable<Slot, kLastSlot> InitOrder;
  FixedTable<HistoryStep, kLastSlot> TurnHistory;

  /// Combatants, as CountPlayers last counted them.
  Integer NumPlayers;
  /// Imported character sheets.
  Integer InfoCnt;
  /// Saved and restored only.
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
  /// Counts the slots whose `Name` is not empty, into `NumPlayers` too.
  Integer CountPlayers();
  /// The first order position that holds `slot`, or 0; slot 0 stands in no position.
  OrderPosition FindInOrder(Slot slot) const;
  /// The first slot without a character sheet, or 0. "Free" goes by the sheet while CountPlayers
  /// goes by the name; both rules are meant as they are.
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

/// Every fight-wide counter with its name, for those who go through all of them.
struct FightField {
  const char* name;
  Integer Fight::*member;
};
const std::vector<FightField>& FightFields();

}  // namespace ng
