#pragma once

// The files of "artwork/" as a system's Qt reads them: SVG, or where Qt has no module for that, pictures that the build
// has drawn from it, large enough to stay sharp at four physical pixels to one of the design.

#include <QPainter>
#include <QString>

namespace quillon {

/// The resource that holds the picture, which need not exist.
[[nodiscard]] QString ArtworkFile(const QString& name);

/// Draws the picture so that it fills the rectangle, in the painter's coordinates. False, and nothing drawn, if there
/// is none.
[[nodiscard]] bool PaintArtwork(const QString& name, QPainter& painter, const QRectF& rectangle);

}  // namespace quillon
