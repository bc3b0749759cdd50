#pragma once

#include <string>

#include "tracker/fight/fight.h"

namespace ng {

/// What changed of one combatant, in words: "physical 0 to 3, net 8 to 6". Every field of the
/// record is compared; one that the game master never sees is left out, and one without words of
/// its own is told by its name. Empty where nothing to be told changed.
std::string ChangesOf(const PlayerRecord& before, const PlayerRecord& after);

/// The same for all combatants, each with its name before it: "Ganger::3: physical 0 to 3; Vex:
/// ...". The name of `who` is left out. Who came and who went is told as that.
std::string ChangesOf(const Fight& before, const Fight& after, const std::string& who);

}  // namespace ng
