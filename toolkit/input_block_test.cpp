#include "toolkit/input_block.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QCursor>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <array>
#include <functional>
#include <gtest/gtest.h>

#include "testing/expected_boxes.h"
#include "toolkit/label.h"

namespace quillon {
namespace {

class WatchedWindow : public QWidget {
 public:
  WatchedWindow() {
    setMouseTracking(true);
    setAcceptDrops(true);
    QObject::connect(&shortcut_, &QShortcut::activated, this, [this] { Seen += "shortcut "; });
    setGeometry(100, 100, 200, 200);
    show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    QCursor::setPos(10, 10);
    QCoreApplication::processEvents();
    Seen.clear();
  }

  std::string Seen;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { Seen += "paint "; }
  void mouseMoveEvent(QMouseEvent* /*event*/) override { Seen += "move "; }
  void mousePressEvent(QMouseEvent* /*event*/) override { Seen += "press "; }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::RightButton) Seen += "right release ";
  }
  void wheelEvent(QWheelEvent* /*event*/) override { Seen += "wheel "; }
  void keyPressEvent(QKeyEvent* /*event*/) override { Seen += "key "; }
  void inputMethodEvent(QInputMethodEvent* /*event*/) override { Seen += "composed "; }
  void dragEnterEvent(QDragEnterEvent* event) override {
    event->accept();
    Seen += "enter ";
  }
  void dragMoveEvent(QDragMoveEvent* /*event*/) override { Seen += "drag "; }
  void dropEvent(QDropEvent* /*event*/) override { Seen += "drop "; }
  void closeEvent(QCloseEvent* /*event*/) override { Seen += "close "; }

 private:
  QShortcut shortcut_{QKeySequence(static_cast<int>(Qt::CTRL) | Qt::Key_1), this};
};

class InputBlockTest : public testing::Test {
 public:
  // Does something during a block, and returns what the window has received by its end.
  std::string SeenWhileBlocked(const std::function<void()>& act) {
    const InputBlock block;
    act();
    return SeenByNow();
  }
  std::string SeenByNow() const {
    QCoreApplication::processEvents();
    return window.Seen;
  }
  void Use() {
    QCursor::setPos(window.mapToGlobal(QPoint(50, 50)));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(50, 50));
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    QTest::keyClick(window.windowHandle(), Qt::Key_1, Qt::ControlModifier);
    QWheelEvent wheel(kSpot, window.mapToGlobal(kSpot), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window.windowHandle(), &wheel);
    QInputMethodEvent composed;
    QCoreApplication::sendEvent(&window, &composed);
  }
  void DragIn() {
    QDragEnterEvent enter(kSpot.toPoint(), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &enter);
  }
  void Drop() {
    QDragMoveEvent drag(kSpot.toPoint(), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &drag);
    QDropEvent drop(kSpot, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &drop);
  }
  void Hold() { QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, kSpot.toPoint()); }
  void LetGo() { QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, kSpot.toPoint()); }
  // Covers the window with a control of its own.
  void Cover(QWidget& control) {
    control.setParent(&window);
    control.setGeometry(window.rect());
    control.show();
    window.Seen.clear();
  }

  static constexpr QPointF kSpot{50, 50};
  QMimeData dragged;
  WatchedWindow window;
};

TEST_F(InputBlockTest, IsDrawnAndCanBeClosedDuringTheBlock) {
  EXPECT_EQ(SeenWhileBlocked([&] { window.update(); }), "paint ");
  EXPECT_EQ(SeenWhileBlocked([&] { window.windowHandle()->close(); }), "paint close ");
}

TEST_F(InputBlockTest, NeverLearnsOfInputMadeDuringTheBlock) {
  EXPECT_EQ(SeenWhileBlocked([&] {
              Use();
              DragIn();
            }),
            "");
  EXPECT_EQ(SeenByNow(), "");
  DragIn();
  window.Seen.clear();
  EXPECT_EQ(SeenWhileBlocked([&] { Drop(); }), "");
}

// A screen reader operates a control without mouse or keyboard events.
TEST_F(InputBlockTest, NeverLearnsOfAScreenReadersActionDuringTheBlock) {
  Label label(nullptr);
  label.SetUse(ControlUse::kLink);
  QPushButton button;
  QCheckBox box;
  const QString press = QAccessibleActionInterface::pressAction();
  const QString toggle = QAccessibleActionInterface::toggleAction();
  struct Row {
    const char* Name;
    QWidget& Control;
    const char* Signal;
    QString Action;
  };
  const std::array rows = {
      Row{"press of a link", label, SIGNAL(Clicked()), press},
      Row{"press of a button", button, SIGNAL(clicked()), press},
      Row{"press of a check box", box, SIGNAL(stateChanged(int)), press},
      Row{"toggle of a check box", box, SIGNAL(stateChanged(int)), toggle},
  };
  for (const Row& row : rows) {
    Cover(row.Control);
    const QSignalSpy uses(&row.Control, row.Signal);
    const auto act = [&] {
      QAccessible::queryAccessibleInterface(&row.Control)->actionInterface()->doAction(row.Action);
    };
    SeenWhileBlocked(act);
    QTest::qWait(150);  // Qt presses a button a tenth of a second late
    EXPECT_EQ(uses.count(), 0) << row.Name;
    act();
    EXPECT_EQ(uses.count(), 1) << row.Name;
  }
}

