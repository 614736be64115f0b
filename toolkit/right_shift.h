#pragma once

#include <QKeyEvent>

namespace quillon {

/// Whether a press or release of a Shift key is that of the right one. Where the window system does not tell, it counts
/// as the left one.
[[nodiscard]] bool IsRightShift(const QKeyEvent& key);

}  // namespace quillon
