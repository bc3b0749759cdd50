// A character file may be anything; importing it ends well or in a runtime error.

#include <cstddef>
#include <cstdint>
#include <memory>

#include "fuzz/one_file.h"
#include "import/character_import.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ng::OneFile files(std::string(reinterpret_cast<const char*>(data), size));
  const ng::Settings settings;
  const auto fight = std::make_unique<ng::Fight>();
  const auto characters = std::make_unique<ng::CharacterTable>();
  // The same bytes serve as the gear table, so that its columns may meet the items.
  const auto gear = std::make_unique<ng::GearTable>(ng::LoadGearTable(files, "").table);
  try {
    ng::LoadCharacterFile({files, settings, *gear, *fight, *characters}, "one.ng3");
  } catch (const ng::RuntimeError&) {
    if (fight->CountPlayers() != 0) __builtin_trap();
  }
  return 0;
}
