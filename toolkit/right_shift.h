#pragma once

#include <QKeyEvent>

namespace quillon {

/// Whether a Shift key event is from the right one. If the window system cannot tell, it counts as the left one.
[[nodiscard]] bool IsRightShift(const QKeyEvent& key);

}  // namespace quillon
