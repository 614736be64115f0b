#pragma once

// Draws the files of "artwork/": SVG, or, where Qt lacks its SVG module, pictures that the build has rendered, sharp up
// to four physical pixels per design pixel.

#include <QPainter>
#include <QString>

namespace quillon {

/// The picture's resource, which need not exist.
[[nodiscard]] QString ArtworkFile(const QString& name);

/// Draws the picture scaled to the rectangle, in the painter's coordinates. False, drawing nothing, if there is none.
[[nodiscard]] bool PaintArtwork(const QString& name, QPainter& painter, const QRectF& rectangle);

}  // namespace quillon
