#include "toolkit/input_block.h"

#include <QAbstractButton>
#include <QApplication>
#include <QWidget>

namespace quillon {
namespace {

// An open list grabs the mouse of the whole screen.
void CloseLists() {
  for (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && popup->close();)
    popup = QApplication::activePopupWidget();
}

}  // namespace

InputBlock::InputBlock() {
  CloseLists();
  if (auto* const button = qobject_cast<QAbstractButton*>(QApplication::focusWidget())) button->setDown(false);
  qApp->installEventFilter(this);
}

// An event loop that excludes user input would not do: it would exclude the closing of a window too.
bool InputBlock::eventFilter(QObject* watched, QEvent* event) {
  if (QApplication::activeModalWidget() != nullptr) return false;
  switch (event->type()) {
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return true;
    case QEvent::MouseButtonRelease:
      return !watched->isWindowType() && !TakesRelease(*watched, dynamic_cast<QMouseEvent&>(*event));
    default:
      return event->isInputEvent();
  }
}

// A mouse press from before the block is released, but at a distant point, so that it is not a click.
bool InputBlock::TakesRelease(QObject& control, const QMouseEvent& release) {
  if (lettingGo_) return true;
  if (release.button() != Qt::LeftButton) return false;
  constexpr QPointF kNowhere(-100'000, -100'000);
  QMouseEvent away(release.type(), kNowhere, kNowhere, release.button(), release.buttons(), release.modifiers());
  lettingGo_ = true;
  QCoreApplication::sendEvent(&control, &away);
  lettingGo_ = false;
  return false;
}

}  // namespace quillon
