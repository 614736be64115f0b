#pragma once

// The New Range dialog as a table: the grid with its summary on the left, and on the right what to do, the key to the
// colours, and the name. The words are the product's own.

#include <span>
#include <string_view>

#include "support/twips.h"
#include "toolkit/control_row.h"

namespace quillon {

inline constexpr std::string_view kNewRangeTitle = "Create a New Range for your Opponent";

/// The inner area, which cannot be resized.
inline constexpr TwipSize kNewRangeSize = {12195, 9105};

[[nodiscard]] std::span<const ControlTable> NewRangeLayout();

/// The way of the Tab key, from one name to the next; "lblCards" stands for the grid.
[[nodiscard]] std::span<const std::string_view> NewRangeTabOrder();

}  // namespace quillon
