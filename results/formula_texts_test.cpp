#include "results/formula_texts.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "testing/fault_of.h"

namespace quillon {
namespace {

TEST(RoundedText, RoundsHalfToEvenAndDropsTrailingZeros) {
  EXPECT_EQ(RoundedText(62.5, 0), "62");
  EXPECT_EQ(RoundedText(-0.255, 1), "-0.3");
  EXPECT_EQ(RoundedText(-0.001, 2), "0");
  EXPECT_EQ(FaultOf([] { return RoundedText(std::numeric_limits<double>::infinity(), 2); }), RunTimeFault::kOverflow);
}

TEST(ShoveFormulaText, RoundsEachTermToItsOwnDecimals) {
  struct Case {
    const char* rule;
    double pot;
    double call;
    double shove;
    double foldShare;
    double equity;
    const char* text;
  };
  const std::vector<Case> cases = {
      {"the doubled shove has no decimals and its half goes to even", 150, 50, 62.5, 0.4, 0.55,
       "(0.4*150)+(1-0.4)*(0.55*(150+50+2*62)-(50+62.5))"},
      {"the first pot has four decimals and the second two", 12.34567, 1.23456, 7.65432, 0.987654321, 0.123456789,
       "(0.9877*12.3457)+(1-0.9877)*(0.1234568*(12.35+1.23+2*8)-(1.23+7.65))"},
      {"an opponent who never calls", 150, 0, 100, 1, -1, "(1*150)+(1-1)*(-1*(150+0+2*100)-(0+100))"},
  };
  for (const Case& c : cases) {
    Analysis state;
    state.Amounts = {c.pot, c.call, c.shove};
    EXPECT_EQ(ShoveFormulaText(state, {.Equity = c.equity, .FoldShare = c.foldShare}), c.text) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
