#include "toolkit/shape.h"

#include "toolkit/twip_geometry.h"

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
  if (IsLine()) {
    painter.fillRect(rect(), lineColor_);
    return;
  }

  const int width = style_ == LineStyle::kNone ? 0 : LinePixels(lineWidth_);
  QRect outline = rect();
  if (parentWidget() != nullptr) outline &= parentWidget()->rect().translated(-pos());
  if (kind_ == ControlKind::kRoundedShape) return PaintRounded(painter, outline, width);
  painter.fillRect(outline.adjusted(width, width, -width, -width), fill_);
  if (width > 0) PaintEdge(painter, outline, width);
}

void Shape::PaintRounded(QPainter& painter, const QRect& outline, int width) const {
  const double half = width / 2.0;
  const double radius = kCornerRadius * PixelScale();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(width == 0 ? QPen(Qt::NoPen)
                            : QPen(lineColor_, width, style_ == LineStyle::kDotted ? Qt::DotLine : Qt::SolidLine));
  painter.setBrush(fill_);
  painter.drawRoundedRect(QRectF(outline).adjusted(half, half, -half, -half), radius, radius);
}

// Filled, not stroked: a pen of even width cannot be centred on pixels.
void Shape::PaintEdge(QPainter& painter, const QRect& outline, int width) const {
  const int across = outline.right() + 1 - width;
  const int down = outline.bottom() + 1 - width;
  if (style_ == LineStyle::kSolid) {
    for (const QRect& side : {QRect(outline.left(), outline.top(), outline.width(), width),
                              QRect(outline.left(), down, outline.width(), width),
                              QRect(outline.left(), outline.top(), width, outline.height()),
                              QRect(across, outline.top(), width, outline.height())})
      painter.fillRect(side, lineColor_);
    return;
  }
  const int step = 3 * width;  // a dot and a gap of two
  for (int x = outline.left(); x <= across; x += step) {
    painter.fillRect(x, outline.top(), width, width, lineColor_);
    painter.fillRect(x, down, width, width, lineColor_);
  }
  for (int y = outline.top(); y <= down; y += step) {
    painter.fillRect(outline.left(), y, width, width, lineColor_);
    painter.fillRect(across, y, width, width, lineColor_);
  }
}

}  // namespace quillon
