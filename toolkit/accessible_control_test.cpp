#include "toolkit/accessible_control.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QCoreApplication>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "toolkit/frame.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"

namespace quillon {
namespace {

QAccessibleInterface& Spoken(QWidget& control) {
  return *QAccessible::queryAccessibleInterface(&control);
}

QString NameOf(QWidget& control) {
  return Spoken(control).text(QAccessible::Name);
}

TEST(AccessibleControl, IsWhatItCanBeUsedFor) {
  Label label(nullptr);
  Picture picture(nullptr);
  Frame frame(nullptr);
  EXPECT_EQ(Spoken(label).role(), QAccessible::StaticText);
  EXPECT_EQ(Spoken(picture).role(), QAccessible::Graphic);
  EXPECT_EQ(Spoken(frame).role(), QAccessible::Pane);

  for (const ControlUse use : {ControlUse::kLink, ControlUse::kFocusLink, ControlUse::kPlainLink}) {
    label.SetUse(use);
    picture.SetUse(use);
    EXPECT_EQ(Spoken(label).role(), QAccessible::Link);
    EXPECT_EQ(Spoken(picture).role(), QAccessible::Button);
  }

  label.SetUse(ControlUse::kPassive);
  EXPECT_EQ(Spoken(label).role(), QAccessible::StaticText);
}

TEST(AccessibleControl, SaysItsTextOrTheNameItWasGiven) {
  Label label(nullptr);
  label.SetText(QStringLiteral("Preflop Call"));
  EXPECT_EQ(NameOf(label), QStringLiteral("Preflop Call"));
  label.SetText(QStringLiteral("Preflop Raise"));
  EXPECT_EQ(NameOf(label), QStringLiteral("Preflop Raise"));

  Picture picture(nullptr);
  picture.setAccessibleName(QStringLiteral("Analyze"));
  EXPECT_EQ(NameOf(picture), QStringLiteral("Analyze"));

  Frame frame(nullptr);
  frame.SetCaption(QStringLiteral("ALL IN Grid"));
  EXPECT_EQ(NameOf(frame), QStringLiteral("ALL IN Grid"));
}

TEST(AccessibleControl, CanBePressedWhereItCanBeClicked) {
  Label label(nullptr);
  const QSignalSpy clicks(&label, &Control::Clicked);
  QAccessibleActionInterface& actions = *Spoken(label).actionInterface();
  const QString press = QAccessibleActionInterface::pressAction();

  EXPECT_FALSE(actions.actionNames().contains(press));
  actions.doAction(press);
  EXPECT_EQ(clicks.count(), 0);

  label.SetUse(ControlUse::kLink);
  EXPECT_EQ(actions.actionNames().value(0), press);
  actions.doAction(press);
  EXPECT_EQ(clicks.count(), 1);
}

class NoKeys : public QObject {
 public:
  NoKeys() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override { return event->isInputEvent(); }
};

TEST(AccessibleControl, CannotBePressedWhileTheProgramHearsNoKeys) {
  Label label(nullptr);
  label.SetUse(ControlUse::kLink);
  const QSignalSpy clicks(&label, &Control::Clicked);
  const NoKeys deaf;
  Spoken(label).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks.count(), 0);
}

}  // namespace
}  // namespace quillon
