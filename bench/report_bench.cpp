// The written report of a finished Preflop Raise in both of its forms, without a window.

#include <benchmark/benchmark.h>
#include <cstdint>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "results/report.h"
#include "testing/range_texts.h"
#include "testing/sample_analysis.h"

namespace quillon {
namespace {

// Both ranges full, and different figures for each hand.
Analysis FinishedRaise() {
  Analysis state = sample::RaiseState();
  state.RangeText = EveryHandAt(1);
  state.CallingRangeText = state.RangeText;
  state.HandInfo.clear();
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const double share = index / 168.0;
    state.HandInfo += ResultRow({HandLabel(index), 0, 400 * (0.5 - share), 1 - share, share});
  }
  return state;
}

void BuildReports(benchmark::State& timing, ReportForm form) {
  Analysis state = FinishedRaise();
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(BuildReport(state, form));
}

void PlainReport(benchmark::State& timing) {
  BuildReports(timing, ReportForm::kPlainText);
}
void ForumReport(benchmark::State& timing) {
  BuildReports(timing, ReportForm::kForum);
}
BENCHMARK(PlainReport)->Unit(benchmark::kMicrosecond);
BENCHMARK(ForumReport)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quillon
