#include "ranges/card_grid.h"

#include <cstddef>

#include "ranges/range_lists.h"
#include "ranges/range_summary.h"

namespace quillon {
namespace {

constexpr std::int16_t kDiagonalStep = kRankCount + 1;
constexpr float kFrameMargin = 100;
constexpr float kCellGap = 25;
constexpr float kLabelSideMargin = 10;
constexpr float kLabelTopMargin = 100;

// The width of a row of cells, from the left edge of the first to the right edge of the last.
float RowLength(float cell) {
  return kRankCount * (cell + kCellGap) - kCellGap;
}

TwipRect PlaceOfLabel(const TwipRect& square) {
  return {.Left = square.Left + kLabelSideMargin,
          .Top = square.Top + kLabelTopMargin,
          .Width = square.Width - 2 * kLabelSideMargin,
          .Height = square.Height - kLabelTopMargin};
}

Rgb& ColorOf(CellColors& cells, int index) {
  return cells.at(static_cast<std::size_t>(index));
}

// Towards better hands a suited class moves left along its row and an offsuit class up its column until they meet the
// diagonal; pairs move along the diagonal.
void PaintBetterHands(CellColors& cells, std::int16_t index, Rgb color) {
  const std::string_view label = HandLabel(index);
  const bool suited = label.ends_with('s');
  const bool offsuit = label.ends_with('o');
  const int step = suited ? 1 : offsuit ? kRankCount : kDiagonalStep;
  for (int next = index - step; next >= 0; next -= step) {
    if ((suited || offsuit) && next % kDiagonalStep == 0) return;
    ColorOf(cells, next) = color;
  }
}

double WeightOfColor(Rgb color) {
  if (color == kFullColor) return 1;
  return color == kHalfColor ? 0.5 : 0;
}

ClassWeights GridWeights(const CellColors& cells) {
  ClassWeights weights{};
  for (std::size_t index = 0; index < weights.size(); ++index)
    weights.at(index) = WeightOfColor(cells.at(index));
  return weights;
}

}  // namespace

CardGridPlaces PlaceCardGrid(float left, float top, TwipSize square) {
  CardGridPlaces places{};
  places.Frame = {.Left = left,
                  .Top = top,
                  .Width = RowLength(square.Width) + 2 * kFrameMargin,
                  .Height = RowLength(square.Height) + 2 * kFrameMargin};
  for (std::size_t index = 0; index < places.Cells.size(); ++index) {
    const auto column = static_cast<float>(index % kRankCount);
    const std::size_t above = index / kRankCount;
    CellPlace& cell = places.Cells.at(index);
    cell.Square = {.Left = left + kFrameMargin + column * (square.Width + kCellGap),
                   .Top = top + kFrameMargin + static_cast<float>(above) * (square.Height + kCellGap),
                   .Width = square.Width,
                   .Height = square.Height};
    cell.Label = PlaceOfLabel(cell.Square);
  }
  return places;
}

Rgb CellBaseColor(std::string_view label) {
  if (label.ends_with('s')) return kUnselectedSuitedColor;
  return label.ends_with('o') ? kUnselectedOffsuitColor : kUnselectedPairColor;
}

Rgb CaptionColorOn(Rgb cell) {
  return cell == kFullColor ? kCaptionOnFullColor : kCaptionColor;
}

CellColors UnselectedCells() {
  CellColors cells{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    ColorOf(cells, index) = CellBaseColor(HandLabel(index));
  return cells;
}

void ToggleCell(CellColors& cells, std::int16_t index, CellClick click) {
  const Rgb base = CellBaseColor(HandLabel(index));
  const Rgb selected = click.Half ? kHalfColor : kFullColor;
  const Rgb color = ColorOf(cells, index) == base ? selected : base;
  ColorOf(cells, index) = color;
  if (click.Shift) PaintBetterHands(cells, index, color);
}

double SelectedCombos(const CellColors& cells) {
  return SelectedCombos(GridWeights(cells));
}

std::string RangeTextFromGrid(const CellColors& cells) {
  return RangeTextOf(GridWeights(cells));
}

std::string GridCaption(const CellColors& cells) {
  return SelectionCaption(SelectedCombos(cells));
}

std::string GridSummary(const CellColors& cells) {
  return RangeSummary(RangeTextFromGrid(cells));
}

ClassWeights ShowRangeOnGrid(CellColors& cells, const ProgramFolder& folder, std::string_view name) {
  const std::string text = LoadRangeText(folder, name);
  // A file with another extension reads as missing; the error must name it as it is on disk.
  const std::string file = text.empty() ? ListedFileName(folder, name) : RangeFileName(name);
  const ClassWeights weights = RangeWeightsOf(text, file);
  for (std::size_t index = 0; index < weights.size(); ++index) {
    if (weights.at(index) == 1) cells.at(index) = kFullColor;
    if (weights.at(index) == 0.5) cells.at(index) = kHalfColor;
  }
  return weights;
}

}  // namespace quillon
