#pragma once

// The keys that go from cell to cell of a grid of the classes: the arrow keys to the neighbours, Home and End to the
// ends of the row, and with Ctrl to those of the grid.

#include <QKeyEvent>
#include <cstdint>
#include <optional>

namespace quillon {

/// Where the key leads from the cell of that class: to itself at the edge of the grid, and nowhere where it is not a
/// key of the grid.
[[nodiscard]] std::optional<std::int16_t> CellReachedFrom(std::int16_t from, const QKeyEvent& press);

}  // namespace quillon
