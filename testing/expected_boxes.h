#pragma once

// The boxes that stop the program until somebody answers them. A test announces them in order, with the answer to each:
//
//   ExpectMessageBox({.title = "Delete?", .text = "...", .icon = MessageIcon::kQuestion,
//                     .buttons = MessageButtons::kYesNoCancel}, MessageAnswer::kYes);
//   QTest::mouseClick(&form.LabelAt("lblDelete"), Qt::LeftButton);
//
// A box that shows something else fails the test, and so does an unexpected one; either is closed, so that no test
// hangs. An expected box that has not opened by the end of its test fails it too. Boxes are answered from their own
// event loop once they are open, as by a user.

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

/// The next box is one of any kind, such as a QFileDialog. `answer` acts as a user would, and must close it.
void ExpectDialog(std::function<void(QDialog& dialog)> answer);

/// Fails the test for each expected box that has not opened, and drops the expectation. Runs at the end of every test;
/// a test with several parts may call it in between.
void VerifyExpectedBoxes();

/// Starts watching for boxes. Called once, by the test program's main, after creating the application.
void StartWatchingBoxes();

}  // namespace quillon
