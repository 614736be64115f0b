#include "toolkit/wheel_focus.h"

#include <QAbstractScrollArea>
#include <QEvent>

namespace quillon {
namespace {

class WheelFocus : public QObject {
 public:
  explicit WheelFocus(QWidget& list) : QObject(&list), list_(list) {
    const auto* area = qobject_cast<const QAbstractScrollArea*>(&list);
    (area == nullptr ? &list : area->viewport())->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || list_.hasFocus()) return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
  }

 private:
  QWidget& list_;
};

}  // namespace

void TurnByWheelWithFocusOnly(QWidget& list) {
  list.setFocusPolicy(Qt::StrongFocus);
  new WheelFocus(list);
}

}  // namespace quillon
