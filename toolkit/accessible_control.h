#pragma once

// What a screen reader learns of labels and pictures: a piece of text or a picture, and a link where it can be clicked,
// with the click as its action; and of buttons and check boxes, what Qt tells of them. Their actions count as a key:
// where the program hears no keys, they do nothing.

#include "toolkit/control.h"

namespace quillon {

/// Makes every such control known to the accessibility interface. Called once, before the first form is built.
void InstallAccessibleControls();

/// Tells a screen reader that is listening that the control's spoken text has changed.
void TellNameChanged(Control& control);

}  // namespace quillon
