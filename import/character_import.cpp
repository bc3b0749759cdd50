#include "import/character_import.h"

#include <optional>
#include <utility>

#include "app/settings/profile_file.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "import/armour.h"
#include "import/character_file.h"
#include "import/loader.h"

namespace ng {
namespace {

/// How many combatants came from this file already.
Integer EarlierImports(const Fight& fight, const std::string& fullName) {
  Integer count;
  for (const Slot slot : SlotsUpTo(fight.CountPlayers())) {
    if (fight.Players[slot].Filename == fullName) count += 1;
  }
  return count;
}

ImportedCharacter ReadCharacter(const ImportTarget& target, const std::string& fullName) {
  std::optional<std::string> text = ReadProfileText(target.files, fullName);
  ImportedCharacter character;
  character.entry.unread = !text;
  ProfileFile file(std::move(text).value_or(std::string()));
  PlayerRecord& record = character.record;
  record.Name = ImportedName(file);
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

Slot RequiredSlot(const Fight& fight) {
  const Slot slot = fight.FindFreeSlot();
  if (slot == 0) ThrowSubscript();
  return slot;
}

/// Imports a sheet and returns the combatant that it makes. All that can fail comes before the
/// first change.
PlayerRecord ImportSheet(const ImportTarget& target, const std::string& fullName) {
  const CharacterIndex index = target.characters.FindFree();
  ImportedCharacter character = ReadCharacter(target, fullName);
  character.record.CharacterData = index;
  target.characters.entries[index] = std::move(character.entry);
  target.fight.InfoCnt = target.characters.Count();
  return std::move(character.record);
}

/// Takes the slot and, at the end of the order, a place. A further combatant of one file has its
/// number behind the name.
void TakeSlot(Fight& fight, Slot slot, PlayerRecord record) {
  const Integer earlier = EarlierImports(fight, record.Filename);
  if (earlier > 0) record.Name += "::" + PlainText(earlier);
  fight.Players[slot] = std::move(record);
  fight.Recount();
  // A nameless combatant is not counted and so has no place in the order.
  if (!fight.Players[slot].Name.empty()) {
    fight.InitOrder[OrderPosition::From(fight.NumPlayers)] = slot;
  }
}

}  // namespace

Slot LoadCharacterFile(const ImportTarget& target, const std::string& fileName) {
  const std::string fullName = FullCharacterName(target.settings.NG3Dir, fileName);
  const Slot slot = RequiredSlot(target.fight);
  TakeSlot(target.fight, slot, ImportSheet(target, fullName));
  return slot;
}

Slot LoadCharacterFile(const ImportTarget& target, ImportedSheets& sheets,
                       const std::string& fileName) {
  const std::string fullName = FullCharacterName(target.settings.NG3Dir, fileName);
  const Slot slot = RequiredSlot(target.fight);
  auto known = sheets.find(fullName);
  if (known == sheets.end()) {
    known = sheets.emplace(fullName, ImportSheet(target, fullName)).first;
  }
  TakeSlot(target.fight, slot, known->second);
  return slot;
}

}  // namespace ng
