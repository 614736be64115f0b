#pragma once

// Keys of a form: they work wherever in its window the focus is, without auto-repeat, but not while a box is open.

#include <QKeyCombination>
#include <QShortcut>
#include <QWidget>
#include <functional>

namespace quillon {

/// Ctrl and the digit of a link or page, the first of which has index 0; there are nine digits.
[[nodiscard]] constexpr QKeyCombination DigitKey(int index) {
  return QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(Qt::Key_1 + index));
}

/// Makes the key press `control`, a label, a picture or a button, like a click. It does nothing while the control is
/// hidden or disabled. A control that takes the focus on a click gets it first, so that a box being edited is left; if
/// that box complains, the press is dropped.
void BindPress(QWidget& control, QKeyCombination key);

/// Binds the key to an action in the window of `parent`; with Qt::ApplicationShortcut in every window of the program.
/// It does nothing while `parent` is hidden, nor while the returned shortcut is disabled.
QShortcut& BindKey(QWidget& parent, QKeyCombination key, std::function<void()> action,
                   Qt::ShortcutContext context = Qt::WindowShortcut);

/// The same for a key that text boxes use themselves, such as Ctrl+C: while a text box of the window has the focus,
/// even a read-only one, the key goes to that box.
void BindKeyBesideText(QWidget& parent, QKeyCombination key, std::function<void()> action);

}  // namespace quillon
