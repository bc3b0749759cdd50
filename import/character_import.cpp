#include "import/character_import.h"

#include <utility>

#include "app/profile_file.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "import/armour.h"
#include "import/character_file.h"
#include "import/loader.h"

namespace ng {
namespace {

/// How many combatants came from this file already.
Integer EarlierImports(Fight& fight, const std::string& fullName) {
  const Integer n = fight.CountPlayers();
  Integer count;
  for (int slot = 1; slot <= n; ++slot) {
    if (fight.Players[slot].Filename == fullName) count += 1;
  }
  return count;
}

ImportedCharacter ReadCharacter(const ImportTarget& target, const std::string& fullName) {
  ProfileFile file(ReadProfileText(target.files, fullName));
  ImportedCharacter character;
  PlayerRecord& record = character.record;
  record.Name = ImportedName(file, EarlierImports(target.fight, fullName));
  record.Filename = fullName;
  character.entry.Filename = fullName;
  ReadInitiative(file, record);
  ParseCharacterFile(file, target.gearTable, character);
  StoreArmour(record, DeriveArmour(character.entry));
  record.KP = LenientInteger(character.entry.karmaPool);
  RefillPools(record, character.entry);
  character.entry.fileText = std::move(file).TakeText();
  return character;
}

/// Takes the slot and, at the end of the order, a place.
void TakeSlot(Fight& fight, Slot slot, PlayerRecord record) {
  fight.Players[slot] = std::move(record);
  // A nameless combatant is not counted and so stands in no place of the order.
  const OrderPosition last = fight.CountPlayers();
  if (!fight.Players[slot].Name.empty()) fight.InitOrder[last] = slot;
}

Slot RequiredSlot(const Fight& fight) {
  const Slot slot = fight.FindFreeSlot();
  if (slot == 0) ThrowSubscript();
  return slot;
}

}  // namespace

Slot LoadCharacterFile(const ImportTarget& target, const std::string& fileName) {
  const std::string fullName = FullCharacterName(target.settings.NG3Dir, fileName);
  const Slot slot = RequiredSlot(target.fight);
  const CharacterIndex index = target.characters.FindFree();

  // All that can fail comes before the first change.
  ImportedCharacter character = ReadCharacter(target, fullName);
  character.record.CharacterData = index;
  target.characters.entries[index] = std::move(character.entry);
  target.fight.InfoCnt = target.characters.Count();
  TakeSlot(target.fight, slot, std::move(character.record));
  return slot;
}

Slot LoadCharacterFile(const ImportTarget& target, ImportedSheets& sheets,
                       const std::string& fileName) {
  const std::string fullName = FullCharacterName(target.settings.NG3Dir, fileName);
  const auto known = sheets.find(fullName);
  if (known == sheets.end()) {
    const Slot slot = LoadCharacterFile(target, fullName);
    sheets.emplace(fullName, target.fight.Players[slot]);
    return slot;
  }
  const Slot slot = RequiredSlot(target.fight);
  TakeSlot(target.fight, slot, known->second);
  return slot;
}

}  // namespace ng
