#include "analysis/expected_value.h"

#include <array>
#include <gtest/gtest.h>

#include "testing/fault_of.h"

namespace quillon {
namespace {

TEST(CallExpectedValue, IsTheShareOfTheWholePotLessTheCall) {
  EXPECT_EQ(CallExpectedValue(100, 50, 0.5), 25);
  EXPECT_EQ(CallExpectedValue(100, 50, 0), -50);
  EXPECT_EQ(PotOdds(100, 50), 2);
  EXPECT_EQ(BreakEvenEquity(2), 1.0 / 3);
  EXPECT_NEAR(CallExpectedValue(100, 50, BreakEvenEquity(PotOdds(100, 50))), 0, 1e-14);
  EXPECT_EQ(FaultOf([] { return PotOdds(100, 0); }), RunTimeFault::kDivisionByZero);
  EXPECT_EQ(FaultOf([] { return BreakEvenEquity(-1); }), RunTimeFault::kDivisionByZero);
}

TEST(ShoveExpectedValue, WeighsTheCalledAndTheFoldedCase) {
  EXPECT_DOUBLE_EQ(ShoveExpectedValue(15, 0, 100, 0.6, 0.25), 18.5);
}

TEST(ShoveExpectedValue, NeverCalledItIsExactlyThePot) {
  EXPECT_EQ(ShoveExpectedValue(15.1, 5, 100, -1, 0), 15.1);
}

TEST(ShoveExpectedValue, TheSumIsEvaluatedInItsOrder) {
  const double afterCall = (0.3 + 0.1) + (0.7 + 0.7);
  ASSERT_NE(afterCall, 0.3 + 0.1 + 0.7 + 0.7) << "these amounts distinguish the orders";
  EXPECT_EQ(ShoveExpectedValue(0.3, 0.1, 0.7, 1, 1), afterCall - (0.1 + 0.7));
}

TEST(OpponentOddsTexts, AreRoundedToTwoDecimals) {
  struct Row {
    double pot = 0;
    double call = 0;
    double shove = 0;
    OpponentOdds texts;
  };
  for (const Row& row : {
           Row{15, 5, 100, {"1.2 : 1", "45.45%"}},
           Row{1, 0, 8, {"1.12 : 1", "47.06%"}},  // 1.125 is a tie and rounds to even
           Row{3, 0, 8, {"1.38 : 1", "42.11%"}},  // and so does 1.375
           Row{100, 0, -20, {"-4 : 1", "-33.33%"}},  // negative amounts are accepted here
           Row{15, 5, 0, {"N/A", "N/A"}},
       }) {
    EXPECT_EQ(OpponentOddsTexts(row.pot, row.call, row.shove), row.texts)
        << row.pot << ' ' << row.call << ' ' << row.shove;
  }
}

TEST(HasOpponentOdds, JustWhereTheirTextsDoNotFail) {
  constexpr std::array kAmounts = {0.0, 1.0, -1.0, 10.0, -20.0, 40.0, 1e-300, 1e308, -1e308, 1.7e308};
  int failures = 0;
  for (const double pot : kAmounts) {
    for (const double call : kAmounts) {
      for (const double shove : kAmounts) {
        const bool fails = FaultOf([&] { return OpponentOddsTexts(pot, call, shove); }).has_value();
        failures += fails ? 1 : 0;
        EXPECT_EQ(HasOpponentOdds(pot, call, shove), !fails) << pot << ' ' << call << ' ' << shove;
      }
    }
  }
  EXPECT_GT(failures, 100);
}

}  // namespace
}  // namespace quillon
