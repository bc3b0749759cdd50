#include "tracker/actions.h"

#include <algorithm>

#include "base/number_text.h"

namespace ng {
namespace {

// Rockets are refused in the words of grenades.
constexpr const char* kNotYourAttack = "Grenade attacks can only occur on that character's turn";

}  // namespace

void Actions::ToggleDelay() {
  if (!Displaying()) return;
  delayChecked = !delayChecked;
  if (!delayChecked) {
    Interrupt();
  } else if (fight_.MyTurn()) {
    DeclareDelay();
  } else {
    prompts_.Message("Can only delay on that player's turn");
    return;
  }
  grid_.RefreshGrid();
}

void Actions::DeclareDelay() {
  PlayerRecord& record = Displayed();
  HistoryStep& step = fight_.TurnHistory[fight_.SeqNum];
  step.Turn = fight_.CurrentPCpointer.Value();
  step.TwoTurn = HistoryStep::kDelayed;
  record.Delay = true;
  record.TurnDone = true;
  record.PhaseNum = fight_.PhaseCnt;
  record.roundcnt = fight_.RoundCount;
  grid_.PaintRowYellow(fight_.LTurn);
}

void Actions::Interrupt() {
  PlayerRecord& record = Displayed();
  record.Delay = false;
  record.TurnDone = record.PhaseNum == fight_.PhaseCnt;
  if (record.roundcnt != fight_.RoundCount) {
    record.TurnDone = true;
    // The sequencer writes "Into": the two are different messages, each with its own text.
    prompts_.Message("SPECIAL: Delay into Next Initiative Pass");
  }
  record.PhaseNum = fight_.PhaseCnt;
  HistoryStep& step = fight_.TurnHistory[fight_.SeqNum];
  const Slot interrupted = step.Actor();
  const OrderPosition p = fight_.FindInOrder(fight_.CurrentPCpointer);
  step.Turn = fight_.InitOrder[p].Value();
  step.TwoTurn = fight_.PhaseCnt;
  // A slot, not a row, is remembered here; the next painted turn sets it right.
  fight_.lastGreen = OrderPosition::From(fight_.InitOrder[p].Value());
  fight_.SetGreenAt(p);
  fight_.LTurn = p;
  // The interrupted combatant still gets its action.
  if (interrupted != 0) fight_.Players[interrupted].TurnDone = false;
}

void Actions::ToggleInactive() {
  if (!Displaying()) return;
  inactiveChecked = !inactiveChecked;
  PlayerRecord& record = Displayed();
  const OrderPosition p = fight_.FindInOrder(fight_.CurrentPCpointer);
  record.inactive = inactiveChecked;
  if (inactiveChecked) {
    record.TurnDone = false;
    record.PhaseNum = 0;
    record.RRSLT = 0;
    grid_.PaintRowRed(p);
  } else {
    record.TurnDone = true;
    record.RRSLT = sequencer_.RollInitiative(fight_.CurrentPCpointer);
    grid_.PaintRowWhite(p);
  }
  grid_.RefreshGrid();
}

void Actions::Grenade() {
  if (!Displaying()) return;
  if (!fight_.MyTurn()) {
    prompts_.Message(kNotYourAttack);
    return;
  }
  PlayerRecord& record = Displayed();
  fight_.grenadeCnt += 1;
  record.Events +=
      record.Name + ":Grenade toss/fired explodes.#" + PlainText(fight_.grenadeCnt) + "\r\n";
  record.roundcnt = fight_.RoundCount;
  log_.Add(record.Name + " expended a grenade.");
}

void Actions::Rocket() {
  if (!Displaying()) return;
  if (!fight_.MyTurn()) {
    prompts_.Message(kNotYourAttack);
    return;
  }
  fight_.GlobalEvents += Displayed().Name + ":Rocket explodes\r\n";
  log_.Add(Displayed().Name + " expended a rocket.");
}

Integer Actions::Multiply(Integer& asked) {
  asked = 0;
  if (!Displaying()) return 0;
  const Integer n = LenientInteger(prompts_.Input(" Enter number of additional copies needed"));
  if (n < 0 || n > kMostCopies) {
    prompts_.Message(" Number between 1...20");
    return 0;
  }
  asked = n;
  // Copies take what is on the sheet.
  host_.SyncSheet();
  int made = 0;
  for (; made < n; ++made) {
    const Slot free = fight_.FindFreeSlot();
    if (free == 0) break;
    MakeCopy(fight_.CurrentPCpointer, free, made + 1);
  }
  grid_.RefreshGrid();
  return made;
}

void Actions::MakeCopy(Slot original, Slot copy, int number) {
  PlayerRecord& record = fight_.Players[copy];
  record = fight_.Players[original];
  record.Name += "::" + PlainText(number);
  fight_.Recount();
  const OrderPosition last = OrderPosition::From(fight_.NumPlayers);
  // A copy joins the order at the position that its slot has the number of. Where a hole was
  // filled, the one who stood there goes to the end, so that nobody drops out of the fight.
  const OrderPosition place = std::min(OrderPosition::From(copy.Value()), last);
  const Slot displaced = fight_.InitOrder[place];
  fight_.InitOrder[place] = copy;
  if (displaced != 0 && place != last) fight_.InitOrder[last] = displaced;
}

void Actions::Remove() {
  if (fight_.CurrentPCpointer < 1) {
    prompts_.Message("Must click on PC first");
    return;
  }
  RemovePlayer(fight_.CurrentPCpointer);
}

void Actions::RemovePlayer(Slot slot) {
  if (slot > 0) {
    ReleaseCharacter(slot);
    fight_.Players[slot] = PlayerRecord{};
  }
  fight_.Recount();
  RebuildOrder();
  // Nobody is displayed and the row is gone even where the sort ends in Overflow.
  host_.XFerPC(0);
  grid_.RefreshGrid();
  sequencer_.SortInitiative();
}

/// Frees the sheet's place for a later import when this was the last combatant that used it.
void Actions::ReleaseCharacter(Slot slot) {
  const CharacterIndex index = fight_.Players[slot].CharacterData;
  if (index == 0) return;
  const auto users =
      std::count_if(fight_.Players.begin(), fight_.Players.end(),
                    [index](const PlayerRecord& record) { return record.CharacterData == index; });
  if (users < 2) characters_.entries[index] = CharacterEntry{};
  fight_.InfoCnt = characters_.Count();
}

void Actions::RebuildOrder() {
  for (Slot& slot : fight_.InitOrder) slot = 0;
  OrderPosition place = 0;
  for (const Slot slot : AllSlots()) {
    if (!fight_.Players[slot].Name.empty()) fight_.InitOrder[++place] = slot;
  }
}

void Actions::RemoveAll() {
  for (Integer slot = fight_.CountPlayers(); slot >= 1; slot -= 1) RemovePlayer(Slot::From(slot));
}

}  // namespace ng
