#include "results/web_addresses.h"

#include <gtest/gtest.h>
#include <string>

namespace quillon {
namespace {

TEST(WebAddresses, TheHostIsAHostAndNothingElse) {
  EXPECT_FALSE(WebHost().empty());
  EXPECT_EQ(WebHost().find_first_of("/ ?#"), std::string_view::npos);
}

TEST(WebAddresses, TheHomePageIsAFolderOnTheHost) {
  EXPECT_EQ(HomeAddress(), "http://" + std::string(WebHost()) + "/quillon/");
}

}  // namespace
}  // namespace quillon
