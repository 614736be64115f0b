#include <gtest/gtest.h>
#include <string>

#include "support/fixed_text.h"
#include "support/joined_text.h"
#include "support/rgb.h"

namespace quillon {
namespace {

TEST(Joined, PutsItsPartsOneBehindTheOther) {
  EXPECT_EQ(Joined({}), "");
  EXPECT_EQ(Joined({"AA", "", "\t", std::string(40, '6'), "x"}), "AA\t" + std::string(40, '6') + "x");
  EXPECT_EQ(Joined({std::string_view("a\0b", 3), "c"}), std::string("a\0bc", 4));
}

TEST(FixedText, HoldsWhatFitsAndDropsTheRest) {
  static_assert(FixedText<3>("AKs") == "AKs" && FixedText<3>().View().empty());
  EXPECT_EQ(FixedText<3>("AKsuited").View(), "AKs");
}

TEST(FixedText, ComparesByContent) {
  const FixedText<3> text("AK");
  EXPECT_TRUE(text == FixedText<3>("AK"));
  EXPECT_FALSE(text == FixedText<3>("AKs"));
  EXPECT_FALSE(text == FixedText<3>("AQ"));
  EXPECT_TRUE(text == "AK");
}

TEST(Rgb, ComponentsEndAtNothingAndAtFull) {
  EXPECT_EQ(MakeRgb(256, 255, 1000), (Rgb{255, 255, 255}));
  EXPECT_EQ(MakeRgb(-1, 36, -1000), (Rgb{0, 36, 0}));
}

TEST(ColorText, IsSixLowerCaseHexadecimalDigits) {
  EXPECT_EQ(ColorText({200, 255, 200}), "#c8ffc8");
  EXPECT_EQ(ColorText({1, 35, 69}), "#012345");
  EXPECT_EQ(ColorText({171, 205, 239}), "#abcdef");
}

}  // namespace
}  // namespace quillon
