#include "support/line_ends.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(UnixLineEnds, AreSingleLineFeeds) {
  EXPECT_EQ(UnixLineEnds("Hand\tCombs"), "Hand\tCombs");
  EXPECT_EQ(UnixLineEnds("Situation\rType\r\nb\n"), "Situation\nType\nb\n");
  EXPECT_EQ(UnixLineEnds("Hand\r\n\r"), "Hand\n\n") << "a pair before a lone return is two line ends";
  EXPECT_EQ(UnixLineEnds("\r\r\n\n\r"), "\n\n\n\n") << "a return or feed before a pair is a line end of its own";
}

}  // namespace
}  // namespace quillon
