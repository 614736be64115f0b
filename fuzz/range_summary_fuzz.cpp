// The notation of any range, against a plain one that looks at whole blocks of equal weights.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

// The weight of each class, in the order of their indexes.
using Weights = std::array<double, kHandClassCount>;

// Classes from the best down that can make runs together, each with its index.
struct LineClass {
  std::string label;
  std::size_t index;
};
using Line = std::vector<LineClass>;

LineClass ClassOf(const std::string& label) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (HandLabel(index) == label) return {label, static_cast<std::size_t>(index)};
  }
  Require(false, "every label has its class");
  return {};
}

std::vector<Line> MakeLines() {
  std::vector<Line> lines(1);
  for (const char rank : kRankLetters)
    lines[0].push_back(ClassOf({rank, rank}));
  for (const char suitLetter : {'s', 'o'}) {
    for (std::size_t high = 0; high + 1 < kRankLetters.size(); ++high) {
      Line line;
      for (std::size_t low = high + 1; low < kRankLetters.size(); ++low)
        line.push_back(ClassOf({kRankLetters[high], kRankLetters[low], suitLetter}));
      lines.push_back(line);
    }
  }
  return lines;
}

const std::vector<Line>& AllLines() {
  static const std::vector<Line> lines = MakeLines();
  return lines;
}

std::string PlainRun(const Line& line, std::size_t first, std::size_t last) {
  if (first == last) return line[first].label;
  return first == 0 ? line[last].label + "+" : line[first].label + "-" + line[last].label;
}

// A block of classes at the target is written unless a heavier class stands right below it.
std::string PlainNotation(const Weights& weights, double target) {
  const auto weightOf = [&weights](const LineClass& of) { return weights[of.index]; };
  std::string items;
  for (const Line& line : AllLines()) {
    std::size_t first = 0;
    while (first < line.size()) {
      std::size_t end = first;
      while (end < line.size() && weightOf(line[end]) == target)
        ++end;
      const bool vanishes = end < line.size() && weightOf(line[end]) > target;
      if (end > first && !vanishes) items += (items.empty() ? "" : ",") + PlainRun(line, first, end - 1);
      first = end + 1;
    }
  }
  return items;
}

std::string WholeNotation() {
  std::string whole;
  for (const Line& line : AllLines())
    whole += (whole.empty() ? "" : ",") + PlainRun(line, 0, line.size() - 1);
  return whole;
}

std::string PlainSummary(const Weights& weights) {
  static const std::string whole = WholeNotation();
  const std::string full = PlainNotation(weights, 1);
  const std::string half = PlainNotation(weights, 0.5);
  if (!half.empty()) return "Full: " + full + " | Half: " + half;
  if (full.empty()) return "[None]";
  return full == whole ? "[Everything]" : full;
}

// Whole ranges, of which there is a text and a summary whatever their weights: one for each class from two bits of the
// input each.
void CheckRange(std::string_view bytes) {
  constexpr std::array<double, 4> kWeights = {0, 0.5, 1, 0.25};
  Weights weights{};
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const unsigned byte = i / 4 < bytes.size() ? static_cast<unsigned char>(bytes[i / 4]) : 0;
    weights[i] = kWeights[(byte >> (2 * (i % 4))) & 3U];
  }
  Require(RangeSummary(RangeTextOf(weights)) == PlainSummary(weights), "a summary equals the plain one");
}

// Broken texts, of which some weights cannot be read.
void CheckText(std::string_view text) {
  std::optional<Weights> weights;
  try {
    weights = RangeWeightsOf(text);
  } catch (const RunTimeError&) {
    weights.reset();
  }
  try {
    const std::string summary = RangeSummary(text);
    Require(weights.has_value(), "a summary needs every weight");
    Require(summary == PlainSummary(*weights), "a summary of any text equals the plain one");
  } catch (const RunTimeError&) {
    Require(!weights, "a summary fails only where a weight does");
  }
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  if (input.TakeBelow(2) == 1)
    CheckText(input.Rest());
  else
    CheckRange(input.Rest());
  return 0;
}
