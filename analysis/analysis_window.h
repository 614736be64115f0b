#pragma once

// The main window as an analysis sees it: the boxes and lists that state the situation, and the few things on the
// screens that change while a run goes on. The window implements it; the companion program and the tests do so without
// one ("analysis/quiet_window.h"). Controls go by their names in the main window.

#include <cstdint>
#include <string>
#include <string_view>

#include "analysis/analysis_state.h"
#include "analysis/expected_value.h"
#include "support/message_boxes.h"
#include "support/number_text.h"

namespace quillon {

/// The lists from which ranges are chosen, by their index in `cmboRanges`.
inline constexpr std::int16_t kCallRangeList = 0;
inline constexpr std::int16_t kRaiseRangeList = 1;
inline constexpr std::int16_t kRaiseCallingRangeList = 2;
inline constexpr std::int16_t kEquityRangeList = 3;

class AnalysisWindow : public AmountBoxes {
 public:
  /// The text of the selected entry of `cmboRanges(index)`, the empty text if none is selected.
  [[nodiscard]] virtual std::string SelectedRange(std::int16_t index) const = 0;

  /// How the user writes amounts, besides the plain way.
  [[nodiscard]] virtual NumberMarks Marks() const { return {}; }

  /// Where the input checks complain.
  [[nodiscard]] virtual MessageBoxes& Messages() = 0;

  /// Brings up the screen of that name: "Progress", or the input screen of a scenario.
  virtual void ShowFrame(std::string_view name) = 0;

  /// Does what a click on the navigation entry `lblNav(index)` does.
  virtual void ClickNav(std::int16_t index) = 0;

  /// Shows or hides the results entries of the navigation; `lblNoResults` shows when they do not.
  virtual void SetResultsShown(bool shown) = 0;

  virtual void SetNoResultsCaption(std::string_view caption) = 0;
  virtual void SetNoResultsUnderline(bool underline) = 0;

  /// `lblProgressMsg`; a line break in it is CR LF.
  virtual void SetProgressMessage(std::string_view caption) = 0;

  /// `lblProgressPerc`.
  virtual void SetProgressPercent(std::string_view caption) = 0;

  /// The width of `picProgBar` in twips, 7815 when full.
  virtual void SetProgressBarWidth(float twips) = 0;

  /// Brings the grid cell of a class to the front: `shapeCardBack(index)`, then `lblCards(index)`.
  virtual void RaiseCell(std::int16_t index) = 0;

  /// Hides `imgGridBack`.
  virtual void HideGridBack() = 0;

  /// Lets the window system handle everything that is pending, then comes back. Anything the user can click may happen
  /// inside: a click on the stop label, an edit of a box, even the start of another run.
  virtual void Yield() = 0;

  /// Colours the grid and writes the texts of a finished run.
  virtual void PresentResults(const AnalysisState& state) = 0;
};

}  // namespace quillon
