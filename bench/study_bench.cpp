// Batches of many questions, including the reading of the equity table, to compare with the analyses of
// "analysis_bench.cpp" in the same run.

#include <benchmark/benchmark.h>
#include <chrono>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "hand/equity_table.h"
#include "study/batch.h"
#include "study/equilibrium.h"
#include "study/stack_chart.h"
#include "study/sweep.h"
#include "tools/companion.h"

namespace quillon {
namespace {

// A raise at this many shoves, for one hand.
void ShoveSweep(benchmark::State& timing) {
  LoadEquityTable();
  const auto steps = std::get<Steps>(Steps::Read("1:" + std::to_string(timing.range(0)) + ":1"));
  const SweepQuestion question = {AnalysisMode::kPreflopRaise, {150, 50, 0}, {HandIndex("A5s")}};
  while (timing.KeepRunning()) {
    const HandNumbers hands;
    benchmark::DoNotOptimize(
        SweepAmount(question, RangeNumbers(hands, AllHands(), AllHands()), &Amounts::ShoveAmount, steps));
  }
}
BENCHMARK(ShoveSweep)->Unit(benchmark::kMillisecond)->Arg(1)->Arg(1000);

// The argument is the effective stack in big blinds, with blinds of 0.5 and 1.
void BalancedRanges(benchmark::State& timing) {
  LoadEquityTable();
  const auto stack = static_cast<double>(timing.range(0));
  double exploitability = 0;
  while (timing.KeepRunning()) {
    const auto found = FindEquilibrium(HandNumbers(), {.Pot = 1.5, .Call = 0.5, .Shove = stack - 1});
    exploitability = found->Exploitability / 1.5;
    benchmark::DoNotOptimize(found);
  }
  timing.counters["of_pot"] = exploitability;
}
BENCHMARK(BalancedRanges)->Unit(benchmark::kMillisecond)->Arg(5)->Arg(10)->Arg(15)->Arg(20)->Arg(50)->Arg(100);

// All stacks of a chart from 1.1 to 20 big blinds, on this many threads.
void StackCharts(benchmark::State& timing) {
  LoadEquityTable();
  const auto stacks = std::get<Steps>(Steps::Read("1.1:20:0.1"));
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(MakeStackChart(HandNumbers(), stacks, static_cast<unsigned>(timing.range(0))));
}
BENCHMARK(StackCharts)->Unit(benchmark::kMillisecond)->UseRealTime()->Arg(1)->Arg(2);

// A raise from a line's text to its answer's text, with both ranges full as in PreflopRaise.
constexpr const char* kRaiseLine =
    R"({"id":1,"mode":"raise","pot":150,"call":50,"shove":400,"hands":"any","calling_hands":"any"})";

void BatchRaise(benchmark::State& timing) {
  LoadEquityTable();
  const Batch batch({});
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(batch.Answer(kRaiseLine, 1));
}
BENCHMARK(BatchRaise)->Unit(benchmark::kMillisecond);

// The command on a thousand such lines; the argument is the number of jobs.
void BatchOfAThousand(benchmark::State& timing) {
  std::string lines;
  for (int i = 0; i < 1000; ++i)
    lines.append(kRaiseLine).append("\n");
  while (timing.KeepRunning()) {
    std::istringstream input(lines);
    std::ostringstream output;
    std::ostringstream errors;
    const std::vector<std::string> arguments = {"batch", "--jobs", std::to_string(timing.range(0))};
    const int status = RunCompanion(
        arguments,
        {output, errors, [] { return std::filesystem::path(); }, {}, std::chrono::steady_clock::now, &input});
    if (status != kDone) timing.SkipWithError("refused");
    benchmark::DoNotOptimize(output);
  }
}
BENCHMARK(BatchOfAThousand)->Unit(benchmark::kMillisecond)->UseRealTime()->Arg(1)->Arg(2);

}  // namespace
}  // namespace quillon
