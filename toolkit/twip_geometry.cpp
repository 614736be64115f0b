#include "toolkit/twip_geometry.h"

#include <cmath>

namespace quillon {

int PixelEdge(float twips) {
  return static_cast<int>(std::floor(twips / kTwipsPerPixel + 0.5F));
}

QRect PixelPlace(const TwipRect& place) {
  const QPoint upperLeft{PixelEdge(place.Left), PixelEdge(place.Top)};
  const int right = PixelEdge(place.Left + place.Width);
  const int bottom = PixelEdge(place.Top + place.Height);
  return {upperLeft, QSize(right - upperLeft.x(), bottom - upperLeft.y())};
}

TwipRect TwipsOf(const QRect& pixels) {
  const auto twips = [](int edge) { return static_cast<float>(edge) * kTwipsPerPixel; };
  return {twips(pixels.left()), twips(pixels.top()), twips(pixels.width()), twips(pixels.height())};
}

}  // namespace quillon
