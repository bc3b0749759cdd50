#include <benchmark/benchmark.h>

#include "bench/crowd.h"
#include "tracker/state_file.h"

namespace ng {
namespace {

constexpr const char* kPath = "C:\\tracker\\crowd.ngt";

/// Imports nothing, so that only the state file itself is read.
class NoImports : public StateFileHost {
 public:
  bool ImportCharacter(const std::string&) override { return true; }
  std::string ShowNote(const std::string&) override { return {}; }
};

void SetBytes(benchmark::State& state, const std::string& text) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void SaveState(benchmark::State& state) {
  Crowd crowd;
  for (auto _ : state) benchmark::DoNotOptimize(StateFileText(crowd.session.main.fight));
  SetBytes(state, StateFileText(crowd.session.main.fight));
}
BENCHMARK(SaveState)->Unit(benchmark::kMicrosecond);

void LoadState(benchmark::State& state) {
  Crowd crowd;
  const std::string text = StateFileText(crowd.session.main.fight);
  Fight fight;
  NoImports host;
  for (auto _ : state) {
    ReadStateFile(ProfileFile(text), fight, host);
    benchmark::DoNotOptimize(fight);
  }
  if (fight.CountPlayers() != Fight::kLastSlot) state.SkipWithError("combatants are missing");
  SetBytes(state, text);
}
BENCHMARK(LoadState)->Unit(benchmark::kMicrosecond);

/// What LoadState is compared with.
void SplitState(benchmark::State& state) {
  Crowd crowd;
  const std::string text = StateFileText(crowd.session.main.fight);
  for (auto _ : state) benchmark::DoNotOptimize(SplitIntoLines(text));
  SetBytes(state, text);
}
BENCHMARK(SplitState)->Unit(benchmark::kMicrosecond);

/// The whole command into an empty table, with the sixteen character files and the reset.
void RestoreFight(benchmark::State& state) {
  Crowd crowd;
  MainForm& form = crowd.session.main;
  crowd.files.Put(kPath, StateFileText(form.fight));
  for (auto _ : state) {
    state.PauseTiming();
    crowd.Do("mnuFileNew");
    state.ResumeTiming();
    form.fightFiles.LoadState(kPath);
  }
  if (form.fight.CountPlayers() != Fight::kLastSlot) state.SkipWithError("combatants are missing");
}
BENCHMARK(RestoreFight)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ng
