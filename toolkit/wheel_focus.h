#pragma once

// The mouse wheel changes a list's selection only while the list has the focus, so that scrolling is harmless.

#include <QWidget>

namespace quillon {

/// For a drop-down list or a list box. The wheel does not give it the focus either.
void TurnByWheelWithFocusOnly(QWidget& list);

}  // namespace quillon
