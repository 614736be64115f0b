#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <string>

#include "support/fixed_text.h"
#include "support/joined_text.h"
#include "support/rgb.h"

namespace quillon {
namespace {

TEST(Joined, PutsItsPartsOneBehindTheOther) {
  EXPECT_EQ(Joined({}), "");
  EXPECT_EQ(Joined({""}), "");
  EXPECT_EQ(Joined({"AA", "", "\t", std::string(40, '6'), "x"}), "AA\t" + std::string(40, '6') + "x");
  EXPECT_EQ(Joined({std::string_view("a\0b", 3), "c"}), std::string("a\0bc", 4));
}

TEST(FixedText, StartsEmpty) {
  EXPECT_EQ(FixedText<3>().View(), "");
  EXPECT_EQ(FixedText<3>(), FixedText<3>(""));
}

TEST(FixedText, HoldsWhatFitsAndDropsTheRest) {
  EXPECT_EQ(FixedText<3>("A").View(), "A");
  EXPECT_EQ(FixedText<3>("AKs").View(), "AKs");
  EXPECT_EQ(FixedText<3>("AKsuited").View(), "AKs");
  EXPECT_EQ(FixedText<3>(std::string_view("A\0s", 3)).View(), std::string_view("A\0s", 3));
}

TEST(FixedText, AppendStopsAtTheCapacity) {
  FixedText<2> text;
  text.Append('A');
  EXPECT_EQ(text.View(), "A");
  text.Append('s');
  EXPECT_EQ(text.View(), "As");
  text.Append('!');
  EXPECT_EQ(text.View(), "As");
}

TEST(FixedText, ComparesByContent) {
  const FixedText<3> text("AK");
  EXPECT_TRUE(text == FixedText<3>("AK"));
  EXPECT_FALSE(text == FixedText<3>("AKs"));
  EXPECT_FALSE(text == FixedText<3>("AQ"));
  EXPECT_TRUE(text == std::string_view("AK"));
  EXPECT_TRUE(text == "AK");
  EXPECT_FALSE(text == "ak");
}

TEST(FixedText, ReadsAsAnyText) {
  const FixedText<5> cards("As Ac");
  const std::string_view view = cards;
  EXPECT_EQ(view, "As Ac");
  EXPECT_EQ(cards.View(), "As Ac");
  std::ostringstream stream;
  stream << cards;
  EXPECT_EQ(stream.str(), "As Ac");
}

TEST(FixedText, IsKnownWhenCompiled) {
  static_assert(FixedText<3>("AKs") == "AKs");
  static_assert(FixedText<2>("AKs").View().size() == 2);
  static_assert(FixedText<2>().View().empty());
}

TEST(Rgb, ComponentsEndAtNothingAndAtFull) {
  EXPECT_EQ(MakeRgb(10, 36, 106), (Rgb{10, 36, 106}));
  EXPECT_EQ(MakeRgb(0, 255, 128), (Rgb{0, 255, 128}));
  EXPECT_EQ(MakeRgb(256, 255, 1000), (Rgb{255, 255, 255}));
  EXPECT_EQ(MakeRgb(-1, 0, -1000), (Rgb{0, 0, 0}));
  EXPECT_EQ(MakeRgb(std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), 7), (Rgb{255, 0, 7}));
}

TEST(Rgb, TwoColoursAreTheSameInAllThreeComponents) {
  const Rgb color{1, 2, 3};
  EXPECT_EQ(color, (Rgb{1, 2, 3}));
  EXPECT_NE(color, (Rgb{0, 2, 3}));
  EXPECT_NE(color, (Rgb{1, 0, 3}));
  EXPECT_NE(color, (Rgb{1, 2, 0}));
}

TEST(ColorText, IsSixLowerCaseHexadecimalDigits) {
  EXPECT_EQ(ColorText({200, 255, 200}), "#c8ffc8");
  EXPECT_EQ(ColorText({0, 0, 0}), "#000000");
  EXPECT_EQ(ColorText({1, 35, 69}), "#012345");
  EXPECT_EQ(ColorText({171, 205, 239}), "#abcdef");
}

}  // namespace
}  // namespace quillon
