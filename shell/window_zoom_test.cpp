#include "shell/window_zoom.h"

#include <array>
#include <gtest/gtest.h>

#include "shell/settings_file.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

TEST(WindowZoom, GoesFromStepToStepAndEndsAtTheLast) {
  for (std::size_t i = 1; i < kZoomSteps.size(); ++i) {
    EXPECT_EQ(SmallerZoom(kZoomSteps.at(i)), kZoomSteps.at(i - 1));
    EXPECT_EQ(LargerZoom(kZoomSteps.at(i - 1)), kZoomSteps.at(i));
  }
  EXPECT_EQ(SmallerZoom(75), 75);
  EXPECT_EQ(LargerZoom(300), 300);
}

TEST(WindowZoom, IsTheLargestUpToTheDesignsAtWhichTheFramedWindowFits) {
  struct Row {
    const char* Rule;
    TwipSize Screen;
    int Percent;
  };
  constexpr TwipSize kWindow = {.Width = 15000, .Height = 9000};
  constexpr std::array kRows = {
      Row{"much room is not used up", {60000, 60000}, 100},
      Row{"an exact fit is one", {15060, 9600}, 100},
      Row{"too narrow", {15059, 9600}, 90},
      Row{"too low", {15060, 9599}, 90},
      Row{"an exact fit at a smaller step", {13560, 8700}, 90},
      Row{"just below it", {13559, 8700}, 75},
      Row{"where it never fits it is as small as it gets", {1000, 1000}, 75},
  };
  for (const Row& row : kRows)
    EXPECT_EQ(FittingZoom(kWindow, row.Screen), row.Percent) << row.Rule;
}

TEST(WindowZoom, IsKeptAsAStepAndNothingElse) {
  struct Row {
    const char* Text;
    std::optional<int> Percent;
  };
  constexpr std::array kRows = {Row{"75", 75},           Row{"300", 300},         Row{"", std::nullopt},
                                Row{"80", std::nullopt}, Row{"x", std::nullopt},  Row{"-100", std::nullopt},
                                Row{"0", std::nullopt},  Row{"1e2", std::nullopt}};
  const TemporaryProgram program;
  EXPECT_EQ(StoredZoom(program.Folder()), std::nullopt) << "nothing is stored yet";
  for (const Row& row : kRows) {
    WriteIniValue("View", "Zoom", row.Text, program.Folder());
    EXPECT_EQ(StoredZoom(program.Folder()), row.Percent) << row.Text;
  }
  for (const int percent : kZoomSteps) {
    StoreZoom(percent, program.Folder());
    EXPECT_EQ(StoredZoom(program.Folder()), percent);
  }
}

}  // namespace
}  // namespace quillon
