#include "results/results_grid.h"

#include <algorithm>
#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/run_time_error.h"
#include "testing/sample_analysis.h"

namespace quillon {
namespace {

using ::testing::EndsWith;

std::string CellOf(const Analysis& state, std::string_view hand) {
  const Rgb color = GridColors(state)[static_cast<std::size_t>(HandIndex(hand))];
  return std::to_string(color.Red) + ", " + std::to_string(color.Green) + ", " + std::to_string(color.Blue);
}

Analysis WithTable(AnalysisMode mode, std::string table) {
  Analysis state = mode == AnalysisMode::kPreflopRaise ? sample::RaiseState() : sample::CallState();
  state.Mode = mode;
  state.HandInfo = std::move(table);
  return state;
}

TEST(GridTexts, OfAPreflopCall) {
  Analysis state = sample::CallState();
  state.Amounts = {100.126, 50, 0};
  EXPECT_EQ(MakeGridTexts(state),
            (GridTexts{.Title = "ALL IN Grid",
                       .HandInfo = "Pot Size: 100.13 | Call Amount: 50 | Odds: 2:1\r\n"
                                   "His Range: Full: AA | Half: KK",
                       .Results = "If you call with all of the hands in green you will profit in the long run. You "
                                  "should fold everything else.\r\n\r\n"
                                  "Since you are getting 2:1 odds, you need 33.31% equity in order to call.\r\n\r\n"
                                  "In this situation, 99% of hands are profitable.",
                       .LegendVisible = true}));
}

TEST(GridTexts, OfAPreflopRaise) {
  EXPECT_EQ(MakeGridTexts(sample::RaiseState()),
            (GridTexts{.Title = "ALL IN Grid",
                       .HandInfo = "Pot Size: 150 | Call Amount: 50 | Shove Amount: 62.5\r\n"
                                   "His Calling Range: AA",
                       .Results = "If you raise with all of the hands in green you will profit in the long run. For "
                                  "any hand, you should also consider how well you and your opponent play after the "
                                  "flop to decide whether or not calling is an option.\r\n\r\n"
                                  "In this situation, 100% of hands are profitable.",
                       .LegendVisible = true}));
}

TEST(GridTexts, OfEquityOnlyHaveNoLegendAndNoProfit) {
  EXPECT_EQ(MakeGridTexts(sample::EquityState()),
            (GridTexts{.Title = "Equity Grid",
                       .HandInfo = "His Range: KK+",
                       .Results = "Equity is a meausrement of how much value you have in the current hand. In other "
                                  "words, it is what percentage you will win against your opponent's range.",
                       .LegendVisible = false}));
}

TEST(GridTexts, BeforeAnyAnalysisSaySo) {
  EXPECT_EQ(MakeGridTexts(Analysis{}), (GridTexts{.Title = "ALL IN Grid",
                                                  .HandInfo = "",
                                                  .Results = "No analysis has been performed.",
                                                  .LegendVisible = true}));
}

TEST(GridTexts, AmountsAndOddsHaveTwoDecimalsWithTiesToEven) {
  Analysis state = sample::CallState();
  state.Amounts = {10.125, 3, 0};
  EXPECT_THAT(MakeGridTexts(state).HandInfo,
              ::testing::StartsWith("Pot Size: 10.12 | Call Amount: 3 | Odds: 3.38:1\r\n"))
      << "10.125 is a tie, 3.375 too";
  state.Amounts.CallAmount = 3.125;
  EXPECT_THAT(MakeGridTexts(state).HandInfo, ::testing::HasSubstr("Call Amount: 3.12 |"));

  Analysis raise = sample::RaiseState();
  raise.Amounts = {10.125, 3.125, 62.125};
  EXPECT_THAT(MakeGridTexts(raise).HandInfo,
              ::testing::StartsWith("Pot Size: 10.12 | Call Amount: 3.12 | Shove Amount: 62.12\r\n"));
}

std::string AcesAnd63OffsuitClasses() {
  std::string table;
  int offsuit = 0;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view hand = HandLabel(index);
    const bool wins = hand == "AA" || (hand.ends_with('o') && ++offsuit <= 63);
    table.append(hand).append(wins ? "\t1\t0.5\t1\t\r\n" : "\t-1\t0.5\t1\t\r\n");
  }
  return table;
}

TEST(GridTexts, TheShareOfProfitableHandsCountsCombosAgainst1325) {
  struct Case {
    const char* rule;
    std::string table;
    const char* percent;
  };
  const std::vector<Case> cases = {
      {"nobody wins", sample::ResultsTable({}, "-1\t0.1\t1"), "0%"},
      {"a value of exactly 0 counts as profitable", sample::ResultsTable({}, "0\t0.5\t1"), "100%"},
      {"an offsuit class is 12", sample::ResultsTable({{"72o", "0\t0.5\t1"}}, "-1\t0.5\t1"), "1%"},
      {"762 hands would be 57% of 1326", AcesAnd63OffsuitClasses(), "58%"},
  };
  for (const Case& c : cases) {
    for (const AnalysisMode mode : {AnalysisMode::kPreflopCall, AnalysisMode::kPreflopRaise}) {
      EXPECT_THAT(MakeGridTexts(WithTable(mode, c.table)).Results,
                  EndsWith(std::string("\r\n\r\nIn this situation, ") + c.percent + " of hands are profitable."))
          << c.rule;
    }
  }
}

TEST(GridTexts, ACallOfNothingHasNoPotOddsAndAShoveNeedsNone) {
  Analysis call = sample::CallState();
  call.Amounts.CallAmount = 0;
  EXPECT_THROW(static_cast<void>(MakeGridTexts(call)), RunTimeError);

  Analysis raise = sample::RaiseState();
  raise.Amounts.CallAmount = 0;
  EXPECT_EQ(MakeGridTexts(raise).HandInfo,
            "Pot Size: 150 | Call Amount: 0 | Shove Amount: 62.5\r\nHis Calling Range: AA");
}

struct CellCase {
  const char* rule;
  AnalysisMode mode;
  std::string table;
  const char* hand;
  const char* color;
};

TEST(GridColors, MeasureEachValueAgainstTheBestAndTheWorst) {
  using enum AnalysisMode;
  const std::string plain = sample::ResultsTable({{"AA", "100\t0.85\t1"},
                                                  {"KK", "75\t0.8\t1"},
                                                  {"QQ", "50\t0.75\t1"},
                                                  {"AKs", "4\t0.6\t1"},
                                                  {"72o", "-20\t0.1\t1"},
                                                  {"22", "-10\t0.2\t1"},
                                                  {"32o", "-0.5\t0.3\t1"}});
  const std::string losing = sample::ResultsTable({{"AA", "-10\t0.4\t1"}}, "-20\t0.2\t1");
  // The first value rounds to a best of 1, so the later and higher ones do not replace it.
  const std::string shortOfTheBest =
      sample::ResultsTable({{"AA", "0.625\t0.1\t1"}, {"AKs", "0.65625\t0.2\t1"}, {"AQs", "0.9375\t0.3\t1"}}, "0\t0\t1");
  // No value rounds above 0, so the last above 0 counts as the best.
  const std::string lastAboveZero = sample::ResultsTable({{"AA", "0.4\t0.4\t1"}, {"22", "0.0001\t0.1\t1"}}, "0\t0\t1");
  const std::string equities =
      sample::ResultsTable({{"AA", "0\t0.9\t1"}, {"KK", "0\t0.5\t1"}, {"22", "0\t-1\t1"}}, "0\t0.1\t1");
  const std::string breaksEven = sample::ResultsTable({{"AA", "0\t0.5\t1"}}, "-1\t0.1\t1");
  const std::string alike = sample::ResultsTable({}, "0\t0.5\t1");
  const std::string lowestCountsAsHigh = sample::ResultsTable({{"22", "0\t0.2\t1"}}, "0\t0.4\t1");
  const std::string large =
      sample::ResultsTable({{"AA", "5000000000\t0.9\t1"}, {"KK", "2500000000\t0.8\t1"}}, "-1\t0.1\t1");

  const std::vector<CellCase> cases = {
      {"without results all are the palest green", kPreflopCall, "", "AA", "200, 255, 200"},
      {"the best is dark green", kPreflopCall, plain, "AA", "0, 120, 0"},
      {"half of the best", kPreflopRaise, plain, "QQ", "33, 255, 33"},
      {"a small win is pale green", kPreflopCall, plain, "AKs", "200, 255, 200"},
      {"exactly 0 is the palest green", kPreflopCall, plain, "AKo", "200, 255, 200"},
      {"the worst is dark red", kPreflopCall, plain, "72o", "120, 0, 0"},
      {"among losers the best is red as well", kPreflopCall, losing, "AA", "255, 33, 33"},
      {"half above High would be below black", kPreflopCall, shortOfTheBest, "AQs", "0, 120, 0"},
      {"4000 times High would be, too", kPreflopRaise, lastAboveZero, "AA", "0, 120, 0"},
      {"the highest equity is dark blue", kEquityOnly, equities, "AA", "0, 65, 129"},
      {"the lowest equity is white, also at -1", kEquityOnly, equities, "22", "255, 255, 255"},
      {"1.5 of 1.9 is beyond the scale's end", kEquityOnly, equities, "KK", "0, 65, 129"},
      {"a best value of 0 is the palest green", kPreflopRaise, breaksEven, "AA", "200, 255, 200"},
      {"below a best value of 0 the worst is dark red", kPreflopRaise, breaksEven, "KK", "120, 0, 0"},
      {"equities that are all alike are white", kEquityOnly, alike, "AA", "255, 255, 255"},
      {"High may be the lowest, and then all are white", kEquityOnly, lowestCountsAsHigh, "AA", "255, 255, 255"},
      {"far below the search's start", kPreflopRaise,
       sample::ResultsTable({{"72o", "-40000\t0.1\t1"}}, "-20000\t0.2\t1"), "AA", "255, 33, 33"},
      {"a best value beyond 32 bits is dark green", kPreflopRaise, large, "AA", "0, 120, 0"},
  };
  for (const CellCase& c : cases)
    EXPECT_EQ(CellOf(WithTable(c.mode, c.table), c.hand), c.color) << c.rule;
}

}  // namespace
}  // namespace quillon
