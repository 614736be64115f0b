#include "toolkit/twip_geometry.h"

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

double& ScaleInUse() {
  static double scale = 1;
  return scale;
}

}  // namespace

double PixelScale() {
  return ScaleInUse();
}

void SetPixelScale(double scale) {
  ScaleInUse() = scale;
}

double TwipsPerPixel() {
  return static_cast<double>(kTwipsPerPixel) / PixelScale();
}

int PixelEdge(float twips) {
  return static_cast<int>(std::floor(static_cast<double>(twips) / TwipsPerPixel() + 0.5));
}

QRect PixelPlace(const TwipRect& place) {
  const QPoint upperLeft{PixelEdge(place.Left), PixelEdge(place.Top)};
  const int right = PixelEdge(place.Left + place.Width);
  const int bottom = PixelEdge(place.Top + place.Height);
  return {upperLeft, QSize(right - upperLeft.x(), bottom - upperLeft.y())};
}

TwipRect TwipsOf(const QRect& pixels) {
  const auto twips = [](int edge) { return static_cast<float>(edge * TwipsPerPixel()); };
  return {twips(pixels.left()), twips(pixels.top()), twips(pixels.width()), twips(pixels.height())};
}

int LinePixels(int width) {
  return std::max(1, static_cast<int>(std::lround(width * PixelScale())));
}

}  // namespace quillon
