#include "toolkit/message_dialogs.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <array>
#include <gtest/gtest.h>

#include "testing/expected_boxes.h"

namespace quillon {
namespace {

Message With(MessageButtons buttons) {
  return {.title = "Save Range?", .text = "It has changed.", .icon = MessageIcon::kQuestion, .buttons = buttons};
}

TEST(MessageDialogs, ShowEveryIconAndGiveBackTheButton) {
  struct Row {
    MessageIcon Icon;
    MessageButtons Buttons;
    MessageAnswer Answer;
  };
  constexpr std::array kRows = {
      Row{MessageIcon::kInformation, MessageButtons::kOk, MessageAnswer::kOk},
      Row{MessageIcon::kExclamation, MessageButtons::kOk, MessageAnswer::kOk},
      Row{MessageIcon::kStop, MessageButtons::kOk, MessageAnswer::kOk},
      Row{MessageIcon::kQuestion, MessageButtons::kYesNo, MessageAnswer::kYes},
      Row{MessageIcon::kQuestion, MessageButtons::kYesNo, MessageAnswer::kNo},
      Row{MessageIcon::kQuestion, MessageButtons::kYesNoCancel, MessageAnswer::kYes},
      Row{MessageIcon::kQuestion, MessageButtons::kYesNoCancel, MessageAnswer::kNo},
      Row{MessageIcon::kQuestion, MessageButtons::kYesNoCancel, MessageAnswer::kCancel},
  };
  for (const Row& row : kRows) {
    const Message message = {.title = "Title", .text = "One.\r\n\r\nTwo.", .icon = row.Icon, .buttons = row.Buttons};
    ExpectMessageBox(message, row.Answer);
    EXPECT_EQ(MessageDialogs().Show(message), row.Answer);
  }
}

TEST(MessageDialogs, AnswerWhatChangesNothingWhereTheBoxIsClosed) {
  struct Row {
    MessageButtons Buttons;
    MessageAnswer Answer;
  };
  constexpr std::array kRows = {
      Row{MessageButtons::kOk, MessageAnswer::kOk},
      Row{MessageButtons::kYesNo, MessageAnswer::kNo},
      Row{MessageButtons::kYesNoCancel, MessageAnswer::kCancel},
  };
  for (const Row& row : kRows) {
    ExpectMessageBoxClosed(With(row.Buttons));
    EXPECT_EQ(MessageDialogs().Show(With(row.Buttons)), row.Answer);

    ExpectDialog([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(MessageDialogs().Show(With(row.Buttons)), row.Answer);
  }
}

TEST(MessageDialogs, AnswerEnterWithTheFirstButton) {
  struct Row {
    MessageButtons Buttons;
    MessageAnswer Answer;
  };
  constexpr std::array kRows = {
      Row{MessageButtons::kOk, MessageAnswer::kOk},
      Row{MessageButtons::kYesNo, MessageAnswer::kYes},
      Row{MessageButtons::kYesNoCancel, MessageAnswer::kYes},
  };
  for (const Row& row : kRows) {
    ExpectDialog([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(MessageDialogs().Show(With(row.Buttons)), row.Answer);
  }
}

TEST(MessageDialogs, ShowTheTextAsItStands) {
  ExpectDialog([](QDialog& dialog) {
    const auto* label = dialog.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), QStringLiteral("The range \"<b>A & B</b>\"\nis there."));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_TRUE(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    dialog.accept();
  });
  MessageDialogs().Show({.title = "Quillon", .text = "The range \"<b>A & B</b>\"\r\nis there."});
}

TEST(MessageDialogs, StandOverTheWindowInFrontAndHoldUpTheWholeProgram) {
  QWidget form;
  form.show();
  form.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  ExpectDialog([&](QDialog& box) {
    EXPECT_EQ(box.parentWidget(), &form);
    EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
    box.accept();
  });

  MessageDialogs().Show(With(MessageButtons::kOk));
}

TEST(MessageDialogs, AskForALineOfText) {
  ExpectInputBox({"What is the range's name?", "New Range", "Button"}, "Big Blind \u00C4");

  EXPECT_EQ(MessageDialogs().Ask("What is the range's name?", "New Range", "Button"), "Big Blind \u00C4");
}

TEST(MessageDialogs, OfferTheDefaultTextSelected) {
  ExpectDialog([](QDialog& dialog) {
    const auto* line = dialog.findChild<QLineEdit*>();
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->selectedText(), QStringLiteral("Button"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });

  EXPECT_EQ(MessageDialogs().Ask("Name?", "New Range", "Button"), "Button");
}

TEST(MessageDialogs, TakeOneLineWithoutTabs) {
  ExpectDialog([](QDialog& dialog) {
    dialog.findChild<QLineEdit*>()->insert(QStringLiteral("Big\tBlind\r\nCall"));
    dialog.accept();
  });
  EXPECT_EQ(MessageDialogs().Ask("Name?", "New Range", ""), "Big Blind");

  ExpectDialog([](QDialog& dialog) { dialog.accept(); });
  EXPECT_EQ(MessageDialogs().Ask("Name?", "Rename Range", "Big\tBlind"), "Big Blind");
}

TEST(MessageDialogs, GetTheEmptyTextFromALineThatIsLeftOrEmptied) {
  ExpectInputBoxCancelled({"Name?", "", "Button"});
  ExpectInputBox({"Name?", "", "Button"}, "");
  ExpectDialog([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  ExpectDialog([](QDialog& box) { box.close(); });

  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(MessageDialogs().Ask("Name?", "", "Button"), "");
}

}  // namespace
}  // namespace quillon
