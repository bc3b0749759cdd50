#include "import/character_sheet.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {

CharacterIndex CharacterTable::FindFree() const {
  CharacterIndex index = 1;
  while (!entries[index].Filename.empty()) ++index;
  return index;
}

CharacterEntry* CharacterTable::Of(const PlayerRecord& record) {
  return record.CharacterData == 0 ? nullptr : &entries[record.CharacterData];
}

const CharacterEntry* CharacterTable::Of(const PlayerRecord& record) const {
  return record.CharacterData == 0 ? nullptr : &entries[record.CharacterData];
}

Integer CharacterTable::Count() const {
  return static_cast<int>(std::count_if(
      entries.begin(), entries.end(), [](const CharacterEntry& e) { return !e.Filename.empty(); }));
}

double NaturalValue(std::string_view attributeValue) {
  double sum = 0;
  for (int field = 0; field < 3; ++field) {
    sum += LeadingNumber(Piece(attributeValue, '|', field));
  }
  return std::trunc(sum);
}

std::string FormatAttribute(std::string_view attributeValue) {
  if (std::count(attributeValue.begin(), attributeValue.end(), '|') == 4) {
    return std::string(Piece(attributeValue, '|', 4));
  }
  const double natural = NaturalValue(attributeValue);
  const double augmentation = LeadingNumber(Piece(attributeValue, '|', 3));
  std::string text = PlainText(natural);
  if (augmentation != 0) text += "(" + PlainText(natural + augmentation) + ")";
  return text;
}

std::string AugmentedValue(std::string_view attributeText) {
  if (attributeText.empty()) return "0";
  const std::size_t open = attributeText.find('(');
  if (open == std::string_view::npos) return std::string(attributeText);
  const std::string_view inner = attributeText.substr(open + 1);
  return std::string(inner.substr(0, inner.find(')')));
}

void RefillPools(PlayerRecord& record, const CharacterEntry& entry) {
  record.TBTTPrim = "0";
  record.TBTTSec = "0";
  if (entry.unread) return;
  const Integer combat = LenientInteger(entry.pools[0]);
  const Integer sheetSpell = LenientInteger(entry.spellPool);
  const Integer spell = sheetSpell != 0 ? sheetSpell : LenientInteger(entry.pools[3]);
  record.CP = AtLeast(combat - record.ArmorCPmod, 0);
  record.SP = AtLeast(spell - record.SD, 0);
  record.AS = LenientInteger(entry.astralPool);
}

void RefreshPools(Fight& fight, const CharacterTable& characters) {
  for (const Slot slot : SlotsUpTo(fight.CountPlayers())) {
    PlayerRecord& record = fight.Players[slot];
    if (const CharacterEntry* entry = characters.Of(record)) RefillPools(record, *entry);
  }
}

std::string CleanItemText(std::string_view text) {
  std::string result(text);
  result.erase(std::unique(result.begin(), result.end(),
                           [](char a, char b) { return a == ' ' && b == ' '; }),
               result.end());
  return Replaced(result, "X:", "");
}

}  // namespace ng
