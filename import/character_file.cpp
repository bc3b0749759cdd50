#include "import/character_file.h"

#include <string>

#include "app/encoding.h"
#include "base/number_text.h"
#include "base/text.h"
#include "import/armour.h"
#include "import/item_lines.h"

namespace ng {
namespace {

std::string Decoded(const ProfileFile& file, std::string_view section, std::string_view key) {
  return DecodeNG3(file.Value(section, key));
}

/// Calls `take` with every decoded value of a numbered list, up to the first that is empty.
template <typename Take>
void ForEachNumbered(const ProfileFile& file, std::string_view section, std::string_view word,
                     Take take) {
  for (int number = 0;; ++number) {
    const std::string value = DecodeNG3(file.Value(section, word, number));
    if (value.empty()) return;
    take(value);
  }
}

struct InitiativePair {
  Integer natural;
  Integer augmented;
};

InitiativePair ReadPair(std::string_view attributeValue) {
  const double natural = NaturalValue(attributeValue);
  const double augmented = natural + LeadingNumber(Piece(attributeValue, '|', 3));
  return {ToInteger(natural), ToInteger(augmented)};
}

void ReadAttributes(const ProfileFile& file, CharacterEntry& entry) {
  for (std::size_t i = 0; i < kAttributeCount; ++i) {
    entry.attributes[i] = FormatAttribute(file.Value("Attributes", kAttributeKeys[i]));
  }
  if (file.Value("System", "Generator") == "Critters") {
    entry.attacks = Decoded(file, "Attributes", "Attacks");
  }
}

void ReadPools(const ProfileFile& file, CharacterEntry& entry) {
  for (std::size_t i = 0; i < kPoolKeys.size(); ++i) {
    entry.pools[i] = file.Value("Pools", kPoolKeys[i]);
  }
  entry.karmaPool = file.Value("Karma", "KarmaPool");
  entry.spellPool = file.Value("Magic", "DicePoolSpell");
  entry.astralPool = file.Value("Magic", "DicePoolAstral");
}

/// Adds a value under its heading; its further lines follow, indented.
void AddLines(std::vector<std::string>& list, std::string_view heading, std::string_view value) {
  LineReader lines(value);
  std::string_view line;
  std::string_view lead = heading;
  while (lines.Next(line)) {
    list.push_back(std::string(lead).append(line));
    lead = "    ";
  }
}

/// Keeps the name, a tab and the rating, which ends at the "=". A line without one is faulty; its
/// rating is taken to reach to the end, so that the skill is not lost.
std::string SkillLine(std::string_view value) {
  const std::size_t tab = value.find('\t');
  if (tab == std::string_view::npos) return std::string(value.substr(0, value.find('=')));
  return std::string(value.substr(0, value.find('=', tab)));
}

void ReadRaceDescription(const ProfileFile& file, ImportedCharacter& character) {
  ForEachNumbered(file, "Race", "RaceDesc", [&](const std::string& line) {
    if (Contains(line, "Thermographic")) character.record.natThermographic = true;
    if (Contains(line, "Low Light")) character.record.natLowLight = true;
    character.entry.raceDescription.push_back(line);
  });
}

void ReadBioware(const ProfileFile& file, ImportedCharacter& character) {
  ForEachNumbered(file, "Bioware", "Bio", [&](const std::string& line) {
    if (Contains(line, "Cat's Eyes")) character.record.natLowLight = true;
    AddLines(character.entry.augments, "BIO: ", line);
  });
}

/// Returns the bone lace that the implants hold.
BoneLace ReadCyberware(const ProfileFile& file, ImportedCharacter& character) {
  BoneLace lace;
  ForEachNumbered(file, "Cyberware", "Cyber", [&](const std::string& line) {
    if (Contains(line, "Low-Light")) {
      character.record.augLowLight = true;
      character.record.natLowLight = false;
    }
    if (Contains(line, "Thermographic")) character.record.augThermographic = true;
    if (Contains(line, "Bone Lace")) {
      const BoneLace named = BoneLaceOf(line);
      // A line that names no material says nothing about it.
      lace = {true, named.material == 0 ? lace.material : named.material};
    }
    AddLines(character.entry.augments, "CYB: ", line);
  });
  return lace;
}

void ReadBoneLaceArmour(const ProfileFile& file, BoneLace lace, CharacterEntry& entry) {
  const std::string_view impact = file.Value("Attributes", "e_armor_impactArmorMod");
  const std::string_view ballistic = file.Value("Attributes", "e_armor_ballisticArmorMod");
  if (!lace.present || (LeadingNumber(impact) == 0 && LeadingNumber(ballistic) == 0)) return;
  entry.armour.push_back({BoneLaceLine(lace, impact, ballistic), false});
}

/// A line that holds "X:" is worn or carried and is shown without its first two characters.
void MarkCarried(std::vector<CarriedLine>& lines) {
  for (CarriedLine& line : lines) {
    line.carried = Contains(line.text, "X:");
    if (line.carried) line.text.erase(0, 2);
  }
}

}  // namespace

std::string ImportedName(const ProfileFile& file, Integer earlierImports) {
  std::string name = Decoded(file, "General", "CharName");
  if (file.Value("System", "Finalize") != "True") name.insert(0, "(NF)");
  if (earlierImports > 0) name += "::" + PlainText(earlierImports);
  return name;
}

void ReadInitiative(const ProfileFile& file, PlayerRecord& record) {
  const InitiativePair dice = ReadPair(file.Value("Attributes", "Initiative"));
  record.CurInitNatural = dice.natural;
  record.CurInitAugmented = dice.augmented;
  const InitiativePair reaction = ReadPair(file.Value("Attributes", "Reaction"));
  record.CurReactNatural = reaction.natural;
  record.CurReactAugmented = reaction.augmented;
}

void ParseCharacterFile(const ProfileFile& file, const GearTable& gearTable,
                        ImportedCharacter& character) {
  CharacterEntry& entry = character.entry;
  ReadAttributes(file, entry);
  entry.runMultiplier = file.Value("Race", "RunMult");
  entry.raceName = Decoded(file, "Race", "RaceName");
  character.record.Race = entry.raceName;
  ReadPools(file, entry);

  entry.weapons.push_back({UnarmedLine(), false});
  ForEachNumbered(file, "Gear", "Gear",
                  [&](const std::string& item) { AddItem(gearTable, item, entry); });
  ForEachNumbered(file, "Skills", "Skill",
                  [&](const std::string& skill) { entry.skills.push_back(SkillLine(skill)); });
  ForEachNumbered(file, "Edges", "Edge",
                  [&](const std::string& edge) { entry.edges.push_back(edge); });
  ForEachNumbered(file, "Magic", "Spell",
                  [&](const std::string& spell) { AddLines(entry.magic, "SPL: ", spell); });
  entry.mageType = Decoded(file, "Magic", "MageType");
  ForEachNumbered(file, "Magic", "Power",
                  [&](const std::string& power) { AddLines(entry.magic, "ADP: ", power); });
  ForEachNumbered(file, "Magic", "Geas",
                  [&](const std::string& geas) { AddLines(entry.magic, "GEA: ", geas); });
  ReadRaceDescription(file, character);
  ReadBioware(file, character);
  const BoneLace lace = ReadCyberware(file, character);
  ReadBoneLaceArmour(file, lace, entry);
  ForEachNumbered(file, "Contacts", "Contact",
                  [&](const std::string& contact) { entry.contacts.push_back(contact); });

  MarkCarried(entry.weapons);
  MarkCarried(entry.armour);
  MarkCarried(entry.gear);
  // Bone lace cannot be taken off.
  for (CarriedLine& line : entry.armour) line.carried = line.carried || IsBoneLace(line);
}

}  // namespace ng
