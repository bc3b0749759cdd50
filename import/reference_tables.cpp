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

void TakeGearLine(GearTable& table, std::string_view line) {
  // Item lines begin with a digit 1 to 9; whatever else begins a line reads as 0, a header.
  if (line.empty() || (line.front() >= '1' && line.front() <= '9')) return;
  PieceReader fields(line, '|');
  PieceReader codes(fields.Required(), '-');
  codes.Required();
  GearCategory& category = table.categories[LenientInteger(codes.Required())];
  category.name = fields.Required();
  category.columnCount = StrictInteger(fields.Required());
  for (int column = 1; column <= category.columnCount; ++column) {
    category.columns[column] = fields.Required();
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
  PieceReader fields(line, '|');
  RangeEntry& entry = table.entries[table.count];
  entry.code = Padded(fields.Required().substr(0, kCodeWidth), kCodeWidth);
  entry.name = fields.Required();
  for (Integer& limit : entry.limits) limit = StrictInteger(fields.Required());
  if (table.count > 0) table.names += '|';
  table.names += entry.name;
  table.count += 1;
}

void TakeSkillLine(SkillTable& table, std::string_view line) {
  PieceReader fields(line, '|');
  SkillConversion& entry = table.entries[table.lastIndex + 1];
  entry.code = fields.Required();
  entry.texts = fields.Required();
  table.lastIndex += 1;
}

}  // namespace

// The three messages differ in case and spelling; game masters know them this way.
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
    PieceReader texts(entry.texts, ',');
    for (std::string_view text; texts.Next(text);) {
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
