#pragma once

// What changes many cells of a card grid at once: a pasted notation, everything, nothing, the opposite, the best hands;
// and the steps back and forth. Each is told as the grid that is wanted, and comes about by toggles of single cells, as
// if they had been clicked one by one without Shift ("ranges/card_grid.h"). What selects without saying at which weight
// does so as a click does: at half weight while `chkHalf` is checked.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "ranges/card_grid.h"
#include "ranges/range_notation.h"
#include "ranges/range_text.h"

namespace quillon {

/// One toggle of a cell, and whether it takes `chkHalf` for checked.
struct CellToggle {
  std::int16_t Index = 0;
  bool Half = false;

  bool operator==(const CellToggle&) const = default;
};

/// The toggles that make the second grid of the first, in index order: none for a cell that is right already, and two
/// where half is to become full, or full half, since a click on a selected cell clears it.
[[nodiscard]] std::vector<CellToggle> TogglesBetween(const CellColors& from, const CellColors& to);

/// A grid on which every class is selected.
[[nodiscard]] CellColors EverySelectedCell(bool half);

/// The grid after a click on each of its cells: what was selected, in full or half, is cleared, and the rest selected.
[[nodiscard]] CellColors InvertedCells(const CellColors& cells, bool half);

/// The grid of a notation with no other weights than 0, 0.5 and 1, or why there is none. `bestFirst` as for
/// ReadRangeNotation.
[[nodiscard]] std::variant<CellColors, NotationError> CellsOfNotation(std::string_view notation,
                                                                      const HandOrder& bestFirst);

/// The grid of the best hands, as "top 15%" has them, for a share in percent as people type it: digits with a point, a
/// percent sign or none, and spaces round them. Nothing for any other text, and for more than 100.
///
///     "15"  "15%"  " 12.5 % "
[[nodiscard]] std::optional<CellColors> BestCells(std::string_view share, bool half, const HandOrder& bestFirst);

/// The grids that have been on show since a range came up, one a step, and which of them shows.
class GridHistory {
 public:
  /// A range came up: what was before it is forgotten.
  explicit GridHistory(const CellColors& shown = UnselectedCells()) : grids_{shown} {}

  /// The grid has been changed. What had been undone is forgotten; a grid that is as it was is no step.
  void Add(const CellColors& changed);

  [[nodiscard]] bool CanUndo() const { return now_ > 0; }
  [[nodiscard]] bool CanRedo() const { return now_ + 1 < grids_.size(); }

  /// The grid one step back, and one step forth again, which shows from now on; the one that shows where there is no
  /// such step.
  [[nodiscard]] const CellColors& Undo();
  [[nodiscard]] const CellColors& Redo();

 private:
  std::vector<CellColors> grids_;
  std::size_t now_ = 0;
};

}  // namespace quillon
