#include "ranges/range_summary.h"

#include "ranges/class_lines.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

constexpr std::string_view kWholeGrid =
    "22+,A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s,"
    "A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,72o+,62o+,52o+,42o+,32o";

// The runs of one line, each followed by a comma.
std::string LineRuns(const ClassLine& line, std::string_view text, double target) {
  const auto weightAt = [&](int place) { return RangeWeightOf(text, line.Label(place)); };
  std::string runs;
  int start = 0;
  for (int place = 0; place < line.Count; ++place) {
    if (weightAt(place) != target) {
      start = place + 1;
      continue;
    }
    // Intentional: not "equal to". A run of halves continues into a full class, where it is dropped unwritten.
    if (place + 1 < line.Count && weightAt(place + 1) >= target) continue;
    runs.append(line.Run(start, place)).append(",");
  }
  return runs;
}

}  // namespace

std::string SummarizeWeight(std::string_view text, double target) {
  std::string summary;
  for (const ClassLine& line : kClassLines)
    summary += LineRuns(line, text, target);
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
