#include "toolkit/twip_geometry.h"

#include <array>
#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(TwipGeometry, EdgesGoToTheNearestPixel) {
  struct Row {
    float Twips;
    int Pixel;
  };
  constexpr std::array kRows = {
      Row{0, 0},        Row{15, 1}, Row{7, 0},     Row{7.5F, 1}, Row{8, 1},    Row{22, 1},      Row{22.5F, 2},
      Row{15300, 1020}, Row{-7, 0}, Row{-7.5F, 0}, Row{-8, -1},  Row{-15, -1}, Row{-22.5F, -1}, Row{-23, -2},
  };
  for (const Row& row : kRows)
    EXPECT_EQ(PixelEdge(row.Twips), row.Pixel) << row.Twips;
}

TEST(TwipGeometry, NeighboursMeetWhereverTheyStand) {
  for (int left = -40; left < 40; ++left) {
    for (int width = 0; width < 40; ++width) {
      const auto start = static_cast<float>(left);
      const auto extent = static_cast<float>(width);
      const QRect first = PixelPlace({start, start, extent, extent});
      const QRect second = PixelPlace({start + extent, start + extent, 100, 100});
      EXPECT_EQ(first.left() + first.width(), second.left()) << left << " " << width;
      EXPECT_EQ(first.top() + first.height(), second.top()) << left << " " << width;
    }
  }
}

TEST(TwipGeometry, SizesAreThoseBetweenTheEdges) {
  EXPECT_EQ(PixelPlace({3300, 0, 12000, 9045}), QRect(220, 0, 800, 603));
  EXPECT_EQ(PixelPlace({7, 7, 15, 16}), QRect(0, 0, 1, 2));
  EXPECT_EQ(PixelPlace({240, 120, 0, 0}), QRect(16, 8, 0, 0));
}

TEST(TwipGeometry, PixelsComeBackAsTheSamePixels) {
  const QRect pixels(16, 12, 409, 521);

  EXPECT_EQ(TwipsOf(pixels), (TwipRect{240, 180, 6135, 7815}));
  EXPECT_EQ(PixelPlace(TwipsOf(pixels)), pixels);
}

}  // namespace
}  // namespace quillon
