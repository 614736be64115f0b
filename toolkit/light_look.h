#pragma once

// The look of the native controls, the same on every desktop: the screens have white backgrounds, so boxes, lists and
// buttons are light too, whatever the desktop's colours.

namespace quillon {

/// Sets the program's style and palette. Called once, before the first form is built.
void UseLightLook();

}  // namespace quillon
