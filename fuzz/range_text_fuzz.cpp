// Weights, sums and summaries of any text and range, against the oracle.

#include <cmath>
#include <optional>
#include <string>

#include "fuzz/any_weights.h"
#include "fuzz/fuzz_target.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"
#include "testing/oracle/ranges.h"

namespace quillon {
namespace {

std::optional<double> Weight(std::string_view text, std::string_view label) {
  try {
    return RangeWeightOf(text, label);
  } catch (const RunTimeError& error) {
    Require(error.Fault() == RunTimeFault::kInvalidProcedureCall, "a weight that cannot be read is a bad call");
    return std::nullopt;
  }
}

// In a file each character is one byte.
void CheckLabel(const std::string& text, const std::string& label) {
  const std::optional<double> weight = Weight(Utf8FromWindows1252(text), Utf8FromWindows1252(label));
  Require(weight == plain::WeightOf(text, label), "a weight equals the plain one");
  Require(!weight || std::isfinite(*weight), "a weight is finite");
}

// A text with unreadable weights has neither.
void CheckSumAndSummary(const std::string& text) {
  const std::optional<plain::Weights> weights = plain::WeightsOf(text);
  try {
    const double combos = SelectedCombos(Utf8FromWindows1252(text));
    Require(weights && combos == plain::SelectedCombos(*weights), "the selected hands are the plain ones");
    Require(SelectionCaption(combos).ends_with("% selected"), "every sum has a caption");
    Require(RangeSummary(Utf8FromWindows1252(text)) == plain::Summary(*weights), "a summary equals the plain one");
  } catch (const RunTimeError&) {
    Require(!weights, "a sum fails only if a weight does");
  }
}

}  // namespace

void CheckInput(FuzzInput input) {
  constexpr std::size_t kLongestLabel = 5;
  const std::size_t kind = input.TakeBelow(16);
  if (kind == 2) return CheckSumAndSummary(RangeTextOf(AnyWeights(input.Rest())));
  const std::string label(HandLabel(static_cast<std::int16_t>(input.TakeBelow(kHandClassCount))));
  const std::string anyLabel(input.TakeText(input.TakeBelow(kLongestLabel + 1)));
  const std::string text(input.Rest());

  CheckLabel(text, label);
  CheckLabel(text, anyLabel);
  if (kind == 1) CheckSumAndSummary(text);
}

}  // namespace quillon
