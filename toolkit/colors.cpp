#include "toolkit/colors.h"

#include <QGuiApplication>
#include <QPalette>

namespace quillon {

QColor ToColor(std::int32_t rowColor) {
  switch (rowColor) {
    case kNoColor:
      return Qt::transparent;
    case kWindowColor:
      return QGuiApplication::palette().color(QPalette::Base);
    case kWindowTextColor:
      return QGuiApplication::palette().color(QPalette::Text);
    default:
      return QColor::fromRgb(static_cast<QRgb>(rowColor));
  }
}

QColor ToColor(Rgb color) {
  return {color.Red, color.Green, color.Blue};
}

Rgb FromColor(const QColor& color) {
  return MakeRgb(color.red(), color.green(), color.blue());
}

}  // namespace quillon
