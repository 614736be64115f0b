#include "toolkit/frame.h"

#include <QPaintEvent>
#include <QPainter>

namespace quillon {

Frame::Frame(QWidget* parent) : Control(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Frame::SetBackColor(const QColor& color) {
  if (color == backColor_) return;
  backColor_ = color;
  setAttribute(Qt::WA_OpaquePaintEvent, color.alpha() == 255);
  update();
}

void Frame::paintEvent(QPaintEvent* event) {
  if (backColor_.alpha() == 0) return;
  QPainter(this).fillRect(event->rect(), backColor_);
}

}  // namespace quillon
