#pragma once

#include <string>
#include <vector>

#include "app/settings/profile_file.h"
#include "tracker/fight/fight.h"

namespace ng {

// The state file keeps a whole fight: the fight-wide counters and the turn list in a section
// "[SystemState]", then a section "[Slot1]", "[Slot2]" ... for each combatant.

/// The text of the state file, with lines ended by CR LF. Counts the combatants afresh and writes
/// that many slots from slot 1 on, so that a combatant beyond a hole is left out. Subscript out of
/// range for a `TurnNum` above 100.
std::string StateFileText(const Fight& fight);

/// The names of the combatants that StateFileText leaves out, in the order of their slots.
std::vector<std::string> NamesLeftOut(const Fight& fight);

/// Whether this is a state file: it has the section "[SystemState]".
bool IsStateFile(const ProfileFile& file);

/// How many combatants the file holds by its own count, taken as 0 to 100 whatever the number.
int CombatantsIn(const ProfileFile& file);

/// What restoring a fight needs of the window above it.
class StateFileHost {
 public:
  virtual ~StateFileHost() = default;
  /// Imports a character file into a free slot; a combatant saved without one passes the empty
  /// name. False when the file could not be read and the combatant has no sheet.
  virtual bool ImportCharacter(const std::string& fileName) = 0;
  /// Opens the note file, shows its first line, decoded, in the note box and returns it.
  virtual std::string ShowNote(const std::string& noteFileName) = 0;
};

/// Restores the combatants, the counters and the turn list; showing them and resetting the turn is
/// the caller's. The table is not emptied first: each slot's character is imported into whichever
/// slot is free, and the slot's values are laid over the record of the same number, so that only an
/// empty table gives back the fight as it was. Returns whose character files could not be read, of
/// several combatants of one file the first.
///
/// A restored fight begins a new combat turn, so some values do not come back: `RoundCount` and
/// `CurrentPCpointer` are 0, `roundcnt` is 0, `Delay` says who had the turn, `inactive` and
/// `SetGreen` are as imported.
///
/// A runtime error names the key, and the slot where there is one, on a line below its text ("KP,
/// slot 3"); what was read before it stays in the fight.
std::vector<std::string> ReadStateFile(const ProfileFile& file, Fight& fight, StateFileHost& host);

}  // namespace ng
