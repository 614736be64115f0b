#include "results/web_addresses.h"

#include <gtest/gtest.h>
#include <string_view>

namespace quillon {
namespace {

TEST(WebAddresses, AreBelowTheHomePageOnTheHost) {
  EXPECT_FALSE(WebHost().empty());
  EXPECT_EQ(WebHost().find_first_of("/ ?#"), std::string_view::npos);
  EXPECT_EQ(VersionFileAddress(), "http://" QUILLON_WEB_HOST "/quillon/register/ver.html");
  EXPECT_EQ(DownloadAddress(), "http://" QUILLON_WEB_HOST "/quillon/download.html");
  EXPECT_EQ(FeedbackScriptAddress(), "http://" QUILLON_WEB_HOST "/quillon/register/benice.php");
}

}  // namespace
}  // namespace quillon
