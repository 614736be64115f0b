#include "ranges/nearest_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string_view>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(EditDistance, CountsWhatIsPutInTakenOutOrChanged) {
  struct Case {
    const char* rule;
    std::string_view from;
    std::string_view to;
    std::size_t distance;
  };
  for (const Case& c : {
           Case{"the same", "Tight", "Tight", 0},
           Case{"another case", "TIGHT open", "Tight Open", 0},
           Case{"nothing and nothing", "", "", 0},
           Case{"all put in", "", "Tight", 5},
           Case{"one put in", "Tigt", "Tight", 1},
           Case{"one put in first", "ight", "Tight", 1},
           Case{"one taken out", "Tightt", "Tight", 1},
           Case{"one changed", "Tigbt", "Tight", 1},
           Case{"two turned around", "Tihgt", "Tight", 2},
           Case{"all of three kinds", "kitten", "sitting", 3},
           Case{"nothing in common", "abc", "xyz", 3},
       }) {
    EXPECT_EQ(EditDistance(c.from, c.to), c.distance) << c.rule;
    EXPECT_EQ(EditDistance(c.to, c.from), c.distance) << c.rule;
  }
}

TEST(NearestNames, AreTheNearestFirst) {
  EXPECT_THAT(NearestNames("Tihgt", {"Everything", "Loose", "Tight", "Light"}, 3),
              ElementsAre("Tight", "Light", "Loose"));
  EXPECT_THAT(NearestNames("x", {"b", "a", "c"}, 2), ElementsAre("b", "a")) << "ties in the given order";
  EXPECT_THAT(NearestNames("x", {"a"}, 3), ElementsAre("a")) << "all if there are fewer";
  EXPECT_THAT(NearestNames("x", {}, 3), IsEmpty());
}

}  // namespace
}  // namespace quillon
