#include "import/item_lines.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

constexpr std::size_t kArmourNameWidth = 37;
/// The "X:" of a worn item comes off when the line is shown.
constexpr std::size_t kWornArmourNameWidth = 40;

constexpr int kArmour = 8;
constexpr int kIgnored = 26;

/// An item taken apart, as far as the sheet needs it.
struct Item {
  /// Where a field is in `text`.
  struct Place {
    std::size_t start;
    std::size_t length;
  };

  std::string_view text;
  std::string_view name;
  Integer category;
  const GearCategory* layout = nullptr;
  /// By position, written up to the layout's last one only: clearing all for every item shows in
  /// the time of an import. Place 0, the category's, is for a column that is not there.
  std::array<Place, 31> places;

  std::string_view Field(GearColumn column) const {
    const Place& place = places[layout->PositionOf(column)];
    return text.substr(place.start, place.length);
  }
};

/// The place of the field that starts at `start`; an empty one at or past the end of the text.
Item::Place FieldAt(std::string_view text, std::size_t start) {
  start = std::min(start, text.size());
  // Fields are so short that a search by a function call would take longer than this loop.
  std::size_t end = start;
  while (end < text.size() && text[end] != '|') ++end;
  return {start, end - start};
}

Item TakeApart(const GearTable& table, std::string_view text) {
  Item item;
  item.text = text;
  item.name = text.substr(0, text.find('\t'));
  Item::Place place = FieldAt(text, item.name.size() + 1);
  item.category = LenientInteger(text.substr(place.start, place.length));
  item.layout = &LayoutOf(table, item.category);
  item.places[0] = {0, 0};
  for (std::size_t i = 1; i <= item.layout->lastPosition; ++i) {
    place = FieldAt(text, place.start + place.length + 1);
    item.places[i] = place;
  }
  return item;
}

/// Which columns make up a weapon line of a category.
struct WeaponLayout {
  int category;
  GearColumn damage;
  GearColumn concealability;
  /// Written behind the concealability and a "/".
  GearColumn besideConcealability;
  std::array<GearColumn, 3> figures;
  GearColumn ammunition;
  GearColumn weight;
};

using enum GearColumn;
constexpr std::array<WeaponLayout, 6> kWeaponLayouts = {{
    {1, Damage, Concealability, Reach, {}, None, None},
    {2, Damage, Concealability, StrMin, {}, None, Weight},
    {3, Damage, Concealability, None, {Mode, Accessories}, Ammunition, Weight},
    {4, Damage, None, None, {Intelligence, Blast, Scatter}, None, Weight},
    {5, Damage, Concealability, None, {}, None, None},
    {6, None, Concealability, None, {Mount, Rating}, None, Weight},
}};

std::string JoinedWithTab(std::initializer_list<std::string_view> columns) {
  std::string joined;
  std::size_t length = columns.size();
  for (const std::string_view column : columns) length += column.size();
  joined.reserve(length);
  bool first = true;
  for (const std::string_view column : columns) {
    if (!first) joined += '\t';
    first = false;
    joined += column;
  }
  return joined;
}

/// The texts that are not empty, joined with "/".
void AppendFigures(std::string& line, const Item& item, const std::array<GearColumn, 3>& figures) {
  bool first = true;
  for (const GearColumn figure : figures) {
    const std::string_view text = item.Field(figure);
    if (text.empty()) continue;
    if (!first) line += '/';
    first = false;
    line += text;
  }
}

/// Written piece by piece into one string: most of a large character's items are weapons or gear.
std::string WeaponLine(const Item& item, const WeaponLayout& layout, std::size_t itemLength) {
  std::string line;
  line.reserve(itemLength);
  line += item.name;
  line += '\t';
  line += item.Field(layout.damage);
  line += '\t';
  line += item.Field(layout.concealability);
  const std::string_view beside = item.Field(layout.besideConcealability);
  if (!beside.empty()) {
    line += '/';
    line += beside;
  }
  line += '\t';
  AppendFigures(line, item, layout.figures);
  line += '\t';
  line += item.Field(layout.ammunition);
  line += '\t';
  line += item.Field(layout.weight);
  return line;
}

std::string ArmourLine(const Item& item, bool worn) {
  return JoinedWithTab({Padded(item.name, worn ? kWornArmourNameWidth : kArmourNameWidth),
                        item.Field(Concealability), item.Field(Ballistic), item.Field(Impact),
                        item.Field(Weight)});
}

}  // namespace

BoneLace BoneLaceOf(std::string_view line) {
  struct Material {
    const char* text;
    int number;
  };
  constexpr std::array<Material, 5> kMaterials = {
      {{"Cera", 4}, {"Tita", 5}, {"Alum", 3}, {"Plastic", 2}, {"Kevlar", 1}}};
  BoneLace lace{true, 0};
  for (const Material& material : kMaterials) {
    if (Contains(line, material.text)) lace.material = material.number;
  }
  return lace;
}

std::string BoneLaceLine(BoneLace lace, std::string_view impact, std::string_view ballistic) {
  constexpr std::array<const char*, 6> kWeights = {"0", "5", "5", "10", "15", "15"};
  return JoinedWithTab({Padded(" Cyber:Bone Lace", kArmourNameWidth), "-", impact, ballistic,
                        kWeights[static_cast<std::size_t>(lace.material)]});
}

std::string UnarmedLine() {
  return JoinedWithTab({"Unarmed combat", kUnarmedDamage, "", "", "", ""});
}

void AddItem(const GearTable& table, std::string_view text, int number, CharacterEntry& entry) {
  const Item item = TakeApart(table, text);
  if (item.category == kIgnored) return;
  if (item.category == kArmour) {
    entry.armour.push_back({ArmourLine(item, Contains(text, "X:")), false, number});
    return;
  }
  for (const WeaponLayout& layout : kWeaponLayouts) {
    if (item.category == layout.category) {
      entry.weapons.push_back({WeaponLine(item, layout, text.size()), false, number});
      return;
    }
  }
  entry.gear.push_back({JoinedWithTab({item.name, item.Field(Weight)}), false, number});
}

}  // namespace ng
