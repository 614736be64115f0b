#include "toolkit/control.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "toolkit/accessible_control.h"

namespace quillon {
namespace {

// Notices whether a box opens over a window during its lifetime.
class BoxWatch : public QObject {
 public:
  explicit BoxWatch(QWidget& window) { window.installEventFilter(this); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    cameUp_ = cameUp_ || event->type() == QEvent::WindowBlocked;
    return false;
  }

  [[nodiscard]] bool CameUp() const { return cameUp_; }

 private:
  bool cameUp_ = false;
};

}  // namespace

Control::Control(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
}

void Control::SetUse(ControlUse use) {
  use_ = use;
  const bool hand = use == ControlUse::kLink || use == ControlUse::kFocusLink;
  if (hand) {
    setCursor(Qt::PointingHandCursor);
  } else {
    unsetCursor();
  }
  setFocusPolicy(use == ControlUse::kPassive ? Qt::NoFocus : Qt::TabFocus);
}

void Control::SetCheckState(Qt::CheckState state) {
  if (checkState_ == state) return;
  checkState_ = state;
  TellChecked(*this);
}

void Control::Click() {
  Q_EMIT Clicked();
}

void Control::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (use_ == ControlUse::kFocusLink && !TakeFocus(Qt::MouseFocusReason)) return;
  held_ = true;
  update();
  Q_EMIT Pressed();
}

bool Control::TakeFocus(Qt::FocusReason reason) {
  const BoxWatch boxes(*window());
  setFocus(reason);
  return !boxes.CameUp();
}

void Control::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void Control::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !held_) return;
  held_ = false;
  update();
  Q_EMIT Released();
  if (rect().contains(event->position().toPoint())) Q_EMIT Clicked();
}

// Accepted, so that a move over a control never counts as one over the frame under it.
void Control::mouseMoveEvent(QMouseEvent* /*event*/) {
  Q_EMIT MouseMoved();
}

void Control::keyPressEvent(QKeyEvent* event) {
  const bool presses = IsEnterKey(event->key()) || event->key() == Qt::Key_Space;
  if (!CanBeClicked() || !presses || event->isAutoRepeat()) {
    QWidget::keyPressEvent(event);
    return;
  }
  Q_EMIT Clicked();
}

void Control::focusInEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) Q_EMIT FocusReached();
}

// A menu returns the focus when it closes.
void Control::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason) Q_EMIT FocusLeft();
}

void Control::enterEvent(QEnterEvent* /*event*/) {
  update();
}

void Control::leaveEvent(QEvent* /*event*/) {
  update();
}

// A control hidden with its screen gets no leave event.
void Control::hideEvent(QHideEvent* /*event*/) {
  held_ = false;
  setAttribute(Qt::WA_UnderMouse, false);
}

}  // namespace quillon
