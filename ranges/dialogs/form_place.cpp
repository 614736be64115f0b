#include "ranges/dialogs/form_place.h"

#include <QGuiApplication>
#include <QScreen>

#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

TwipSize SizeInTwips(const QSize& pixels) {
  const TwipRect rect = TwipsOf(QRect(QPoint(0, 0), pixels));
  return {rect.Width, rect.Height};
}

}  // namespace

TwipSize FormPlace::WindowSize() const {
  return SizeInTwips(form_.size());
}

TwipSize FormPlace::ScreenSize() const {
  return SizeInTwips(QGuiApplication::primaryScreen()->size());
}

float FormPlace::WindowLeft() const {
  return TwipsOf(QRect(form_.pos(), QSize())).Left;
}

float FormPlace::WindowTop() const {
  return TwipsOf(QRect(form_.pos(), QSize())).Top;
}

void FormPlace::MoveWindow(float left, float top) {
  form_.move(PixelEdge(left), PixelEdge(top));
}

}  // namespace quillon
