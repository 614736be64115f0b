#include "shell/number_boxes.h"

#include <gtest/gtest.h>
#include <vector>

#include "testing/fault_of.h"

namespace quillon {
namespace {

TEST(OddsOfBoxes, AreTheOpponents) {
  struct Case {
    const char* rule;
    ShoveBoxTexts boxes;
    OpponentOdds odds;
  };
  const OpponentOdds none = {"N/A", "N/A"};
  const std::vector<Case> cases = {
      {"two decimals", {"15", "5", "100"}, {"1.2 : 1", "45.45%"}},
      {"empty boxes count as 0", {"", "", "50"}, {"1 : 1", "50%"}},
      {"no call of the opponent's", {"100", "50", ""}, none},
      {"a sum that is not worked out has the value 0", {"100", "50", "=100"}, none},
      {"dollar signs do not count", {"$100", "$0", "$50"}, {"3 : 1", "25%"}},
      {"what follows the number does not count", {"100 dollars", "0", "50 or so"}, {"3 : 1", "25%"}},
      {"a negative call of the opponent's is taken as it is", {"100", "0", "-40"}, {"-1.5 : 1", "-200%"}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(OddsOfBoxes(c.boxes), c.odds) << c.rule;
    EXPECT_EQ(OddsOfRestoredBoxes(c.boxes), c.odds) << c.rule;
  }
}

TEST(OddsOfRestoredBoxes, AreNotToldWhereTheyWouldFail) {
  struct Case {
    const char* rule;
    ShoveBoxTexts boxes;
  };
  const std::vector<Case> cases = {
      {"odds of minus one", {"40", "", "-20"}},
      {"a quotient that overflows", {"1e308", "", "1e-10"}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(OddsOfRestoredBoxes(c.boxes), (OpponentOdds{"N/A", "N/A"})) << c.rule;
  EXPECT_EQ(FaultOf([] { return OddsOfBoxes({"100", "0", "-50"}); }), RunTimeFault::kDivisionByZero);
}

}  // namespace
}  // namespace quillon
