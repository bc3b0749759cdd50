#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/fixed_table.h"
#include "tracker/fight/fight.h"

namespace ng {

/// An item with its tab-separated columns, and whether it is worn or carried.
struct CarriedLine {
  std::string text;
  bool carried = false;
  /// The item's running number in the character file's "Gear" list; -1 for a line that is no item
  /// of the list, such as bare hands and bone lace.
  int number = -1;

  friend bool operator==(const CarriedLine&, const CarriedLine&) = default;
};

/// The ten attributes in the order of the sheet.
enum class Attribute {
  Body,
  Quickness,
  Strength,
  Charisma,
  Intelligence,
  Willpower,
  Essence,
  Magic,
  Reaction,
  Initiative
};
constexpr std::size_t kAttributeCount = 10;
constexpr std::array<const char*, kAttributeCount> kAttributeKeys = {
    "Body",      "Quickness", "Strength", "Charisma", "Intelligence",
    "Willpower", "Essence",   "Magic",    "Reaction", "Initiative"};
constexpr std::array<const char*, kAttributeCount> kAttributeLabels = {
    "BOD", "QCK", "STR", "CHA", "INT", "WIL", "ESS", "MAG", "RCT", "INI"};

constexpr std::array<const char*, 6> kPoolKeys = {"Combat", "Control", "Hacking",
                                                  "Spell",  "Task",    "CombatPoolMod"};

/// The sheet of an imported character, as its file gave it. What is worn and carried is kept here
/// too, so that it survives a look at somebody else.
struct CharacterEntry {
  std::string Filename;
  /// The file could not be read: this is the empty sheet of a nameless combatant.
  bool unread = false;
  /// The file as it was read, for what is asked of it later.
  std::string fileText;
  /// As FormatAttribute gives them.
  std::array<std::string, kAttributeCount> attributes;
  std::string runMultiplier;
  std::string raceName;
  /// A critter's attacks.
  std::string attacks;
  std::array<std::string, kPoolKeys.size()> pools;
  std::string karmaPool;
  std::string spellPool;
  std::string astralPool;
  std::string mageType;
  /// Columns: name, concealability, ballistic, impact, weight.
  std::vector<CarriedLine> armour;
  /// Columns: name, weight.
  std::vector<CarriedLine> gear;
  /// Columns: name, damage, concealability, other figures, ammunition, weight.
  std::vector<CarriedLine> weapons;
  /// Columns: name, rating.
  std::vector<std::string> skills;
  std::vector<std::string> edges;
  std::vector<std::string> magic;
  std::vector<std::string> augments;
  std::vector<std::string> contacts;
  std::vector<std::string> raceDescription;

  const std::string& AttributeText(Attribute attribute) const {
    return attributes[static_cast<std::size_t>(attribute)];
  }
};

/// The imported sheets, 1 to 50; a place whose `Filename` is empty is free.
struct CharacterTable {
  FixedTable<CharacterEntry, 50, CharacterIndex> entries;

  /// The first free place; Subscript out of range when all 50 are taken.
  CharacterIndex FindFree() const;
  /// The sheet of a combatant, null when it has none.
  CharacterEntry* Of(const PlayerRecord& record);
  const CharacterEntry* Of(const PlayerRecord& record) const;
  /// Entries taken.
  Integer Count() const;
};

/// The natural value of an attribute value: its first three "|"-fields added, cut to a whole
/// number.
double NaturalValue(std::string_view attributeValue);

/// The attribute's text: the fifth of exactly five fields as it stands; otherwise the natural value
/// alone, or followed by the augmented one in parentheses ("4(6)").
std::string FormatAttribute(std::string_view attributeValue);

/// The part of an attribute text in parentheses, else the whole; "0" for an empty text.
std::string AugmentedValue(std::string_view attributeText);

/// Refills the combat, spell and astral pools from the sheet: combat less `ArmorCPmod`, spell less
/// the dice set aside, neither below 0. A sheet that could not be read leaves them as they are. The
/// weapons' rounds of the turn start at "0".
void RefillPools(PlayerRecord& record, const CharacterEntry& entry);

/// RefillPools for the combatants of slots 1 to CountPlayers() that have a sheet.
void RefreshPools(Fight& fight, const CharacterTable& characters);

/// Two blanks become one until no two stand together; then every "X:" goes.
std::string CleanItemText(std::string_view text);

}  // namespace ng
