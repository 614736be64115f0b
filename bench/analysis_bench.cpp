// A whole analysis of all 169 classes, from the situation to the finished results table, next to the same analysis
// written plainly. Both are timed in one run; their ratio is the gain from the program's way of reading text.

#include <benchmark/benchmark.h>
#include <string>

#include "analysis/analysis.h"
#include "hand/equity_table.h"
#include "testing/oracle/runs.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

Situation FullRange(AnalysisMode mode) {
  Situation situation;
  situation.Mode = mode;
  situation.Amounts = {150, 50, 400};
  situation.RangeText = EveryHandAt(1);
  situation.CallingRangeText = situation.RangeText;
  return situation;
}

void RunFullRange(benchmark::State& timing, AnalysisMode mode) {
  LoadEquityTable();
  const Situation situation = FullRange(mode);
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(Analyze(situation));
}

void PreflopCall(benchmark::State& timing) {
  RunFullRange(timing, AnalysisMode::kPreflopCall);
}
void PreflopRaise(benchmark::State& timing) {
  RunFullRange(timing, AnalysisMode::kPreflopRaise);
}
void EquityOnly(benchmark::State& timing) {
  RunFullRange(timing, AnalysisMode::kEquityOnly);
}
BENCHMARK(PreflopCall)->Unit(benchmark::kMillisecond);
BENCHMARK(PreflopRaise)->Unit(benchmark::kMillisecond);
BENCHMARK(EquityOnly)->Unit(benchmark::kMillisecond);

// Each with ranges of its own, read once, as in a batch.
void PreflopRaiseFromNumbers(benchmark::State& timing) {
  LoadEquityTable();
  const HandNumbers hands;
  const Situation situation = FullRange(AnalysisMode::kPreflopRaise);
  const ClassWeights weights = RangeWeightsOf(situation.RangeText);
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(Analyze(situation, RangeNumbers(hands, weights, weights)));
}
BENCHMARK(PreflopRaiseFromNumbers)->Unit(benchmark::kMillisecond);

void RunPlain(benchmark::State& timing, const plain::Run& run) {
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(plain::ResultOf(run, plain::Reading::kEachTime));
}

void PreflopCallPlain(benchmark::State& timing) {
  RunPlain(timing, {plain::Mode::kCall, "150", "50", "", EveryHandAt(1), ""});
}
void PreflopRaisePlain(benchmark::State& timing) {
  RunPlain(timing, {plain::Mode::kRaise, "150", "50", "400", EveryHandAt(1), EveryHandAt(1)});
}
BENCHMARK(PreflopCallPlain)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(PreflopRaisePlain)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace quillon
