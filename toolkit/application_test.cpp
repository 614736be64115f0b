#include "toolkit/application.h"

#include <QAccessible>
#include <QMenu>
#include <QMessageBox>
#include <QStyle>
#include <QTest>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/run_time_error.h"
#include "testing/expected_boxes.h"
#include "toolkit/control.h"
#include "toolkit/light_style.h"
#include "toolkit/message_dialogs.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;

template <typename Thrown>
std::string TextOf(const Thrown& thrown) {
  try {
    throw thrown;
  } catch (...) {
    return CurrentFaultText();
  }
}

TEST(ApplicationFault, HasTheTextOfTheErrorThatComesNearest) {
  EXPECT_EQ(TextOf(RunTimeError(RunTimeFault::kFileNotFound, "Ranges/Button.txt")),
            "Run-time error '53': File not found (Ranges/Button.txt)");
  EXPECT_EQ(TextOf(std::bad_alloc()), "Run-time error '7': Out of memory");
  EXPECT_EQ(TextOf(std::logic_error("no such control")), "Run-time error '51': Internal error (no such control)");
  EXPECT_EQ(TextOf(42), "Run-time error '51': Internal error");
}

// Only the process itself can tell what is on its screen when it ends, so it writes that to standard error.
void TellOfTheBox() {
  ExpectDialog([](QDialog& dialog) {
    const auto& box = dynamic_cast<QMessageBox&>(dialog);
    const std::string owner = box.parentWidget() == nullptr ? "" : FromQt(box.parentWidget()->objectName());
    std::cerr << "[" << owner << "|" << box.windowTitle().toStdString() << "|" << box.icon() << "|"
              << box.text().toStdString() << "]\n";
    dialog.accept();
  });
}

// A handler fails within two others, which must not continue.
void FailInAHandler() {
  TellOfTheBox();
  std::atexit([] { std::cerr << "at exit\n"; });
  Control outer(nullptr);
  Control inner(nullptr);
  QObject::connect(&inner, &Control::Clicked, &inner, [] { throw RunTimeError(RunTimeFault::kDiskFull, "a.txt"); });
  QObject::connect(&outer, &Control::Clicked, &outer, [&] {
    try {
      QTest::mouseClick(&inner, Qt::LeftButton);
    } catch (...) {
      std::cerr << "caught outside\n";
    }
    std::cerr << "went on\n";
  });
  QTest::mouseClick(&outer, Qt::LeftButton);
}

// The test program restarts itself for these.
class ApplicationEnd : public testing::Test {
 protected:
  ApplicationEnd() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(ApplicationEnd, OfAFaultInAHandlerIsABoxAndStatusOne) {
  EXPECT_EXIT(FailInAHandler(), ExitedWithCode(1),
              AllOf(HasSubstr("Run-time error '61': Disk full (a.txt)\n"),
                    HasSubstr("[|Quillon|3|Run-time error '61': Disk full (a.txt)\n\nQuillon ends now.]\n"),
                    Not(HasSubstr("went on")), Not(HasSubstr("caught outside")), Not(HasSubstr("at exit"))));
}

TEST_F(ApplicationEnd, OfAFaultOutsideAHandlerIsTheSame) {
  const auto end = [] {
    TellOfTheBox();
    EndWithFault("It is over.");
  };
  EXPECT_EXIT(end(), ExitedWithCode(1),
              AllOf(HasSubstr("It is over.\n"), HasSubstr("[|Quillon|3|It is over.\n\nQuillon ends now.]\n")));
}

// Right after a box no window is active.
void FailAfterABox() {
  QWidget window;
  window.setObjectName(QStringLiteral("frmManager"));
  Control control(&window);
  control.SetUse(ControlUse::kLink);
  window.show();
  QObject::connect(&control, &Control::Clicked, &window, [] {
    ExpectDialog([](QDialog& dialog) { dialog.accept(); });
    MessageDialogs().Show({.title = "Delete?", .text = "Really?"});
    VerifyExpectedBoxes();
    QApplication::setActiveWindow(nullptr);
    TellOfTheBox();
    throw RunTimeError(RunTimeFault::kFileNotFound, "a.txt");
  });
  QTest::mouseClick(&control, Qt::LeftButton);
}

TEST_F(ApplicationEnd, IsToldByTheWindowWhoseUserWasAnswered) {
  EXPECT_EXIT(FailAfterABox(), ExitedWithCode(1), HasSubstr("[frmManager|Quillon|3|Run-time error '53'"));
}

void PressReturn(Control& control) {
  QTest::keyClick(&control, Qt::Key_Return);
}

void ClickWithTheMouse(Control& control) {
  QTest::mouseClick(&control, Qt::LeftButton);
}

TEST(Application, KnowsWhetherItAnswersAKey) {
  Control control(nullptr);
  control.SetUse(ControlUse::kLink);
  std::vector<bool> byKey;
  QObject::connect(&control, &Control::Clicked, &control, [&byKey] { byKey.push_back(AnswersKey()); });
  PressReturn(control);
  EXPECT_FALSE(AnswersKey()) << "it has been handled";
  ClickWithTheMouse(control);
  control.Click();
  QTest::keyClick(&control, Qt::Key_Down);
  ClickWithTheMouse(control);
  EXPECT_EQ(byKey, (std::vector{true, false, false, false}));
}

TEST(Application, GoesOnAnsweringTheFirstActAfterOthersInBetween) {
  Control outer(nullptr);
  Control inner(nullptr);
  for (Control* control : {&outer, &inner})
    control->SetUse(ControlUse::kLink);
  std::vector<bool> byKey;
  QObject::connect(&inner, &Control::Clicked, &inner, [&byKey] { byKey.push_back(AnswersKey()); });
  QObject::connect(&outer, &Control::Clicked, &outer, [&] {
    PressReturn(inner);
    byKey.push_back(AnswersKey());
    ClickWithTheMouse(inner);
    byKey.push_back(AnswersKey());
  });
  ClickWithTheMouse(outer);
  EXPECT_EQ(byKey, (std::vector{true, false, false, false}));
  byKey.clear();
  PressReturn(outer);
  EXPECT_EQ(byKey, (std::vector{true, true, false, true}));
}

TEST(Application, TakesAListThatBelongsToNoWindowForTheWindow) {
  QMenu list;
  const QWidget* asking = nullptr;
  QObject::connect(list.addAction(QStringLiteral("an entry")), &QAction::triggered, &list,
                   [&asking] { asking = AnsweredAct().Window; });
  list.popup({10, 10});
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(asking, &list);
}

TEST(Application, LooksTheSameOnEveryDesktop) {
  EXPECT_NE(qobject_cast<LightStyle*>(QApplication::style()), nullptr);
  EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(QApplication::palette().color(QPalette::Text), QColor(Qt::black));
}

TEST(Application, IsOneToDesktopsAndHasAnotherNameForPeople) {
  EXPECT_EQ(QApplication::applicationName(), QStringLiteral("example.quillon.Quillon"));
  EXPECT_EQ(QApplication::desktopFileName(), QApplication::applicationName());
  const QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(qApp);
  EXPECT_EQ(spoken.text(QAccessible::Name), QStringLiteral("Quillon"));
  EXPECT_EQ(spoken.text(QAccessible::Description), QApplication::applicationFilePath());
}

}  // namespace
}  // namespace quillon
