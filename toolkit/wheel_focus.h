#pragma once

// The wheel over a list turns it only while it has the focus: whoever rolls through a screen chooses nothing by it.

#include <QWidget>

namespace quillon {

/// For a drop-down list or a list box. The wheel does not give it the focus either.
void TurnByWheelWithFocusOnly(QWidget& list);

}  // namespace quillon
