#include "ranges/range_summary.h"

#include <cstdint>

#include "hand/hand_classes.h"
#include "ranges/range_text.h"
#include "support/joined_text.h"

namespace quillon {
namespace {

constexpr std::string_view kWholeGrid =
    "22+,A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s,"
    "A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,72o+,62o+,52o+,42o+,32o";

// The classes that a run can go through, best first: the diagonal of the grid of all classes, or what stands in one row
// to the right of it or in one column below it.
struct Line {
  int first;  // class index
  int step;  // from one class index to the next
  int count;

  [[nodiscard]] std::string_view Label(int place) const {
    return HandLabel(static_cast<std::int16_t>(first + place * step));
  }
};

constexpr int kToTheRight = 1;
constexpr int kDown = kRankCount;
constexpr int kAlongDiagonal = kToTheRight + kDown;

std::string RunText(const Line& line, int start, int end) {
  if (start == end) return std::string(line.Label(end));
  if (start == 0) return Joined({line.Label(end), "+"});
  return Joined({line.Label(start), "-", line.Label(end)});
}

// The runs of one line, each followed by a comma.
std::string LineRuns(const Line& line, std::string_view text, double target) {
  const auto weightAt = [&](int place) { return RangeWeightOf(text, line.Label(place)); };
  std::string runs;
  int start = 0;
  for (int place = 0; place < line.count; ++place) {
    if (weightAt(place) != target) {
      start = place + 1;
      continue;
    }
    // Not "equal to": it is meant that a run of halves goes on into a full class, where it is dropped unwritten.
    if (place + 1 < line.count && weightAt(place + 1) >= target) continue;
    runs.append(RunText(line, start, place)).append(",");
  }
  return runs;
}

}  // namespace

std::string SummarizeWeight(std::string_view text, double target) {
  std::string summary = LineRuns({0, kAlongDiagonal, kRankCount}, text, target);
  for (const int step : {kToTheRight, kDown}) {
    for (int high = 0; high < kRankCount; ++high)  // the last has nothing beside it
      summary += LineRuns({high * kAlongDiagonal + step, step, kRankCount - 1 - high}, text, target);
  }
  if (!summary.empty()) summary.pop_back();
  return summary;
}

std::string RangeSummary(std::string_view text) {
  const std::string half = SummarizeWeight(text, 0.5);
  const std::string full = SummarizeWeight(text, 1);
  if (!half.empty()) return "Full: " + full + " | Half: " + half;
  if (full == kWholeGrid) return "[Everything]";
  return full.empty() ? "[None]" : full;
}

}  // namespace quillon
