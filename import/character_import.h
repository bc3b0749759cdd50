#pragma once

#include <map>
#include <string>

#include "app/settings/settings.h"
#include "base/ports.h"
#include "import/character_sheet.h"
#include "import/reference_tables.h"
#include "tracker/fight/fight.h"

namespace ng {

/// What an import works on.
struct ImportTarget {
  Files& files;
  const Settings& settings;
  const GearTable& gearTable;
  Fight& fight;
  CharacterTable& characters;
};

/// Imports one character into a free slot, at the end of the order, and returns the slot. The file
/// is read and parsed once. A 51st sheet and a 101st combatant end in "Subscript out of range"; no
/// runtime error on the way leaves a trace of this character in the fight.
Slot LoadCharacterFile(const ImportTarget& target, const std::string& fileName);

/// The combatants that the files of one restoring of a fight make, by full file name.
using ImportedSheets = std::map<std::string, PlayerRecord>;

/// The same for restoring a fight: a file that `sheets` knows is not read again, and its combatants
/// share one sheet, as copies do.
Slot LoadCharacterFile(const ImportTarget& target, ImportedSheets& sheets,
                       const std::string& fileName);

}  // namespace ng
