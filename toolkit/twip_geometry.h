#pragma once

// How twips become pixels. Every edge goes to the nearest pixel on its own, the right one like the left one, so that
// two controls which meet in the layout meet on the screen. The pixels are the window system's device-independent ones,
// 96 to the inch; a screen of a higher scale draws more dots for each.

#include <QPoint>
#include <QRect>

#include "support/twips.h"

namespace quillon {

/// The pixel whose edge is nearest; half way goes up.
[[nodiscard]] int PixelEdge(float twips);

/// The rectangle between the nearest pixel edges.
[[nodiscard]] QRect PixelPlace(const TwipRect& place);

/// The twips of a pixel rectangle, exactly.
[[nodiscard]] TwipRect TwipsOf(const QRect& pixels);

}  // namespace quillon
