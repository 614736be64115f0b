#include "shell/window_place.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "shell/settings_file.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

// A window of the main window's size on a screen of 1920 by 1080 pixels.
constexpr TwipSize kWindow = {.Width = 15300, .Height = 9045};
constexpr TwipSize kScreen = {.Width = 28800, .Height = 16200};
constexpr TwipPoint kCentered = {.Left = 6750, .Top = 3577.5F};

TEST(CenteredCorner, PutsTheWindowIntoTheMiddleOfTheScreen) {
  EXPECT_EQ(CenteredCorner(kWindow, kScreen), kCentered);
  EXPECT_EQ(CenteredCorner(kWindow, {12000, 9000}), (TwipPoint{-1650, -22.5F})) << "that of a larger one is outside";
}

TEST(StoredCorner, IsWhereTheWindowWas) {
  struct Case {
    const char* rule;
    std::string leftText;
    std::string topText;
    TwipPoint corner;
  };
  const std::vector<Case> cases = {
      {"a position with a fraction", "1507.5", "0.25", {1507.5F, 0.25F}},
      {"nothing stored", "", "", kCentered},
      {"half a position, no top", "1500", "", kCentered},
      {"half a position, no left", "", "750", kCentered},
      {"a negative left", "-5", "100", {0, 100}},
      {"the screen's width and height", "28800", "16200", {28800, 16200}},
      {"more than the screen's width", "28801", "16200", {0, 16200}},
      {"more than the screen's height", "28800", "16200.5", {28800, 0}},
      {"beyond any number", "1e999", "-1e999", {0, 0}},
      {"no numbers", "left", "top", {0, 0}},
      {"the leading number counts", "1500 twips", "750,5", {1500, 750}},
  };
  const TemporaryProgram program;
  for (const Case& c : cases) {
    WriteIniValue("Manager", "Left", c.leftText, program.Folder());
    WriteIniValue("Manager", "Top", c.topText, program.Folder());
    EXPECT_EQ(StoredCorner("Manager", kWindow, kScreen, program.Folder()), c.corner) << c.rule;
  }
  EXPECT_EQ(StoredCorner(kMainSection, kWindow, kScreen, program.Folder()), kCentered) << "another window's";
  WriteIniValues(PlaceSettings(kMainSection, {857.142857F, -67.5F}), program.Folder());
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "857.1429");
  EXPECT_EQ(ReadIniValue("Main", "Top", program.Folder()), "-67.5");
}

TEST(StoredSize, IsWhatTheWindowHad) {
  constexpr TwipSize kLeast = {12000, 9000};
  constexpr TwipSize kOtherwise = {14000, 10000};
  struct Case {
    const char* rule;
    std::string width;
    std::string height;
    TwipSize size;
  };
  const std::vector<Case> cases = {
      {"a size", "15000", "9150.5", {15000, 9150.5F}},
      {"nothing stored", "", "", kOtherwise},
      {"no height", "15000", "", kOtherwise},
      {"no width", "", "9500", kOtherwise},
      {"less than the least", "100", "-5", kLeast},
      {"no numbers", "wide", "high", kLeast},
      {"beyond any screen", "1e999", "150001", {kMostWindowLength, kMostWindowLength}},
  };
  const TemporaryProgram program;
  for (const Case& c : cases) {
    WriteIniValue("Study", "Width", c.width, program.Folder());
    WriteIniValue("Study", "Height", c.height, program.Folder());
    EXPECT_EQ(StoredSize("Study", kLeast, kOtherwise, program.Folder()), c.size) << c.rule;
  }
  WriteIniValues(SizeSettings("Study", {15000, 9150.5F}), program.Folder());
  EXPECT_EQ(StoredSize("Study", kLeast, kOtherwise, program.Folder()), (TwipSize{15000, 9150.5F}));
}

}  // namespace
}  // namespace quillon
