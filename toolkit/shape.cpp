#include "toolkit/shape.h"

#include <QPainter>

namespace quillon {
namespace {

constexpr double kCornerRadius = 6;

}  // namespace

Shape::Shape(ControlKind kind, QWidget* parent) : QWidget(parent), kind_(kind) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void Shape::SetFill(const QColor& color) {
  if (color == fill_) return;
  fill_ = color;
  update();
}

void Shape::SetLineColor(const QColor& color) {
  lineColor_ = color;
  update();
}

void Shape::SetLineStyle(LineStyle style) {
  style_ = style;
  update();
}

void Shape::SetLineWidth(int width) {
  lineWidth_ = width;
  update();
}

void Shape::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (kind_ == ControlKind::kLine) {
    painter.fillRect(rect(), lineColor_);
    return;
  }

  const double half = style_ == LineStyle::kNone ? 0 : lineWidth_ / 2.0;
  const QRectF outline = QRectF(rect()).adjusted(half, half, -half, -half);
  QPen pen(lineColor_, lineWidth_, style_ == LineStyle::kDotted ? Qt::DotLine : Qt::SolidLine);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(style_ == LineStyle::kNone ? QPen(Qt::NoPen) : pen);
  painter.setBrush(fill_);
  if (kind_ == ControlKind::kRoundedShape) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(outline, kCornerRadius, kCornerRadius);
  } else {
    painter.drawRect(outline);
  }
}

}  // namespace quillon
