#include "ranges/card_grid.h"

#include <cstddef>

#include "hand/hand_classes.h"
#include "ranges/range_text.h"

namespace quillon {
namespace {

constexpr std::int16_t kDiagonalStep = kRankCount + 1;
constexpr float kFrameMargin = 100;
constexpr float kCellGap = 25;
constexpr float kLabelSideMargin = 10;
constexpr float kLabelTopMargin = 100;

// The neighbours give the place, so that only square 0 states a size and only the frame states a position.
TwipRect PlaceOfSquare(const CardGridForm& form, std::int16_t index) {
  const TwipRect frame = form.FrameRect();
  TwipRect place = form.SquareRect(0);
  const float stepRight = place.Width + kCellGap;
  const float stepDown = place.Height + kCellGap;
  const auto left = static_cast<std::int16_t>(index - 1);
  const auto above = static_cast<std::int16_t>(index - kRankCount);
  place.Left = index % kRankCount == 0 ? frame.Left + kFrameMargin : form.SquareRect(left).Left + stepRight;
  place.Top = index < kRankCount ? frame.Top + kFrameMargin : form.SquareRect(above).Top + stepDown;
  return place;
}

TwipRect PlaceOfLabel(const TwipRect& square) {
  return {.Left = square.Left + kLabelSideMargin,
          .Top = square.Top + kLabelTopMargin,
          .Width = square.Width - 2 * kLabelSideMargin,
          .Height = square.Height - kLabelTopMargin};
}

TwipRect FrameRound(const TwipRect& first, const TwipRect& last) {
  const float left = first.Left - kFrameMargin;
  const float top = first.Top - kFrameMargin;
  return {.Left = left,
          .Top = top,
          .Width = last.Left + last.Width - left + kFrameMargin,
          .Height = last.Top + last.Height - top + kFrameMargin};
}

void BuildCell(CardGridForm& form, std::int16_t index) {
  const std::string_view label = HandLabel(index);
  const TwipRect square = PlaceOfSquare(form, index);
  form.SetSquareRect(index, square);
  form.SetCellColor(index, CellBaseColor(label));
  form.ShowSquare(index);
  form.SetLabelRect(index, PlaceOfLabel(square));
  form.SetLabelCaption(index, label);
  form.ShowLabel(index);
}

Rgb CaptionColorOn(Rgb cellColor) {
  return cellColor == kFullColor ? kCaptionOnFullColor : kCaptionColor;
}

void PaintCell(CardGridForm& form, std::int16_t index, Rgb color) {
  form.SetCellColor(index, color);
  form.SetCaptionColor(index, CaptionColorOn(color));
}

Rgb ColorAfterClick(const CardGridForm& form, std::int16_t index) {
  const Rgb base = CellBaseColor(HandLabel(index));
  if (form.CellColor(index) != base) return base;
  return form.HalfChecked() ? kHalfColor : kFullColor;
}

// Towards better hands a suited class moves left along its row, an offsuit class up its column, both until they meet
// the diagonal, where the pairs stand and move along it.
void PaintBetterHands(CardGridForm& form, std::int16_t index, Rgb color) {
  const std::string_view label = HandLabel(index);
  const bool suited = label.ends_with('s');
  const bool offsuit = label.ends_with('o');
  const int step = suited ? 1 : offsuit ? kRankCount : kDiagonalStep;
  for (int next = index - step; next >= 0; next -= step) {
    if ((suited || offsuit) && next % kDiagonalStep == 0) return;
    PaintCell(form, static_cast<std::int16_t>(next), color);
  }
}

double WeightOfColor(Rgb color) {
  if (color == kFullColor) return 1;
  return color == kHalfColor ? 0.5 : 0;
}

ClassWeights GridWeights(const CardGridForm& form) {
  ClassWeights weights{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    weights.at(static_cast<std::size_t>(index)) = WeightOfColor(form.CellColor(index));
  return weights;
}

}  // namespace

void BuildCardGrid(CardGridForm& form) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (index > 0) form.CreateCell(index);
    BuildCell(form, index);
  }
  form.SetFrameRect(FrameRound(form.SquareRect(0), form.SquareRect(kHandClassCount - 1)));
}

void ClearCardGrid(CardGridForm& form) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    PaintCell(form, index, CellBaseColor(HandLabel(index)));
}

Rgb CellBaseColor(std::string_view label) {
  if (label.ends_with('s')) return kUnselectedSuitedColor;
  return label.ends_with('o') ? kUnselectedOffsuitColor : kUnselectedPairColor;
}

void ToggleCell(CardGridForm& form, std::int16_t index) {
  const Rgb color = ColorAfterClick(form, index);
  PaintCell(form, index, color);
  if (form.ShiftKeyPressed()) PaintBetterHands(form, index, color);
}

double SelectedCombos(const CardGridForm& form) {
  return SelectedCombos(GridWeights(form));
}

std::string RangeTextFromGrid(const CardGridForm& form) {
  return RangeTextOf(GridWeights(form));
}

void ShowRangeOnGrid(CardGridForm& form, const ProgramFolder& folder, std::string_view name) {
  const ClassWeights weights = RangeWeightsOf(LoadRangeText(folder, name));
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const double weight = weights.at(static_cast<std::size_t>(index));
    if (weight == 1) form.SetCellColor(index, kFullColor);
    if (weight == 0.5) form.SetCellColor(index, kHalfColor);
    form.SetCaptionColor(index, CaptionColorOn(form.CellColor(index)));
  }
}

}  // namespace quillon
