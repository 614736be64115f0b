#pragma once

// What the windows beside the main window have in common: a white ground, the program's icon, a way for the
// Tab key, and how they come up.

#include <QWidget>
#include <functional>
#include <span>
#include <string_view>

#include "ranges/range_files.h"
#include "ranges/range_notation.h"
#include "support/input_boxes.h"
#include "support/message_boxes.h"
#include "support/twips.h"
#include "toolkit/form_builder.h"
#include "toolkit/shift_watch.h"

namespace quillon {

/// What a dialog finds round it. All of it outlives the dialog.
struct DialogSurroundings {
  ProgramFolder Folder;
  MessageBoxes& Messages;
  InputBoxes& Inputs;
  ShiftWatch& Shift;
  std::function<HandOrder()> BestFirst;  // the classes as "top 15%" takes them
};

/// Gives a window that title, the ground and the icon of the dialogs.
void DressWindow(QWidget& form, std::string_view title);

/// Makes `form` a window with that title and inner area, hidden.
void PrepareDialog(QWidget& form, std::string_view title, const TwipSize& size);

/// Draws frames round the boxes of the form, which has no shapes round them.
void FrameBoxes(QWidget& form);

/// The same with its controls.
template <typename Controls>
[[nodiscard]] Controls BuildDialog(QWidget& form, std::string_view title, const TwipSize& size) {
  PrepareDialog(form, title, size);
  Controls controls(form);
  FrameBoxes(form);
  return controls;
}

/// Lets Tab go from one control to the next, also to those that it does not reach yet. The first has the focus when the
/// window comes up.
void OrderTabs(std::span<QWidget* const> controls);

/// Tells that a range was saved in a box, and has it said at once.
void TellSaved(QWidget& form, const DialogSurroundings& around, std::string_view rangeName);

/// Shows the window in front of all others and gives it the keyboard, also where it is shown already or minimised.
void BringUp(QWidget& window);

}  // namespace quillon
