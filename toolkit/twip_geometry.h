#pragma once

// How twips become pixels. Every edge goes to the nearest pixel on its own, the right one like the left one, so that
// two controls which meet in the layout meet on the screen. The pixels are the screen's own wherever the window system
// lets them be counted ("toolkit/desktop_scale.h"), so that this rounding is the only one.
//
// How many pixels a twip has is the scale of the program, the same for all of its windows, and known here alone: at 1
// there are 15 twips to the pixel, at 2 there are 7.5. A layout stays what it is at every scale.

#include <QPoint>
#include <QRect>

#include "support/twips.h"

namespace quillon {

/// The scale of the program, 1 at first: how many pixels 15 twips have.
[[nodiscard]] double PixelScale();

/// Sets it. Controls that exist already take it by "toolkit/placement.h".
void SetPixelScale(double scale);

/// How many twips a pixel has at that scale.
[[nodiscard]] double TwipsPerPixel();

/// The pixel whose edge is nearest; half way goes up.
[[nodiscard]] int PixelEdge(float twips);

/// The rectangle between the nearest pixel edges.
[[nodiscard]] QRect PixelPlace(const TwipRect& place);

/// The twips of a pixel rectangle.
[[nodiscard]] TwipRect TwipsOf(const QRect& pixels);

/// The width of a line that has so many pixels at a scale of 1: rounded, and at least 1.
[[nodiscard]] int LinePixels(int width);

}  // namespace quillon
