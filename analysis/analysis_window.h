#pragma once

// The main window as seen by a click on an Analyze button: the boxes and lists of the situation, and whatever changes
// during a run. The order of the calls is the behaviour. Controls are named as in the main window.

#include <cstdint>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "support/message_boxes.h"
#include "support/number_text.h"

namespace quillon {

class AnalysisWindow {
 public:
  virtual ~AnalysisWindow() = default;

  /// The current text of `txtNumber(index)`.
  [[nodiscard]] virtual std::string BoxText(std::int16_t index) const = 0;

  /// The text of the selected entry of `cmboRanges(index)`; the empty text if none is selected.
  [[nodiscard]] virtual std::string SelectedRange(std::int16_t index) const = 0;

  /// The user's marks in amounts, accepted besides the plain ones.
  [[nodiscard]] virtual NumberMarks Marks() const = 0;

  /// Shows the complaint of an input check.
  [[nodiscard]] virtual MessageBoxes& Messages() = 0;

  /// Shows the screen of that name: "Progress", or the input screen of a scenario.
  virtual void ShowFrame(std::string_view name) = 0;

  /// Shows or hides the results entries of the navigation; `lblNoResults` is visible when they are not.
  virtual void SetResultsShown(bool shown) = 0;

  virtual void SetNoResultsCaption(std::string_view caption) = 0;
  virtual void SetNoResultsUnderline(bool underline) = 0;

  /// `lblProgressMsg`; a line break in it is CR LF.
  virtual void SetProgressMessage(std::string_view caption) = 0;

  /// `lblProgressPerc`.
  virtual void SetProgressPercent(std::string_view caption) = 0;

  /// The width of `picProgBar` in twips.
  virtual void SetProgressBarWidth(float twips) = 0;

  /// Brings the grid cell of a class to the front: `shapeCardBack(index)`, then `lblCards(index)`.
  virtual void RaiseCell(std::int16_t index) = 0;

  /// Hides `imgGridBack`.
  virtual void HideGridBack() = 0;

  /// Processes all pending events, then returns. Anything the user can click may happen inside: a click on the stop
  /// label, an edit of a box, even the start of another run.
  virtual void Yield() = 0;

  /// Colours the grid and shows the texts of a finished run.
  virtual void PresentResults(const Analysis& analysis) = 0;

  /// Does what a click on the grid's link in the side panel does: a run has finished with this.
  virtual void ShowGrid(const Analysis& analysis) = 0;
};

}  // namespace quillon
