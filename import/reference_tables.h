#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/fixed_table.h"
#include "base/integer.h"
#include "base/ports.h"

namespace ng {

/// The columns that the sheet is made of.
enum class GearColumn {
  None,
  Accessories,
  Ammunition,
  Ballistic,
  Blast,
  Concealability,
  Damage,
  Impact,
  Intelligence,
  Mode,
  Mount,
  Rating,
  Reach,
  Scatter,
  StrMin,
  Weight
};
/// Their names in the headers; the empty one is for no column.
constexpr std::array<const char*, 16> kGearColumnNames = {
    "",       "Accessories", "Ammunition",   "Ballistic", "Blast", "Concealability",
    "Damage", "Impact",      "Intelligence", "Mode",      "Mount", "Rating",
    "Reach",  "Scatter",     "Str.Min.",     "Weight"};

/// The layout of one category's item lines, from its header in gear.dat.
struct GearCategory {
  std::string name;
  Integer columnCount;
  /// Positions 1 to `columnCount`.
  FixedTable<std::string, 30> columns;
  /// Where the columns of the sheet are, 0 for those that the category has none of. Found once,
  /// when the table is loaded, since every item of an import asks for several.
  std::array<std::size_t, kGearColumnNames.size()> positions{};
  /// The largest of `positions`: what is behind it need not be taken apart.
  std::size_t lastPosition = 0;

  std::size_t PositionOf(GearColumn column) const {
    return positions[static_cast<std::size_t>(column)];
  }
};

struct GearTable {
  FixedTable<GearCategory, 64> categories;
  /// Header lines read.
  Integer headerCount;
};

/// A weapon type's range brackets in metres: short, medium, long, extreme.
struct RangeEntry {
  /// Weapon-type code in a field of exactly 10 characters, blanks behind, longer codes cut.
  std::string code;
  std::string name;
  std::array<Integer, 4> limits;
};

struct RangeTable {
  FixedTable<RangeEntry, 50> entries;
  Integer count;
  /// The display names in file order, joined by "|".
  std::string names;
};

/// A weapon-type code and the texts by which a skill's name is recognised.
struct SkillConversion {
  std::string code;
  /// Parted by ",", as in the file.
  std::string texts;
};

struct SkillTable {
  FixedTable<SkillConversion, 64> entries;
  /// -1 while the table is empty.
  Integer lastIndex = -1;
};

/// What could be read of a table, and the message to show, empty when all went well. What was read
/// before an error stays.
template <typename Table>
struct Loaded {
  Table table;
  std::string message;
};

/// Read the three tables from the DATA directory `datDir`. Any error while opening or reading, a
/// full table included, ends that table's loading with its message.
Loaded<GearTable> LoadGearTable(Files& files, const std::string& datDir);
Loaded<RangeTable> LoadRangeTable(Files& files, const std::string& datDir);
Loaded<SkillTable> LoadSkillTable(Files& files, const std::string& datDir);

/// The layout of a category; an empty one for category 0 and those that the table does not hold.
const GearCategory& LayoutOf(const GearTable& table, Integer category);

/// The position (1 to the column count) of the column of exactly this name, -1 when the category
/// has none of it; category 0 and categories that the table does not hold have no columns.
int GearColumnIndex(const GearTable& table, Integer category, std::string_view column);

/// The field at `index` of a "|"-separated list; empty when the index is -1 or the list is shorter.
std::string_view GearField(std::string_view fields, int index);

/// The weapon type of a skill that the conversion table does not know.
inline constexpr const char* kNotFound = "Not Found";

/// The weapon-type code of the first entry one of whose texts `name` contains (case counts), else
/// `kNotFound`.
std::string ConvertSkill(const SkillTable& table, std::string_view name);

/// Whether a weapon-type code is a melee one. "Not Found" counts as one: a skill that
/// belongs to no weapon is fought with by hand.
bool IsMeleeWeaponType(std::string_view code);

/// The range entry whose code is `code`, or null.
const RangeEntry* FindRange(const RangeTable& table, std::string_view code);

}  // namespace ng
