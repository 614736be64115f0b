#include "toolkit/focus_mark.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <algorithm>
#include <array>

#include "toolkit/application.h"
#include "toolkit/control.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

// Against any colour, one of the two has a contrast of at least 4:1.
constexpr QColor kDark(0x10, 0x20, 0x30);
constexpr QColor kPale(0xFF, 0xFF, 0xFF);
constexpr int kDarkLine = 2;
constexpr int kPaleLine = 1;  // as thin as possible, since it covers what is next to the control

bool IsMarkedByItsForm(const QWidget& control) {
  const auto* box = qobject_cast<const QLineEdit*>(&control);
  return box != nullptr && !box->hasFrame();
}

const QWidget& PlaceOf(const QWidget& control) {
  const auto* ours = qobject_cast<const Control*>(&control);
  return ours == nullptr ? control : ours->MarkedPlace();
}

// A text without a frame has a margin with room for the mark.
bool IsMarkedInside(const QWidget& control) {
  const auto* text = qobject_cast<const QPlainTextEdit*>(&control);
  return text != nullptr && text->frameShape() == QFrame::NoFrame;
}

bool ChangesItsPlace(const QEvent& event) {
  constexpr std::array kChanges = {QEvent::Show, QEvent::Hide, QEvent::Move, QEvent::Resize};
  return std::ranges::find(kChanges, event.type()) != kChanges.end();
}

}  // namespace

FocusMark::FocusMark(QWidget& window) : QFocusFrame(&window), window_(window) {
  hide();
  QCoreApplication::instance()->installEventFilter(this);
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event) {
  if (watched == panel_ && ChangesItsPlace(*event)) update();
  switch (event->type()) {
    case QEvent::FocusIn: {
      auto* control = qobject_cast<QWidget*>(watched);
      if (control != nullptr && control->window() == &window_)
        Reach(*control, dynamic_cast<QFocusEvent&>(*event).reason());
      break;
    }
    case QEvent::FocusOut:
      if (watched == control_) hide();
      break;
    case QEvent::Move:
    case QEvent::Resize:
      if (isVisible() && watched != this) Place();
      break;
    case QEvent::Show:
      if (watched == &window_) shownByKey_ = AnswersKey();
      break;
    case QEvent::Hide:
      if (watched == control_) hide();
      break;
    case QEvent::ZOrderChange:
      if (watched != this && watched->parent() == &window_) raise();
      break;
    default:
      break;
  }
  return false;
}

void FocusMark::Reach(QWidget& control, Qt::FocusReason reason) {
  if (control.isWindow()) return;
  switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
      marked_ = true;
      break;
    case Qt::MouseFocusReason:
      marked_ = false;
      break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
      if (control_ != &control) marked_ = shownByKey_;
      break;
    default:
      marked_ = AnswersKey();
  }
  control_ = &control;
  if (marked_ && !IsMarkedByItsForm(control)) Place();
}

void FocusMark::Place() {
  const QWidget& place = PlaceOf(*control_);
  const int around = IsMarkedInside(place) ? 0 : LinePixels(kDarkLine) + LinePixels(kPaleLine);
  setGeometry(PlaceInWindow(place).adjusted(-around, -around, around, around).intersected(window_.rect()));
  raise();
  show();
}

void FocusMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QRegion line = QRegion(rect()).subtracted(Inside(LinePixels(kPaleLine) + LinePixels(kDarkLine)));
  if (panel_ != nullptr && panel_->isVisible()) line -= PlaceInWindow(*panel_).translated(-pos());
  painter.setClipRegion(line);
  painter.fillRect(rect(), kPale);
  painter.fillRect(Inside(LinePixels(kPaleLine)), kDark);
}

QRect FocusMark::PlaceInWindow(const QWidget& control) const {
  return {control.mapTo(&window_, QPoint(0, 0)), control.size()};
}

QRect FocusMark::Inside(int border) const {
  return rect().adjusted(border, border, -border, -border);
}

}  // namespace quillon
