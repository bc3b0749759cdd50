#pragma once

#include "app/settings/profile_file.h"
#include "import/character_sheet.h"
#include "import/reference_tables.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// What a character file turns into: the combatant's record and the sheet. Neither is in the fight
/// yet.
struct ImportedCharacter {
  PlayerRecord record;
  CharacterEntry entry;
};

/// The name, with "(NF)" before that of an unfinished character.
std::string ImportedName(const ProfileFile& file);

/// Reads initiative dice and reaction into the record. Overflow outside the 16-bit range.
void ReadInitiative(const ProfileFile& file, PlayerRecord& record);

/// Reads everything else: attributes, race, pools, magic, the item lists, vision and armour. Absent
/// keys read as empty, so that a file that is no character file gives an empty sheet.
void ParseCharacterFile(const ProfileFile& profile, const GearTable& gearTable,
                        ImportedCharacter& character);

}  // namespace ng
