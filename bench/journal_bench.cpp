#include <benchmark/benchmark.h>
#include <stdexcept>
#include <vector>

#include "bench/crowd.h"
#include "fakes/fake_journals.h"
#include "journal/desk.h"

namespace ng {
namespace {

class NoWindows : public StartupWindows {
  void ShowSplash() override {}
  void LoadMain() override {}
  void UnloadSplash() override {}
  void ShowMain() override {}
};

/// A desk with a full table of 100 combatants, initiative rolled.
struct CrowdedDesk {
  FakeFiles files;
  ScriptedPrompts prompts;
  FakeUserSettings userSettings;
  FakeClock clock;
  FakeJournals journals;
  Desk desk;

  CrowdedDesk()
      : desk({{files, prompts, userSettings},
              clock,
              journals,
              {"bench", 20461, {{}, "C:\\tracker"}}}) {
    files.Mount("C:\\chars", NG_SAMPLE "/characters");
    files.Mount("C:\\DATA", NG_SAMPLE "/DATA");
    files.Put("C:\\tracker\\tracker.ini", "[NGtracker]\r\nNG3Dir=C:\\chars\r\nDatDir=C:\\DATA\r\n");
    prompts.perform = [this](const Act& act) { desk.Do(act); };
    NoWindows windows;
    if (!desk.Start(windows)) throw std::runtime_error("the program does not start");
    desk.Do({"Form_Drop", 0, "C:\\chars\\vex.ng3"});
    for (const char* copies : {"21", "21", "21", "21", "15"}) {
      prompts.answers.push_back({Answer::Kind::Input, copies, {}});
      desk.Do({"mnuPMult"});
    }
    desk.Do({"mnuTReroll"});
  }
};

/// Acts as they come in a fight: steps, clicks, wounds, pools; combat turns begin again.
std::vector<Act> FightActs(int count) {
  std::vector<Act> acts;
  for (int i = 0; static_cast<int>(acts.size()) < count; ++i) {
    if (i % 40 == 39) acts.push_back({"mnuTReset"});
    acts.push_back({"mnuTNext"});
    acts.push_back({"cmdCPplus"});
    acts.push_back({"GridX_Click", 1 + i % 90});
    acts.push_back({"cmdIncrease", i % 2});
    acts.push_back({"cmdReduce", i % 2});
  }
  acts.resize(static_cast<std::size_t>(count));
  return acts;
}

constexpr int kActs = 2000;

void BareActs(benchmark::State& state) {
  const std::vector<Act> acts = FightActs(kActs);
  CrowdedDesk crowd;
  for (auto _ : state) {
    for (const Act& act : acts) crowd.desk.session().Do(act);
    crowd.desk.session().main.fight.RoundCount = 1;
  }
}
BENCHMARK(BareActs)->Unit(benchmark::kMillisecond);

void RecordedActs(benchmark::State& state) {
  const std::vector<Act> acts = FightActs(kActs);
  for (auto _ : state) {
    state.PauseTiming();
    CrowdedDesk crowd;
    const std::size_t before = crowd.journals.files.begin()->second.size();
    state.ResumeTiming();
    for (const Act& act : acts) crowd.desk.Do(act);
    state.PauseTiming();
    state.counters["bytes/act"] =
        static_cast<double>(crowd.journals.files.begin()->second.size() - before) / kActs;
    state.ResumeTiming();
  }
}
BENCHMARK(RecordedActs)->Unit(benchmark::kMillisecond);

void UndoAfterActs(benchmark::State& state) {
  CrowdedDesk crowd;
  for (const Act& act : FightActs(kActs)) crowd.desk.Do(act);
  for (auto _ : state) {
    crowd.desk.Undo();
    state.PauseTiming();
    crowd.desk.Redo();
    state.ResumeTiming();
  }
}
BENCHMARK(UndoAfterActs)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ng
