#include "toolkit/form_list.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace quillon {
namespace {

constexpr QPoint kBelowTheEntries(50, 180);

RangeListContents Three(std::optional<int> selected = {}) {
  return {{"one", "two", "three"}, selected};
}

// A list, and a log of its clicks.
template <typename ListType, typename Shown>
class ListTest : public testing::Test {
 public:
  ListTest() {
    Widget.setObjectName(QStringLiteral("lstRanges"));
    List.Show(Three());
    QObject::connect(&List, &ListType::Clicked, &List, [this] { ++Clicks; });
    Widget.resize(200, 200);
    Widget.show();
  }

  void TellsOfEachSelectionButNotOfFilling() {
    EXPECT_EQ(Widget.count(), 3);
    EXPECT_EQ(List.CurrentText(), "");
    EXPECT_EQ(Clicks, 0);
    List.Show(Three(1));
    EXPECT_EQ(Widget.count(), 3);
    EXPECT_EQ(List.CurrentText(), "two");
    EXPECT_EQ(Clicks, 1);
    List.SelectEntry("two");
    EXPECT_EQ(Clicks, 2) << "the selected entry";
    List.SelectEntry("Two");
    EXPECT_EQ(List.CurrentText(), "two") << "an unknown entry";
    EXPECT_EQ(Clicks, 2);
    QTest::keyClick(&Widget, Qt::Key_Down);
    EXPECT_EQ(List.CurrentText(), "three");
    EXPECT_EQ(Clicks, 3);
    List.Show(Three());
    EXPECT_EQ(List.CurrentText(), "");
    EXPECT_EQ(Clicks, 3);
  }

  Shown Widget;
  ListType List{Widget};
  int Clicks = 0;
};

using FormChooserTest = ListTest<FormChooser, QComboBox>;

TEST_F(FormChooserTest, ANameThatIsCutHasAToolTipThatIsWhole) {
  const std::string longName(92, 'W');
  List.Show({{"", longName, "Tight"}, 1});
  EXPECT_EQ(FromQt(Widget.toolTip()), longName);
  List.SelectEntry("Tight");
  EXPECT_EQ(Widget.toolTip(), QString()) << "it is shown in full";
  Widget.setFocus();
  QTest::keyClick(&Widget, Qt::Key_Up);
  EXPECT_EQ(FromQt(Widget.toolTip()), longName) << "by keyboard, too";
  Widget.resize(5000, 200);
  EXPECT_EQ(Widget.toolTip(), QString()) << "now there is room";
  Widget.resize(200, 200);
  EXPECT_EQ(FromQt(Widget.toolTip()), longName);
  List.SelectEntry("");
  EXPECT_EQ(Widget.toolTip(), QString());
}

TEST_F(FormChooserTest, TellsOfEachSelectionButNotOfFilling) {
  TellsOfEachSelectionButNotOfFilling();
}

class FormListBoxTest : public ListTest<FormListBox, QListWidget> {
 public:
  [[nodiscard]] QPoint MiddleOf(int row) const { return Widget.visualItemRect(Widget.item(row)).center(); }
  void PressAt(QPoint point, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers held = {}) const {
    QTest::mouseClick(Widget.viewport(), button, held, point);
  }
  void Press(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers held = {}) const {
    PressAt(MiddleOf(row), button, held);
  }
  void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers held = {}) const {
    QTest::mousePress(Widget.viewport(), Qt::LeftButton, held, from);
    for (const QPoint point : {(from + to) / 2, to}) {
      QMouseEvent move(QEvent::MouseMove, point, Widget.viewport()->mapToGlobal(point), Qt::NoButton, Qt::LeftButton,
                       held);
      QApplication::sendEvent(Widget.viewport(), &move);
    }
    QTest::mouseRelease(Widget.viewport(), Qt::LeftButton, held, to);
  }
};

TEST_F(FormListBoxTest, TellsOfEachSelectionButNotOfFilling) {
  TellsOfEachSelectionButNotOfFilling();
}

