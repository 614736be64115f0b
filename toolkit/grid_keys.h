#pragma once

// The keys that move from cell to cell of a grid of the classes: the arrow keys to the neighbours, Home and End to the
// ends of the row, and with Ctrl to those of the grid.

#include <QKeyEvent>
#include <cstdint>
#include <optional>

namespace quillon {

/// The cell that the key moves to: the same one at the edge of the grid, and nothing for other keys.
[[nodiscard]] std::optional<std::int16_t> CellReachedFrom(std::int16_t from, const QKeyEvent& press);

}  // namespace quillon
