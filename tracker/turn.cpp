#include "tracker/turn.h"

namespace ng {

Integer ScoreLeft(const Fight& fight, Slot slot) {
  return fight.Players[slot].FRSLT - (fight.PhaseCnt - 1) * kPassWidth;
}

bool HasActionLeft(const Fight& fight, Slot slot) {
  return !fight.Players[slot].TurnDone && ScoreLeft(fight, slot) > 0;
}

bool MayActNow(const Fight& fight, Slot slot) {
  return slot != 0 && fight.FindInOrder(slot) == fight.LTurn && fight.SeqNum >= 1;
}

}  // namespace ng
