#pragma once

// A picture from "artwork/", rendered for each size and scale, so that it is always sharp. A clickable one may have
// variants for hovering and pressing: files of its name followed by "_hover" and "_pressed".

#include <QIcon>
#include <QPixmap>
#include <QString>

#include "toolkit/control.h"

namespace quillon {

class Picture : public Control {
  Q_OBJECT

 public:
  explicit Picture(QWidget* parent);

  /// Sets the picture by name; the empty name shows nothing.
  void SetArtwork(const QString& name);
  [[nodiscard]] const QString& Artwork() const { return name_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QString NameForNow() const;

  QString name_;
  bool hasLooks_ = false;
};

/// The picture of that name for a widget of that size and scale. Cached; empty if there is none.
[[nodiscard]] QPixmap ArtworkPixmap(const QString& name, const QSize& size, double scale);

/// The same for any size.
[[nodiscard]] QIcon ArtworkIcon(const QString& name);

}  // namespace quillon
