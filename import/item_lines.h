#pragma once

#include <string>
#include <string_view>

#include "import/character_sheet.h"
#include "import/reference_tables.h"

namespace ng {

/// The implant that laces the bones.
struct BoneLace {
  bool present = false;
  /// 0 unknown, 1 Kevlar, 2 plastic, 3 aluminium, 4 ceramic, 5 titanium.
  int material = 0;
};

/// The bone lace that an implant's line names. A line that names several materials counts as the
/// one that the order of the tests finds last: Kevlar goes before all others.
BoneLace BoneLaceOf(std::string_view line);

/// The armour line of bone lace. It holds the impact bonus before the ballistic one, the reverse of
/// ordinary armour lines, and is read like them: its impact bonus counts as ballistic.
std::string BoneLaceLine(BoneLace lace, std::string_view impact, std::string_view ballistic);

/// The damage of bare hands.
constexpr const char* kUnarmedDamage = "(STR)M Stun";

/// The line that heads every weapon list.
std::string UnarmedLine();

/// Sorts an item (name, tab, "|"-separated fields of which field 0 is the category) into the list
/// of its category; `number` is its running number in the file. Category 26 is on no list.
void AddItem(const GearTable& table, std::string_view item, int number, CharacterEntry& entry);

}  // namespace ng
