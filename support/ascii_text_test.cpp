#include "support/ascii_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(AsciiLower, TouchesLettersAlone) {
  EXPECT_EQ(AsciiLower("AZaz09@[`{\xC4"), "azaz09@[`{\xC4");
}

TEST(EqualButForCase, LooksAtLengthToo) {
  EXPECT_TRUE(EqualButForCase("Content-Length", "content-LENGTH"));
  EXPECT_TRUE(EqualButForCase("", ""));
  EXPECT_FALSE(EqualButForCase("Left", "Lef"));
  EXPECT_FALSE(EqualButForCase("[", "{"));
}

TEST(Trimmed, TakesTheNamedBlanksOffBothEnds) {
  EXPECT_EQ(Trimmed(" \ta b\t ", " \t"), "a b");
  EXPECT_EQ(Trimmed("\ra\r", " "), "\ra\r");
  EXPECT_EQ(Trimmed("  ", " "), "");
}

TEST(Trimmed, StaysAViewIntoTheText) {
  const std::string_view text = "  ";
  EXPECT_EQ(Trimmed(text, " ").data(), text.data());
}

}  // namespace
}  // namespace quillon
