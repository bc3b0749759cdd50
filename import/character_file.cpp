#include "import/character_file.h"

#include <string>
#include <string_view>
#include <vector>

#include "app/settings/encoding.h"
#include "base/number_text.h"
#include "base/text.h"
#include "import/armour.h"
#include "import/item_lines.h"

namespace ng {
namespace {

/// A character file and its text decoded as a whole: most of it is wanted decoded, and one long
/// text goes faster than hundreds of short ones.
class CharacterText {
 public:
  explicit CharacterText(const ProfileFile& file) : file_(file), decoded_(DecodeNG3(file.Text())) {}

  /// The value as it is in the file.
  std::string_view Value(std::string_view section, std::string_view key) const {
    return file_.Value(section, key);
  }
  std::string_view Decoded(std::string_view section, std::string_view key) const {
    return Decoded(file_.Value(section, key));
  }
  /// The decoded values of a numbered list, up to the first that is empty.
  std::vector<std::string_view> List(std::string_view section, std::string_view word) const {
    std::vector<std::string_view> values = file_.NumberedValues(section, word);
    for (std::string_view& value : values) value = Decoded(value);
    return values;
  }

 private:
  /// Decoding changes no length, so a value's place is the same in both texts.
  std::string_view Decoded(std::string_view value) const {
    if (value.empty()) return {};
    const auto offset = static_cast<std::size_t>(value.data() - file_.Text().data());
    return std::string_view(decoded_).substr(offset, value.size());
  }

  const ProfileFile& file_;
  std::string decoded_;
};

struct InitiativePair {
  Integer natural;
  Integer augmented;
};

InitiativePair ReadPair(std::string_view attributeValue) {
  const double natural = NaturalValue(attributeValue);
  const double augmented = natural + LeadingNumber(Piece(attributeValue, '|', 3));
  return {ToInteger(natural), ToInteger(augmented)};
}

void ReadAttributes(const CharacterText& file, CharacterEntry& entry) {
  for (std::size_t i = 0; i < kAttributeCount; ++i) {
    entry.attributes[i] = FormatAttribute(file.Value("Attributes", kAttributeKeys[i]));
  }
  if (file.Value("System", "Generator") == "Critters") {
    entry.attacks = file.Decoded("Attributes", "Attacks");
  }
}

void ReadPools(const CharacterText& file, CharacterEntry& entry) {
  for (std::size_t i = 0; i < kPoolKeys.size(); ++i) {
    entry.pools[i] = file.Value("Pools", kPoolKeys[i]);
  }
  entry.karmaPool = file.Value("Karma", "KarmaPool");
  entry.spellPool = file.Value("Magic", "DicePoolSpell");
  entry.astralPool = file.Value("Magic", "DicePoolAstral");
}

/// More lines than any spell, power or implant has.
constexpr int kMostLines = 100;

/// Adds a value under its heading; its further lines follow, indented. A value of nothing but line
/// breaks would fill the list with thousands of empty lines: those past the hundredth are left out.
void AddLines(std::vector<std::string>& list, std::string_view heading, std::string_view value) {
  LineReader lines(value);
  std::string_view line;
  std::string_view lead = heading;
  for (int count = 0; count < kMostLines && lines.Next(line); ++count) {
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

void ReadRaceDescription(const CharacterText& file, ImportedCharacter& character) {
  for (const std::string_view line : file.List("Race", "RaceDesc")) {
    if (Contains(line, "Thermographic")) character.record.natThermographic = true;
    if (Contains(line, "Low Light")) character.record.natLowLight = true;
    character.entry.raceDescription.emplace_back(line);
  }
}

void ReadBioware(const CharacterText& file, ImportedCharacter& character) {
  for (const std::string_view line : file.List("Bioware", "Bio")) {
    if (Contains(line, "Cat's Eyes")) character.record.natLowLight = true;
    AddLines(character.entry.augments, "BIO: ", line);
  }
}

/// Returns the bone lace that the implants hold.
BoneLace ReadCyberware(const CharacterText& file, ImportedCharacter& character) {
  BoneLace lace;
  for (const std::string_view line : file.List("Cyberware", "Cyber")) {
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
  }
  return lace;
}

void ReadBoneLaceArmour(const CharacterText& file, BoneLace lace, CharacterEntry& entry) {
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

std::string ImportedName(const ProfileFile& file) {
  std::string name = DecodeNG3(file.Value("General", "CharName"));
  if (file.Value("System", "Finalize") != "True") name.insert(0, "(NF)");
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

void ParseCharacterFile(const ProfileFile& profile, const GearTable& gearTable,
                        ImportedCharacter& character) {
  const CharacterText file(profile);
  CharacterEntry& entry = character.entry;
  ReadAttributes(file, entry);
  entry.runMultiplier = file.Value("Race", "RunMult");
  entry.raceName = file.Decoded("Race", "RaceName");
  character.record.Race = entry.raceName;
  ReadPools(file, entry);

  entry.weapons.push_back({UnarmedLine(), false});
  int number = 0;
  for (const std::string_view item : file.List("Gear", "Gear")) {
    AddItem(gearTable, item, number++, entry);
  }
  for (const std::string_view skill : file.List("Skills", "Skill")) {
    entry.skills.push_back(SkillLine(skill));
  }
  for (const std::string_view edge : file.List("Edges", "Edge")) {
    entry.edges.emplace_back(edge);
  }
  for (const std::string_view spell : file.List("Magic", "Spell")) {
    AddLines(entry.magic, "SPL: ", spell);
  }
  entry.mageType = file.Decoded("Magic", "MageType");
  for (const std::string_view power : file.List("Magic", "Power")) {
    AddLines(entry.magic, "ADP: ", power);
  }
  for (const std::string_view geas : file.List("Magic", "Geas")) {
    AddLines(entry.magic, "GEA: ", geas);
  }
  ReadRaceDescription(file, character);
  ReadBioware(file, character);
  const BoneLace lace = ReadCyberware(file, character);
  ReadBoneLaceArmour(file, lace, entry);
  for (const std::string_view contact : file.List("Contacts", "Contact")) {
    entry.contacts.emplace_back(contact);
  }

  MarkCarried(entry.weapons);
  MarkCarried(entry.armour);
  MarkCarried(entry.gear);
  // Bone lace cannot be taken off.
  for (CarriedLine& line : entry.armour) line.carried = line.carried || IsBoneLace(line);
}

}  // namespace ng
