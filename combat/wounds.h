#pragma once

#include <string>

#include "base/integer.h"
#include "tracker/fight/player_record.h"

namespace ng {

// The wounds of a record: two tracks of ten boxes, stun that runs over into physical damage, and
// the wound modifier that follows from both. None of this shows anything or orders the table.

/// A wound level of one track: how it is named, its letter in the condition code, and what it adds
/// to the wound modifier.
struct DamageLevel {
  const char* name;
  char letter;
  int modifierStep;
};

/// The level of a number of boxes, 0 to 10: none, light from 1, moderate from 3, serious from 6,
/// unconscious or dying at 10. More than 10 boxes count as 10.
const DamageLevel& LevelOf(Track track, Integer boxes);

/// The condition code of a record: the stun letter and the physical letter ("0L", "UD").
std::string ConditionCode(const PlayerRecord& record);

/// Boxes on a track; past the tenth physical one they are overflow.
Integer& BoxesOn(PlayerRecord& record, Track track);

/// Adds `amount` boxes to a track, takes them away when it is negative; a track does not fall below
/// 0. Once a combatant is dying every further physical wound, whatever its level, is one box of
/// overflow, and `amount` becomes 1: a second deadly wound does not kill ten times over.
void AddBoxes(PlayerRecord& record, Track track, Integer& amount);

/// Carries stun past the tenth box over into physical damage, writes the condition code, takes the
/// roll of the dying, and works out `TNDamMod`: the steps of both tracks added up, 0 to 6, with
/// pain resistance spent on stun first.
void SettleTracks(PlayerRecord& record);

/// `FRSLT`: the roll less the wound modifier. Overflow outside the 16-bit range.
void ScoreRoll(PlayerRecord& record);

}  // namespace ng
