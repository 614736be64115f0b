#include "results/grid_colors.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace quillon {
namespace {

struct WinCase {
  const char* rule;
  double fraction;
  int mainChannel;
  int otherChannel;
};

const std::vector<WinCase> kWinCases = {
    {"nothing won has the palest shade", 0, 255, 200},
    {"0.05 is the second step", 0.05, 255, 183},
    {"0.15 divides to a little below 3 and stays in the step of 0.10", 0.15, 255, 167},
    {"half of the best is a tie that rounds to even", 0.50, 255, 33},
    {"below 255 the other channels are gone", 0.75, 204, 0},
    {"the best is the darkest of the scale", 1.00, 120, 0},
    {"the darkest step holds up to 1.05", 1.0499, 120, 0},
    {"1.05 is darker than the scale", 1.05, 103, 0},
    {"1.35 is the last step above black", 1.35, 3, 0},
    {"1.41 would be below black and has the shade of 1", 1.41, 120, 0},
    {"no fraction is too large", std::numeric_limits<double>::infinity(), 120, 0},
    {"below zero the ramp goes on to white", -1, 255, 255},
};

std::string NameOf(Rgb color) {
  return std::to_string(color.Red) + ", " + std::to_string(color.Green) + ", " + std::to_string(color.Blue);
}

TEST(EVColor, WinsAreShadesOfGreenAndLossesTheSameOfRed) {
  for (const WinCase& c : kWinCases) {
    EXPECT_EQ(NameOf(EVColor(c.fraction, "+")), NameOf(MakeRgb(c.otherChannel, c.mainChannel, c.otherChannel)))
        << c.rule;
    EXPECT_EQ(NameOf(EVColor(c.fraction, "-")), NameOf(MakeRgb(c.mainChannel, c.otherChannel, c.otherChannel)))
        << c.rule;
  }
}

TEST(EVColor, AnySignButPlusIsALoss) {
  for (const char* sign : {"", "-", "*", "++", " +"})
    EXPECT_EQ(NameOf(EVColor(1, sign)), "120, 0, 0") << sign;
}

TEST(EquityColor, RunsFromWhiteThroughFullBlueToDarkBlue) {
  struct Case {
    const char* rule;
    double fraction;
    const char* color;
  };
  const std::vector<Case> cases = {
      {"256 counts as 255, so nothing is white", 0, "255, 255, 255"},
      {"the step of 0 holds up to 0.05", 0.0499, "255, 255, 255"},
      {"0.05 is 13 steps of 255", 0.05, "230, 243, 255"},
      {"a quarter", 0.25, "128, 192, 255"},
      {"127.5 is a tie that rounds to 128", 0.5, "0, 128, 255"},
      {"beyond the half blue darkens too", 0.55, "0, 116, 231"},
      {"three quarters end the scale", 0.75, "0, 65, 129"},
      {"above three quarters nothing changes", 0.9, "0, 65, 129"},
      {"a fraction without end", std::numeric_limits<double>::infinity(), "0, 65, 129"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(NameOf(EquityColor(c.fraction)), c.color) << c.rule;
}

}  // namespace
}  // namespace quillon
