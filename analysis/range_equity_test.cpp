#include "analysis/range_equity.h"

#include <gtest/gtest.h>
#include <string>

#include "hand/equity_table.h"
#include "testing/fault_of.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

class EquityVsRangeTest : public testing::Test {
 public:
  void SetUp() override { LoadEquityTable(); }
};

double Equity(std::string_view hero, const std::string& range) {
  const FixedText<5> cards = HandCards(hero);
  return EquityVsRange(hero, DealText("", cards.View().substr(0, 2), cards.View().substr(3, 2), range));
}

TEST_F(EquityVsRangeTest, ClassesCountByTheHandsThatSurviveAndTheirWeight) {
  // KK is Ks Kc: all six combos of AA survive, of KK only Kh Kd, and of AKs Ah Kh and Ad Kd.
  const double mean = (3 * HandEquity("KK", "AA") + 1 * HandEquity("KK", "KK") + 2 * HandEquity("KK", "AKs")) / 6;
  EXPECT_NEAR(Equity("KK", RangeWith({{"AA", 0.5}, {"KK", 1}, {"AKs", 1}})), mean, 1e-15);
}

TEST_F(EquityVsRangeTest, HandsOfNegativeWeightAreSkipped) {
  EXPECT_EQ(Equity("72o", RangeWith({{"AA", 1}, {"KK", -1}})), Equity("72o", RangeWith({{"AA", 1}})));
}

TEST_F(EquityVsRangeTest, AListWithoutWeightHasNoMean) {
  EXPECT_EQ(FaultOf([] { return EquityVsRange("AA", BuildCombos("", "")); }), RunTimeFault::kOverflow);
  EXPECT_EQ(FaultOf([] { return EquityVsRange("AA", {}); }), RunTimeFault::kSubscriptOutOfRange);
}

}  // namespace
}  // namespace quillon
