#include "results/hover_panel.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis.h"
#include "hand/hand_classes.h"
#include "testing/sample_analysis.h"

namespace quillon {
namespace {

// The panel's texts, which must be present.
HoverTexts TextsOf(std::string_view hand, const Analysis& state) {
  const std::optional<HoverTexts> texts = MakeHoverTexts(HandIndex(hand), state);
  EXPECT_TRUE(texts.has_value());
  return texts.value_or(HoverTexts{});
}

// The state with this row for KQs: "value, tab, equity, tab, fold share".
Analysis WithCells(Analysis state, std::string_view cells) {
  state.HandInfo = sample::ResultsTable({{"KQs", cells}}, "7\t0.7\t0.7");
  return state;
}

TEST(HoverPanel, BeforeAnyAnalysisThereIsNothing) {
  for (const AnalysisMode mode : {AnalysisMode::kNone, AnalysisMode::kPreflopCall, AnalysisMode::kEquityOnly}) {
    Analysis state;
    state.Mode = mode;
    EXPECT_EQ(MakeHoverTexts(HandIndex("KQs"), state), std::nullopt);
  }
}

TEST(HoverPanel, EachScenarioHasItsLines) {
  EXPECT_EQ(TextsOf("AA", sample::CallState()),
            (HoverTexts{HoverPicture::kGreen, "AA", "Equity:", "85%", "+120", "240%", {}, "You should go ALL IN"}));
  EXPECT_EQ(TextsOf("AKs", sample::RaiseState()), (HoverTexts{HoverPicture::kGreen, "AKs", "Equity when Called:", "55%",
                                                              "+98.2", "196.4%", "40%", "You should go ALL IN"}));
  EXPECT_EQ(TextsOf("AA", sample::EquityState()),
            (HoverTexts{HoverPicture::kBlue, "AA", "Equity:", "85.23%", {}, {}, {}, ":)"}));
}

struct MoveCase {
  const char* rule;
  const char* cells;
  HoverPicture picture;
  const char* equity;
  const char* value;
  const char* back;
  const char* advice;
};

TEST(HoverPanel, NumbersAndVerdictFollowTheTable) {
  const std::vector<MoveCase> cases = {
      {"a loss", "-25.32\t0.1234\t1", HoverPicture::kRed, "12.34%", "-25.32", "-50.6%", "You should FOLD"},
      {"a value of 0 is red, has no sign and leaves the choice", "0\t0.25\t1", HoverPicture::kRed, "25%", "0", "0%",
       "FOLD or ALL IN"},
      {"no cells at all read as 0", "", HoverPicture::kRed, "0%", "0", "0%", "FOLD or ALL IN"},
      {"nobody calls", "150\t-1\t1", HoverPicture::kGreen, "N/A", "+150", "300%", "You should go ALL IN"},
      {"an equity that is nearly -1 is a number", "150\t-0.999999\t1", HoverPicture::kGreen, "-100%", "+150", "300%",
       "You should go ALL IN"},
      {"and the other way", "1\t0.50375\t1", HoverPicture::kGreen, "50.38%", "+1", "2%", "You should go ALL IN"},
      {"and the other way", "1\t0.30195\t1", HoverPicture::kGreen, "30.2%", "+1", "2%", "You should go ALL IN"},
      {"value to eight decimals", "12.123456789012\t0.5\t1", HoverPicture::kGreen, "50%", "+12.12345679", "24.2%",
       "You should go ALL IN"},
      {"a profit too small to show keeps its sign", "0.000000001\t0.5\t1", HoverPicture::kGreen, "50%", "+0", "0%",
       "You should go ALL IN"},
      {"a loss too small to show does not", "-0.000000001\t0.5\t1", HoverPicture::kRed, "50%", "0", "0%",
       "You should FOLD"},
      {"and the other way", "0.375\t0.5\t1", HoverPicture::kGreen, "50%", "+0.375", "0.8%", "You should go ALL IN"},
  };
  for (const MoveCase& c : cases) {
    for (const Analysis& state : {sample::CallState(), sample::RaiseState()}) {
      const HoverTexts texts = TextsOf("KQs", WithCells(state, c.cells));
      EXPECT_EQ(texts.Hand, "KQs") << c.rule;
      EXPECT_EQ(texts.Picture, c.picture) << c.rule;
      EXPECT_EQ(texts.Equity, c.equity) << c.rule;
      EXPECT_EQ(texts.Value, c.value) << c.rule;
      EXPECT_EQ(texts.Return, c.back) << c.rule;
      EXPECT_EQ(texts.Advice, c.advice) << c.rule;
    }
  }
}

TEST(HoverPanel, ReturnThatIsNoNumberReadsAsSuch) {
  struct Case {
    const char* rule;
    const char* cells;
    double call;
    const char* value;
    const char* back;
  };
  EXPECT_EQ(TextsOf("KQs", WithCells(sample::RaiseState(), "1\t0.5\t0.123456789")).FoldShare, "12.35%");
  const std::vector<Case> cases = {
      {"a profit on nothing", "150\t0.5\t0.5", 0, "+150", "N/A"},
      {"nothing on nothing", "0\t0.5\t0.5", 0, "0", "N/A"},
      {"a profit on so little that the quotient has no double", "150\t0.5\t0.5", 1e-310, "+150", "N/A"},
      {"or that only the percentage has none", "150\t0.5\t0.5", 1e-305, "+150", "N/A"},
      {"a negative amount is one", "150\t0.5\t0.5", -100, "+150", "-150%"},
  };
  for (const Case& c : cases) {
    Analysis state = WithCells(sample::RaiseState(), c.cells);
    state.Amounts.CallAmount = c.call;
    const HoverTexts texts = TextsOf("KQs", state);
    EXPECT_EQ(texts.Value, c.value) << c.rule;
    EXPECT_EQ(texts.Return, c.back) << c.rule;
    EXPECT_EQ(texts.FoldShare, "50%") << c.rule;
  }
}

TEST(HoverPanel, EquityOnlyRoundsBeforeItMultiplies) {
  struct Case {
    const char* rule;
    const char* cells;
    const char* equity;
    const char* advice;
  };
  const std::vector<Case> cases = {
      {"a quarter is good", "0\t0.25\t1", "25%", ":)"},
      {"less is not", "0\t0.2499\t1", "24.99%", ":("},
      {"not even when it rounds to a quarter", "0\t0.249999\t1", "25%", ":("},
      {"what is a tie only once multiplied is rounded as it is stored", "0\t0.30125\t1", "30.13%", ":)"},
      {"and the other way", "0\t0.30195\t1", "30.19%", ":)"},
      {"-1 is a number here", "0\t-1\t1", "-100%", ":("},
  };
  for (const Case& c : cases) {
    const HoverTexts texts = TextsOf("KQs", WithCells(sample::EquityState(), c.cells));
    EXPECT_EQ(texts.Equity, c.equity) << c.rule;
    EXPECT_EQ(texts.Advice, c.advice) << c.rule;
    EXPECT_EQ(texts.Picture, HoverPicture::kBlue) << c.rule;
  }
}

constexpr TwipRect kPanel = {.Left = 7620, .Top = 1740, .Width = 3780, .Height = 3315};
constexpr TwipRect kScreen = {.Left = 3300, .Top = 0, .Width = 12000, .Height = 8645};

TEST(HoverPlace, HangsBelowTheCellAndFlipsWhereItWouldLeaveTheScreen) {
  struct Case {
    const char* rule;
    TwipRect square;
    float left;
    float top;
  };
  // The panel takes 3780 by 3315 of 12000 by 8645: it fits from left 8220 and, below a square of 405, from top 4900.
  const std::vector<Case> cases = {
      {"below, left edge on left edge", {625, 1045, 405, 405}, 625, 1475},
      {"fitting exactly to the right", {8220, 1045, 405, 405}, 8220, 1475},
      {"one too far to the right", {8221, 1045, 405, 405}, 4441, 1475},
      {"fitting exactly at the bottom", {625, 4900, 405, 405}, 625, 5330},
      {"one too far down", {625, 4901, 405, 405}, 625, 1561},
      {"too far both ways", {11000, 8000, 405, 405}, 7220, 4660},
      {"a taller square fits less far down", {625, 4900, 405, 406}, 625, 1560},
  };
  for (const Case& c : cases) {
    const TwipRect expected = {.Left = c.left, .Top = c.top, .Width = 3780, .Height = 3315};
    EXPECT_EQ(HoverPlace(kPanel, c.square, kScreen), expected) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
