#pragma once

// What the two dialogs have in common as windows: a size that stays, a white ground, the program's icon, a way for the
// Tab key, and how they come up.

#include <QWidget>
#include <span>
#include <string_view>

#include "ranges/dialogs/shift_watch.h"
#include "ranges/range_files.h"
#include "support/input_boxes.h"
#include "support/message_boxes.h"
#include "support/twips.h"
#include "toolkit/form_builder.h"

namespace quillon {

/// What sets one dialog off from the other.
struct DialogDesign {
  std::string_view Title;
  TwipSize Size;  // the inner area
  std::span<const ControlTable> Tables;
};

/// What a dialog finds round it. All of it outlives the dialog.
struct DialogSurroundings {
  ProgramFolder Folder;
  MessageBoxes& Messages;
  InputBoxes& Inputs;
  ShiftWatch& Shift;
};

/// Makes `form` a window of that design, hidden, and builds its controls.
[[nodiscard]] FormControls BuildDialog(QWidget& form, const DialogDesign& design);

/// Lets Tab go from name to name, through every cell where the name is that of the grid's. The first has the focus when
/// the window comes up.
void OrderTabs(const FormControls& controls, std::span<const std::string_view> names);

/// Shows the window in front of all others and gives it the keyboard, also where it is shown already or minimised.
void BringUp(QWidget& window);

}  // namespace quillon
