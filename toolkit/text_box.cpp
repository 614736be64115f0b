#include "toolkit/text_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <utility>

#include "toolkit/control.h"
#include "toolkit/single_line.h"

namespace quillon {
namespace {

// Switching to another window, or opening the box's menu, does not leave the box.
bool LeavesTheBox(const QFocusEvent& event) {
  return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
  setFrame(false);
  KeepToOneLine(*this);
}

void TextBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (busy_) return;
  busy_ = true;
  Q_EMIT FocusGot();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (LeavesTheBox(*event)) Leave();
}

void TextBox::Leave() {
  if (!std::exchange(busy_, false)) return;
  Q_EMIT FocusLost();
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  if (IsEnterKey(event->key())) Q_EMIT EnterPressed();
  QLineEdit::keyPressEvent(event);
}

}  // namespace quillon
