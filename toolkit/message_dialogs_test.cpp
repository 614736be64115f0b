#include "toolkit/message_dialogs.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <vector>

#include "artwork/artwork.h"
#include "testing/bring_to_front.h"
#include "testing/expected_boxes.h"
#include "toolkit/form_keys.h"
#include "toolkit/label.h"
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

TEST(MessageDialogs, AnswerWhatChangesNothingWhereTheBoxIsClosedAndEnterWithTheFirstButton) {
  struct Row {
    MessageButtons Buttons;
    MessageAnswer Closed;
    MessageAnswer Entered;
  };
  constexpr std::array kRows = {
      Row{MessageButtons::kOk, MessageAnswer::kOk, MessageAnswer::kOk},
      Row{MessageButtons::kYesNo, MessageAnswer::kNo, MessageAnswer::kYes},
      Row{MessageButtons::kYesNoCancel, MessageAnswer::kCancel, MessageAnswer::kYes},
  };
  for (const Row& row : kRows) {
    ExpectMessageBoxClosed(With(row.Buttons));
    EXPECT_EQ(MessageDialogs().Show(With(row.Buttons)), row.Closed);
    for (const auto& [key, answer] : {std::pair(Qt::Key_Escape, row.Closed), {Qt::Key_Return, row.Entered}}) {
      ExpectDialog([pressed = key](QDialog& box) { QTest::keyClick(&box, pressed); });
      EXPECT_EQ(MessageDialogs().Show(With(row.Buttons)), answer);
    }
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

TEST(MessageDialogs, ShowAMarkUnderItsPlace) {
  for (const bool columns : {false, true}) {
    ExpectDialog([columns](QDialog& dialog) {
      const QFontMetrics letters(dialog.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->font());
      EXPECT_EQ(letters.horizontalAdvance(QStringLiteral("Wi,")) == letters.horizontalAdvance(QStringLiteral("   ")),
                columns);
      dialog.accept();
    });
    MessageDialogs().Show({.title = "Quillon", .text = "Wi,X\r\n   ^ wrong", .columns = columns});
  }
}

// Two windows, the second in front of the first.
class AskingWindows : public testing::Test {
 protected:
  AskingWindows() {
    asker.setGeometry(100, 100, 500, 400);
    other.setGeometry(700, 500, 500, 400);
    asker.setObjectName(QStringLiteral("asker"));
    other.setObjectName(QStringLiteral("other"));
    link.SetUse(ControlUse::kLink);
    for (QWidget* window : {&asker, &other})
      window->show();
    BringToFront(other);
  }

  static void ExpectBoxOf(const QWidget& owner) {
    ExpectDialog([&owner](QDialog& box) {
      ASSERT_NE(box.parentWidget(), nullptr);
      EXPECT_EQ(box.parentWidget()->objectName(), owner.objectName());
      EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
      const QPoint off = box.frameGeometry().center() - owner.frameGeometry().center();
      EXPECT_LE(off.manhattanLength(), 40) << off.x() << " " << off.y();  // room for a window manager's frame
      box.accept();
    });
  }

  QWidget asker;
  QWidget other;
  Label link{&asker};
  MessageDialogs boxes;
};

TEST_F(AskingWindows, AreThoseWhoseUserIsAnsweredWhateverHasComeInFront) {
  QObject::connect(&link, &Control::Clicked, &asker, [this] {
    BringToFront(other);
    ExpectBoxOf(asker);
    boxes.Show(With(MessageButtons::kOk));
    // Right after a box no window is active, until the window system activates one.
    QApplication::setActiveWindow(nullptr);
    ExpectBoxOf(asker);
    static_cast<void>(AskForLine({"Name?", "New Range"}));
    QApplication::setActiveWindow(nullptr);
    ExpectBoxOf(asker);
    boxes.Show(With(MessageButtons::kYesNo));
  });
  QTest::mouseClick(asker.windowHandle(), Qt::LeftButton, {}, link.geometry().center());
  VerifyExpectedBoxes();
  QTest::keyClick(&link, Qt::Key_Return);
}

TEST_F(AskingWindows, AreAskedOnceAgainWhenAnotherOneHasBeenAnswered) {
  Label nested(&other);
  nested.SetUse(ControlUse::kLink);
  QObject::connect(&nested, &Control::Clicked, &other, [this] {
    ExpectBoxOf(other);
    boxes.Show(With(MessageButtons::kOk));
  });
  QObject::connect(&link, &Control::Clicked, &asker, [&] {
    QTest::mouseClick(&nested, Qt::LeftButton);
    VerifyExpectedBoxes();
    ExpectBoxOf(asker);
    boxes.Show(With(MessageButtons::kOk));
  });
  QTest::mouseClick(&link, Qt::LeftButton);
}

TEST_F(AskingWindows, AreThoseOfTheBoxWhoseListWasOpen) {
  QComboBox list(&asker);
  list.addItems({QStringLiteral("one"), QStringLiteral("two")});
  list.show();
  list.showPopup();
  QObject::connect(&list, &QComboBox::activated, &asker, [this] {
    ExpectBoxOf(asker);
    boxes.Show(With(MessageButtons::kOk));
  });
  QTest::keyClick(list.view(), Qt::Key_Return);
}

TEST_F(AskingWindows, AreInFrontWhereAKeyIsHeardInEachOrNobodyIsAnswered) {
  const auto ask = [this] { boxes.Show(With(MessageButtons::kOk)); };
  BindKey(asker, Qt::Key_F1, ask, Qt::ApplicationShortcut);
  ExpectBoxOf(other);
  QTest::keyClick(other.windowHandle(), Qt::Key_F1);
  VerifyExpectedBoxes();
  BringToFront(other);
  ExpectBoxOf(other);
  ask();
}

TEST_F(AskingWindows, AreNoneWhereNobodyCanBeSeen) {
  QObject::connect(&link, &Control::Clicked, &asker, [this] {
    asker.hide();
    other.hide();
    QApplication::setActiveWindow(nullptr);
    ExpectDialog([](QDialog& box) {
      EXPECT_EQ(box.parentWidget(), nullptr);
      box.accept();
    });
    boxes.Show(With(MessageButtons::kOk));
  });
  QTest::mouseClick(&link, Qt::LeftButton);
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

TEST(MessageDialogs, ShowAllOfATextInLinesThatBreakAlikeAtEachScale) {
  for (const int sentences : {1, 4}) {
    std::string text;
    for (int i = 0; i < sentences; ++i)
      text += "The pot size must be greater than the amount you have to call. ";
    std::vector<double> widths;
    std::vector<double> heights;
    for (const double scale : {1.0, 1.5, 2.0, 2.5, 3.0}) {
      ShowAtScale(scale);
      QMessageBox box;
      FillMessageBox(box, {.title = "Pot Size", .text = text, .icon = MessageIcon::kStop});
      box.show();
      if (scale <= 2) {  // beyond that the test screen is too narrow
        widths.push_back(box.width() / scale);
        heights.push_back(box.height() / scale);
      }
      const auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      EXPECT_LE(label->geometry().right(), box.width()) << scale;
      EXPECT_GE(label->height(), label->heightForWidth(label->width())) << scale;
    }
    ShowAtScale(1);
    EXPECT_LE(std::ranges::max(widths), 1.1 * std::ranges::min(widths)) << sentences;
    EXPECT_LE(std::ranges::max(heights), 1.1 * std::ranges::min(heights)) << sentences;
  }
}

TEST(MessageDialogs, OfferTheDefaultTextSelected) {
  ExpectDialog([](QDialog& dialog) {
    const auto* line = dialog.findChild<QLineEdit*>();
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->selectedText(), QStringLiteral("Button"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });

  EXPECT_EQ(AskForLine({"Name?", "New Range", "Button"}), "Button");
}

TEST(MessageDialogs, TakeOneLineWithoutTabs) {
  ExpectDialog([](QDialog& dialog) {
    dialog.findChild<QLineEdit*>()->insert(QStringLiteral("B\u00E4r\tBlind\r\nCall"));
    dialog.accept();
  });
  EXPECT_EQ(AskForLine({"Name?", "New Range", ""}), "B\u00E4r Blind");

  ExpectDialog([](QDialog& dialog) { dialog.accept(); });
  EXPECT_EQ(AskForLine({"Name?", "Rename Range", "Big\tBlind"}), "Big Blind");
}

TEST(MessageDialogs, GetTheEmptyTextFromALineThatIsLeftOrEmptied) {
  ExpectInputBoxCancelled({"Name?", "", "Button"});
  ExpectInputBox({"Name?", "", "Button"}, "");
  ExpectDialog([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  ExpectDialog([](QDialog& box) { box.close(); });

  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(AskForLine({"Name?", "", "Button"}), "");
}

}  // namespace
}  // namespace quillon
