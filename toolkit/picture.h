#pragma once

// A picture from "artwork/", drawn anew for every size and scale, so that it is as sharp on a screen of 200% as on one
// of 100%. One that can be clicked may have a look of its own for the mouse over it and for being pressed: files of its
// name followed by "_hover" and "_pressed".

#include <QIcon>
#include <QPixmap>
#include <QString>

#include "toolkit/control.h"

namespace quillon {

class Picture : public Control {
  Q_OBJECT

 public:
  explicit Picture(QWidget* parent);

  /// Takes the picture of that name; the empty name shows nothing.
  void SetArtwork(const QString& name);
  [[nodiscard]] const QString& Artwork() const { return name_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QString NameForNow() const;

  QString name_;
  bool hasLooks_ = false;
};

/// The picture of that name for a widget of that size and scale. Drawn once and kept; empty if there is none.
[[nodiscard]] QPixmap ArtworkPixmap(const QString& name, const QSize& size, double scale);

/// The same in whatever size it is wanted in.
[[nodiscard]] QIcon ArtworkIcon(const QString& name);

}  // namespace quillon
