#include "toolkit/desktop_scale.h"

#include <QGuiApplication>
#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// The only screen of the tests is called "test" and has 96 dots to the inch.
struct ScaleCase {
  const char* Factor;
  const char* ScreenFactors;
  const char* Switch;
  double Scale;
};

void Set(const char* name, const char* value) {
  if (value == nullptr) {
    qunsetenv(name);
  } else {
    qputenv(name, value);
  }
}

class DesktopScaleTest : public testing::Test {
 protected:
  void TearDown() override { SetAll({}); }
  static void SetAll(const ScaleCase& row) {
    Set("QT_SCALE_FACTOR", row.Factor);
    Set("QT_SCREEN_SCALE_FACTORS", row.ScreenFactors);
    Set("QT_ENABLE_HIGHDPI_SCALING", row.Switch);
  }
};

TEST_F(DesktopScaleTest, IsThatOfTheScreenTimesTheUsers) {
  constexpr std::array kRows = {
      ScaleCase{nullptr, nullptr, nullptr, 1},
      ScaleCase{"1.5", nullptr, nullptr, 1.5},
      ScaleCase{"2", nullptr, "0", 2},
      ScaleCase{nullptr, "test=1.25;HDMI-1=2", nullptr, 1.25},
      ScaleCase{nullptr, "HDMI-1=2;test=1.25", nullptr, 1.25},
      ScaleCase{nullptr, "HDMI-1=2", nullptr, 1},
      ScaleCase{nullptr, "2;1", nullptr, 2},
      ScaleCase{nullptr, "HDMI-1=2;1", nullptr, 1},
      ScaleCase{"1.5", "2", nullptr, 3},
      ScaleCase{"0", nullptr, nullptr, 1},
      ScaleCase{"-2", "x", nullptr, 1},
      ScaleCase{"", "", "", 1},
  };
  for (const ScaleCase& row : kRows) {
    SetAll(row);
    EXPECT_EQ(DesktopScale(QGuiApplication::primaryScreen()), row.Scale)
        << (row.Factor == nullptr ? "" : row.Factor) << (row.ScreenFactors == nullptr ? "" : row.ScreenFactors);
  }
  SetAll({nullptr, "2", nullptr, 0});
  EXPECT_EQ(DesktopScale(nullptr), 1);
}

TEST_F(DesktopScaleTest, IsKeptFromQtAndPutBack) {
  SetAll({"1.5", nullptr, "1", 0});
  {
    const QtScalingOff off;
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
    EXPECT_EQ(qgetenv("QT_ENABLE_HIGHDPI_SCALING"), "0");
  }
  EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "1.5");
  EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCREEN_SCALE_FACTORS"));
  EXPECT_EQ(qgetenv("QT_ENABLE_HIGHDPI_SCALING"), "1");
}

}  // namespace
}  // namespace quillon
