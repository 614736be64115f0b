// Arbitrary bytes pasted on any grid: a valid notation is reached by toggles of single cells, and copies as a notation
// that pastes the same; an invalid one has a place and a reason. Also the same bytes as a share.

#include <numeric>
#include <optional>
#include <string>
#include <variant>

#include "fuzz/any_weights.h"
#include "fuzz/fuzz_target.h"
#include "ranges/grid_edits.h"
#include "ranges/range_messages.h"

namespace quillon {
namespace {

HandOrder IndexOrder() {
  HandOrder order{};
  std::iota(order.begin(), order.end(), std::int16_t{0});
  return order;
}

std::variant<CellColors, NotationError> Pasted(std::string_view text) {
  return CellsOfNotation(text, IndexOrder());
}

CellColors AnyCells(FuzzInput& input) {
  constexpr std::size_t kBytes = 43;
  const ClassWeights weights = AnyWeights(input.TakeText(input.TakeBelow(kBytes + 1)));
  CellColors cells = UnselectedCells();
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (weights.at(i) == 1) cells.at(i) = kFullColor;
    if (weights.at(i) == 0.5) cells.at(i) = kHalfColor;
  }
  return cells;
}

void CheckToggles(const CellColors& from, const CellColors& to) {
  CellColors cells = from;
  const auto toggles = TogglesBetween(from, to);
  for (const CellToggle& toggle : toggles)
    ToggleCell(cells, toggle.Index, {.Half = toggle.Half});
  Require(cells == to, "toggles lead to the wanted grid");
  Require(toggles.size() <= 2 * cells.size(), "a cell is toggled twice at most");
  GridHistory history(from);
  history.Add(to);
  Require(history.CanUndo() == (from != to), "a change is a step");
  Require(history.Undo() == from && history.Redo() == to, "a step can be undone and redone");
}

void CheckError(std::string_view text, const NotationError& error) {
  Require(error.Place <= text.size(), "an error is in the text");
  Require(NotARangeMessage(text, error).text.ends_with("^ " + error.Reason), "a message ends in the reason");
}

void CheckShare(std::string_view share, bool half, const CellColors& shown) {
  const std::optional<CellColors> best = BestCells(share, half, IndexOrder());
  if (!best) return;
  CheckToggles(shown, *best);
  for (const Rgb color : *best)
    Require(color != (half ? kFullColor : kHalfColor), "a share is selected as a click does");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const bool half = input.TakeBelow(2) == 1;
  const CellColors shown = AnyCells(input);
  CheckToggles(shown, InvertedCells(shown, half));
  CheckShare(input.Rest(), half, shown);

  const auto pasted = Pasted(input.Rest());
  if (const auto* const error = std::get_if<NotationError>(&pasted)) {
    CheckError(input.Rest(), *error);
    return;
  }
  const auto& cells = std::get<CellColors>(pasted);
  CheckToggles(shown, cells);
  Require(Pasted(RangeNotation(RangeTextFromGrid(cells))) == pasted, "what is copied pastes the same");
}

}  // namespace quillon
