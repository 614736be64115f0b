#pragma once

// What a screen reader learns of the program. Labels and pictures are a piece of text or a picture, a link or a button
// where they can be clicked, with the click as their action, and a check box where they have a check state. A drop-down
// list has its question as name and what is chosen as description; top windows are windows. Actions count as a key:
// where the program hears no keys, they do nothing. What is hidden says nothing and cannot be pressed.

#include <QString>

#include "toolkit/control.h"

namespace quillon {

class Application;

/// Makes all that known to the accessibility interface. Called once, before the first form is built.
void InstallAccessibleControls(Application& application);

/// Tells a screen reader that is listening that the control's spoken text has changed, or its check state.
void TellNameChanged(Control& control);
void TellChecked(Control& control);

/// Has a screen reader say the text once, when it has finished what it is saying. `speaker` is a control or a window
/// that shows; what is hidden announces nothing. Application::Announced tells of it, too.
void Announce(QWidget& speaker, const QString& text);

}  // namespace quillon
