#include "roller/visability_table.h"

#include <string_view>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {
namespace {

VisabilityRow ReadRow(std::string_view line) {
  PieceReader fields(line, '|');
  VisabilityRow row;
  row.name = fields.Required();
  for (Integer& modifier : row.modifiers) modifier = StrictInteger(fields.Required());
  return row;
}

std::string ReadRows(VisabilityTable& table, std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  while (lines.Next(line)) {
    if (line.empty() || line.starts_with('!')) continue;
    table.rows[table.count] = ReadRow(line);
    ++table.count;
    // A full table is reported at once, whether or not another row follows: none would fit.
    if (table.count > table.rows.kLast) return "Error loading : visability.dat";
  }
  return {};
}

std::size_t ColumnFor(const PlayerRecord& combatant) {
  if (combatant.natThermographic) return 4;
  if (combatant.augThermographic) return 3;
  if (combatant.natLowLight) return 2;
  return combatant.augLowLight ? 1 : 0;
}

}  // namespace

std::vector<std::string> VisabilityTable::Names() const {
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(count));
  for (int index = 0; index < count; ++index) names.push_back(rows[index].name);
  return names;
}

LoadedVisability LoadVisability(Files& files, const std::string& datDir) {
  const std::string path = datDir + "\\visability.dat";
  LoadedVisability loaded;
  try {
    loaded.message = ReadRows(loaded.table, files.ReadWhole(path));
  } catch (const RuntimeError& error) {
    loaded.message = RuntimeError(error.Number(), path).what();
  }
  return loaded;
}

std::string VisibilityModifier(const VisabilityRow& row, const PlayerRecord& combatant) {
  if (row.name == "Thermal Smoke") {
    // The hot smoke blinds whoever has both lenses the most; natural eyes make no difference.
    return combatant.augLowLight && combatant.augThermographic ? "+8" : "+4";
  }
  return PlainText(row.modifiers[ColumnFor(combatant)]);
}

}  // namespace ng
