#pragma once

// The two dialogs as the main window sees them, and the main window as they see it.

#include "ranges/dialogs/shift_watch.h"
#include "ranges/new_range.h"
#include "ranges/range_choosers.h"
#include "ranges/range_files.h"
#include "support/input_boxes.h"
#include "support/message_boxes.h"

namespace quillon {

/// What the main window does with the dialogs. Each is loaded when it is first touched, and again after it was closed.
class RangeForms {
 public:
  virtual ~RangeForms() = default;

  /// The list `lstRanges` of the Range Manager, which is loaded for it, hidden.
  [[nodiscard]] virtual ChooserList& ManagerList() = 0;

  virtual void ShowManager() = 0;

  /// Loads the New Range dialog where it is not loaded, and shows it.
  virtual NewRangeWindow& ShowNewRange() = 0;
};

/// What the dialogs do with the main window.
class RangeFormsOwner : public RangeChoosers {
 public:
  /// Fills all range lists anew, that of the Range Manager too.
  virtual void RefreshLists() = 0;

  /// Puts the main window's mouse pointer back to the default one.
  virtual void SetDefaultPointer() = 0;
};

/// What a dialog finds round it. All of it outlives the dialog.
struct DialogSurroundings {
  ProgramFolder Folder;
  MessageBoxes& Messages;
  InputBoxes& Inputs;
  ShiftWatch& Shift;
  RangeFormsOwner& Owner;
};

}  // namespace quillon
