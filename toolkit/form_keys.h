#pragma once

// Keys of a form, heard wherever in its window the focus is, and once however long they are held down. While a box
// wants an answer they are not.

#include <QKeyCombination>
#include <QShortcut>
#include <QWidget>
#include <functional>

namespace quillon {

/// Makes the key press `control`, a label, a picture or a button, as a click does. It does nothing while the control is
/// hidden or disabled, so what cannot be seen cannot be pressed. A control that a click gives the focus has it first,
/// so that the box that is being typed in has been left; where that box complains, the press is off.
void BindPress(QWidget& control, QKeyCombination key);

/// Makes the key do something of the window of `parent`; with Qt::ApplicationShortcut it is heard in every window of
/// the program. It does nothing while `parent` is hidden, nor while the shortcut returned is disabled.
QShortcut& BindKey(QWidget& parent, QKeyCombination key, std::function<void()> action,
                   Qt::ShortcutContext context = Qt::WindowShortcut);

/// The same for a key that text boxes know, such as Ctrl+C: while one of the window has the focus, be it one to read
/// from, the key is that box's.
void BindKeyBesideText(QWidget& parent, QKeyCombination key, std::function<void()> action);

}  // namespace quillon
