#include "ranges/range_text.h"

#include <cstddef>
#include <cstdint>

#include "support/byte_scan.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr std::size_t kLongestUsualEntry = 11;  // "AKs (0.5), "

[[noreturn]] void FailWithoutWeight(std::string_view label) {
  throw RunTimeError(RunTimeFault::kInvalidProcedureCall, "the range text holds no weight for " + std::string(label));
}

double WeightShownOnGrid(double weight) {
  return weight == 1 || weight == 0.5 ? weight : 0;
}

}  // namespace

double RangeWeightOf(std::string_view text, std::string_view label) {
  const std::size_t found = FindText(text, label);
  // A position counted from 1, 0 for a label that is missing: the fallback for missing classes rests on it.
  const std::size_t position = found == std::string_view::npos ? 0 : found + 1;
  const std::size_t start = position + label.size() + 1;

  // The bracket is a few characters away; a plain loop is there before a library search has begun.
  std::size_t end = position;
  while (end < text.size() && text[end] != ')')
    ++end;
  if (end >= text.size() || end < start) FailWithoutWeight(label);
  return LeadingNumber(text.substr(start, end - start));
}

std::string RangeTextOf(std::span<const double, kHandClassCount> weights) {
  std::string text;
  text.reserve(kLongestUsualEntry * weights.size());
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    text.append(HandLabel(index)).append(" (");
    text.append(NumberText(weights[static_cast<std::size_t>(index)])).append("), ");
  }
  return text;
}

double SelectedCombos(std::string_view rangeText) {
  double combos = 0;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view label = HandLabel(index);
    combos += WeightShownOnGrid(RangeWeightOf(rangeText, label)) * ComboCount(label);
  }
  return combos;
}

std::string SelectionCaption(double selectedCombos) {
  return NumberText(PercentOf(selectedCombos, kConcreteHandCount, 1)) + "% selected";
}

}  // namespace quillon
