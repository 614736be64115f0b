#include "toolkit/focus_mark.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPainter>

#include "toolkit/application.h"
#include "toolkit/control.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

// Of any colour, one of the two is at least 4:1 apart.
constexpr QColor kDark(0x10, 0x20, 0x30);
constexpr QColor kPale(0xFF, 0xFF, 0xFF);
constexpr int kDarkLine = 2;
constexpr int kPaleLine = 1;  // no wider than it must be: it lies over what is close to the control

bool IsMarkedByItsForm(const QWidget& control) {
  const auto* box = qobject_cast<const QLineEdit*>(&control);
  return control.isWindow() || (box != nullptr && !box->hasFrame());
}

const QWidget& PlaceOf(const QWidget& control) {
  const auto* ours = qobject_cast<const Control*>(&control);
  return ours == nullptr ? control : ours->MarkedPlace();
}

}  // namespace

FocusMark::FocusMark(QWidget& window) : QFocusFrame(&window), window_(window) {
  hide();
  QCoreApplication::instance()->installEventFilter(this);
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event) {
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
  const bool returns = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
  const bool byKeyboard = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                          reason == Qt::ShortcutFocusReason || (reason != Qt::MouseFocusReason && KeyboardLeads());
  if (!returns || control_ != &control) marked_ = byKeyboard;
  control_ = &control;
  if (marked_ && !IsMarkedByItsForm(control)) Place();
}

void FocusMark::Place() {
  const QWidget& place = PlaceOf(*control_);
  const int around = LinePixels(kDarkLine) + LinePixels(kPaleLine);
  const QRect whole(place.mapTo(&window_, QPoint(0, 0)), place.size());
  setGeometry(whole.adjusted(-around, -around, around, around).intersected(window_.rect()));
  raise();
  show();
}

void FocusMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setClipRegion(QRegion(rect()).subtracted(Inside(LinePixels(kPaleLine) + LinePixels(kDarkLine))));
  painter.fillRect(rect(), kPale);
  painter.fillRect(Inside(LinePixels(kPaleLine)), kDark);
}

QRect FocusMark::Inside(int border) const {
  return rect().adjusted(border, border, -border, -border);
}

}  // namespace quillon
