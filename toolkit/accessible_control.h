#pragma once

// The program for screen readers. Labels and pictures are text or pictures; clickable ones are links or buttons with
// the click as their action; ones with a check state are check boxes. A drop-down list has its question as name and its
// selection as description; top-level windows are windows. Actions count as keys: while the program ignores keys, they
// do nothing. Hidden controls say nothing and cannot be pressed.

#include <QAccessible>
#include <QString>

#include "toolkit/control.h"

namespace quillon {

class Application;

/// Registers all that with the accessibility interface. Called once, before the first form is built.
void InstallAccessibleControls(Application& application);

/// Whether an event of the accessibility interface is passed on to them. Decoration sends none, and a hidden control
/// only that it comes or goes.
[[nodiscard]] bool IsForScreenReaders(const QAccessibleEvent& event);

/// Notifies screen readers that the control's spoken text or check state has changed.
void TellNameChanged(Control& control);
void TellChecked(Control& control);

/// Has a screen reader say the text once, after whatever it is saying. `speaker` is a visible control or window; hidden
/// ones announce nothing. Also emits Application::Announced.
void Announce(QWidget& speaker, const QString& text);

}  // namespace quillon
