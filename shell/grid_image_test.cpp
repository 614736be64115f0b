#include "shell/grid_image.h"

#include <gtest/gtest.h>
#include <vector>

namespace quillon {
namespace {

TEST(CaptureRectOf, RoundsEachEdgeToAWholeTwip) {
  struct Case {
    const char* rule;
    TwipRect rect;
    CaptureRect edges;
  };
  const std::vector<Case> cases = {
      {"the grid", {240, 180, 6135, 7815}, {240, 180, 6375, 7995}},
      {"ties go to even", {0.5F, 1.5F, 2, 2}, {0, 2, 2, 4}},
      {"the sum is rounded, not its parts", {0.4F, 0.4F, 0.4F, 0.2F}, {0, 0, 1, 1}},
      {"left of its container", {-240, -0.5F, 100, 100}, {-240, 0, -140, 100}},
      {"nothing", {}, {}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(CaptureRectOf(c.rect), c.edges) << c.rule;
}

TEST(PixelsOf, RoundsCornerAndSizeEachOnItsOwn) {
  const CaptureRect grid = {240, 180, 6375, 7995};
  EXPECT_EQ(PixelsOf(grid, 15, 15), (PixelRect{16, 12, 409, 521}));
  EXPECT_EQ(PixelsOf(grid, 12, 12), (PixelRect{20, 15, 511, 651})) << "511.25 and 651.25";
  EXPECT_EQ(PixelsOf(grid, 7.5, 7.5), (PixelRect{32, 24, 818, 1042}));
  EXPECT_EQ(PixelsOf(grid, 15, 12), (PixelRect{16, 15, 409, 651})) << "each direction has its own";
  EXPECT_EQ(PixelsOf({0, 0, 15, 45}, 10, 10), (PixelRect{0, 0, 2, 4})) << "ties go to even";
}

}  // namespace
}  // namespace quillon
