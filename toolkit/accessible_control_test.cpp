#include "toolkit/accessible_control.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <gtest/gtest.h>
#include <initializer_list>
#include <vector>

#include "testing/heard_announcements.h"
#include "toolkit/focus_mark.h"
#include "toolkit/frame.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"
#include "toolkit/shape.h"

namespace quillon {
namespace {

QAccessibleInterface& Spoken(QWidget& control) {
  return *QAccessible::queryAccessibleInterface(&control);
}

QString NameOf(QWidget& control) {
  return Spoken(control).text(QAccessible::Name);
}

// The name and state of a check box, or of a cell that acts as one, in each of its states.
template <typename Setter>
void ExpectCheckStates(QWidget& control, const Setter& set) {
  struct Row {
    Qt::CheckState State;
    bool Checked;
    bool Mixed;
  };
  for (const Row& row :
       {Row{Qt::Unchecked, false, false}, {Qt::Checked, true, false}, {Qt::PartiallyChecked, false, true}}) {
    set(row.State);
    EXPECT_EQ(Spoken(control).role(), QAccessible::CheckBox);
    EXPECT_TRUE(Spoken(control).state().checkable);
    EXPECT_EQ(Spoken(control).state().checked, row.Checked) << row.State;
    EXPECT_EQ(Spoken(control).state().checkStateMixed, row.Mixed) << row.State;
  }
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

TEST(AccessibleControl, IsFoundAmongThePartsOfItsWindowButDecorationIsNot) {
  QWidget window;
  Frame frame(&window);
  for (QWidget* whole : std::initializer_list<QWidget*>{&window, &frame}) {
    const int before = Spoken(*whole).childCount();
    const Shape ground(ControlKind::kShape, whole);
    Label label(whole);
    const Shape line(ControlKind::kLine, whole);
    const Picture art(whole);
    Picture chart(whole);
    chart.setAccessibleName(QStringLiteral("Results"));
    Picture button(whole);
    button.SetUse(ControlUse::kLink);
    const FocusMark mark(*whole);
    const QTimer timer(whole);
    const QDialog ownWindow(whole);
    QLineEdit box(whole);
    const std::vector<QObject*> heard = {&label, &chart, &button, &box};
    ASSERT_EQ(Spoken(*whole).childCount() - before, static_cast<int>(heard.size()));
    for (std::size_t i = 0; i < heard.size(); ++i) {
      const int index = before + static_cast<int>(i);
      ASSERT_EQ(Spoken(*whole).child(index)->object(), heard[i]) << index;
      EXPECT_EQ(Spoken(*whole).indexOfChild(Spoken(*whole).child(index)), index);
    }
    EXPECT_EQ(Spoken(*whole).child(before + 4), nullptr);
  }
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
  frame.setAccessibleName(QStringLiteral("ALL IN Grid"));
  EXPECT_EQ(NameOf(frame), QStringLiteral("ALL IN Grid"));
}

// A cell's tool tip is that of the whole grid.
TEST(AccessibleControl, TellsItsToolTipUnlessItIsACheckBox) {
  Label label(nullptr);
  label.setToolTip(QStringLiteral("Click to select"));
  EXPECT_FALSE(Spoken(label).state().checkable);
  EXPECT_EQ(Spoken(label).text(QAccessible::Description), QStringLiteral("Click to select"));
  label.SetCheckState(Qt::Unchecked);
  EXPECT_EQ(Spoken(label).text(QAccessible::Description), QString());
}

TEST(AccessibleControl, CanBePressedWhereItCanBeClicked) {
  Label label(nullptr);
  label.show();
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

  label.hide();
  EXPECT_FALSE(actions.actionNames().contains(press));
  actions.doAction(press);
  EXPECT_EQ(clicks.count(), 1) << "what is hidden is not pressed";
}

TEST(AccessibleControl, ButtonsTellTheirTextAndState) {
  QPushButton button(QStringLiteral("&Send"));
  EXPECT_FALSE(Spoken(button).state().defaultButton);
  button.setDefault(true);
  EXPECT_EQ(Spoken(button).role(), QAccessible::Button);
  EXPECT_EQ(NameOf(button), QStringLiteral("Send"));
  EXPECT_EQ(Spoken(button).text(QAccessible::Description), QString());
  EXPECT_TRUE(Spoken(button).state().defaultButton);
  EXPECT_FALSE(Spoken(button).state().checkable);
  button.setDown(true);
  EXPECT_TRUE(Spoken(button).state().pressed);

  QCheckBox box(QStringLiteral("Whole stack"));
  EXPECT_EQ(NameOf(box), QStringLiteral("Whole stack"));
  box.setAccessibleName(QStringLiteral("All of it"));
  EXPECT_EQ(NameOf(box), QStringLiteral("All of it"));
  ExpectCheckStates(box, [&box](Qt::CheckState state) { box.setCheckState(state); });
}

TEST(AccessibleControl, ButtonsArePressedAtOnceAndBoxesToggled) {
  QPushButton button;
  QCheckBox box;
  button.show();
  box.show();
  const QSignalSpy clicks(&button, &QPushButton::clicked);
  const QString press = QAccessibleActionInterface::pressAction();
  const QString toggle = QAccessibleActionInterface::toggleAction();

  EXPECT_EQ(Spoken(button).actionInterface()->actionNames().value(0), press);
  Spoken(button).actionInterface()->doAction(press);
  EXPECT_EQ(clicks.count(), 1);

  EXPECT_EQ(Spoken(box).actionInterface()->actionNames().value(0), toggle);
  for (const QString& action : {toggle, press, toggle}) {
    const bool wasChecked = box.isChecked();
    Spoken(box).actionInterface()->doAction(action);
    EXPECT_NE(box.isChecked(), wasChecked);
  }

  button.setEnabled(false);
  EXPECT_FALSE(Spoken(button).actionInterface()->actionNames().contains(press));
  Spoken(button).actionInterface()->doAction(press);
  EXPECT_EQ(clicks.count(), 1);
  button.setEnabled(true);
  button.hide();
  EXPECT_FALSE(Spoken(button).actionInterface()->actionNames().contains(press));
  Spoken(button).actionInterface()->doAction(press);
  EXPECT_EQ(clicks.count(), 1) << "what is hidden is not pressed";
}

TEST(AccessibleControl, IsACheckBoxWithACheckState) {
  Label cell(nullptr);
  cell.SetUse(ControlUse::kLink);
  cell.show();
  ExpectCheckStates(cell, [&cell](Qt::CheckState state) { cell.SetCheckState(state); });
  const QSignalSpy clicks(&cell, &Control::Clicked);
  const QString toggle = QAccessibleActionInterface::toggleAction();
  EXPECT_EQ(Spoken(cell).actionInterface()->actionNames().value(0), toggle);
  Spoken(cell).actionInterface()->doAction(toggle);
  EXPECT_EQ(clicks.count(), 1);
}

TEST(AccessibleControl, ADropDownListTellsItsQuestionAndWhatIsChosen) {
  QComboBox chooser;
  chooser.setAccessibleName(QStringLiteral("What is his current range?"));
  chooser.addItems({QString(), QStringLiteral("Tight")});
  for (const QString& chosen : {QString(), QStringLiteral("Tight")}) {
    chooser.setCurrentText(chosen);
    EXPECT_EQ(Spoken(chooser).role(), QAccessible::ComboBox);
    EXPECT_EQ(NameOf(chooser), QStringLiteral("What is his current range?"));
    EXPECT_EQ(Spoken(chooser).text(QAccessible::Description), chosen);
    EXPECT_EQ(Spoken(chooser).text(QAccessible::Value), chosen);
  }
  chooser.setWhatsThis(QStringLiteral("All of your ranges"));
  EXPECT_EQ(Spoken(chooser).text(QAccessible::Help), QStringLiteral("All of your ranges"));
  const QString open = QAccessibleActionInterface::showMenuAction();
  QAccessibleActionInterface& actions = *Spoken(chooser).actionInterface();
  actions.doAction(open);
  EXPECT_FALSE(chooser.view()->isVisible()) << "a hidden one does not open";
  chooser.show();
  EXPECT_EQ(actions.actionNames().value(0), open);
  actions.doAction(open);
  EXPECT_TRUE(chooser.view()->isVisible());
  EXPECT_TRUE(Spoken(chooser).state().expanded);
  ASSERT_EQ(Spoken(chooser).childCount(), 1);
  EXPECT_EQ(Spoken(chooser).child(0)->object(), chooser.view());
  EXPECT_EQ(Spoken(chooser).child(1), nullptr);
  EXPECT_EQ(Spoken(chooser).indexOfChild(Spoken(chooser).child(0)), 0);
  EXPECT_EQ(Spoken(chooser).indexOfChild(&Spoken(chooser)), -1);
  actions.doAction(open);
  EXPECT_FALSE(chooser.view()->isVisible());
}

// Like the mouse and the keyboard.
TEST(AccessibleControl, CannotBeUsedBehindAModalWindow) {
  QWidget window;
  Label link(&window);
  link.SetUse(ControlUse::kLink);
  QPushButton button(&window);
  QCheckBox check(&window);
  QComboBox chooser(&window);
  window.show();
  const QSignalSpy linkClicks(&link, &Control::Clicked);
  const QSignalSpy buttonClicks(&button, &QPushButton::clicked);
  const QSignalSpy toggles(&check, &QCheckBox::clicked);
  const std::vector<QString> uses = {QAccessibleActionInterface::pressAction(),
                                     QAccessibleActionInterface::toggleAction(),
                                     QAccessibleActionInterface::showMenuAction()};
  const auto useAll = [&] {
    bool offered = false;
    for (QWidget* control : std::initializer_list<QWidget*>{&link, &button, &check, &chooser}) {
      QAccessibleActionInterface& actions = *Spoken(*control).actionInterface();
      for (const QString& use : uses) {
        offered = offered || actions.actionNames().contains(use);
        actions.doAction(use);
      }
    }
    return offered;
  };

  QMessageBox message;
  QInputDialog input;
  QFileDialog file;
  file.setOption(QFileDialog::DontUseNativeDialog);
  for (QDialog* box : std::initializer_list<QDialog*>{&message, &input, &file}) {
    for (QWidget* parent : {static_cast<QWidget*>(nullptr), &window}) {
      box->setParent(parent, box->windowFlags());
      box->setModal(true);
      box->show();
      EXPECT_FALSE(useAll()) << box->metaObject()->className();
      EXPECT_FALSE(chooser.view()->isVisible()) << box->metaObject()->className();
      box->hide();
    }
    box->setParent(nullptr, box->windowFlags());
  }
  EXPECT_EQ(linkClicks.count() + buttonClicks.count() + toggles.count(), 0);

  EXPECT_TRUE(useAll()) << "the modal windows are gone";
  EXPECT_GT(linkClicks.count(), 0);
  EXPECT_GT(buttonClicks.count(), 0);
  EXPECT_GT(toggles.count(), 0);
}

TEST(AccessibleControl, CanBeUsedInAModalWindowAndItsChildWindows) {
  QDialog box;
  box.setModal(true);
  QPushButton button(&box);
  QWidget child(&box, Qt::Window);
  QPushButton inner(&child);
  box.show();
  child.show();
  for (QPushButton* control : {&button, &inner}) {
    const QSignalSpy clicks(control, &QPushButton::clicked);
    Spoken(*control).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);
  }
}

TEST(AccessibleControl, ATopWindowIsAWindow) {
  QWidget window;
  QWidget part(&window);
  QDialog box;
  EXPECT_EQ(Spoken(window).role(), QAccessible::Window);
  EXPECT_NE(Spoken(part).role(), QAccessible::Window);
  EXPECT_EQ(Spoken(box).role(), QAccessible::Dialog);
}

TEST(AccessibleControl, IsSilentWhileItIsHiddenAndAsDecoration) {
  Label shown(nullptr);
  shown.show();
  Label hidden(nullptr);
  Shape line(ControlKind::kLine, nullptr);
  line.show();
  QTimer timer;
  struct Row {
    QObject& From;
    QAccessible::Event Type;
    bool Told;
  };
  for (const Row& row : {Row{shown, QAccessible::NameChanged, true},
                         {shown, QAccessible::TableModelChanged, false},
                         {line, QAccessible::NameChanged, false},
                         {line, QAccessible::ObjectShow, false},
                         {hidden, QAccessible::NameChanged, false},
                         {hidden, QAccessible::ObjectCreated, true},
                         {hidden, QAccessible::ObjectDestroyed, true},
                         {hidden, QAccessible::ObjectShow, true},
                         {hidden, QAccessible::ObjectHide, true},
                         {hidden, QAccessible::ObjectReorder, true},
                         {timer, QAccessible::NameChanged, true}}) {
    const QAccessibleEvent event(&row.From, row.Type);
    EXPECT_EQ(IsForScreenReaders(event), row.Told) << row.From.metaObject()->className() << " " << row.Type;
  }
}

TEST(Announcement, IsHeardOnceFromWhatShows) {
  const HeardAnnouncements heard;
  QWidget window;
  Announce(window, QStringLiteral("hidden"));
  window.show();
  Announce(window, QStringLiteral("done"));
  EXPECT_EQ(heard.Texts(), std::vector<std::string>{"done"});
}

}  // namespace
}  // namespace quillon
