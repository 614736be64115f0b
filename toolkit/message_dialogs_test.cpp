#include "toolkit/message_dialogs.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <vector>

#include "artwork/artwork.h"
#include "testing/expected_boxes.h"
#include "toolkit/placement.h"

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

TEST(MessageDialogs, BelongToTheWindowThatAsksAlsoWhereNoneIsInFront) {
  QWidget form;
  form.setGeometry(300, 200, 800, 600);
  form.show();
  form.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  MessageDialogs dialogs;
  const auto expectCentred = [&form](QDialog& box) {
    EXPECT_EQ(box.parentWidget(), &form);
    const QPoint off = box.frameGeometry().center() - form.frameGeometry().center();
    EXPECT_LE(off.manhattanLength(), 40) << off.x() << " " << off.y();  // what a window manager's frame may be
    box.accept();
  };
  ExpectDialog(expectCentred);
  dialogs.Show(With(MessageButtons::kOk));

  QApplication::setActiveWindow(nullptr);
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  ExpectDialog(expectCentred);
  dialogs.Show(With(MessageButtons::kOk));
  QApplication::setActiveWindow(nullptr);
  ExpectDialog(expectCentred);
  dialogs.Ask("Name?", "New Range", "");

  form.hide();
  QApplication::setActiveWindow(nullptr);
  ExpectDialog([](QDialog& box) {
    EXPECT_EQ(box.parentWidget(), nullptr) << "nobody can see that window";
    box.accept();
  });
  dialogs.Show(With(MessageButtons::kOk));
}

TEST(MessageDialogs, HaveAnIconOfTheirOwnInTheSizeOfTheScale) {
  InitArtwork();
  for (const double scale : {1.0, 1.5, 2.0}) {
    ShowAtScale(scale);
    std::vector<QImage> seen;
    for (const MessageIcon icon :
         {MessageIcon::kInformation, MessageIcon::kExclamation, MessageIcon::kQuestion, MessageIcon::kStop}) {
      QMessageBox box;
      FillMessageBox(box, {.title = "Title", .text = "Text", .icon = icon});
      const QImage image = box.iconPixmap().toImage();
      EXPECT_EQ(image.width(), 32 * scale);
      EXPECT_EQ(std::ranges::count(seen, image), 0) << "each looks different";
      seen.push_back(image);
      for (const QAbstractButton* button : box.buttons())
        EXPECT_TRUE(button->icon().isNull());
    }
  }
  ShowAtScale(1);
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
