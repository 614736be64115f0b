#include "support/rgb.h"

#include <gtest/gtest.h>
#include <vector>

namespace quillon {
namespace {

constexpr Rgb kBlack = {0, 0, 0};
constexpr Rgb kWhite = {255, 255, 255};

TEST(ContrastRatio, IsThatOfTheGuidelines) {
  struct Case {
    Rgb one;
    Rgb other;
    double ratio;
  };
  for (const Case& c : std::vector<Case>{{kBlack, kWhite, 21},
                                         {kWhite, kBlack, 21},
                                         {{119, 119, 119}, kWhite, 4.478},
                                         {{10, 10, 10}, kBlack, 1.0607}})
    EXPECT_NEAR(ContrastRatio(c.one, c.other), c.ratio, 0.0005);
}

TEST(ReadableOn, ContrastsWithAnyGround) {
  constexpr int kStep = 15;
  for (int red = 0; red <= 255; red += kStep) {
    for (int green = 0; green <= 255; green += kStep) {
      for (int blue = 0; blue <= 255; blue += kStep) {
        const Rgb ground = MakeRgb(red, green, blue);
        const Rgb text = ReadableOn(ground);
        ASSERT_TRUE(text == kBlack || text == kWhite);
        ASSERT_GE(ContrastRatio(ground, text), 4.5) << ColorText(ground);
      }
    }
  }
}

}  // namespace
}  // namespace quillon
