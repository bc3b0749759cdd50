// A character file may be anything; importing it ends well or in a runtime error.

#include <cstddef>
#include <cstdint>
#include <memory>

#include "fuzz/one_file.h"
#include "import/character_import.h"
#include "import/item_figures.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ng::OneFile files(std::string(reinterpret_cast<const char*>(data), size));
  const ng::Settings settings;
  const auto fight = std::make_unique<ng::Fight>();
  const auto characters = std::make_unique<ng::CharacterTable>();
  // The same bytes serve as the gear table, so that its columns may meet the items.
  const auto gear = std::make_unique<ng::GearTable>(ng::LoadGearTable(files, "").table);
  try {
    ng::LoadCharacterFile({files, settings, *gear, *fight, *characters}, "one.ng3");
    const ng::CharacterEntry& entry = characters->entries[1];
    for (const ng::CarriedLine& line : entry.gear) ng::FiguresOf(*gear, entry, line);
    for (const ng::CarriedLine& line : entry.weapons) ng::FiguresOf(*gear, entry, line);
  } catch (const ng::RuntimeError&) {
    if (fight->CountPlayers() != 0) __builtin_trap();
  }
  return 0;
}
