#pragma once

// A text for each class as a grid for terminals.

#include <array>
#include <string>

#include "hand/hand_classes.h"

namespace quillon {

/// The 13 by 13 grid, each cell its label and text, with aligned columns and no trailing spaces. Texts are ASCII.
[[nodiscard]] std::string ClassGrid(const std::array<std::string, kHandClassCount>& texts);

}  // namespace quillon
