#include "toolkit/picture.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>

#include "toolkit/artwork_painting.h"

namespace quillon {
Picture::Picture(QWidget* parent) : Control(parent) {}

void Picture::SetArtwork(const QString& name) {
  if (name == name_) return;
  name_ = name;
  hasLooks_ = QFile::exists(ArtworkFile(name + QStringLiteral("_hover")));
  update();
}

QString Picture::NameForNow() const {
  if (!hasLooks_) return name_;
  if (IsHeld()) return name_ + QStringLiteral("_pressed");
  return underMouse() ? name_ + QStringLiteral("_hover") : name_;
}

void Picture::paintEvent(QPaintEvent* /*event*/) {
  if (name_.isEmpty()) return;
  QPainter painter(this);
  painter.drawPixmap(0, 0, ArtworkPixmap(NameForNow(), size(), devicePixelRatioF()));
}

QPixmap ArtworkPixmap(const QString& name, const QSize& size, double scale) {
  const QString key = QStringLiteral("%1 %2x%3 %4").arg(name).arg(size.width()).arg(size.height()).arg(scale);
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;

  pixmap = QPixmap((QSizeF(size) * scale).toSize());
  pixmap.setDevicePixelRatio(scale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  if (!PaintArtwork(name, painter, QRectF(QPointF(0, 0), QSizeF(size)))) return {};
  painter.end();
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

QIcon ArtworkIcon(const QString& name) {
  return QIcon(ArtworkFile(name));
}

}  // namespace quillon
