#include "import/item_lines.h"

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

/// An item taken apart. Of its fields only as many are kept as a category can have columns.
struct Item {
  std::string_view name;
  std::array<std::string_view, 31> fields;
  Integer category;
};

Item TakeApart(std::string_view text) {
  const std::size_t tab = text.find('\t');
  Item item{text.substr(0, tab), {}, 0};
  if (tab == std::string_view::npos) return item;
  std::string_view rest = text.substr(tab + 1);
  for (std::string_view& field : item.fields) {
    const std::size_t end = rest.find('|');
    field = rest.substr(0, end);
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
  item.category = LenientInteger(item.fields[0]);
  return item;
}

/// Which columns of a category's layout make up a weapon line; null where there is none.
struct WeaponLayout {
  int category;
  const char* damage;
  const char* concealability;
  /// Written behind the concealability and a "/".
  const char* besideConcealability;
  std::array<const char*, 3> figures;
  const char* ammunition;
  const char* weight;
};

constexpr std::array<WeaponLayout, 6> kWeaponLayouts = {{
    {1, "Damage", "Concealability", "Reach", {}, nullptr, nullptr},
    {2, "Damage", "Concealability", "Str.Min.", {}, nullptr, "Weight"},
    {3, "Damage", "Concealability", nullptr, {"Mode", "Accessories"}, "Ammunition", "Weight"},
    {4, "Damage", nullptr, nullptr, {"Intelligence", "Blast", "Scatter"}, nullptr, "Weight"},
    {5, "Damage", "Concealability", nullptr, {}, nullptr, nullptr},
    {6, nullptr, "Concealability", nullptr, {"Mount", "Rating"}, nullptr, "Weight"},
}};

std::string_view FieldNamed(const GearTable& table, const Item& item, const char* column) {
  if (column == nullptr) return {};
  const int index = GearColumnIndex(table, item.category, column);
  return index < 0 ? std::string_view{} : item.fields[static_cast<std::size_t>(index)];
}

/// The texts that are not empty, joined with "/".
std::string JoinedWithSlash(std::initializer_list<std::string_view> texts) {
  std::string joined;
  for (const std::string_view text : texts) {
    if (text.empty()) continue;
    if (!joined.empty()) joined += '/';
    joined += text;
  }
  return joined;
}

/// The concealability, and what stands beside it behind a "/".
std::string WithBeside(std::string_view concealability, std::string_view beside) {
  std::string text(concealability);
  if (!beside.empty()) text.append("/").append(beside);
  return text;
}

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

std::string WeaponLine(const GearTable& table, const Item& item, const WeaponLayout& layout) {
  const auto field = [&](const char* column) { return FieldNamed(table, item, column); };
  return JoinedWithTab(
      {item.name, field(layout.damage),
       WithBeside(field(layout.concealability), field(layout.besideConcealability)),
       JoinedWithSlash(
           {field(layout.figures[0]), field(layout.figures[1]), field(layout.figures[2])}),
       field(layout.ammunition), field(layout.weight)});
}

std::string ArmourLine(const GearTable& table, const Item& item, bool worn) {
  const auto field = [&](const char* column) { return FieldNamed(table, item, column); };
  return JoinedWithTab({Padded(item.name, worn ? kWornArmourNameWidth : kArmourNameWidth),
                        field("Concealability"), field("Ballistic"), field("Impact"),
                        field("Weight")});
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

void AddItem(const GearTable& table, std::string_view text, CharacterEntry& entry) {
  const Item item = TakeApart(text);
  if (item.category == kIgnored) return;
  if (item.category == kArmour) {
    entry.armour.push_back({ArmourLine(table, item, Contains(text, "X:")), false});
    return;
  }
  for (const WeaponLayout& layout : kWeaponLayouts) {
    if (item.category == layout.category) {
      entry.weapons.push_back({WeaponLine(table, item, layout), false});
      return;
    }
  }
  entry.gear.push_back({JoinedWithTab({item.name, FieldNamed(table, item, "Weight")}), false});
}

}  // namespace ng
