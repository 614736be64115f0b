#include "toolkit/shift_watch.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <utility>

#include "toolkit/right_shift.h"

namespace quillon {
namespace {

bool WindowSystemHasShiftDown() {
  return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier);
}

}  // namespace

ShiftWatch::ShiftWatch(std::function<bool()> isHeld, QObject* parent)
    : QObject(parent), isHeld_(isHeld ? std::move(isHeld) : WindowSystemHasShiftDown) {
  QCoreApplication::instance()->installEventFilter(this);
}

// The same event passes here for the window, for the control in it, and for its containers.
bool ShiftWatch::IsKnown(const QKeyEvent& key) {
  const Seen seen{key.type(), key.timestamp()};
  const bool known = seen.When != 0 && seen == last_;
  last_ = seen;
  return known;
}

bool ShiftWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationStateChange) keys_.PutRight(isHeld_());
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  const auto* key = isKey ? dynamic_cast<QKeyEvent*>(event) : nullptr;
  if (key != nullptr && key->key() == Qt::Key_Shift && !key->isAutoRepeat() && !IsKnown(*key)) {
    const ShiftKey side = IsRightShift(*key) ? ShiftKey::kRight : ShiftKey::kLeft;
    if (event->type() == QEvent::KeyPress) {
      keys_.KeyDown(side);
    } else {
      keys_.KeyUp(side);
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace quillon
