#pragma once

// The Range Manager as a table: the list on the left, the grid in the middle, the five actions on the right. The words
// are the product's own, odd ones too.

#include <span>
#include <string_view>

#include "support/twips.h"
#include "toolkit/control_row.h"

namespace quillon {

inline constexpr std::string_view kManagerTitle = "Range Manager";

/// The inner area, which cannot be resized.
inline constexpr TwipSize kManagerSize = {13665, 8880};

[[nodiscard]] std::span<const ControlTable> ManagerLayout();

/// The way of the Tab key, from one name to the next; "lblCards" stands for the grid.
[[nodiscard]] std::span<const std::string_view> ManagerTabOrder();

}  // namespace quillon
