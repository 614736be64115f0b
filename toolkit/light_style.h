#pragma once

// The look of the native controls, the same on every desktop: the screens have white backgrounds, so boxes, lists,
// buttons, check boxes, tabs and scroll bars are light too, whatever the desktop's colours. Lengths follow the
// program's scale ("toolkit/twip_geometry.h"), lines are whole pixels, and nothing is added or left out at any scale.
// Edges have a contrast of at least 3:1 to white, and the handle of a scroll bar is darker than its groove. A tool tip
// is always plain text, since it may be a name from the user.

#include <QProxyStyle>

namespace quillon {

class LightStyle : public QProxyStyle {
  Q_OBJECT

 public:
  LightStyle();

  using QProxyStyle::polish;
  void polish(QWidget* widget) override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
};

/// Sets the program's style and palette. Called once, before the first form is built.
void UseLightLook();

}  // namespace quillon
