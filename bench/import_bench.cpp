#include "bench/import_bench.h"

#include "bench/crowd.h"
#include "import/character_import.h"

namespace ng {

void MeasureImport(benchmark::State& state, Files& files, const std::string& path) {
  FakeFiles tables;
  tables.Mount("C:\\DATA", NG_SAMPLE "/DATA");
  const GearTable gearTable = LoadGearTable(tables, "C:\\DATA").table;
  const Settings settings;
  Fight fight;
  CharacterTable characters;
  const ImportTarget target{files, settings, gearTable, fight, characters};
  for (auto _ : state) {
    const Slot slot = LoadCharacterFile(target, path);
    benchmark::DoNotOptimize(fight);
    // Making room again is a small part of it, and is counted in.
    characters.entries[fight.Players[slot].CharacterData] = CharacterEntry{};
    fight.Players[slot] = PlayerRecord{};
  }
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(files.ReadWhole(path).size()));
}

void MeasureReadingLines(benchmark::State& state, Files& files, const std::string& path) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(SplitIntoLines(files.ReadWhole(path)));
  }
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(files.ReadWhole(path).size()));
}

namespace {

constexpr const char* kPath = "C:\\chars\\large.ng3";

FakeFiles& Memory() {
  static FakeFiles files;
  if (!files.Has(kPath)) files.Put(kPath, LargeCharacterFile());
  return files;
}

void ImportFromMemory(benchmark::State& state) { MeasureImport(state, Memory(), kPath); }
BENCHMARK(ImportFromMemory);

void ReadLinesFromMemory(benchmark::State& state) { MeasureReadingLines(state, Memory(), kPath); }
BENCHMARK(ReadLinesFromMemory);

}  // namespace
}  // namespace ng
