#pragma once

// Shared by all windows but the main one: white background, the program's icon, tab order, and how they are raised.

#include <QWidget>
#include <functional>
#include <span>
#include <string_view>

#include "ranges/range_files.h"
#include "ranges/range_notation.h"
#include "support/line_question.h"
#include "support/message_boxes.h"
#include "support/twips.h"
#include "toolkit/form_builder.h"
#include "toolkit/shift_watch.h"

namespace quillon {

/// What a dialog uses from outside. All of it outlives the dialog.
struct DialogSurroundings {
  ProgramFolder Folder;
  MessageBoxes& Messages;
  AskLine Ask;
  ShiftWatch& Shift;
  std::function<HandOrder()> BestFirst;  // the classes in the order of "top 15%"
};

/// Gives a window this title and the dialogs' background and icon.
void DressWindow(QWidget& form, std::string_view title);

/// Makes `form` a hidden window with this title and inner size.
void PrepareDialog(QWidget& form, std::string_view title, const TwipSize& size);

/// Draws frames around the form's boxes, which have no shapes around them.
void FrameBoxes(QWidget& form);

/// The same, also adding the controls.
template <typename Controls>
[[nodiscard]] Controls BuildDialog(QWidget& form, std::string_view title, const TwipSize& size) {
  PrepareDialog(form, title, size);
  Controls controls(form);
  FrameBoxes(form);
  return controls;
}

/// Sets the tab order, including controls that Tab cannot reach yet. The first gets the focus when the window is shown.
void OrderTabs(std::span<QWidget* const> controls);

/// Shows that a range was saved in a message box, and announces it at once.
void TellSaved(QWidget& form, const DialogSurroundings& around, std::string_view rangeName);

/// Shows the window in front of all others with keyboard focus, also if it is already visible or minimised.
void BringUp(QWidget& window);

}  // namespace quillon
