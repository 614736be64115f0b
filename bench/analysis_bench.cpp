// A whole analysis, all 169 classes of it, from the situation to the finished results table, beside the same analysis
// written plainly. Both are timed in one run, so their ratio says what the program's way of reading text is worth.

#include <array>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>
#include <string_view>
#include <unistd.h>

#include "analysis/analysis_driver.h"
#include "analysis/plain_reference.h"
#include "analysis/quiet_window.h"
#include "hand/equity_table.h"
#include "ranges/range_files.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

constexpr std::string_view kFullRange = "Everything";

std::string FullRangeText() {
  std::array<double, kHandClassCount> weights{};
  weights.fill(1);
  return RangeTextOf(weights);
}

// A program folder of its own, with one range that holds every hand in full.
class BenchFolder {
 public:
  BenchFolder() {
    std::filesystem::create_directories(RangeFolderPath(folder_));
    SaveRangeText(folder_, kFullRange, FullRangeText());
  }
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;
  BenchFolder(BenchFolder&&) = delete;
  BenchFolder& operator=(BenchFolder&&) = delete;
  ~BenchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_.Path, ignored);
  }

  [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }

 private:
  ProgramFolder folder_{std::filesystem::temp_directory_path() / ("quillon-bench-" + std::to_string(getpid()))};
};

class NoMessages final : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& /*message*/) override { return MessageAnswer::kOk; }
};

void RunFullRange(benchmark::State& timing, std::int16_t button) {
  LoadEquityTable();
  const BenchFolder folder;
  NoMessages messages;
  QuietWindow window({"150", "50", "400", std::string(kFullRange), std::string(kFullRange)}, messages);
  while (timing.KeepRunning()) {
    AnalysisState state;
    RunAnalysis(state, button, window, folder.Folder());
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

void PreflopCallPlain(benchmark::State& timing) {
  const std::string range = FullRangeText();
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(plain::PreflopCallTable(150, 50, range));
}

void PreflopRaisePlain(benchmark::State& timing) {
  const std::string range = FullRangeText();
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(plain::PreflopRaiseTable(150, 50, 400, range, range));
}
BENCHMARK(PreflopCallPlain)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(PreflopRaisePlain)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace quillon
