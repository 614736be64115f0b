#include <QImage>

#include "toolkit/artwork_painting.h"

namespace quillon {

QString ArtworkFile(const QString& name) {
  return QStringLiteral(":/artwork/%1.png").arg(name);
}

// Scaled as an image: a painter would sample only a few of its pixels.
bool PaintArtwork(const QString& name, QPainter& painter, const QRectF& rectangle) {
  const QImage drawn(ArtworkFile(name));
  if (drawn.isNull()) return false;
  const QSize pixels = (rectangle.size() * painter.device()->devicePixelRatioF()).toSize();
  painter.drawImage(rectangle, drawn.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  return true;
}

}  // namespace quillon
