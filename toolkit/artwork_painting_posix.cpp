#include <QSvgRenderer>

#include "toolkit/artwork_painting.h"

namespace quillon {

QString ArtworkFile(const QString& name) {
  return QStringLiteral(":/artwork/%1.svg").arg(name);
}

bool PaintArtwork(const QString& name, QPainter& painter, const QRectF& rectangle) {
  QSvgRenderer renderer(ArtworkFile(name));
  if (renderer.isValid()) renderer.render(&painter, rectangle);
  return renderer.isValid();
}

}  // namespace quillon
