#pragma once

// The boxes that stop the program until somebody answers them. A test says beforehand which ones will come,
// in their order, and how each is answered:
//
//   ExpectMessageBox({.title = "Delete?", .text = "...", .icon = MessageIcon::kQuestion,
//                     .buttons = MessageButtons::kYesNoCancel}, MessageAnswer::kYes);
//   QTest::mouseClick(&form.LabelAt("lblDelete"), Qt::LeftButton);
//
// A box that shows something else fails the test, and so does one that nobody expected; either is closed, so that no
// test hangs. A box that was expected and has not come by the end of its test fails it as well. Boxes are answered from
// the event loop that they run themselves, after they have come up, as a user would.

#include <QDialog>
#include <functional>
#include <string_view>

#include "support/message_boxes.h"
#include "testing/recorded_input.h"

namespace quillon {

/// The next box is this message box, and its button for `answer` is clicked.
void ExpectMessageBox(const Message& message, MessageAnswer answer = MessageAnswer::kOk);

/// The next box is this message box, and it is closed without a click on a button.
void ExpectMessageBoxClosed(const Message& message);

/// The next box is this input box; `answer` takes the place of its text, and OK is clicked.
void ExpectInputBox(const InputQuestion& question, std::string_view answer);

/// The next box is this input box, and Cancel is clicked.
void ExpectInputBoxCancelled(const InputQuestion& question);

/// The next box is one of any kind, such as a QFileDialog. `answer` looks at it, does what a user would, and has to
/// close it.
void ExpectDialog(std::function<void(QDialog& dialog)> answer);

/// Fails the test for each box that was expected and has not come, and expects none of them any longer. Every test ends
/// with it; one that goes on to something else may call it in between.
void VerifyExpectedBoxes();

/// Begins to look out for boxes. Called once, by the test program's main, when the application is there.
void StartWatchingBoxes();

}  // namespace quillon
