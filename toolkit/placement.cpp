#include "toolkit/placement.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QRectF>
#include <QToolTip>

#include "toolkit/fonts.h"
#include "toolkit/label.h"
#include "toolkit/shape.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

constexpr const char* kPlaceProperty = "placeInTwips";
constexpr const char* kLeastProperty = "leastSizeInTwips";
constexpr const char* kSizeProperty = "sizeInTwips";
constexpr const char* kPointsProperty = "fontPoints";

// For more than one. Judged by the layout, not by pixels, so that a label is the same at every scale.
bool HasRoomForLines(const QWidget& control) {
  const int line = FontPixels(control.property(kPointsProperty).toFloat());
  return PlaceOf(control).Height >= 2 * kTwipsPerPixel * static_cast<float>(line);
}

void TakePlace(QWidget& control) {
  const QVariant kept = control.property(kPlaceProperty);
  if (!kept.isValid()) return;
  const QRect place = PixelPlace(PlaceOf(control));
  if (control.isWindow()) {
    control.setFixedSize(place.size());
  } else if (auto* label = qobject_cast<Label*>(&control)) {
    label->SetPlace(place, HasRoomForLines(control));
  } else {
    const auto* shape = qobject_cast<Shape*>(&control);
    const int least = shape != nullptr && shape->IsLine() ? LinePixels(1) : 0;
    control.setGeometry({place.topLeft(), place.size().expandedTo({least, least})});
  }
}

void TakeFont(QWidget& control) {
  const QVariant points = control.property(kPointsProperty);
  if (!points.isValid()) return;
  QFont font = control.font();
  SizeFont(font, points.toFloat());
  control.setFont(font);
}

// Only without undo history: changing the margin would add a step to it.
void TakeMargin(QWidget& control) {
  constexpr int kMargin = 4;
  auto* memo = qobject_cast<QPlainTextEdit*>(&control);
  if (memo == nullptr || memo->document()->isUndoAvailable()) return;
  const bool undo = memo->isUndoRedoEnabled();
  memo->setUndoRedoEnabled(false);
  memo->document()->setDocumentMargin(LinePixels(kMargin));
  memo->setUndoRedoEnabled(undo);
}

void TakeScale(QWidget& control) {
  TakeFont(control);
  TakeMargin(control);
  TakePlace(control);
}

QSize Pixels(const TwipSize& size) {
  return PixelPlace({.Left = 0, .Top = 0, .Width = size.Width, .Height = size.Height}).size();
}

TwipSize KeptSize(const QWidget& window, const char* property) {
  const QSizeF kept = window.property(property).toSizeF();
  return {.Width = static_cast<float>(kept.width()), .Height = static_cast<float>(kept.height())};
}

void KeepSize(QWidget& window, const char* property, const TwipSize& size) {
  window.setProperty(property, QSizeF(static_cast<double>(size.Width), static_cast<double>(size.Height)));
}

bool IsResizable(const QWidget& window) {
  return window.property(kLeastProperty).isValid();
}

void TakeSize(QWidget& window) {
  window.setMinimumSize(Pixels(KeptSize(window, kLeastProperty)));
  if (!window.isMaximized()) window.resize(Pixels(KeptSize(window, kSizeProperty)));
}

}  // namespace

void SetPlace(QWidget& control, const TwipRect& place) {
  const QPointF corner(static_cast<double>(place.Left), static_cast<double>(place.Top));
  const QSizeF size(static_cast<double>(place.Width), static_cast<double>(place.Height));
  control.setProperty(kPlaceProperty, QRectF(corner, size));
  TakePlace(control);
}

TwipRect PlaceOf(const QWidget& control) {
  const QRectF place = control.property(kPlaceProperty).toRectF();
  return {.Left = static_cast<float>(place.left()),
          .Top = static_cast<float>(place.top()),
          .Width = static_cast<float>(place.width()),
          .Height = static_cast<float>(place.height())};
}

void SetResizable(QWidget& window, const TwipSize& least, const TwipSize& size) {
  KeepSize(window, kLeastProperty, least);
  KeepSize(window, kSizeProperty, size);
  TakeSize(window);
}

TwipSize SizeOf(const QWidget& window) {
  const TwipSize kept = KeptSize(window, kSizeProperty);
  if (window.isMaximized() || Pixels(kept) == window.size()) return kept;
  const TwipRect place = TwipsOf(QRect({0, 0}, window.size()));
  return {.Width = place.Width, .Height = place.Height};
}

void SetFormFont(QWidget& control, const FontSpec& font, const FontSpec& inherited) {
  control.setProperty(kPointsProperty, (font.Family.empty() ? inherited : font).Points);
  control.setFont(FormFont(font, inherited));
  TakeMargin(control);
}

void CopyFormFont(QWidget& control, const QWidget& other) {
  control.setProperty(kPointsProperty, other.property(kPointsProperty));
  control.setFont(other.font());
}

void ShowAtScale(double scale) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (IsResizable(*window)) KeepSize(*window, kSizeProperty, SizeOf(*window));
  }
  SetPixelScale(scale);
  QApplication::setFont(FormFont(kDialogFont, {}));
  QToolTip::setFont(FormFont(kDialogFont, {}));
  for (QWidget* window : QApplication::topLevelWidgets()) {
    TakeScale(*window);
    if (IsResizable(*window)) TakeSize(*window);
    // Containers come first, so that a label knows the room for growing.
    for (QWidget* control : window->findChildren<QWidget*>())
      TakeScale(*control);
    window->update();
  }
}

}  // namespace quillon
