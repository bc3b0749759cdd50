#include "tracker/sequencer.h"

#include "base/number_text.h"
#include "base/random_int.h"
#include "base/text.h"
#include "tracker/turn.h"

namespace ng {
namespace {

constexpr const char* kBeginningOfTurn = "Beginning of turn: Phase 0";
constexpr const char* kHistory = "History-Phase: ";

}  // namespace

Integer Sequencer::RollInitiative(Slot slot) {
  const PlayerRecord& record = fight_.Players[slot];
  const bool physical = record.CurInitMode == 0;
  const Integer dice = physical ? record.CurInitAugmented : record.CurInitNatural;
  Integer sum;
  for (int die = 1; die <= dice; ++die) sum += RandomInt(uniform_, 6);
  if (physical) return sum + record.CurReactAugmented;
  return sum + record.CurReactNatural + kAstralBonus;
}

bool Sequencer::GoesBefore(Slot b, Slot a) const {
  const PlayerRecord& second = fight_.Players[b];
  const PlayerRecord& first = fight_.Players[a];
  // Both reactions count whatever the combatants' modes are, and `Random` breaks no tie.
  if (second.FRSLT != first.FRSLT) return second.FRSLT > first.FRSLT;
  if (second.CurReactAugmented != first.CurReactAugmented) {
    return second.CurReactAugmented > first.CurReactAugmented;
  }
  return second.CurReactNatural > first.CurReactNatural;
}

void Sequencer::SortInitiative() {
  const Integer n = fight_.CountPlayers();
  for (const Slot slot : SlotsUpTo(n)) {
    PlayerRecord& record = fight_.Players[slot];
    record.FRSLT = record.RRSLT - record.TNDamMod;
    if (IsOutOfFight(record)) {
      record.RRSLT = 0;
      record.FRSLT = 0;
    }
  }
  const OrderPosition last = OrderPosition::From(n);
  for (const OrderPosition p : PositionsUpTo(n - 1)) {
    for (const OrderPosition q : IndexRange(OrderPosition::From(p.Value() + 1), last)) {
      if (GoesBefore(fight_.InitOrder[q], fight_.InitOrder[p])) fight_.SwapOrder(p, q);
    }
  }
  grid_.RefreshGrid();
  grid_.FollowCombatant();
}

void Sequencer::Reroll(Boolean copiesShareRoll) {
  grid_.PaintRowWhite(fight_.lastGreen);
  for (const OrderPosition p : PositionsUpTo(fight_.CountPlayers())) {
    const Slot slot = fight_.InitOrder[p];
    if (slot == 0) continue;
    PlayerRecord& record = fight_.Players[slot];
    record.RRSLT = RollInitiative(slot);
    // Any value but 0 counts here, not only true.
    if (record.inactive.Raw() != 0) record.RRSLT = 0;
    record.Random = RandomInt(uniform_, 1000);
  }
  if (copiesShareRoll) ShareRollsWithCopies();
  Reset();
}

void Sequencer::ShareRollsWithCopies() {
  const Integer n = fight_.CountPlayers();
  for (const Slot i : SlotsUpTo(n)) {
    const PlayerRecord& original = fight_.Players[i];
    // An empty slot is no original: its name would be contained in every copy's.
    if (original.Name.empty() || Contains(original.Name, "::")) continue;
    const std::string mark = original.Name + "::";
    for (const Slot j : SlotsUpTo(n)) {
      PlayerRecord& copy = fight_.Players[j];
      if (j != i && Contains(copy.Name, mark)) copy.RRSLT = original.RRSLT;
    }
  }
}

void Sequencer::Reset() {
  const Integer n = fight_.CountPlayers();
  fight_.PhaseCnt = 1;
  fight_.RoundCount += 1;
  fight_.GlobalEvents.clear();
  fight_.ClearTurnDone();
  host_.RefreshPools();
  // The pass column is left as it is.
  for (HistoryStep& step : fight_.TurnHistory) step.Turn = 0;
  for (const Slot slot : SlotsUpTo(n)) fight_.Players[slot].Delay = false;
  SortInitiative();
  lblPhase_ = kBeginningOfTurn;
  fight_.SeqNum = 0;
  fight_.TurnNum = 0;
  for (const Slot slot : SlotsUpTo(n)) fight_.Players[slot].SetGreen = false;
  grid_.RefreshGrid();
  host_.XFerPC(fight_.CurrentPCpointer);
}

void Sequencer::Next() {
  fight_.SeqNum += 1;
  fight_.grenadeCnt = 0;
  const Integer n = fight_.CountPlayers();
  if (n == 0) return;
  if (!ReplayRecordedStep()) Scan(n);
}

bool Sequencer::ReplayRecordedStep() {
  const HistoryStep& step = fight_.TurnHistory[fight_.SeqNum];
  if (step.Turn == 0) return false;
  if (step.Turn == HistoryStep::kEndOfTurn) {
    lblPhase_ = "End of turn";
    grid_.PaintRowWhite(fight_.lastGreen);
    prompts_.Beep();
    return true;
  }
  if (step.TwoTurn != HistoryStep::kDelayed) {
    PaintTurn(fight_.FindInOrder(step.Actor()));
    lblPhase_ = kHistory + PlainText(step.TwoTurn);
  } else {
    grid_.PaintRowYellow(fight_.FindInOrder(step.Actor()));
    lblPhase_ = "Delayed";
  }
  // A replay never moves `LTurn`, so the sheet is that of whoever has the turn, and the game master
  // can look back without losing it.
  host_.XFerPC(fight_.InitOrder[fight_.LTurn]);
  return true;
}

void Sequencer::Scan(Integer n) {
  fight_.LTurn = 1;
  for (int looked = 0;;) {
    const Look look = LookAtCurrent();
    if (look == Look::Acted) return;
    if (look == Look::Delayed) {
      TakeUpDelayed(fight_.InitOrder[fight_.LTurn]);
      return;
    }
    looked = (looked + 1) % n.Value();
    fight_.LTurn = OrderPosition::From(looked + 1);
    if (looked == 0 && !OpenNextPass()) return;
  }
}

Sequencer::Look Sequencer::LookAtCurrent() {
  const Slot slot = fight_.InitOrder[fight_.LTurn];
  if (slot == 0) return Look::GoOn;
  PlayerRecord& record = fight_.Players[slot];
  if (!record.Events.empty() && record.roundcnt != fight_.RoundCount) {
    prompts_.Message(record.Events);
    record.Events.clear();
  }
  if (record.TurnDone) return Look::GoOn;
  // Before every look and not once a step: the sheet of a displayed combatant whose counts were
  // just cleared, and who does not act, overwrites them.
  host_.SyncSheet();
  if (!record.Resumed) {
    record.TBTTPrim = "0";
    record.TBTTSec = "0";
  }
  if (record.Delay) return Look::Delayed;
  if (!HasActionLeft(fight_, slot)) return Look::GoOn;
  record.TurnDone = true;
  RecordStep(slot);
  PaintTurn(fight_.LTurn);
  record.Resumed = false;
  host_.XFerPC(slot);
  lblPhase_ = "NEW-Phase: " + PlainText(fight_.PhaseCnt);
  return Look::Acted;
}

bool Sequencer::OpenNextPass() {
  fight_.PhaseCnt += 1;
  fight_.ClearTurnDone();
  if (fight_.PhaseCnt <= kLastPass) return true;
  EndCombatTurn();
  return false;
}

void Sequencer::EndCombatTurn() {
  fight_.TurnHistory[fight_.SeqNum].Turn = HistoryStep::kEndOfTurn;
  lblPhase_ = "End of turn!";
  if (!fight_.GlobalEvents.empty()) {
    prompts_.Message(fight_.GlobalEvents);
    fight_.GlobalEvents.clear();
  }
  const Integer n = fight_.CountPlayers();
  for (const Slot slot : SlotsUpTo(n)) fight_.Players[slot].SetGreen = false;
  grid_.PaintRowWhite(fight_.lastGreen);
  // The next "next" then plays the end mark again.
  fight_.SeqNum -= 1;
}

void Sequencer::TakeUpDelayed(Slot slot) {
  PlayerRecord& record = fight_.Players[slot];
  const bool earlierTurn = record.roundcnt != fight_.RoundCount;
  if (earlierTurn) {
    record.TurnDone = true;
  } else {
    // Not done: the following "next" looks again, and the combatant acts then or loses the action.
    record.Delay = false;
    record.TurnDone = false;
    record.PhaseNum = fight_.PhaseCnt;
  }
  prompts_.Beep();
  prompts_.Message(earlierTurn ? "SPECIAL: Delay Into Next Initiative Pass"
                               : "Possible loss of turn.\r\nTake turn or press NEXT to lose.");
  RecordStep(slot);
  PaintTurn(fight_.LTurn);
  host_.XFerPC(slot);
  lblPhase_ = "Phase: " + PlainText(fight_.PhaseCnt);
}

void Sequencer::Previous() {
  if (fight_.SeqNum > 0) fight_.SeqNum -= 1;
  if (fight_.SeqNum == 0) {
    lblPhase_ = kBeginningOfTurn;
    grid_.PaintRowWhite(fight_.lastGreen);
    prompts_.Beep();
    return;
  }
  const HistoryStep& step = fight_.TurnHistory[fight_.SeqNum];
  PaintTurn(fight_.FindInOrder(step.Actor()));
  lblPhase_ = step.TwoTurn == HistoryStep::kDelayed ? "History-Delayed"
                                                    : kHistory + PlainText(step.TwoTurn);
}

void Sequencer::ClearEvents() {
  fight_.GlobalEvents.clear();
  const Integer n = fight_.CountPlayers();
  for (const Slot slot : SlotsUpTo(n)) fight_.Players[slot].Events.clear();
}

void Sequencer::SetInitMode(int option) {
  if (fight_.CurrentPCpointer == 0) return;
  fight_.Players[fight_.CurrentPCpointer].CurInitMode = option == 0 ? 0 : 1;
}

void Sequencer::RecordStep(Slot slot) {
  HistoryStep& step = fight_.TurnHistory[fight_.SeqNum];
  step.Turn = slot.Value();
  step.TwoTurn = fight_.PhaseCnt;
}

void Sequencer::PaintTurn(OrderPosition p) {
  fight_.SetGreenAt(p);
  grid_.RefreshGrid();
}

}  // namespace ng
