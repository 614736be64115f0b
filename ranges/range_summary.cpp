#include "ranges/range_summary.h"

#include <algorithm>
#include <cstdint>

#include "hand/hand_classes.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

constexpr std::string_view kWholeGrid =
    "22+,A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s,"
    "A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,72o+,62o+,52o+,42o+,32o";

constexpr int kAce = 14;
constexpr int kDeuce = 2;

std::string RankLetter(int rank) {
  return RankText(static_cast<std::int16_t>(rank));
}

// The classes that a run can go through, which differ in one rank alone: the pairs, or the suited or offsuit hands of
// one high card.
struct Line {
  std::string_view kind;  // "s", "o", empty for the pairs
  int high = kAce;

  [[nodiscard]] int Top() const { return kind.empty() ? kAce : high - 1; }
  [[nodiscard]] std::string Label(int rank) const {
    std::string label = RankLetter(kind.empty() ? rank : high);
    label.append(RankLetter(rank)).append(kind);
    return label;
  }
};

std::string RunText(const Line& line, int start, int end) {
  if (start == end) return line.Label(end);
  if (start == line.Top()) return line.Label(end) + "+";
  return line.Label(start) + "-" + line.Label(end);
}

// The runs of one line, each followed by a comma.
std::string LineRuns(const Line& line, std::string_view text, double target) {
  std::string runs;
  int start = 0;
  for (int rank = line.Top(); rank >= kDeuce; --rank) {
    if (RangeWeightOf(text, line.Label(rank)) != target) {
      start = 0;
      continue;
    }
    start = std::max(start, rank);
    // Not "equal to": it is meant that a run of halves goes on into a full class, where it is dropped unwritten.
    if (rank > kDeuce && RangeWeightOf(text, line.Label(rank - 1)) >= target) continue;
    runs.append(RunText(line, start, rank)).append(",");
  }
  return runs;
}

}  // namespace

std::string SummarizeWeight(std::string_view text, double target) {
  std::string summary = LineRuns(Line{}, text, target);
  for (const std::string_view kind : {"s", "o"}) {
    for (int high = kAce; high > kDeuce; --high)
      summary += LineRuns(Line{kind, high}, text, target);
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
