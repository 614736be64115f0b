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
constexpr int kLine = 2;

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
  const int around = 2 * LinePixels(kLine);
  const QRect whole(place.mapTo(&window_, QPoint(0, 0)), place.size());
  setGeometry(whole.adjusted(-around, -around, around, around).intersected(window_.rect()));
  raise();
  show();
}

void FocusMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int line = LinePixels(kLine);
  const auto drawLine = [&](int inside, const QColor& color) {
    const QRect outer = rect().adjusted(inside, inside, -inside, -inside);
    const QRect inner = outer.adjusted(line, line, -line, -line);
    painter.setClipRegion(QRegion(outer).subtracted(inner));
    painter.fillRect(outer, color);
  };
  drawLine(0, kPale);
  drawLine(line, kDark);
}

}  // namespace quillon
