// Random ranges converted between text, weights and notation, checked against the oracle.

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "ranges/range_notation.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "testing/fault_of.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/ranges.h"

namespace quillon {
namespace {

using Random = std::mt19937;

int Below(Random& random, int limit) {
  return static_cast<int>(random() % static_cast<unsigned>(limit));
}

template <typename Values>
auto AnyOf(Random& random, const Values& values) {
  return values[static_cast<std::size_t>(Below(random, static_cast<int>(values.size())))];
}

constexpr std::array kUsualWeights = {0.0, 0.5, 1.0};
// No two equal adjacent digits: a weight such as 0.99 would be taken for the label of a pair.
constexpr std::array kAnyWeights = {0.0, 0.5, 1.0, 0.25, 0.75, 2.0, -1.0, 0.015625, 0.98, 1e-20, 1e20};

// Players' ranges have runs, so a weight is kept along a line more often than not; `keep` is in percent.
template <typename Palette>
plain::Weights RandomWeights(Random& random, const Palette& palette, int keep) {
  plain::Weights weights(plain::kClasses);
  for (const auto& line : plain::Lines()) {
    double weight = AnyOf(random, palette);
    for (const std::string& label : line) {
      if (Below(random, 100) >= keep) weight = AnyOf(random, palette);
      weights[plain::IndexOf(label)] = weight;
    }
  }
  return weights;
}

ClassWeights InAnArray(const plain::Weights& weights) {
  ClassWeights all{};
  std::copy(weights.begin(), weights.end(), all.begin());
  return all;
}

void ExpectReadAs(const std::string& text, const plain::Weights& weights) {
  for (std::size_t i = 0; i < weights.size(); ++i)
    ASSERT_EQ(RangeWeightOf(text, plain::Labels()[i]), weights[i]) << plain::Labels()[i] << " in " << text;
  EXPECT_EQ(SelectedCombos(text), plain::SelectedCombos(weights)) << text;
  EXPECT_EQ(SummarizeWeight(text, 1), plain::RunsAt(weights, 1)) << text;
  EXPECT_EQ(SummarizeWeight(text, 0.5), plain::RunsAt(weights, 0.5)) << text;
  EXPECT_EQ(RangeSummary(text), plain::Summary(weights)) << text;
}

class RandomRange : public ::testing::TestWithParam<unsigned> {
 protected:
  [[nodiscard]] Random& Source() { return random_; }

