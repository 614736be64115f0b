#include "results/web_addresses.h"

#include <gtest/gtest.h>
#include <string_view>

namespace quillon {
namespace {

TEST(WebAddresses, TheHostIsAHostAndNothingElse) {
  EXPECT_FALSE(WebHost().empty());
  EXPECT_EQ(WebHost().find_first_of("/ ?#"), std::string_view::npos);
}

TEST(WebAddresses, TheHomePageIsAFolderOnTheHost) {
  EXPECT_EQ(HomeAddress(), "http://" QUILLON_WEB_HOST "/quillon/");
}

}  // namespace
}  // namespace quillon
