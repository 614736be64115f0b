#pragma once

// A rectangle, with square or rounded corners, or a straight line. One that extends beyond its container is drawn up to
// its edge, with its line on all four sides. Shapes ignore the mouse: events go to what is under them.

#include <QColor>
#include <QPainter>
#include <QWidget>

#include "toolkit/control_row.h"

namespace quillon {

class Shape : public QWidget {
  Q_OBJECT

 public:
  /// `kind` is one of the two shapes or the line.
  Shape(ControlKind kind, QWidget* parent);

  [[nodiscard]] bool IsLine() const { return kind_ == ControlKind::kLine; }

  void SetFill(const QColor& color);
  [[nodiscard]] const QColor& Fill() const { return fill_; }

  void SetLineColor(const QColor& color);
  [[nodiscard]] const QColor& LineColor() const { return lineColor_; }

  void SetLineStyle(LineStyle style);
  [[nodiscard]] LineStyle Style() const { return style_; }

  /// In pixels at a scale of 1.
  void SetLineWidth(int width);
  [[nodiscard]] int LineWidth() const { return lineWidth_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintRounded(QPainter& painter, const QRect& outline, int width) const;
  void PaintEdge(QPainter& painter, const QRect& outline, int width) const;

  ControlKind kind_;
  QColor fill_ = Qt::transparent;
  QColor lineColor_ = Qt::black;
  LineStyle style_ = LineStyle::kSolid;
  int lineWidth_ = 1;
};

}  // namespace quillon
