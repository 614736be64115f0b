#include "toolkit/label.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

#include "toolkit/accessible_control.h"

namespace quillon {
namespace {

int SideOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kLeft:
      return Qt::AlignLeft;
    case TextAlignment::kCentered:
      return Qt::AlignHCenter;
    case TextAlignment::kRight:
      return Qt::AlignRight;
  }
  return Qt::AlignLeft;
}

}  // namespace

Label::Label(QWidget* parent) : Control(parent) {}

void Label::SetPlace(const QRect& place) {
  place_ = place;
  Grow();
}

void Label::SetText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  Grow();
  update();
  TellNameChanged(*this);
}

void Label::SetTextColor(const QColor& color) {
  textColor_ = color;
  update();
}

void Label::SetUnderline(bool underline) {
  QFont changed = font();
  changed.setUnderline(underline);
  setFont(changed);
}

void Label::SetBackColor(const QColor& color) {
  backColor_ = color;
  update();
}

void Label::SetAlignment(TextAlignment alignment) {
  alignment_ = alignment;
  Grow();
  update();
}

bool Label::Wraps() const {
  return place_.height() >= 2 * fontInfo().pixelSize();
}

QSize Label::TextSize() const {
  return fontMetrics().boundingRect(QRect(0, 0, Wraps() ? place_.width() : 0, 0), Flags(), text_).size();
}

QString Label::SpokenText() const {
  return accessibleName().isEmpty() ? text_ : accessibleName();
}

void Label::Grow() {
  QRect grown = place_;
  if (!Wraps()) {
    const QSize needed = TextSize();
    grown.setHeight(std::max(grown.height(), needed.height()));
    const int missing = std::max(0, needed.width() - grown.width());
    grown.setRight(grown.right() + missing);
    if (alignment_ == TextAlignment::kCentered) grown.translate(-missing / 2, 0);
    if (alignment_ == TextAlignment::kRight) grown.translate(-missing, 0);
  }
  setGeometry(grown);
}

int Label::Flags() const {
  return SideOf(alignment_) | Qt::AlignTop | (Wraps() ? Qt::TextWordWrap : 0);
}

void Label::paintEvent(QPaintEvent* /*event*/) {
  {
    QPainter painter(this);
    if (backColor_.alpha() != 0) painter.fillRect(rect(), backColor_);
    painter.setPen(textColor_);
    painter.drawText(rect(), Flags(), text_);
  }
  if (HasFocusMark()) PaintFocusMark(textColor_);
}

void Label::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) Grow();
  Control::changeEvent(event);
}

}  // namespace quillon
