#include "import/reference_tables.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {
namespace {

constexpr std::size_t kCodeWidth = 10;

/// Walks the lines of a table that are no comments and hands them to `take`. A runtime error on
/// the way ends the loading with the table's message; `errorLine` is its last line.
template <typename Table, typename TakeLine>
Loaded<Table> LoadTable(Files& files, const std::string& path, const char* errorLine,
                        TakeLine take) {
  Loaded<Table> loaded;
  try {
    const std::string text = files.ReadWhole(path);
    LineReader lines(text);
    std::string_view line;
    while (lines.Next(line)) {
      if (!line.starts_with('!')) take(loaded.table, line);
    }
  } catch (const RuntimeError&) {
    loaded.message =
        "Invalid location for DATA directory\r"
        "Delete your tracker.ini file,then restart program\r\n";
    loaded.message += errorLine;
  }
  return loaded;
}

/// A field that the line must have.
std::string_view Required(const std::vector<std::string_view>& fields, std::size_t index) {
  if (index >= fields.size()) ThrowSubscript();
  return fields[index];
}

void TakeGearLine(GearTable& table, std::string_view line) {
  // Item lines begin with a digit 1 to 9; whatever else begins a line reads as 0, a header.
  if (line.empty() || (line.front() >= '1' && line.front() <= '9')) return;
  const std::vector<std::string_view> fields = Split(line, '|');
  const std::vector<std::string_view> codes = Split(Required(fields, 0), '-');
  GearCategory& category = table.categories[LenientInteger(Required(codes, 1))];
  category.name = Required(fields, 1);
  category.columnCount = StrictInteger(Required(fields, 2));
  for (int column = 1; column <= category.columnCount; ++column) {
    category.columns[column] = Required(fields, static_cast<std::size_t>(column) + 2);
  }
  table.headerCount += 1;
}

void FindPositions(GearTable& table) {
  for (int category = 1; category <= table.categories.kLast; ++category) {
    GearCategory& layout = table.categories[category];
    for (std::size_t i = 1; i < kGearColumnNames.size(); ++i) {
      const int index = GearColumnIndex(table, category, kGearColumnNames[i]);
      if (index < 0) continue;
      layout.positions[i] = static_cast<std::size_t>(index);
      layout.lastPosition = std::max(layout.lastPosition, layout.positions[i]);
    }
  }
}

void TakeRangeLine(RangeTable& table, std::string_view line) {
  const std::vector<std::string_view> fields = Split(line, '|');
  RangeEntry& entry = table.entries[table.count];
  entry.code = Padded(Required(fields, 0).substr(0, kCodeWidth), kCodeWidth);
  entry.name = Required(fields, 1);
  for (std::size_t i = 0; i < entry.limits.size(); ++i) {
    entry.limits[i] = StrictInteger(Required(fields, i + 2));
  }
  if (table.count > 0) table.names += '|';
  table.names += entry.name;
  table.count += 1;
}

void TakeSkillLine(SkillTable& table, std::string_view line) {
  const std::vector<std::string_view> fields = Split(line, '|');
  SkillConversion& entry = table.entries[table.lastIndex + 1];
  entry.code = Required(fields, 0);
  for (const std::string_view text : Split(Required(fields, 1), ',')) {
    entry.texts.emplace_back(text);
  }
  table.lastIndex += 1;
}

}  // namespace

// The three messages differ in case and spelling, and are kept so.
Loaded<GearTable> LoadGearTable(Files& files, const std::string& datDir) {
  Loaded<GearTable> loaded =
      LoadTable<GearTable>(files, datDir + "\\gear.dat", "Error Loading: Gear.DAT", TakeGearLine);
  FindPositions(loaded.table);
  return loaded;
}

Loaded<RangeTable> LoadRangeTable(Files& files, const std::string& datDir) {
  return LoadTable<RangeTable>(files, datDir + "\\range.dat", "Error loading: Range.dat",
                               TakeRangeLine);
}

Loaded<SkillTable> LoadSkillTable(Files& files, const std::string& datDir) {
  return LoadTable<SkillTable>(files, datDir + "\\skilconv.dat", "Error loading: Skillconv.dat",
                               TakeSkillLine);
}

const GearCategory& LayoutOf(const GearTable& table, Integer category) {
  static const GearCategory kNone;
  const bool held = category > 0 && category <= table.categories.kLast;
  return held ? table.categories[category] : kNone;
}

int GearColumnIndex(const GearTable& table, Integer category, std::string_view column) {
  const GearCategory& layout = LayoutOf(table, category);
  for (int index = 1; index <= AtMost(layout.columnCount, layout.columns.kLast); ++index) {
    if (layout.columns[index] == column) return index;
  }
  return -1;
}

std::string_view GearField(std::string_view fields, int index) { return Piece(fields, '|', index); }

std::string ConvertSkill(const SkillTable& table, std::string_view name) {
  for (int index = 0; index <= table.lastIndex; ++index) {
    const SkillConversion& entry = table.entries[index];
    for (const std::string& text : entry.texts) {
      if (Contains(name, text)) return entry.code;
    }
  }
  return kNotFound;
}

bool IsMeleeWeaponType(std::string_view code) {
  constexpr std::array<std::string_view, 7> kMelee = {"CLB", "Taser", "CYB",    "EDG",
                                                      "POL", "WHP",   kNotFound};
  return std::find(kMelee.begin(), kMelee.end(), code) != kMelee.end();
}

const RangeEntry* FindRange(const RangeTable& table, std::string_view code) {
  const std::string field = Padded(code.substr(0, kCodeWidth), kCodeWidth);
  for (int index = 0; index < table.count; ++index) {
    if (table.entries[index].code == field) return &table.entries[index];
  }
  return nullptr;
}

}  // namespace ng
