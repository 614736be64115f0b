#pragma once

// The card grid: a range as the user sees it, 13 by 13 coloured cells, one for each hand class in class index order. A
// cell is a filled square, `shapeCardBack(index)`, under a transparent label, `lblCards(index)`, that carries the class
// label and takes the mouse. A click selects a class in full, or at half weight where the user has checked `chkHalf`,
// and a further click clears it.
//
// The colours of the squares are all there is of a selection: a click changes them, and the percentage and the range
// text are read off them. Each class has one of three colours while it is not selected, by its kind, and shares those
// of half and full with all others; the caption is white on the colour of full and black on any other.
//
// Three windows have a grid: the main window, which colours it by results, the Range Manager and the New Range dialog.
// All lengths are twips.

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

/// Where the parts of one cell lie.
struct CellPlace {
  TwipRect Square;
  TwipRect Label;
};

/// Where a finished grid lies: the cells in class index order, and `shapeBlue`, which is never seen, round them.
struct CardGridPlaces {
  std::array<CellPlace, kHandClassCount> Cells;
  TwipRect Frame;
};

/// What else counts for a click on a cell.
struct CellClick {
  bool Half = false;  // `chkHalf` is checked
  bool Shift = false;  // a Shift key was pressed for this click ("ranges/shift_keys.h")
};

/// The grid whose frame has that left and top and whose squares have that size. Cells are 25 apart, and the frame is
/// fitted round them with a margin of 100. A label leaves 10 of its square free at each side and 100 at the top.
[[nodiscard]] CardGridPlaces PlaceCardGrid(float left, float top, TwipSize square);

/// The colour of a class that is not selected. Only the last character counts: "s" gives the suited colour, "o"
/// the offsuit colour, and anything else, the empty text too, the pair colour.
[[nodiscard]] Rgb CellBaseColor(std::string_view label);

/// The text colour of a label over a square of that colour.
[[nodiscard]] Rgb CaptionColorOn(Rgb cell);

/// A grid on which nothing is selected.
[[nodiscard]] CellColors UnselectedCells();

/// What a click on a cell does. A cell in its base colour becomes selected, half or full; one in any other colour is
/// cleared, whatever `Half` says, so that half never turns to full in one click. Then, with `Shift`, the cells from
/// there to the best hand of the kind take the same colour, whatever their own:
///
///     "A5s" -> A5s, A6s, ... AKs      "A5o" -> A5o, A6o, ... AKo      "88" -> 88, 99, ... AA
void ToggleCell(CellColors& cells, std::int16_t index, CellClick click);

/// How many concrete hands, 0 to 1326, are selected: 6 for a pair, 4 for a suited and 12 for an offsuit class in the
/// colour of full, and half as many in that of half. Any other colour counts 0.
[[nodiscard]] double SelectedCombos(const CellColors& cells);

/// The grid as a range text ("ranges/range_text.h"): weight 1 for a cell in the colour of full, 0.5 for one in that of
/// half, 0 for any other.
[[nodiscard]] std::string RangeTextFromGrid(const CellColors& cells);

/// The caption under the grid, such as "0.5% selected".
[[nodiscard]] std::string GridCaption(const CellColors& cells);

/// The short notation of the grid ("ranges/range_summary.h").
[[nodiscard]] std::string GridSummary(const CellColors& cells);

/// Paints a saved range: a class at weight 1 exactly is full, one at 0.5 exactly is half. At any other weight the
/// square stays as it is, so the caller starts with unselected cells, and a weight such as 0.25 shows as not selected
/// though an analysis counts it. Returns the weights of the file.
///
/// RunTimeError as for RangeWeightOf, so also for a range whose file is missing or empty; it names the file as
/// ListedFileName does. The grid is as it was.
ClassWeights ShowRangeOnGrid(CellColors& cells, const ProgramFolder& folder, std::string_view name);

}  // namespace quillon
