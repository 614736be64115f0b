#pragma once

// The card grid: a range as 13 by 13 coloured cells, one for each hand class in class index order. A cell is a filled
// square, `shapeCardBack(index)`, under a transparent label, `lblCards(index)`, that shows the class label and takes
// the mouse. A click selects a class in full, or at half weight if `chkHalf` is checked, and another click clears it.
//
// The colours of the squares are the selection: a click changes them, and the percentage and the range text are read
// from them. An unselected class has one of three colours, by its kind; the colours for half and full are the same for
// all. Captions are white on the full colour and black on any other.
//
// Three windows have a grid: the main window, which colours it by results, the Range Manager and the New Range dialog.
// All lengths are in twips.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"
#include "ranges/range_files.h"
#include "ranges/range_text.h"
#include "support/rgb.h"
#include "support/twips.h"

namespace quillon {

inline constexpr Rgb kUnselectedSuitedColor = {255, 192, 192};
inline constexpr Rgb kUnselectedOffsuitColor = {224, 224, 224};
inline constexpr Rgb kUnselectedPairColor = {192, 255, 192};
inline constexpr Rgb kHalfColor = {255, 128, 0};  // selected at weight 0.5
inline constexpr Rgb kFullColor = {10, 36, 106};  // selected at weight 1

inline constexpr Rgb kCaptionColor = {0, 0, 0};
inline constexpr Rgb kCaptionOnFullColor = {255, 255, 255};

/// The fills of the squares, in class index order.
using CellColors = std::array<Rgb, kHandClassCount>;

/// The positions of the parts of one cell.
struct CellPlace {
  TwipRect Square;
  TwipRect Label;
};

/// The positions of a whole grid: the cells in class index order, and `shapeBlue`, which is never visible, around them.
struct CardGridPlaces {
  std::array<CellPlace, kHandClassCount> Cells;
  TwipRect Frame;
};

/// What else affects a click on a cell.
struct CellClick {
  bool Half = false;  // `chkHalf` is checked
  bool Shift = false;  // a Shift key was pressed for this click ("ranges/shift_keys.h")
};

/// The grid whose frame has that left and top and whose squares have that size. Cells are 25 apart, and the frame
/// surrounds them with a margin of 100. A label leaves 10 of its square free at each side and 100 at the top.
[[nodiscard]] CardGridPlaces PlaceCardGrid(float left, float top, TwipSize square);

/// The colour of an unselected class. Only the last character counts: "s" gives the suited colour, "o" the offsuit
/// colour, and anything else, the empty text too, the pair colour.
[[nodiscard]] Rgb CellBaseColor(std::string_view label);

/// The text colour of a label over a square of this colour.
[[nodiscard]] Rgb CaptionColorOn(Rgb cell);

/// A grid with nothing selected.
[[nodiscard]] CellColors UnselectedCells();

/// Applies a click on a cell. A cell in its base colour becomes selected, half or full; one in any other colour is
/// cleared, whatever `Half` says, so half never turns to full in one click. With `Shift`, the cells from there to the
/// best hand of the kind then take the same colour, whatever their own:
///
///     "A5s" -> A5s, A6s, ... AKs      "A5o" -> A5o, A6o, ... AKo      "88" -> 88, 99, ... AA
void ToggleCell(CellColors& cells, std::int16_t index, CellClick click);

/// The number of selected concrete hands, 0 to 1326: 6 for a pair, 4 for a suited and 12 for an offsuit class in the
/// full colour, half as many in the half colour, and 0 for any other colour.
[[nodiscard]] double SelectedCombos(const CellColors& cells);

/// The grid as a range text ("ranges/range_text.h"): weight 1 for the full colour, 0.5 for the half colour, else 0.
[[nodiscard]] std::string RangeTextFromGrid(const CellColors& cells);

/// The caption under the grid, such as "0.5% selected".
[[nodiscard]] std::string GridCaption(const CellColors& cells);

/// The short notation of the grid ("ranges/range_summary.h").
[[nodiscard]] std::string GridSummary(const CellColors& cells);

/// Paints a saved range: a class at weight exactly 1 is full, one at exactly 0.5 is half. At any other weight the
/// square stays as it is, so the caller starts with unselected cells, and a weight such as 0.25 looks unselected though
/// an analysis counts it. Returns the weights of the file.
///
/// RunTimeError as for RangeWeightOf, so also if the range's file is missing or empty, naming the file as
/// ListedFileName does. The grid is then unchanged.
ClassWeights ShowRangeOnGrid(CellColors& cells, const ProgramFolder& folder, std::string_view name);

}  // namespace quillon
