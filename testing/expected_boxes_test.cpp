#include "testing/expected_boxes.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <array>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <string_view>

#include "artwork/artwork.h"
#include "toolkit/message_dialogs.h"

namespace quillon {
namespace {

const Message kQuestion = {.title = "Delete?",
                           .text = "Do you really want to delete \"Button\"?",
                           .icon = MessageIcon::kQuestion,
                           .buttons = MessageButtons::kYesNoCancel};
const Message kNote = {.title = "Quillon", .text = "First line.\r\nSecond line."};

// Statements that must fail cannot access local variables, so they are all here.
MessageAnswer Show(const Message& message) {
  InitArtwork();  // includes the icons of the boxes
  return MessageDialogs().Show(message);
}

TEST(ExpectedBoxes, AnswerWithTheButtonAskedForInTheirOrder) {
  ExpectMessageBox(kQuestion, MessageAnswer::kNo);
  ExpectMessageBox(kNote);
  ExpectMessageBox(kQuestion, MessageAnswer::kYes);

  EXPECT_EQ(Show(kQuestion), MessageAnswer::kNo);
  EXPECT_EQ(Show(kNote), MessageAnswer::kOk);
  EXPECT_EQ(Show(kQuestion), MessageAnswer::kYes);
}

TEST(ExpectedBoxes, FailTheTestAtABoxThatNobodyExpected) {
  EXPECT_NONFATAL_FAILURE(Show(kQuestion), "Unexpected box: message box \"Delete?\" (question, Yes No Cancel)");
  EXPECT_NONFATAL_FAILURE(static_cast<void>(AskForLine({"Name?", "New", "Button"})),
                          "Unexpected box: input box \"New\": Name? [Button]");
  EXPECT_NONFATAL_FAILURE(QFileDialog(nullptr, QStringLiteral("Save As")).exec(), "QFileDialog \"Save As\"");
}

TEST(ExpectedBoxes, FailTheTestAtABoxWithNoWayOut) {
  EXPECT_NONFATAL_FAILURE(
      QMessageBox(QMessageBox::NoIcon, QStringLiteral("Trap"), QStringLiteral("?"), QMessageBox::Yes | QMessageBox::No)
          .exec(),
      "\"Trap\" (no icon, Yes No): ?");
}

TEST(ExpectedBoxes, FailTheTestWhereTheBoxDiffersInAnything) {
  struct Row {
    std::string_view Difference;
    Message Shown;
  };
  const std::array rows = {
      Row{"title", {"Delete", kQuestion.text, kQuestion.icon, kQuestion.buttons}},
      Row{"text", {kQuestion.title, "Do you really?", kQuestion.icon, kQuestion.buttons}},
      Row{"icon", {kQuestion.title, kQuestion.text, MessageIcon::kStop, kQuestion.buttons}},
      Row{"buttons", {kQuestion.title, kQuestion.text, kQuestion.icon, MessageButtons::kYesNo}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Difference);
    static const Message* shown = nullptr;
    shown = &row.Shown;
    ExpectMessageBox(kQuestion);
    EXPECT_NONFATAL_FAILURE(Show(*shown), "Not the box that was expected.");
  }
}

TEST(ExpectedBoxes, FailTheTestWhereTheButtonIsNotThere) {
  ExpectMessageBox(kNote, MessageAnswer::kCancel);
  EXPECT_NONFATAL_FAILURE(Show(kNote), "This box was answered but is still open: message box \"Quillon\"");
}

TEST(ExpectedBoxes, FailTheTestWhereABoxDoesNotCome) {
  EXPECT_NONFATAL_FAILURE(
      {
        ExpectMessageBox(kNote);
        VerifyExpectedBoxes();
      },
      "This box has not come: message box \"Quillon\" (information, OK): First line.");

  VerifyExpectedBoxes();  // no longer expected
}

TEST(ExpectedBoxes, TypeIntoAnInputBoxOrCancelIt) {
  ExpectInputBox({"Name?", "New", "Button"}, "Big Blind");
  ExpectInputBoxCancelled({"Name?", "New", "Button"});

  EXPECT_EQ(AskForLine({"Name?", "New", "Button"}), "Big Blind");
  EXPECT_EQ(AskForLine({"Name?", "New", "Button"}), "");
}

TEST(ExpectedBoxes, HandOverADialogOfAnyKind) {
  ExpectDialog([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save As"));
    dialog.accept();
  });
  QDialog dialog;
  dialog.setWindowTitle(QStringLiteral("Save As"));

  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
}

TEST(ExpectedBoxes, LeaveWindowsThatAreNotModalAlone) {
  QDialog dialog;
  dialog.show();
  QCoreApplication::processEvents();

  EXPECT_TRUE(dialog.isVisible());
}

}  // namespace
}  // namespace quillon
