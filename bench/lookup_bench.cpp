// The single steps: one lookup in the equity table next to a bare scan of the bytes that it has to skip, one weight
// read from a range text, one dealt range, and the loading of the table. Each lookup benchmark covers all pairs of
// classes, so a figure is the mean over near and far columns.

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <string>
#include <vector>

#include "analysis/dealt_range.h"
#include "hand/equity_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_text.h"
#include "support/byte_scan.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/runs.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

// A process loads the table only once, so this comes first and is timed once.
void EquityTableLoading(benchmark::State& timing) {
  while (timing.KeepRunning()) {
    LoadEquityTable();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(EquityTableLoading)->Unit(benchmark::kMicrosecond)->Iterations(1);

constexpr std::size_t kVector = 32;
constexpr std::size_t kPairs = std::size_t{kHandClassCount} * kHandClassCount;

template <typename Lookup>
void ForEachPair(benchmark::State& timing, Lookup lookup) {
  LoadEquityTable();
  while (timing.KeepRunning()) {
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      for (std::int16_t j = 0; j < kHandClassCount; ++j)
        benchmark::DoNotOptimize(lookup(i, j));
    }
  }
  timing.counters["each"] = benchmark::Counter(
      static_cast<double>(kPairs), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void HandEquityLookup(benchmark::State& timing) {
  ForEachPair(timing, [](std::int16_t i, std::int16_t j) { return HandEquity(HandLabel(i), HandLabel(j)); });
}
BENCHMARK(HandEquityLookup);

// The starts of each row's fields.
std::vector<std::array<std::size_t, kHandClassCount>> FieldStarts() {
  std::vector<std::array<std::size_t, kHandClassCount>> starts(kHandClassCount);
  for (std::size_t i = 0; i < kHandClassCount; ++i) {
    for (std::size_t j = 1; j < kHandClassCount; ++j)
      starts[i][j] = FindNthByte(EquityRows()[i], ' ', j - 1) + 1;
  }
  return starts;
}

// A bare scan of the bytes that a lookup has to skip, as compiled from the library's plain loop.
void BareScan(benchmark::State& timing) {
  LoadEquityTable();
  const auto starts = FieldStarts();
  ForEachPair(timing, [&starts](std::int16_t i, std::int16_t j) {
    const std::string& row = EquityRows()[static_cast<std::size_t>(i)];
    const std::size_t passed = starts[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    return std::count(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(passed), ' ');
  });
}
BENCHMARK(BareScan);

// The lower bound for a lookup: the same bytes scanned by the program's own vector loop with nothing else to do. The
// text is padded to whole vectors, since a lookup, which does not end at its field, has no remainder either.
void ScanFloor(benchmark::State& timing) {
  LoadEquityTable();
  const auto starts = FieldStarts();
  ForEachPair(timing, [&starts](std::int16_t i, std::int16_t j) {
    const auto row = static_cast<std::size_t>(i);
    const std::size_t passed = (starts[row][static_cast<std::size_t>(j)] + kVector - 1) / kVector * kVector;
    return FindNthByte(std::string_view(EquityRows()[row]).substr(0, passed), '#', 0);
  });
}
BENCHMARK(ScanFloor);

void HandEquityPlain(benchmark::State& timing) {
  ForEachPair(timing, [](std::int16_t i, std::int16_t j) {
    return plain::HandEquity(plain::Labels()[static_cast<std::size_t>(i)],
                             plain::Labels()[static_cast<std::size_t>(j)]);
  });
}
BENCHMARK(HandEquityPlain)->Iterations(1);

void WeightRead(benchmark::State& timing) {
  const std::string text = EveryHandAt(1);
  while (timing.KeepRunning()) {
    for (std::int16_t i = 0; i < kHandClassCount; ++i)
      benchmark::DoNotOptimize(RangeWeightOf(text, HandLabel(i)));
  }
  timing.counters["each"] =
      benchmark::Counter(kHandClassCount, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(WeightRead);

void DealtRange(benchmark::State& timing) {
  std::string text = EveryHandAt(1);
  while (timing.KeepRunning())
    benchmark::DoNotOptimize(DealText("Everything", "As", "Ac", text));
}
BENCHMARK(DealtRange)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quillon
