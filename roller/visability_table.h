#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/fixed_table.h"
#include "base/integer.h"
#include "base/ports.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// A kind of visibility and the target-number modifier for each kind of eyes: none enhanced,
/// augmented low-light, natural low-light, augmented thermographic, natural thermographic.
struct VisabilityRow {
  std::string name;
  std::array<Integer, 5> modifiers;
};

/// The visibility table, spelled as its file is.
struct VisabilityTable {
  FixedTable<VisabilityRow, 10> rows;
  /// Rows read, 0 to 11.
  int count = 0;

  /// In file order, as the lists show them.
  std::vector<std::string> Names() const;
};

/// What could be read of the table, and the message to show, empty when all went well. What was
/// read before an error stays.
struct LoadedVisability {
  VisabilityTable table;
  std::string message;
};

/// Reads visability.dat from the DATA directory `datDir`. A file that is missing, a line of fewer
/// than six fields and a modifier that is no whole number end the loading with the error's text
/// and, on a line below it, the file's path; the eleventh row, which stays, ends it with "Error
/// loading : visability.dat", even when it is the file's last.
LoadedVisability LoadVisability(Files& files, const std::string& datDir);

/// The modifier of a row for this combatant's eyes, as its box shows it. Thermographic sight counts
/// before low-light and natural before augmented; "Thermal Smoke" goes by the combatant's lenses
/// and not by its row.
std::string VisibilityModifier(const VisabilityRow& row, const PlayerRecord& combatant);

}  // namespace ng
