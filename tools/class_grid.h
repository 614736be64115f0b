#pragma once

// A text for each class as people read it on a terminal.

#include <array>
#include <string>

#include "hand/hand_classes.h"

namespace quillon {

/// The 13 by 13 grid, each cell its label and text, columns aligned, rows without blanks at their ends. Texts are
/// ASCII.
[[nodiscard]] std::string ClassGrid(const std::array<std::string, kHandClassCount>& texts);

}  // namespace quillon
