#include <benchmark/benchmark.h>

#include "bench/crowd.h"

namespace ng {
namespace {

// The history of a combat turn holds 100 steps.
constexpr int kSteps = 90;

/// Through the door, without painting. The counter "step" is the time of one step.
void Next(benchmark::State& state) {
  Crowd crowd;
  for (auto _ : state) {
    state.PauseTiming();
    crowd.Do("mnuTReset");
    // Each reset opens a combat turn; their number is 16-bit.
    crowd.session.main.fight.RoundCount = 1;
    state.ResumeTiming();
    for (int step = 0; step < kSteps; ++step) crowd.Do("mnuTNext");
  }
  if (crowd.session.main.fight.SeqNum != kSteps || !crowd.prompts.log.empty()) {
    state.SkipWithError("the steps did not run as they should");
  }
  state.counters["step"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * kSteps,
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(Next)->Unit(benchmark::kMicrosecond);

void Reroll(benchmark::State& state) {
  Crowd crowd;
  for (auto _ : state) {
    crowd.Do("mnuTReroll");
    crowd.session.main.fight.RoundCount = 1;
  }
  if (!crowd.prompts.log.empty()) state.SkipWithError("a message was shown");
}
BENCHMARK(Reroll)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ng
