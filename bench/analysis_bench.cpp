// A whole analysis, all 169 classes of it, from the situation to the finished results table, beside the same analysis
// written plainly. Both are timed in one run, so their ratio says what the program's way of reading text is worth.

#include <benchmark/benchmark.h>
#include <string>
#include <string_view>

#include "analysis/analysis_driver.h"
#include "analysis/quiet_window.h"
#include "hand/equity_table.h"
#include "ranges/range_files.h"
#include "testing/oracle/runs.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

constexpr std::string_view kFullRange = "Everything";

class NoMessages final : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& /*message*/) override { return MessageAnswer::kOk; }
};

void RunFullRange(benchmark::State& timing, std::int16_t button) {
  LoadEquityTable();
  const TemporaryProgram program;
  SaveRangeText(program.Folder(), kFullRange, EveryHandAt(1));
  NoMessages messages;
  QuietWindow window({"150", "50", "400", std::string(kFullRange), std::string(kFullRange)}, messages);
  while (timing.KeepRunning()) {
    AnalysisState state;
    RunAnalysis(state, button, window, program.Folder());
    benchmark::DoNotOptimize(state.HandInfo);
    if (state.HandInfo.empty()) timing.SkipWithError("the run did not finish");
  }
}

void PreflopCall(benchmark::State& timing) {
  RunFullRange(timing, 0);
}
void PreflopRaise(benchmark::State& timing) {
  RunFullRange(timing, 1);
}
void EquityOnly(benchmark::State& timing) {
  RunFullRange(timing, 2);
}
BENCHMARK(PreflopCall)->Unit(benchmark::kMillisecond);
BENCHMARK(PreflopRaise)->Unit(benchmark::kMillisecond);
BENCHMARK(EquityOnly)->Unit(benchmark::kMillisecond);

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
