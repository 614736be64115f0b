#include "ranges/range_text.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "testing/fault_of.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

struct WeightCase {
  const char* rule;
  const char* text;
  const char* label;
  double weight;
};

TEST(RangeWeightOf, ReadsTheNumberBehindTheFirstOccurrence) {
  const std::vector<WeightCase> cases = {
      {"a weight of its own reads as written", "AA (1), AKs (0.25), ", "AKs", 0.25},
      {"a weight with an exponent", "AA (7.5E-02), ", "AA", 0.075},
      {"the first of two entries wins", "AA (0.5), KK (1), AA (1), ", "AA", 0.5},
      {"no number reads as nothing", "AA (x), ", "AA", 0},
      {"any two characters may come before the number", "AA=:1)", "AA", 1},
      {"without the blank the number loses its first digit", "AA(0.5), ", "AA", 0.5},
      {"a label inside a remark counts as the first occurrence", "AKs? (0) AKs (1), ", "AKs", 0},
      {"a label inside a weight counts as the first occurrence", "AA (22.003), 22 (1), ", "22", 3},
  };
  for (const WeightCase& c : cases)
    EXPECT_EQ(RangeWeightOf(c.text, c.label), c.weight) << c.rule;
}

TEST(RangeWeightOf, MissingClassReadsWhatStandsBeforeTheFirstBracket) {
  const std::vector<WeightCase> cases = {
      {"three characters read from the fifth on", "AA (1), AKs (1), ", "72o", 1},
      {"two characters read from the fourth on, which is no number", "AA (1), AKs (1), ", "22", 0},
      {"characters count, not bytes", "éé (1), AKs (0), ", "72o", 1},
      {"the number's place may be the bracket's own", "AKs ) AA (1), ", "72o", 0},
  };
  for (const WeightCase& c : cases)
    EXPECT_EQ(RangeWeightOf(c.text, c.label), c.weight) << c.rule;
}

TEST(RangeWeightOf, WithoutABracketInReachIsFatal) {
  struct Case {
    const char* rule;
    const char* text;
    const char* label;
  };
  const std::vector<Case> cases = {
      {"the empty text", "", "AA"},
      {"a missing class in a text without any bracket", "AA 1, KK 1", "72o"},
      {"a label inside a weight and its bracket too near", "AA (0.22), 22 (1), ", "22"},
      {"a bracket one character after the label", "AA ) 1)", "AA"},
      {"a bracket in what is looked for", "A) (1), ", "A)"},
      {"a missing class and a bracket one too early in characters", "éé )", "72o"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FaultOf([&] { return RangeWeightOf(c.text, c.label); }), RunTimeFault::kInvalidProcedureCall) << c.rule;
  }
}

TEST(RangeWeightsOf, ReadsEveryClassByItself) {
  EXPECT_EQ(FaultOf([] { return RangeWeightsOf(""); }), RunTimeFault::kInvalidProcedureCall);
  const ClassWeights weights = RangeWeightsOf("AKs (0.25), AA (1), 22 (0.5), ");
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view label = HandLabel(index);
    const double expected = label == "AA" ? 1 : label == "AKs" ? 0.25 : label == "22" ? 0.5 : 0;
    EXPECT_EQ(weights.at(static_cast<std::size_t>(index)), expected) << label;
  }
}

TEST(RangeTextOf, WritesEveryClassInIndexOrder) {
  ClassWeights weights{};
  weights[0] = 1;
  weights[1] = 1;
  weights[2] = 0.5;
  const std::string text = RangeTextOf(weights);
  EXPECT_EQ(text, TextWith("AA AKs", "AQs"));
  EXPECT_EQ(text.size(), 1508U + 2);
  weights[0] = 1.0 - 0.920788;
  EXPECT_TRUE(RangeTextOf(weights).starts_with("AA (7.92119999999999E-02), AKs (1), "));
  weights[0] = std::numeric_limits<double>::infinity();
  EXPECT_EQ(FaultOf([&] { return RangeTextOf(weights); }), RunTimeFault::kOverflow);
}

TEST(SearchableRangeText, BreaksLabelsThatAWeightWouldHide) {
  struct Case {
    const char* rule;
    double others;
    double weight;
    const char* start;
    const char* end;
  };
  for (const Case& c : {
           Case{"usual weights are as they are", 0.5, 1, "AA (0.5), AKs (0.5), ", "22 (1), "},
           Case{"a doubled digit is a pair yet to come", 0.99, 1, "AA (0.9 9), AKs (0.9 9), ", "22 (1), "},
           Case{"a pair alone", 99, 1, "AA (9 9), ", "22 (1), "},
           Case{"each of several", 0.2222, 1, "AA (0.2 2 2 2), ", "22 (1), "},
           Case{"noughts and ones are none", 0.1001, 1, "AA (0.1001), ", "22 (1), "},
           Case{"the pair's own entry has come", 1, 0.22, "AA (1), ", "22 (0.22), "},
       }) {
    ClassWeights weights{};
    weights.fill(c.others);
    weights.back() = c.weight;
    const std::string text = SearchableRangeText(weights);
    EXPECT_EQ(text.substr(0, std::string_view(c.start).size()), c.start) << c.rule;
    EXPECT_TRUE(text.ends_with(c.end)) << c.rule << ": " << text;
    EXPECT_EQ(RangeWeightsOf(text), weights) << c.rule;
    EXPECT_EQ(WrittenWeightsOf(text), weights) << c.rule;
    EXPECT_EQ(WrittenWeightsOf(RangeTextOf(weights)), weights) << c.rule;
  }
}

TEST(WrittenWeightsOf, ReadsNothingButTheWrittenForm) {
  const std::string text = RangeTextOf(ClassWeights{});
  EXPECT_TRUE(WrittenWeightsOf(text));
  EXPECT_FALSE(WrittenWeightsOf(text + " "));
  EXPECT_FALSE(WrittenWeightsOf("my notes: " + text));
  EXPECT_FALSE(WrittenWeightsOf(text.substr(0, text.size() - 1)));
  EXPECT_FALSE(WrittenWeightsOf("AKs (0), " + text.substr(8)));
  EXPECT_FALSE(WrittenWeightsOf(""));
}

struct ComboCase {
  const char* rule;
  std::string text;
  double combos;
  const char* caption;
};

TEST(SelectedCombos, CountsConcreteHandsAsTheGridShowsThem) {
  const std::vector<ComboCase> cases = {
      {"nothing", TextWith(""), 0, "0% selected"},
      {"a mixture", TextWith("AA KK AKs", "AKo 72o"), 28, "2.1% selected"},
      {"all at full", EveryHandAt(1), 1326, "100% selected"},
      {"all at half", EveryHandAt(0.5), 663, "50% selected"},
      {"weights that the grid cannot show", RangeWith({{"AA", 0.25}, {"KK", 2}, {"AKo", 0.5}}), 6, "0.5% selected"},
  };
  for (const ComboCase& c : cases) {
    EXPECT_EQ(SelectedCombos(c.text), c.combos) << c.rule;
    EXPECT_EQ(SelectionCaption(c.combos), c.caption) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
