#pragma once

// What the New Range dialog does, the quick way to a range from the input screens: the user paints a grid, and the
// range is saved and chosen in the list from which the dialog was opened ("ranges/range_choosers.h"). A range that is
// wanted once only goes under the scratch name.
//
// OK closes the dialog, and the next opening brings a fresh one. Cancel only hides it, and the next opening brings it
// back as it was, selection and name and all. That difference is meant.

#include <cstdint>
#include <string>
#include <string_view>

#include "ranges/card_grid.h"
#include "ranges/range_choosers.h"
#include "ranges/range_files.h"
#include "support/message_boxes.h"

namespace quillon {

/// The code of the Enter key's character.
inline constexpr int kEnterCharacter = 13;

/// What the routines need of `frmNewRange`.
class NewRangeWindow {
 public:
  virtual ~NewRangeWindow() = default;

  [[nodiscard]] virtual CardGridForm& Grid() = 0;

  virtual void SetSelectionCaption(std::string_view caption) = 0;  // lblPercSelected
  virtual void SetSummary(std::string_view text) = 0;  // txtRangeAbbr

  [[nodiscard]] virtual std::string RangeName() const = 0;  // txtRangeName
  virtual void SetRangeName(std::string_view text) = 0;
  virtual void SetRangeNameEnabled(bool enabled) = 0;
  virtual void FocusRangeName() = 0;  // does nothing while the box is disabled
  virtual void SelectWholeRangeName() = 0;

  [[nodiscard]] virtual bool SaveRangeChecked() const = 0;  // chkSaveRange

  [[nodiscard]] virtual MessageBoxes& Messages() = 0;

  /// The main window, where ranges are chosen.
  [[nodiscard]] virtual RangeChoosers& Choosers() = 0;

  /// Fills every list of ranges of the program anew, as ManagerWindow::RefreshLists.
  virtual void RefreshLists() = 0;

  virtual void Close() = 0;
  virtual void Hide() = 0;
};

/// Shows how much of all hands is selected on the grid, in lblPercSelected, and the grid's summary.
void SumUpNewRange(NewRangeWindow& window);

/// The click on `lblCards(index)`: toggles the cell and sums the grid up.
void ClickNewRangeCell(NewRangeWindow& window, std::int16_t index);

/// The click on `chkSaveRange`. Checked, the name can be typed: the box is enabled and has the focus, with its whole
/// text selected. Unchecked, the name is the scratch name and the box is disabled. The name of before does not come
/// back.
void ClickSaveRange(NewRangeWindow& window);

/// A character typed into `txtRangeName`: Enter is a click on `cmdOK`, any other does nothing here.
void TypeInRangeName(NewRangeWindow& window, const ProgramFolder& folder, int character);

/// The click on `cmdOK`: saves the grid under the name in the box, tells so, fills the lists anew, chooses the range in
/// the list from which the dialog was opened, and closes it. A name that cannot be had is told, and the dialog stays as
/// it is. A grid with nothing selected is saved like any other. RunTimeError, with the file and the reason, if it
/// cannot be written.
void ClickNewRangeOk(NewRangeWindow& window, const ProgramFolder& folder);

/// The click on `cmdCancel`: hides the dialog.
void ClickNewRangeCancel(NewRangeWindow& window);

}  // namespace quillon
