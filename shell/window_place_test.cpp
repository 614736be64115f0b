#include "shell/window_place.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "shell/settings_file.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

// A window of the main window's size on a screen of 1920 by 1080 pixels.
class StandingWindow final : public PlacedWindow {
 public:
  TwipSize Size = {.Width = 15300, .Height = 9045};
  TwipSize Screen = {.Width = 28800, .Height = 16200};
  float Left = 1;
  float Top = 2;

  [[nodiscard]] TwipSize WindowSize() const override { return Size; }
  [[nodiscard]] TwipSize ScreenSize() const override { return Screen; }
  [[nodiscard]] float WindowLeft() const override { return Left; }
  [[nodiscard]] float WindowTop() const override { return Top; }
  void MoveWindow(float left, float top) override {
    Left = left;
    Top = top;
  }
};

constexpr float kCenteredLeft = 6750;
constexpr float kCenteredTop = 3577.5F;

TEST(CenterWindow, PutsItIntoTheMiddleOfTheScreen) {
  StandingWindow window;
  CenterWindow(window);
  EXPECT_EQ(window.Left, kCenteredLeft);
  EXPECT_EQ(window.Top, kCenteredTop);
}

TEST(CenterWindow, CornerOfALargeWindowLiesOutside) {
  StandingWindow window;
  window.Screen = {.Width = 12000, .Height = 9000};
  CenterWindow(window);
  EXPECT_EQ(window.Left, -1650);
  EXPECT_EQ(window.Top, -22.5F);
}

TEST(RestoreWindowPosition, PutsTheWindowWhereItStood) {
  struct Case {
    const char* rule;
    std::string leftText;
    std::string topText;
    float left;
    float top;
  };
  const std::vector<Case> cases = {
      {"a position", "1500", "750", 1500, 750},
      {"a position with a fraction", "1507.5", "0.25", 1507.5F, 0.25F},
      {"nothing stored", "", "", kCenteredLeft, kCenteredTop},
      {"half a position, no top", "1500", "", kCenteredLeft, kCenteredTop},
      {"half a position, no left", "", "750", kCenteredLeft, kCenteredTop},
      {"a negative left", "-5", "100", 0, 100},
      {"a negative top", "100", "-0.1", 100, 0},
      {"the screen's width and height", "28800", "16200", 28800, 16200},
      {"more than the screen's width", "28801", "16200", 0, 16200},
      {"more than the screen's height", "28800", "16200.5", 28800, 0},
      {"both outside", "-1", "99999", 0, 0},
      {"beyond any number", "1e999", "-1e999", 0, 0},
      {"no numbers", "left", "top", 0, 0},
      {"the leading number counts", "1500 twips", "750,5", 1500, 750},
  };
  const TemporaryProgram program;
  for (const Case& c : cases) {
    WriteIniValue("Manager", "Left", c.leftText, program.Folder());
    WriteIniValue("Manager", "Top", c.topText, program.Folder());
    StandingWindow window;
    RestoreWindowPosition(window, "Manager", program.Folder());
    EXPECT_EQ(window.Left, c.left) << c.rule;
    EXPECT_EQ(window.Top, c.top) << c.rule;
  }
}

TEST(RestoreWindowPosition, LooksAtTheWindowsOwnSection) {
  const TemporaryProgram program;
  StandingWindow window;
  window.Left = 300;
  window.Top = 450;
  SaveWindowPosition(window, kNewRangeSection, program.Folder());

  RestoreWindowPosition(window, kManagerSection, program.Folder());
  EXPECT_EQ(window.Left, kCenteredLeft) << "nothing is stored there";
  RestoreWindowPosition(window, kNewRangeSection, program.Folder());
  EXPECT_EQ(window.Left, 300);
}

TEST(SaveWindowPosition, WritesNumberTexts) {
  const TemporaryProgram program;
  StandingWindow window;
  window.Left = 857.142857F;
  window.Top = -67.5F;
  SaveWindowPosition(window, kMainSection, program.Folder());
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "857.1429");
  EXPECT_EQ(ReadIniValue("Main", "Top", program.Folder()), "-67.5");
}

TEST(SaveWindowPosition, IsRestored) {
  const TemporaryProgram program;
  StandingWindow window;
  window.Left = 1515;
  window.Top = 765;
  SaveWindowPosition(window, kMainSection, program.Folder());
  StandingWindow next;
  RestoreWindowPosition(next, kMainSection, program.Folder());
  EXPECT_EQ(next.Left, 1515);
  EXPECT_EQ(next.Top, 765);
}

}  // namespace
}  // namespace quillon
