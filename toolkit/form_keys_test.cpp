#include "toolkit/form_keys.h"

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "testing/bring_to_front.h"
#include "testing/expected_boxes.h"
#include "toolkit/label.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/text_box.h"

namespace quillon {
namespace {

class FormKeysTest : public testing::Test {
 public:
  FormKeysTest() {
    link.SetUse(ControlUse::kLink);
    start.SetUse(ControlUse::kFocusLink);
    BindPress(link, Qt::CTRL | Qt::Key_L);
    BindPress(start, Qt::CTRL | Qt::Key_Return);
    BindPress(button, Qt::Key_F2);
    BringToFront(form);
    box.setFocus();
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(form.windowHandle(), key, held); }

  QWidget form;
  Label link{&form};
  Label start{&form};
  QPushButton button{&form};
  TextBox box{&form};
  QSignalSpy linkClicks{&link, &Control::Clicked};
  QSignalSpy startClicks{&start, &Control::Clicked};
  QSignalSpy buttonClicks{&button, &QPushButton::clicked};
};

TEST_F(FormKeysTest, PressTheirControlsFromAnywhereInTheWindow) {
  Press(Qt::Key_L, Qt::ControlModifier);
  EXPECT_EQ(linkClicks.count(), 1);
  EXPECT_EQ(form.focusWidget(), &box);
  Press(Qt::Key_F2);
  EXPECT_EQ(buttonClicks.count(), 1);
}

TEST_F(FormKeysTest, PressNothingThatIsHiddenOrDisabled) {
  link.hide();
  button.setEnabled(false);
  Press(Qt::Key_L, Qt::ControlModifier);
  Press(Qt::Key_F2);
  EXPECT_EQ(linkClicks.count(), 0);
  EXPECT_EQ(buttonClicks.count(), 0);
}

TEST_F(FormKeysTest, LeaveTheBoxBeforeWhatTakesTheFocusIsPressed) {
  QString order;
  QObject::connect(&box, &TextBox::FocusLost, &form, [&order] { order += QStringLiteral("left "); });
  QObject::connect(&start, &Control::Clicked, &form, [&order] { order += QStringLiteral("pressed"); });
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(order, QStringLiteral("left pressed"));
  EXPECT_EQ(form.focusWidget(), &start);
}

TEST_F(FormKeysTest, PressNothingAfterAComplaintAboutTheBoxThatWasLeft) {
  QObject::connect(&box, &TextBox::FocusLost, &form,
                   [] { MessageDialogs().Show({.title = "Quillon", .text = "This is no sum."}); });
  ExpectMessageBox({.title = "Quillon", .text = "This is no sum."});
  Press(Qt::Key_Return, Qt::ControlModifier);
  VerifyExpectedBoxes();
  EXPECT_EQ(startClicks.count(), 0);
  BringToFront(form);
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(startClicks.count(), 1) << "the box has been left";
}

TEST_F(FormKeysTest, PressOnceHoweverLongTheyAreHeldDown) {
  for (const bool repeated : {false, true, true})
    QTest::simulateEvent(form.windowHandle(), true, Qt::Key_F2, {}, {}, repeated);
  EXPECT_EQ(buttonClicks.count(), 1);
}

TEST_F(FormKeysTest, DoNothingWhileTheyAreDisabled) {
  int presses = 0;
  QShortcut& key = BindKey(form, Qt::Key_Escape, [&presses] { ++presses; });
  for (const bool enabled : {true, false, true}) {
    key.setEnabled(enabled);
    Press(Qt::Key_Escape);
  }
  EXPECT_EQ(presses, 2);
}

TEST_F(FormKeysTest, LeaveToATextBoxWhatItKnows) {
  int presses = 0;
  BindKeyBesideText(form, Qt::CTRL | Qt::Key_C, [&presses] { ++presses; });
  box.setText(QStringLiteral("typed"));
  QPlainTextEdit read(QStringLiteral("read"), &form);
  read.setReadOnly(true);
  read.selectAll();
  read.show();
  struct Row {
    QWidget* Focused;
    QString Copied;
    int Presses;
  };
  for (const Row& row : {Row{&box, QStringLiteral("typed"), 0}, Row{&button, {}, 1},
                         Row{&read, QStringLiteral("read"), 1}, Row{&form, {}, 2}}) {
    QGuiApplication::clipboard()->clear();
    row.Focused->setFocus();
    if (row.Focused == &box) box.selectAll();
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), row.Copied);
    EXPECT_EQ(presses, row.Presses);
  }
}

TEST_F(FormKeysTest, OfTheWholeProgramAreHeardInEveryWindowButNotBehindABox) {
  int presses = 0;
  BindKey(
      form, Qt::Key_F1, [&presses] { ++presses; }, Qt::ApplicationShortcut);
  QWidget other;
  BringToFront(other);
  QTest::keyClick(other.windowHandle(), Qt::Key_F1);
  EXPECT_EQ(presses, 1);
  QTest::keyClick(other.windowHandle(), Qt::Key_L, Qt::ControlModifier);
  EXPECT_EQ(linkClicks.count(), 0) << "a form's key does not work in another";

  ExpectDialog([](QDialog& dialog) {
    QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
    dialog.accept();
  });
  QDialog().exec();
  EXPECT_EQ(presses, 1);
}

}  // namespace
}  // namespace quillon
