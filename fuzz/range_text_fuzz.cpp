// Weights from any text, against the oracle.

#include <cmath>
#include <optional>
#include <string>

#include "fuzz/fuzz_target.h"
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

void CheckSum(const std::string& text) {
  const std::optional<plain::Weights> weights = plain::WeightsOf(text);
  try {
    const double combos = SelectedCombos(Utf8FromWindows1252(text));
    Require(weights && combos == plain::SelectedCombos(*weights), "the selected hands are the plain ones");
    Require(SelectionCaption(combos).ends_with("% selected"), "every sum has a caption");
  } catch (const RunTimeError&) {
    Require(!weights, "a sum fails only where a weight does");
  }
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  constexpr std::size_t kLongestLabel = 5;
  FuzzInput input(data, size);
  const bool all = input.TakeBelow(16) == 1;
  const std::string label(HandLabel(static_cast<std::int16_t>(input.TakeBelow(kHandClassCount))));
  const std::string anyLabel(input.TakeText(input.TakeBelow(kLongestLabel + 1)));
  const std::string text(input.Rest());

  CheckLabel(text, label);
  CheckLabel(text, anyLabel);
  if (all) CheckSum(text);
  return 0;
}
