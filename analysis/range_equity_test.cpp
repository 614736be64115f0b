#include "analysis/range_equity.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "hand/equity_table.h"
#include "support/run_time_error.h"
#include "testing/fault_of.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

class EquityVsRangeTest : public testing::Test {
 public:
  void SetUp() override { LoadEquityTable(); }
};

double Equity(std::string_view hero, std::string range) {
  const FixedText<5> cards = HandCards(hero);
  return EquityVsRange(hero,
                       DealRange(ProgramFolder{}, "", cards.View().substr(0, 2), cards.View().substr(3, 2), range));
}

TEST_F(EquityVsRangeTest, AgainstOneClassItIsTheEquityOfTheTable) {
  struct Row {
    const char* hero;
    const char* opponent;
    double weight;
    double equity;
  };
  for (const Row& row : {Row{"AA", "AA", 1, 0.5}, Row{"AA", "KK", 1, 0.819461}, Row{"KK", "AA", 1, 0.180539},
                         Row{"KK", "AA", 0.5, 0.180539}, Row{"AKo", "QQ", 1, 0.432423}}) {
    EXPECT_NEAR(Equity(row.hero, RangeWith({{row.opponent, row.weight}})), row.equity, 1e-15)
        << row.hero << " against " << row.opponent;
  }
}

TEST_F(EquityVsRangeTest, ClassesCountByTheHandsThatSurvive) {
  // KK is Ks Kc: of AA all six survive, of KK Kh Kd alone, and of AKs Ah Kh and Ad Kd.
  const double mean = (6 * HandEquity("KK", "AA") + 1 * HandEquity("KK", "KK") + 2 * HandEquity("KK", "AKs")) / 9;
  EXPECT_NEAR(Equity("KK", RangeWith({{"AA", 1}, {"KK", 1}, {"AKs", 1}})), mean, 1e-15);
}

TEST_F(EquityVsRangeTest, AHalfWeightCountsHalf) {
  const double mean = (3 * HandEquity("72o", "AA") + 6 * HandEquity("72o", "KK")) / 9;
  EXPECT_NEAR(Equity("72o", RangeWith({{"AA", 0.5}, {"KK", 1}})), mean, 1e-15);
}

TEST_F(EquityVsRangeTest, HandsOfNegativeWeightAreSkipped) {
  EXPECT_EQ(Equity("72o", RangeWith({{"AA", 1}, {"KK", -1}})), Equity("72o", RangeWith({{"AA", 1}})));
}

// A range weighs whole classes, so an exchange of suits leaves it as it is.
TEST_F(EquityVsRangeTest, IsTheSameForEveryConcreteHandOfTheClass) {
  std::string range = RangeWith({{"AA", 1}, {"77", 0.5}, {"AKs", 1}, {"KQs", 0.25}, {"AQo", 1}, {"72o", 0.5}});
  for (const HandRecord& hand : BuildCombos("Xx", "Yy")) {
    const HandList dealt = DealRange(ProgramFolder{}, "", hand.Card1, hand.Card2, range);
    EXPECT_NEAR(EquityVsRange(hand.Label, dealt), Equity(hand.Label, range), 1e-15) << hand.Cards.View();
  }
}

TEST_F(EquityVsRangeTest, AListWithoutWeightHasNoMean) {
  EXPECT_EQ(FaultOf([] { return EquityVsRange("AA", BuildCombos("", "")); }), RunTimeFault::kOverflow);
  EXPECT_EQ(FaultOf([] { return EquityVsRange("AA", {}); }), RunTimeFault::kSubscriptOutOfRange);
}

}  // namespace
}  // namespace quillon