TEST_F(FormListBoxTest, ALongNameIsCutInTheListAndWholeInItsToolTip) {
  const std::string name(92, 'W');
  List.Show({{"one", name}, 1});
  EXPECT_EQ(Widget.horizontalScrollBar()->maximum(), 0) << "the list is not wider than its place";
  EXPECT_LE(Widget.visualItemRect(Widget.item(1)).right(), Widget.viewport()->width());
  EXPECT_EQ(FromQt(Widget.item(1)->toolTip()), name);
  EXPECT_EQ(List.CurrentText(), name);
}

TEST_F(FormListBoxTest, TheFirstOfEqualEntriesIsSelected) {
  List.Show({{"a", "b", "b"}, {}});
  List.SelectEntry("b");
  EXPECT_EQ(Widget.currentRow(), 1);
}

TEST_F(FormListBoxTest, EachPressOfTheMouseIsOneClickAlsoOnTheSelectedEntry) {
  Press(1);
  EXPECT_EQ(Clicks, 1);
  Press(1);
  EXPECT_EQ(Clicks, 2);
  Press(2);
  EXPECT_EQ(Clicks, 3);
  EXPECT_EQ(List.CurrentText(), "three");
}

TEST_F(FormListBoxTest, APressAfterTheKeyboardMovedTheSelectionIsAClick) {
  Press(0);
  QTest::keyClick(&Widget, Qt::Key_Down);
  EXPECT_EQ(Clicks, 2);
  EXPECT_EQ(Widget.selectedItems(), QList{Widget.item(1)});
  Press(1);
  EXPECT_EQ(Clicks, 3);
}

TEST_F(FormListBoxTest, KeepsTheCurrentEntrySelectedWithoutAClickWhateverElseIsDone) {
  struct Row {
    const char* Rule;
    std::function<void()> Act;
  };
  const std::vector<Row> rows = {
      {"a click below the entries", [this] { PressAt(kBelowTheEntries); }},
      {"a right click on it", [this] { Press(1, Qt::RightButton); }},
      {"a right click on another", [this] { Press(2, Qt::RightButton); }},
      {"a middle click on another", [this] { Press(0, Qt::MiddleButton); }},
      {"a right click below the entries", [this] { PressAt(kBelowTheEntries, Qt::RightButton); }},
      {"a Ctrl click on it", [this] { Press(1, Qt::LeftButton, Qt::ControlModifier); }},
      {"a Ctrl click on another", [this] { Press(0, Qt::LeftButton, Qt::ControlModifier); }},
      {"a Ctrl drag over another", [this] { Drag(MiddleOf(1), MiddleOf(2), Qt::ControlModifier); }},
      {"a drag below the entries", [this] { Drag(kBelowTheEntries, kBelowTheEntries + QPoint(20, 0)); }},
      {"Ctrl and the space bar", [this] { QTest::keyClick(&Widget, Qt::Key_Space, Qt::ControlModifier); }},
  };
  Press(1);
  for (const Row& row : rows) {
    row.Act();
    EXPECT_EQ(List.CurrentText(), "two") << row.Rule;
    EXPECT_EQ(Widget.selectedItems(), QList{Widget.currentItem()}) << row.Rule;
    EXPECT_EQ(Clicks, 1) << row.Rule;
  }
}

TEST_F(FormListBoxTest, ADragOverTheEntriesSelectsTheLastOneAndKeepsItBelow) {
  Press(0);
  Drag(MiddleOf(0), MiddleOf(2));
  EXPECT_EQ(List.CurrentText(), "three");
  Drag(MiddleOf(2), kBelowTheEntries);
  EXPECT_EQ(List.CurrentText(), "three");
  EXPECT_EQ(Widget.selectedItems(), QList{Widget.currentItem()});
}

TEST_F(FormListBoxTest, AClickOnTheSelectedEntryAfterARightClickIsAClick) {
  Press(0);
  Press(1, Qt::RightButton);
  Press(0);
  EXPECT_EQ(Clicks, 2);
}

TEST_F(FormListBoxTest, ANameKeepsItsLettersAndIsNoMarkUp) {
  List.Show({{"<b>K\xC3\xB6nig</b>"}, 0});
  EXPECT_EQ(List.CurrentText(), "<b>K\xC3\xB6nig</b>");
  EXPECT_EQ(Widget.item(0)->text(), QStringLiteral("<b>K\u00F6nig</b>"));
}

}  // namespace
}  // namespace quillon
