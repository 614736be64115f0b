#pragma once

// The card grid: a range as the user sees it, 13 by 13 coloured cells, one for each hand class in class index order. A
// cell is a filled square, `shapeCardBack(index)`, under a transparent label, `lblCards(index)`, that carries the class
// label and takes the mouse. A click selects a class in full, or at half weight where the user has checked `chkHalf`,
// and a further click clears it.
//
// The colour of a square is all there is of a selection: it is written on a click and read back for the percentage and
// the range text. Each class has one of three colours while it is not selected, by its kind, and shares those of half
// and full with all others; the caption is white on the colour of full and black on any other. Colours are equal when
// red, green and blue are, and so just when their numbers (ColorNumber) are.
//
// Three windows have a grid: the main window, which colours it by results, the Range Manager and the New Range dialog.
// All lengths are twips.

#include <cstdint>
#include <string>
#include <string_view>

#include "ranges/range_files.h"
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

/// What the grid needs of its window. An index is that of a class, 0 to 168. What has been set is what is read back,
/// lengths too: a form that draws in pixels keeps the twips.
class CardGridForm {
 public:
  virtual ~CardGridForm() = default;

  /// `shapeBlue`, which is never seen. Its left and top place the grid, and it is fitted round the finished grid.
  [[nodiscard]] virtual TwipRect FrameRect() const = 0;
  virtual void SetFrameRect(const TwipRect& rect) = 0;

  /// Makes `shapeCardBack(index)` and `lblCards(index)`, hidden, as copies of those with index 0, which the form has
  /// from the start.
  virtual void CreateCell(std::int16_t index) = 0;

  [[nodiscard]] virtual TwipRect SquareRect(std::int16_t index) const = 0;
  virtual void SetSquareRect(std::int16_t index, const TwipRect& rect) = 0;
  virtual void SetLabelRect(std::int16_t index, const TwipRect& rect) = 0;

  /// The caption of `lblCards(index)`, centred from left to right.
  virtual void SetLabelCaption(std::int16_t index, std::string_view caption) = 0;

  /// Makes `shapeCardBack(index)` visible and brings it to the front.
  virtual void ShowSquare(std::int16_t index) = 0;

  /// Makes `lblCards(index)` visible and brings it to the front.
  virtual void ShowLabel(std::int16_t index) = 0;

  /// The fill of `shapeCardBack(index)`.
  [[nodiscard]] virtual Rgb CellColor(std::int16_t index) const = 0;
  virtual void SetCellColor(std::int16_t index, Rgb color) = 0;

  /// The text colour of `lblCards(index)`.
  virtual void SetCaptionColor(std::int16_t index, Rgb color) = 0;

  /// Whether `chkHalf` is checked. A form without one answers false.
  [[nodiscard]] virtual bool HalfChecked() const = 0;

  /// Whether a Shift key is down and went down since this was last asked: true once a press, however long it lasts
  /// ("ranges/shift_keys.h"). Asking changes the next answer.
  [[nodiscard]] virtual bool ShiftKeyPressed() = 0;
};

/// Makes the cells 1 to 168, places all 169 and shows them, each label in front of its square, in state none. The size
/// of square 0 is that of all; cells stand 25 apart, and the frame is fitted round them with a margin of 100. A label
/// leaves 10 of its square free at each side and 100 at the top. The captions keep the text colour they have. To be
/// called once in the life of a form.
void BuildCardGrid(CardGridForm& form);

/// Puts all cells into state none.
void ClearCardGrid(CardGridForm& form);

/// The colour of a class that is not selected. Only the last character is looked at: "s" gives the suited colour, "o"
/// the offsuit colour, and anything else, the empty text too, the pair colour.
[[nodiscard]] Rgb CellBaseColor(std::string_view label);

/// What a click on a cell does. A cell in its base colour becomes selected, half or full by `chkHalf`; one in any other
/// colour is cleared, whatever `chkHalf` says, so that half never turns to full in one click. Then, if the Shift key
/// was pressed for it, the cells from there to the best hand of the kind take the same colour, whatever they had:
///
///     "A5s" -> A5s, A6s, ... AKs      "A5o" -> A5o, A6o, ... AKo      "88" -> 88, 99, ... AA
void ToggleCell(CardGridForm& form, std::int16_t index);

/// How many concrete hands, 0 to 1326, are selected: 6 for a pair, 4 for a suited and 12 for an offsuit class in the
/// colour of full, and half as many in that of half. Any other colour counts 0.
[[nodiscard]] double SelectedCombos(const CardGridForm& form);

/// The grid as a range text ("ranges/range_text.h"): weight 1 for a cell in the colour of full, 0.5 for one in that of
/// half, 0 for any other.
[[nodiscard]] std::string RangeTextFromGrid(const CardGridForm& form);

/// Paints a saved range: a class at weight 1 exactly is full, one at 0.5 exactly is half. At any other weight the
/// square stays as it is, so the caller clears the grid first, and a weight such as 0.25 shows as not selected though
/// an analysis counts it. Every caption takes the colour that goes with its square.
///
/// RunTimeError as told at RangeWeightOf, so also for a range whose file is missing or empty; the grid is as it was.
void ShowRangeOnGrid(CardGridForm& form, const ProgramFolder& folder, std::string_view name);

}  // namespace quillon
