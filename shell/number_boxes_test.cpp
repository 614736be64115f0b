#include "shell/number_boxes.h"

#include <gtest/gtest.h>
#include <vector>

#include "support/run_time_error.h"

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
      {"zeros at the end do not show", {"100", "0", "50"}, {"3 : 1", "25%"}},
      {"two decimals", {"15", "5", "100"}, {"1.2 : 1", "45.45%"}},
      {"empty boxes count as 0", {"", "", "50"}, {"1 : 1", "50%"}},
      {"no call of the opponent's", {"100", "50", ""}, none},
      {"a call of 0", {"100", "50", "0"}, none},
      {"a sum that is not worked out has the value 0", {"100", "50", "=100"}, none},
      {"dollar signs do not count", {"$100", "$0", "$50"}, {"3 : 1", "25%"}},
      {"what follows the number does not count", {"100 dollars", "0", "50 or so"}, {"3 : 1", "25%"}},
      {"a tie goes to the even digit", {"1", "0", "8"}, {"1.12 : 1", "47.06%"}},
      {"a negative call of the opponent's is taken as it is", {"100", "0", "-40"}, {"-1.5 : 1", "-200%"}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(OddsOfBoxes(c.boxes), c.odds) << c.rule;
    EXPECT_EQ(OddsOfRestoredBoxes(c.boxes), c.odds) << c.rule;
  }
}

TEST(OddsOfBoxes, OddsOfMinusOneAreFatal) {
  try {
    static_cast<void>(OddsOfBoxes({"100", "0", "-50"}));
    FAIL() << "there is no such break-even equity";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Fault(), RunTimeFault::kDivisionByZero);
  }
}

TEST(OddsOfRestoredBoxes, AreNotToldWhereTheyWouldFail) {
  struct Case {
    const char* rule;
    ShoveBoxTexts boxes;
  };
  const std::vector<Case> cases = {
      {"no shove", {"100", "0", "abc"}},
      {"odds of minus one", {"40", "", "-20"}},
      {"a sum that overflows", {"1e308", "1e308", "1"}},
      {"a quotient that overflows", {"1e308", "", "1e-10"}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(OddsOfRestoredBoxes(c.boxes), (OpponentOdds{"N/A", "N/A"})) << c.rule;
}

}  // namespace
}  // namespace quillon
