#include "shell/window_zoom.h"

#include <array>
#include <gtest/gtest.h>

#include "shell/settings_file.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

TEST(WindowZoom, GoesFromStepToStepAndEndsAtTheLast) {
  struct Row {
    int Percent;
    int Smaller;
    int Larger;
  };
  constexpr std::array kRows = {
      Row{75, 75, 90},    Row{90, 75, 100},   Row{100, 90, 110},  Row{110, 100, 125}, Row{125, 110, 150},
      Row{150, 125, 175}, Row{175, 150, 200}, Row{200, 175, 250}, Row{250, 200, 300}, Row{300, 250, 300},
  };
  static_assert(kRows.size() == kZoomSteps.size());
  for (const Row& row : kRows) {
    EXPECT_EQ(SmallerZoom(row.Percent), row.Smaller) << row.Percent;
    EXPECT_EQ(LargerZoom(row.Percent), row.Larger) << row.Percent;
  }
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

TEST(WindowZoom, FitsTheMainWindowOnUsualScreens) {
  struct Row {
    float Width;
    float Height;
    float DesktopScale;
    int Percent;
  };
  constexpr std::array kRows = {
      Row{3840, 2160, 1, 100},    Row{3840, 2160, 2, 100}, Row{1920, 1080, 1, 100},
      Row{1920, 1080, 1.5F, 100}, Row{1920, 1080, 2, 75},  Row{1366, 768, 1, 100},
      Row{1280, 720, 1, 100},     Row{1024, 600, 1, 90},   Row{800, 600, 1, 75},
  };
  constexpr TwipSize kMainWindow = {.Width = 15300, .Height = 9045};
  for (const Row& row : kRows) {
    const float twips = kTwipsPerPixel / row.DesktopScale;
    EXPECT_EQ(FittingZoom(kMainWindow, {.Width = row.Width * twips, .Height = row.Height * twips}), row.Percent)
        << row.Width << " by " << row.Height << " at " << row.DesktopScale;
  }
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
  EXPECT_EQ(StoredZoom(program.Folder()), std::nullopt) << "nothing is kept yet";
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