TEST_F(InputBlockTest, OpensNoListForAScreenReaderDuringTheBlock) {
  QComboBox box;
  box.addItem(QStringLiteral("an entry"));
  Cover(box);
  SeenWhileBlocked([&] {
    QAccessible::queryAccessibleInterface(&box)->actionInterface()->doAction(
        QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(box.view()->isVisible());
  });
}

TEST_F(InputBlockTest, LosesAClickThatEndsDuringTheBlock) {
  Label label(nullptr);
  label.SetUse(ControlUse::kLink);
  QPushButton button;
  const QSignalSpy releases(&label, &Control::Released);
  const QSignalSpy clicks(&label, &Control::Clicked);
  const QSignalSpy buttonClicks(&button, &QPushButton::clicked);
  for (QWidget* control : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&button)}) {
    Cover(*control);
    Hold();
    SeenWhileBlocked([&] { LetGo(); });
  }
  EXPECT_EQ(releases.count(), 1);
  EXPECT_FALSE(button.isDown());
  EXPECT_EQ(clicks.count() + buttonClicks.count(), 0);
}

TEST_F(InputBlockTest, NeverLearnsOfTheReleaseOfAnotherButtonDuringTheBlock) {
  const auto letGo = [this] { QTest::mouseRelease(window.windowHandle(), Qt::RightButton, {}, kSpot.toPoint()); };
  for (const bool blocked : {true, false}) {
    QTest::mousePress(window.windowHandle(), Qt::RightButton, {}, kSpot.toPoint());
    window.Seen.clear();
    if (blocked) {
      SeenWhileBlocked(letGo);
    } else {
      letGo();
    }
    EXPECT_EQ(SeenByNow(), blocked ? "" : "right release ");
  }
}

TEST_F(InputBlockTest, ClosesAListThatIsOpenAtItsStart) {
  QMenu list(&window);
  list.addAction(QStringLiteral("an entry"));
  list.popup(window.mapToGlobal(kSpot.toPoint()));
  ASSERT_TRUE(list.isVisible());
  const InputBlock block;
  EXPECT_FALSE(list.isVisible());
}

TEST_F(InputBlockTest, LetsGoOfAButtonThatAKeyHolds) {
  QPushButton button;
  Cover(button);
  button.setFocus();
  const QSignalSpy clicks(&button, &QPushButton::clicked);
  QTest::keyPress(&button, Qt::Key_Space);
  ASSERT_TRUE(button.isDown());
  const InputBlock block;
  EXPECT_FALSE(button.isDown());
  EXPECT_EQ(clicks.count(), 0);
}

// It is closed by a key, or by itself if that fails.
TEST_F(InputBlockTest, HearsWhatIsDoneToABoxThatComesUpDuringTheBlock) {
  int answer = 0;
  ExpectDialog([](QDialog& box) {
    QTest::keyClick(box.windowHandle(), Qt::Key_Return);
    if (box.isVisible()) box.done(QMessageBox::Abort);
  });
  SeenWhileBlocked([&] {
    answer = QMessageBox(QMessageBox::Critical, {}, {}, QMessageBox::Ok, &window).exec();
    window.Seen.clear();
    Use();
    EXPECT_EQ(window.Seen, "");
  });
  EXPECT_EQ(answer, QMessageBox::Ok);
}

// While a box is open the block lets everything through; the box blocks the window under it.
TEST_F(InputBlockTest, NeverLearnsOfAScreenReadersActionUnderABoxThatComesUpDuringTheBlock) {
  Label label(nullptr);
  label.SetUse(ControlUse::kLink);
  Cover(label);
  const QSignalSpy clicks(&label, &Control::Clicked);
  const auto press = [&] {
    QAccessible::queryAccessibleInterface(&label)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
  };
  ExpectDialog([&](QDialog& box) {
    press();
    box.done(QMessageBox::Ok);
  });
  SeenWhileBlocked([&] { QMessageBox(QMessageBox::Critical, {}, {}, QMessageBox::Ok, &window).exec(); });
  EXPECT_EQ(clicks.count(), 0);
  press();
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(InputBlockTest, HearsAgainAfterTheBlock) {
  SeenWhileBlocked([] {});
  // Moves the mouse away first, so that the move to the spot is always an event.
  QTest::mouseMove(window.windowHandle(), QPoint(10, 10));
  SeenByNow();
  window.Seen.clear();
  Use();
  DragIn();
  Drop();
  EXPECT_EQ(SeenByNow(), "move press key key shortcut wheel composed enter drag drop ") << "Ctrl is a key too";
}

}  // namespace
}  // namespace quillon