 private:
  Random random_{GetParam()};
};

TEST_P(RandomRange, KeepsItsWeightsInItsText) {
  for (int round = 0; round < 40; ++round) {
    const int keep = Below(Source(), 100);
    const plain::Weights weights =
        round % 2 == 0 ? RandomWeights(Source(), kUsualWeights, keep) : RandomWeights(Source(), kAnyWeights, keep);
    const std::string text = RangeTextOf(InAnArray(weights));
    ASSERT_EQ(plain::WeightsOf(text), weights) << text;
    ExpectReadAs(text, weights);
    ASSERT_FALSE(HasFailure()) << text;
  }
}

constexpr std::array kWrittenWeights = {"0",    "0.5", "1",   "1",  "0",     ".5",   "0.50", "1.0", "0.25", "2",
                                        "-0.5", "+1",  " 1 ", "1x", "5e-01", "0. 5", "x",    "",    "22.5", "9 9"};
constexpr std::array kRemarks = {"", "my notes: ", "(loose) ", "AK? ", "T9 ", "\r\n", ") ", "22 "};

// A text as left by somebody who edits range files by hand.
std::string HandEditedText(Random& random) {
  const int missing = AnyOf(random, std::array{0, 0, 3, 50});  // percent
  const int doubled = AnyOf(random, std::array{0, 10});
  std::vector<std::string> entries;
  for (const auto& line : plain::Lines()) {
    const char* weight = AnyOf(random, kWrittenWeights);
    for (const std::string& label : line) {
      if (Below(random, 100) < 30) weight = AnyOf(random, kWrittenWeights);
      if (Below(random, 100) < missing) continue;
      entries.push_back(label + " (" + weight + "), ");
      if (Below(random, 100) < doubled) entries.push_back(label + " (" + AnyOf(random, kWrittenWeights) + "), ");
    }
  }
  if (Below(random, 4) > 0) std::shuffle(entries.begin(), entries.end(), random);
  std::string text = AnyOf(random, kRemarks);
  for (const std::string& entry : entries) {
    text += entry;
    if (Below(random, 100) == 0) text += AnyOf(random, kRemarks);
  }
  return text;
}

TEST_P(RandomRange, ReadsByTheSearchRuleHoweverItIsWritten) {
  for (int round = 0; round < 40; ++round) {
    const std::string text = HandEditedText(Source());
    for (const std::string& label : plain::Labels()) {
      std::optional<double> weight;
      const auto fault = FaultOf([&] { weight = RangeWeightOf(text, label); });
      ASSERT_EQ(weight, plain::WeightOf(text, label)) << label << " in " << text;
      ASSERT_EQ(fault, weight ? std::nullopt : std::optional(RunTimeFault::kInvalidProcedureCall));
    }
    if (const std::optional<plain::Weights> weights = plain::WeightsOf(text)) ExpectReadAs(text, *weights);
    ASSERT_FALSE(HasFailure()) << text;
  }
}

std::array<std::int16_t, kHandClassCount> ByIndex() {
  std::array<std::int16_t, kHandClassCount> order{};
  std::iota(order.begin(), order.end(), std::int16_t{0});
  return order;
}

// The weights of a notation that must be valid.
ClassWeights WeightsOfNotation(const std::string& notation) {
  const NotationReading reading = ReadRangeNotation(notation, ByIndex());
  if (const auto* const error = std::get_if<NotationError>(&reading)) ADD_FAILURE() << MarkedPlace(notation, *error);
  const auto* const weights = std::get_if<ClassWeights>(&reading);
  return weights == nullptr ? ClassWeights{} : *weights;
}

constexpr std::array kNotationWeights = {0.0, 0.5, 1.0, 1.0, 0.25, 0.99, 0.2222, 1.0 / 3, 1e-22, 4.94e-324};

TEST_P(RandomRange, ReadsTheNotationThatItWrote) {
  for (int round = 0; round < 200; ++round) {
    ClassWeights ordered = InAnArray(RandomWeights(Source(), kNotationWeights, Below(Source(), 100)));
    if (round % 10 == 0)
      ordered[static_cast<std::size_t>(Below(Source(), 169))] = static_cast<double>(Source()()) / 4294967296.0;

    const std::string text = RangeTextOf(ordered);
    const std::string notation = RangeNotation(text);
    const ClassWeights read = WeightsOfNotation(notation);
    ASSERT_EQ(RangeTextOf(read), text) << notation;
    ASSERT_EQ(RangeNotation(read), notation);
    ASSERT_EQ(RangeNotation(SearchableRangeText(ordered)), notation);
    ASSERT_EQ(RangeTextOf(RangeWeightsOf(SearchableRangeText(ordered))), text) << notation;
  }
}

// An item as somebody might type it, and its classes.
struct TypedItem {
  std::string text;
  std::vector<std::string> classes;
};

std::string TypedLabel(Random& random, std::string label) {
  if (Below(random, 3) == 0) std::swap(label[0], label[1]);
  std::string typed;
  for (const char c : label)
    typed += c == 'T' && Below(random, 2) == 0 ? std::string("10") : std::string(1, c);
  if (Below(random, 3) == 0) std::transform(typed.begin(), typed.end(), typed.begin(), ::tolower);
  return typed;
}

TypedItem RandomItem(Random& random) {
  const std::vector<std::string> line = AnyOf(random, plain::Lines());
  const int first = Below(random, static_cast<int>(line.size()));
  const int last = first + Below(random, static_cast<int>(line.size()) - first);
  const auto label = [&](int place) { return line[static_cast<std::size_t>(place)]; };
  if (Below(random, 3) == 0) return {TypedLabel(random, label(last)) + "+", {line.begin(), line.begin() + last + 1}};
  std::string top = TypedLabel(random, label(first));
  std::string bottom = TypedLabel(random, label(last));
  if (first == last && Below(random, 2) == 0) return {top, {label(first)}};
  if (Below(random, 2) == 0) std::swap(top, bottom);
  return {top + "-" + bottom, {line.begin() + first, line.begin() + last + 1}};
}

TEST_P(RandomRange, ReadsItemsThatPeopleType) {
  struct TypedWeight {
    const char* text;
    double weight;
  };
  constexpr std::array<TypedWeight, 6> kTyped = {
      {{"", 1}, {":0.25", 0.25}, {" (0.5)", 0.5}, {":75%", 0.75}, {"(1)", 1}, {":0", 0}}};
  constexpr std::array kBetween = {",", ", ", ";", " ", "\n", "\r\n", " , "};
  for (int round = 0; round < 200; ++round) {
    std::string notation;
    plain::Weights expected(plain::kClasses);
    for (int items = 1 + Below(Source(), 12); items > 0; --items) {
      const TypedItem item = RandomItem(Source());
      const TypedWeight weight = AnyOf(Source(), kTyped);
      notation += item.text + weight.text + AnyOf(Source(), kBetween);
      for (const std::string& label : item.classes)
        expected[plain::IndexOf(label)] = weight.weight;
    }
    ASSERT_EQ(WeightsOfNotation(notation), InAnArray(expected)) << notation;
  }
}

INSTANTIATE_TEST_SUITE_P(FixedSeeds, RandomRange, ::testing::Values(1U, 20U, 300U, 4000U, 50000U));

}  // namespace
}  // namespace quillon
