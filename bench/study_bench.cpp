// Balanced ranges from nothing, the reading of the equity table included, beside the analyses of "analysis_bench.cpp"
// in the same run. The argument is the effective stack in big blinds, with blinds of 0.5 and 1.

#include <benchmark/benchmark.h>

#include "hand/equity_table.h"
#include "study/equilibrium.h"

namespace quillon {
namespace {

void BalancedRanges(benchmark::State& timing) {
  LoadEquityTable();
  const auto stack = static_cast<double>(timing.range(0));
  double exploitability = 0;
  while (timing.KeepRunning()) {
    const auto found = FindEquilibrium(ClassPairs(), {.Pot = 1.5, .Call = 0.5, .Shove = stack - 1});
    exploitability = found->Exploitability / 1.5;
    benchmark::DoNotOptimize(found);
  }
  timing.counters["of_pot"] = exploitability;
}
BENCHMARK(BalancedRanges)->Unit(benchmark::kMillisecond)->Arg(5)->Arg(10)->Arg(15)->Arg(20)->Arg(50)->Arg(100);

}  // namespace
}  // namespace quillon
