#include "ranges/grid_edits.h"

#include <algorithm>

#include "support/ascii_text.h"
#include "support/joined_text.h"

namespace quillon {
namespace {

Rgb SelectedColor(bool half) {
  return half ? kHalfColor : kFullColor;
}

CellColors CellsOf(const ClassWeights& weights) {
  CellColors cells = UnselectedCells();
  for (std::size_t index = 0; index < cells.size(); ++index) {
    if (weights.at(index) > 0) cells.at(index) = SelectedColor(weights.at(index) < 1);
  }
  return cells;
}

}  // namespace

std::vector<CellToggle> TogglesBetween(const CellColors& from, const CellColors& to) {
  const CellColors base = UnselectedCells();
  std::vector<CellToggle> toggles;
  for (std::size_t i = 0; i < from.size(); ++i) {
    if (from.at(i) == to.at(i)) continue;
    const CellToggle toggle = {.Index = static_cast<std::int16_t>(i), .Half = to.at(i) == kHalfColor};
    const bool staysSelected = from.at(i) != base.at(i) && to.at(i) != base.at(i);
    toggles.insert(toggles.end(), staysSelected ? 2 : 1, toggle);
  }
  return toggles;
}

CellColors EverySelectedCell(bool half) {
  CellColors cells{};
  cells.fill(SelectedColor(half));
  return cells;
}

CellColors InvertedCells(const CellColors& cells, bool half) {
  CellColors inverted = UnselectedCells();
  for (std::size_t index = 0; index < cells.size(); ++index) {
    if (cells.at(index) == inverted.at(index)) {
      inverted.at(index) = SelectedColor(half);
    }
  }
  return inverted;
}

std::variant<CellColors, NotationError> CellsOfNotation(std::string_view notation, const HandOrder& bestFirst) {
  const NotationReading reading = ReadRangeNotation(notation, bestFirst, NotationWeights::kOfGrid);
  if (const auto* error = std::get_if<NotationError>(&reading)) return *error;
  return CellsOf(std::get<ClassWeights>(reading));
}

std::optional<CellColors> BestCells(std::string_view share, bool half, const HandOrder& bestFirst) {
  std::string_view number = Trimmed(share, kSpaceAndTab);
  if (number.ends_with('%')) number = Trimmed(number.substr(0, number.size() - 1), kSpaceAndTab);
  if (number.find_first_not_of("0123456789.") != std::string_view::npos) return {};
  const NotationReading reading = ReadRangeNotation(Joined({"top ", number, "%", half ? ":0.5" : ""}), bestFirst);
  const auto* const weights = std::get_if<ClassWeights>(&reading);
  if (weights == nullptr) return {};
  return CellsOf(*weights);
}

void GridHistory::Add(const CellColors& changed) {
  if (changed == grids_.at(now_)) return;
  grids_.resize(now_ + 1);
  grids_.push_back(changed);
  ++now_;
}

const CellColors& GridHistory::Undo() {
  if (CanUndo()) --now_;
  return grids_.at(now_);
}

const CellColors& GridHistory::Redo() {
  if (CanRedo()) ++now_;
  return grids_.at(now_);
}

}  // namespace quillon
