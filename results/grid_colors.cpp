#include "results/grid_colors.h"

#include <algorithm>
#include <cmath>

#include "support/rounding.h"

namespace quillon {
namespace {

constexpr double kStep = 0.05;

double WholeSteps(double fraction) {
  return std::floor(fraction / kStep) * kStep;
}

}  // namespace

Rgb EVColor(double fraction, std::string_view sign) {
  constexpr double kRampLength = 335;
  constexpr double kDarkest = 120;
  constexpr int kFull = 255;

  const double paleness = 1.0 - WholeSteps(fraction);
  const double place = kRampLength * paleness + kDarkest;
  const int shade = RoundToInt16(place < 0 ? kDarkest : place);
  const int main = std::min(shade, kFull);
  const int other = std::max(shade - kFull, 0);
  return sign == "+" ? MakeRgb(other, main, other) : MakeRgb(main, other, other);
}

Rgb EquityColor(double fraction) {
  constexpr double kScaleEnd = 0.75;
  constexpr int kFullBlue = 128;

  const int depth = RoundToInt16(std::min(WholeSteps(fraction), kScaleEnd) * 255.0);
  if (depth <= kFullBlue) return MakeRgb((kFullBlue - depth) * 2, 256 - depth, 255);
  return MakeRgb(0, 256 - depth, 255 - (depth - kFullBlue) * 2);
}

}  // namespace quillon
