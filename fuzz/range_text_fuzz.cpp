// Weights from any text, against the rule with its positions counted from 1, step by step.

#include <cmath>
#include <optional>
#include <string>

#include "fuzz/fuzz_target.h"
#include "ranges/range_text.h"
#include "support/number_text.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

// Position, from 1, of the first occurrence at or after position `from`; 0 if there is none.
long PositionOf(const std::string& text, const std::string& wanted, long from) {
  const std::size_t found = text.find(wanted, static_cast<std::size_t>(from) - 1);
  return found == std::string::npos ? 0 : static_cast<long>(found) + 1;
}

std::optional<double> PlainWeight(const std::string& text, const std::string& label) {
  const auto length = static_cast<long>(label.size());
  const long p = PositionOf(text, label, 1);
  const long q = PositionOf(text, ")", p + 1);
  const long start = p + length + 2;
  const long count = q - p - length - 2;
  if (count < 0) return std::nullopt;
  return LeadingNumber(text.substr(static_cast<std::size_t>(start) - 1, static_cast<std::size_t>(count)));
}

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
  Require(weight == PlainWeight(text, label), "a weight equals the plain one");
  Require(!weight || std::isfinite(*weight), "a weight is finite");
}

// The hands that a grid would show, from all weights; nothing if one of them cannot be read.
std::optional<double> PlainCombos(const std::string& text) {
  double combos = 0;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string label(HandLabel(index));
    const std::optional<double> weight = PlainWeight(text, label);
    if (!weight) return std::nullopt;
    if (*weight == 1) combos += ComboCount(label);
    if (*weight == 0.5) combos += ComboCount(label) / 2.0;
  }
  return combos;
}

void CheckSum(const std::string& text) {
  const std::optional<double> plain = PlainCombos(text);
  try {
    const double combos = SelectedCombos(Utf8FromWindows1252(text));
    Require(combos == plain, "the selected hands are the plain ones");
    Require(SelectionCaption(combos).ends_with("% selected"), "every sum has a caption");
  } catch (const RunTimeError&) {
    Require(!plain, "a sum fails only where a weight does");
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
