// Arbitrary notations, and ranges of any weights: what is read is a range, what is written reads the same, and an error
// has a place that can be shown.

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>

#include "fuzz/fuzz_target.h"
#include "hand/hand_classes.h"
#include "ranges/range_notation.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

NotationReading Read(std::string_view notation) {
  std::array<std::int16_t, kHandClassCount> order{};
  std::iota(order.begin(), order.end(), std::int16_t{0});
  return ReadRangeNotation(notation, order);
}

void CheckRoundTrip(const ClassWeights& weights, const std::string& notation) {
  Require(notation.size() < kLongestNotation / 10, "a written notation is short");
  const NotationReading reading = Read(notation);
  const auto* const read = std::get_if<ClassWeights>(&reading);
  Require(read != nullptr, "a written notation can be read");
  Require(RangeNotation(*read) == notation, "it is written the same way again");
  const bool same = std::ranges::equal(*read, weights, [](double a, double b) { return std::abs(a - b) <= a * 1e-14; });
  Require(same, "it reads as the same weights");
}

void CheckTexts(const ClassWeights& weights) {
  const std::string text = RangeTextOf(weights);
  const NotationReading reading = Read(RangeNotation(text));
  Require(RangeTextOf(std::get<ClassWeights>(reading)) == text, "a range text's notation reads as that text");
  Require(RangeTextOf(RangeWeightsOf(SearchableRangeText(weights))) == text,
          "a searchable text holds the same weights");
}

ClassWeights AnyWeights(FuzzInput input) {
  ClassWeights weights{};
  for (double& weight : weights) {
    const double drawn = std::abs(input.TakeDouble());
    weight = drawn <= 1 ? drawn : 0;
  }
  return weights;
}

void CheckError(std::string_view notation, const NotationError& error) {
  Require(error.Place <= notation.size(), "an error is in the text");
  const std::string marked = MarkedPlace(notation, error);
  Require(std::count(marked.begin(), marked.end(), '\n') == 1, "an error is shown in two lines");
  Require(marked.ends_with("^ " + error.Reason), "the second is the mark and the reason");
}

void CheckNotation(std::string_view notation, bool writing) {
  const NotationReading reading = Read(notation);
  if (const auto* const error = std::get_if<NotationError>(&reading)) {
    CheckError(notation, *error);
    return;
  }
  const auto& weights = std::get<ClassWeights>(reading);
  Require(std::ranges::all_of(weights, [](double weight) { return weight >= 0 && weight <= 1; }),
          "a weight is from 0 to 1");
  if (writing) CheckRoundTrip(weights, RangeNotation(weights));
}

}  // namespace

void CheckInput(FuzzInput input) {
  const ChecksOfRun checks(input, 16);
  if (checks.Has(1)) {
    const ClassWeights weights = AnyWeights(input);
    CheckRoundTrip(weights, RangeNotation(weights));
    CheckTexts(weights);
  }
  if (checks.All() || !checks.Has(1)) CheckNotation(input.Rest(), checks.Has(2));
}

}  // namespace quillon
