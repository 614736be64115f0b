#pragma once

// Message boxes and input boxes on the screen. Each is modal for the whole program, belongs to the window that asks
// ("toolkit/application.h") and is centred on it.

#include <QMessageBox>

#include "support/line_question.h"
#include "support/message_boxes.h"

namespace quillon {

class MessageDialogs : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& message) override;
};

/// Asks in an input box (AskLine).
[[nodiscard]] std::string AskForLine(const LineQuestion& question);

/// Sets up a box: its text is plain text and can be selected with the mouse.
void FillMessageBox(QMessageBox& box, const Message& message);

}  // namespace quillon
