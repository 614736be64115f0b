#include "shell/navigation.h"

#include <gtest/gtest.h>
#include <ostream>
#include <vector>

namespace quillon {

std::ostream& operator<<(std::ostream& stream, const LinkLook& look) {
  return stream << ColorText(look.Color) << (look.Underlined ? " underlined" : "");
}

namespace {

constexpr Rgb kBlack = {0, 0, 0};
constexpr Rgb kGray = {0x40, 0x40, 0x40};
constexpr Rgb kWhite = {255, 255, 255};
constexpr Rgb kPaleYellow = {255, 255, 0xC0};
constexpr Rgb kPaleGreen = {0xCD, 0xFA, 0xED};

TEST(RestingLink, HasItsOwnColourAndAnUnderlineWhereItIsSelected) {
  for (std::int16_t index = 0; index < 3; ++index) {
    EXPECT_EQ(RestingLink(index, false), (LinkLook{kWhite, false})) << index;
    EXPECT_EQ(RestingLink(index, true), (LinkLook{kBlack, true})) << index;
  }
  for (std::int16_t index = 3; index < 5; ++index) {
    EXPECT_EQ(RestingLink(index, false), (LinkLook{kPaleYellow, false})) << index;
    EXPECT_EQ(RestingLink(index, true), (LinkLook{kGray, true})) << index;
  }
}

TEST(HoveredLink, FollowsFromTheLookBefore) {
  struct Case {
    const char* rule;
    LinkLook before;
    bool selected;
    LinkLook after;
  };
  const std::vector<Case> cases = {
      {"a link is underlined in pale green", {kWhite, false}, false, {kPaleGreen, true}},
      {"once only", {kPaleGreen, true}, false, {kPaleGreen, true}},
      {"one that is underlined keeps its colour", {kBlack, true}, false, {kBlack, true}},
      {"the selected link turns black", {kGray, true}, true, {kBlack, true}},
      {"and is not underlined after the logo", {kWhite, false}, true, {kBlack, false}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(HoveredLink(c.before, c.selected), c.after) << c.rule;
}

TEST(ScreenPlace, FillsTheWindowBesideThePanel) {
  const TwipRect panel = {0, 1440, 3300, 9000};
  EXPECT_EQ(ScreenPlace(panel, 15300), (TwipRect{3300, 0, 12000, 8645}));
  EXPECT_EQ(ScreenPlace(panel, 9300), (TwipRect{3300, 0, 6000, 8645})) << "up to the right edge";
}

TEST(SelectionBarPlace, IsBehindTheLinkAndIntoTheScreen) {
  EXPECT_EQ(SelectionBarPlace(2160, 3300), (TwipRect{-10, 2080, 3330, 475}));
}

}  // namespace
}  // namespace quillon
