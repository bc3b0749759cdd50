#pragma once

#include "tracker/fight/fight.h"

namespace ng {

// What the combat turn allows a combatant, asked of the fight as it is.

/// Every pass takes this many points from all scores.
inline constexpr int kPassWidth = 10;
/// The combat turn is over after this pass.
inline constexpr int kLastPass = 10;

/// The points that a score has left in the current pass; no action comes of 0 or less.
Integer ScoreLeft(const Fight& fight, Slot slot);

/// Whether the combatant still acts in the current pass: it has not yet, and has points left.
bool HasActionLeft(const Fight& fight, Slot slot);

/// Whether the combatant may attack now: it is the one at `LTurn`, and a step of the combat turn
/// has been taken.
bool MayActNow(const Fight& fight, Slot slot);

}  // namespace ng
