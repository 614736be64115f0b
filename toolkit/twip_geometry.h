#pragma once

// Conversion of twips to pixels. Each edge is rounded to the nearest pixel separately, so that controls that meet in
// the layout meet on the screen. The pixels are the screen's own wherever the window system allows it
// ("toolkit/desktop_scale.h"), so this is the only rounding.
//
// The program's scale, pixels per twip, is the same for all of its windows and used only here: at 1 there are 15 twips
// to the pixel, at 2 there are 7.5. Layouts do not depend on it.

#include <QRect>

#include "support/twips.h"

namespace quillon {

/// The program's scale: the pixels per 15 twips, initially 1.
[[nodiscard]] double PixelScale();

/// Sets it. "toolkit/placement.h" applies it to existing controls.
void SetPixelScale(double scale);

/// The number of twips per pixel at that scale.
[[nodiscard]] double TwipsPerPixel();

/// The nearest pixel edge; halves round up.
[[nodiscard]] int PixelEdge(float twips);

/// The rectangle between the nearest pixel edges.
[[nodiscard]] QRect PixelPlace(const TwipRect& place);

/// The twips of a pixel rectangle.
[[nodiscard]] TwipRect TwipsOf(const QRect& pixels);

/// The width of a line that has this many pixels at a scale of 1: rounded, and at least 1.
[[nodiscard]] int LinePixels(int width);

}  // namespace quillon
