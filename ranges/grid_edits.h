#pragma once

// Edits of many cells of a card grid at once (pasting a notation, everything, nothing, inversion, the best hands), and
// undo. Each edit gives the wanted grid, which is reached by toggles of single cells, as if clicked one by one without
// Shift ("ranges/card_grid.h"). An edit that names no weight selects as a click does: at half weight while `chkHalf` is
// checked.

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

/// A toggle of one cell, and whether it treats `chkHalf` as checked.
struct CellToggle {
  std::int16_t Index = 0;
  bool Half = false;

  bool operator==(const CellToggle&) const = default;
};

/// The toggles that turn `from` into `to`, in index order: none for a cell that is right already, and two from half to
/// full or full to half, since a click on a selected cell clears it.
[[nodiscard]] std::vector<CellToggle> TogglesBetween(const CellColors& from, const CellColors& to);

/// A grid with every class selected.
[[nodiscard]] CellColors EverySelectedCell(bool half);

/// The grid after a click on each cell: everything selected, in full or half, is cleared, and the rest selected.
[[nodiscard]] CellColors InvertedCells(const CellColors& cells, bool half);

/// The grid of a notation whose weights are all 0, 0.5 or 1, or the error. `bestFirst` as for ReadRangeNotation.
[[nodiscard]] std::variant<CellColors, NotationError> CellsOfNotation(std::string_view notation,
                                                                      const HandOrder& bestFirst);

/// The grid of the best hands, as in "top 15%", for a share in percent as people type it: digits with an optional point
/// and percent sign, and spaces around them. Nothing for any other text, and for more than 100.
///
///     "15"  "15%"  " 12.5 % "
[[nodiscard]] std::optional<CellColors> BestCells(std::string_view share, bool half, const HandOrder& bestFirst);

/// The grids shown since a range was loaded, one per step, for undo and redo.
class GridHistory {
 public:
  /// Starts anew with a loaded range.
  explicit GridHistory(const CellColors& shown = UnselectedCells()) : grids_{shown} {}

  /// Adds a changed grid and drops what had been undone. An unchanged grid is not a step.
  void Add(const CellColors& changed);

  [[nodiscard]] bool CanUndo() const { return now_ > 0; }
  [[nodiscard]] bool CanRedo() const { return now_ + 1 < grids_.size(); }

  /// The grid one step back, or forward, which becomes the current one; the current grid if there is no such step.
  [[nodiscard]] const CellColors& Undo();
  [[nodiscard]] const CellColors& Redo();

 private:
  std::vector<CellColors> grids_;
  std::size_t now_ = 0;
};

}  // namespace quillon
