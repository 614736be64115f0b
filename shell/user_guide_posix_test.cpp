#include <gtest/gtest.h>

#include "shell/user_guide.h"

namespace quillon {
namespace {

TEST(UserGuide, IsNamedAsTextWhereItsPathIsNotUtf8) {
  EXPECT_EQ(NoUserGuideMessage("/K\xE4se/guide.html").text,
            "The user guide could not be opened. It is the file:\r\n\r\n/K\xC3\xA4se/guide.html");
}

}  // namespace
}  // namespace quillon
