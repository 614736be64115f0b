#include "toolkit/label.h"

#include <QEvent>
#include <QFontMetrics>
#include <algorithm>
#include <array>
#include <cstddef>

#include "toolkit/accessible_control.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

int SideOf(TextAlignment alignment) {
  constexpr std::array kSides = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
  return kSides.at(static_cast<std::size_t>(alignment));
}

}  // namespace

Label::Label(QWidget* parent) : Control(parent) {}

void Label::SetPlace(const QRect& place, bool wraps) {
  place_ = place;
  wraps_ = wraps;
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

void Label::SetCut(bool cut) {
  cut_ = cut;
  Grow();
  update();
}

void Label::SetHalo(const QColor& color) {
  if (color == halo_) return;
  halo_ = color;
  update();
}

void Label::ShowTip() {
  setToolTip(TextSize().width() > place_.width() ? text_ : QString());
}

QRect Label::WithinContainer(QRect grown) const {
  const int edge = LinePixels(4);  // margin, so that the text does not touch the container's border
  if (parentWidget() == nullptr) return grown;
  const int over = grown.right() + edge - parentWidget()->rect().right();
  if (over > 0) grown.moveLeft(std::max(0, grown.left() - over));
  return grown;
}

QSize Label::TextSize() const {
  return SizeWith(Flags());
}

QSize Label::SizeWith(int flags) const {
  return fontMetrics().boundingRect(QRect(0, 0, wraps_ ? place_.width() : 0, 0), flags, text_).size();
}

QString Label::SpokenText() const {
  return accessibleName().isEmpty() ? text_ : accessibleName();
}

void Label::Grow() {
  if (cut_) {
    ShowTip();
    setGeometry(place_);
    return;
  }
  const QSize needed = TextSize();
  QRect grown = place_;
  grown.setHeight(std::max(grown.height(), needed.height()));
  const int missing = wraps_ ? 0 : std::max(0, needed.width() - grown.width());
  grown.setRight(grown.right() + missing);
  if (alignment_ == TextAlignment::kCentered) grown.translate(-missing / 2, 0);
  if (alignment_ == TextAlignment::kRight) grown.translate(-missing, 0);
  setGeometry(missing > 0 ? WithinContainer(grown) : grown);
}

int Label::Flags() const {
  const int plain = SideOf(alignment_) | Qt::AlignTop;
  if (!wraps_) return plain;
  const int betweenWords = plain | Qt::TextWordWrap;
  return SizeWith(betweenWords).width() <= place_.width() ? betweenWords : plain | Qt::TextWrapAnywhere;
}

// Draws the letters shifted in all eight directions.
void Label::PaintHalo(QPainter& painter, const QString& shown) {
  painter.setPen(halo_);
  const int reach = LinePixels(1);
  for (const int down : {-reach, 0, reach}) {
    for (const int across : {-reach, 0, reach})
      painter.drawText(rect().translated(across, down), Flags(), shown);
  }
}

void Label::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (backColor_.alpha() != 0) painter.fillRect(rect(), backColor_);
  const QString shown = cut_ ? fontMetrics().elidedText(text_, Qt::ElideRight, width()) : text_;
  if (halo_.alpha() != 0) PaintHalo(painter, shown);
  painter.setPen(textColor_);
  painter.drawText(rect(), Flags(), shown);
}

void Label::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) Grow();
  Control::changeEvent(event);
}

}  // namespace quillon
