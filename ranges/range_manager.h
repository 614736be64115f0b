#pragma once

// What the Range Manager does: the window in which ranges are looked at, edited, made, renamed and deleted. A list
// shows the names, a grid the selected range, a label and a text box sum it up. The grid is a working copy. It reaches
// a file through Save, Save As, Rename, or the question at OK, and whatever selects an entry of the list, a refresh
// too, paints the grid anew from the file: changes that were not saved are gone then, without a question.
//
// Nothing is kept beside the controls. The range that is shown is the selected entry, the empty text where none is, and
// whether it was changed is found out by comparison. Failures of files are told at "ranges/range_files.h".

#include <string_view>

#include "ranges/card_grid.h"
#include "ranges/range_files.h"
#include "ranges/range_lists.h"
#include "support/input_boxes.h"
#include "support/message_boxes.h"

namespace quillon {

/// What the routines need of `frmManager`.
class ManagerWindow {
 public:
  virtual ~ManagerWindow() = default;

  [[nodiscard]] virtual CardGridForm& Grid() = 0;

  /// `lstRanges`, whose click event is ClickRangeList.
  [[nodiscard]] virtual ChooserList& RangeList() = 0;

  virtual void SetRangeName(std::string_view caption) = 0;  // lblRangeName
  virtual void SetSelectionCaption(std::string_view caption) = 0;  // lblRangeInfo
  virtual void SetSummary(std::string_view text) = 0;  // txtRangeAbbr

  [[nodiscard]] virtual MessageBoxes& Messages() = 0;
  [[nodiscard]] virtual InputBoxes& Inputs() = 0;

  /// Fills every list of ranges of the program anew: RefreshRangeLists with the four combo boxes of the main window and
  /// this window's list.
  virtual void RefreshLists() = 0;

  /// Closes the window without a question.
  virtual void Close() = 0;
};

/// Shows under the grid how much of all hands is selected, as SelectionCaption tells it.
void UpdateSelLabel(ManagerWindow& window);

/// Whether the grid and the file of the selected range differ as texts. So they do where the file holds a weight that
/// the grid cannot show, such as 0.25, or was edited by hand, and where no range is selected.
[[nodiscard]] bool HasBeenModified(ManagerWindow& window, const ProgramFolder& folder);

/// The click on the list: shows the selected range, with a summary of what the grid can show of it. RunTimeError if the
/// range's file is missing or empty, as ShowRangeOnGrid has it.
void ClickRangeList(ManagerWindow& window, const ProgramFolder& folder);

/// The click on `lblCards(index)`: toggles the cell and sums the grid up. Nothing is written.
void ClickManagerCell(ManagerWindow& window, std::int16_t index);

/// The click on `imgNew`: asks for a name, and saves and selects an empty range of that name. An empty answer stops it
/// without a word; a name that cannot be had is told and stops it too, with all as it was.
void ClickNew(ManagerWindow& window, const ProgramFolder& folder);

/// The click on `imgSave`: saves the grid as the selected range and tells so. With nothing selected that is the range
/// without a name.
void ClickSave(ManagerWindow& window, const ProgramFolder& folder);

/// The click on `imgSaveAs`: asks for a name, the selected one on offer, saves the grid as a new range of that name,
/// selects it and tells so. Stops as ClickNew does. The selected range's file stays as it was.
void ClickSaveAs(ManagerWindow& window, const ProgramFolder& folder);

/// The click on `imgRename`: asks for a name, the selected one on offer, saves the grid under it, takes the selected
/// range's file away, selects the new name and tells so. An empty answer is a name that cannot be had, and told. The
/// old file goes last, so that nothing is lost by a failure; where it is missing, that is found before anything is
/// written.
void ClickRename(ManagerWindow& window, const ProgramFolder& folder);

/// The click on `imgDelete`: asks, and on Yes deletes the selected range's file. The list then shows its first range;
/// where none is left, nothing is selected and the grid keeps what it shows.
void ClickDelete(ManagerWindow& window, const ProgramFolder& folder);

/// The click on `cmdOK`: closes the window. If the range was changed it asks first, with Yes saving it as ClickSave
/// does, and Cancel leaving the window open.
void ClickManagerOk(ManagerWindow& window, const ProgramFolder& folder);

}  // namespace quillon
