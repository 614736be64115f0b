#pragma once

// The look of the native controls, the same on every desktop: the screens are drawn on white, so boxes, lists and
// buttons are light, too, whatever the desktop's own colours are.

namespace quillon {

/// Sets style and palette of the whole program. Called once, before the first form is built.
void UseLightLook();

}  // namespace quillon
