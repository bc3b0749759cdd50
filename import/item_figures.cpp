#include "import/item_figures.h"

#include <algorithm>

#include "app/settings/encoding.h"
#include "app/settings/profile_file.h"
#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

/// The item as the file has it, decoded; empty when the file has no item of this number.
std::string ItemText(const CharacterEntry& entry, int number) {
  if (number < 0) return {};
  const ProfileFile file(entry.fileText);
  return DecodeNG3(file.Value("Gear", "Gear" + std::to_string(number)));
}

/// Empty for a field that the header leaves without a name.
std::string ColumnName(const GearCategory& layout, std::size_t field) {
  const int index = static_cast<int>(field);
  if (layout.columnCount <= 0) return "Field " + std::to_string(index);
  const Integer last = AtMost(layout.columnCount, layout.columns.kLast);
  return index <= last.Value() ? layout.columns[index] : std::string();
}

}  // namespace

std::vector<Figure> FiguresOf(const GearTable& table, const CharacterEntry& entry,
                              const CarriedLine& line) {
  const std::string text = ItemText(entry, line.number);
  const std::size_t tab = text.find('\t');
  if (tab == std::string::npos) return {};
  // Field 0 is the category, and column 1 describes field 1.
  const std::vector<std::string_view> fields = Split(std::string_view(text).substr(tab + 1), '|');
  if (fields.empty()) return {};
  const GearCategory& layout = LayoutOf(table, LenientInteger(fields[0]));
  std::vector<Figure> figures;
  if (!layout.name.empty()) figures.push_back({"Category", layout.name});
  for (std::size_t i = 1; i < fields.size(); ++i) {
    const std::string name = ColumnName(layout, i);
    if (!name.empty() && !fields[i].empty()) figures.push_back({name, std::string(fields[i])});
  }
  return figures;
}

}  // namespace ng
