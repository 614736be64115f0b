#include "ranges/dialogs/form_list.h"

#include <QTest>
#include <gtest/gtest.h>
#include <optional>

namespace quillon {
namespace {

RangeListContents Three(std::optional<int> selected = {}) {
  return {{"one", "two", "three"}, selected};
}

class FormListBoxTest : public testing::Test {
 public:
  FormListBoxTest() {
    Widget.setObjectName(QStringLiteral("lstRanges"));
    List.Show(Three());
    QObject::connect(&List, &FormListBox::Clicked, &List, [this] { ++Clicks; });
    Widget.resize(200, 200);
    Widget.show();
  }

  void Press(int row, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(Widget.viewport(), button, {}, Widget.visualItemRect(Widget.item(row)).center());
  }

  QListWidget Widget;
  FormListBox List{Widget};
  int Clicks = 0;
};

TEST_F(FormListBoxTest, FillingSelectsNothingUnlessItIsToldTo) {
  EXPECT_EQ(Widget.count(), 3);
  EXPECT_EQ(List.CurrentText(), "");
  EXPECT_EQ(Clicks, 0);
  List.Show(Three(1));
  EXPECT_EQ(Widget.count(), 3);
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 1);
}

TEST_F(FormListBoxTest, ASelectionInCodeIsAClickAlsoOfTheSelectedEntry) {
  List.SelectEntry("two");
  List.SelectEntry("two");
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 2);
  List.SelectEntry("Two");
  EXPECT_EQ(List.CurrentText(), "two") << "an entry that is not there";
  EXPECT_EQ(Clicks, 2);
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
  Press(1);
  EXPECT_EQ(Clicks, 3);
}

TEST_F(FormListBoxTest, TheRightButtonOnTheSelectedEntryIsNoClick) {
  Press(0);
  Press(0, Qt::RightButton);
  EXPECT_EQ(Clicks, 1);
}

TEST_F(FormListBoxTest, APressBelowTheEntriesIsNoClick) {
  Press(0);
  QTest::mouseClick(Widget.viewport(), Qt::LeftButton, {}, QPoint(50, 180));
  EXPECT_EQ(Clicks, 1);
}

TEST_F(FormListBoxTest, FillingAnewLetsGoOfTheSelectionWithoutAClick) {
  List.SelectEntry("three");
  List.Show(Three());
  EXPECT_EQ(List.CurrentText(), "");
  EXPECT_EQ(Clicks, 1);
}

TEST_F(FormListBoxTest, ANameKeepsItsLettersAndIsNoMarkUp) {
  List.Show({{"<b>K\xC3\xB6nig</b>"}, 0});
  EXPECT_EQ(List.CurrentText(), "<b>K\xC3\xB6nig</b>");
  EXPECT_EQ(Widget.item(0)->text(), QStringLiteral("<b>K\u00F6nig</b>"));
}

class FormChooserTest : public testing::Test {
 public:
  FormChooserTest() {
    Widget.setObjectName(QStringLiteral("cmboRanges(0)"));
    List.Show(Three());
    QObject::connect(&List, &FormChooser::Clicked, &List, [this] { ++Clicks; });
    Widget.show();
  }

  QComboBox Widget;
  FormChooser List{Widget};
  int Clicks = 0;
};

TEST_F(FormChooserTest, FillingSelectsNothingUnlessItIsToldTo) {
  EXPECT_EQ(Widget.count(), 3);
  EXPECT_EQ(List.CurrentText(), "");
  EXPECT_EQ(Clicks, 0);
  List.Show(Three(1));
  EXPECT_EQ(Widget.count(), 3);
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 1);
}

TEST_F(FormChooserTest, ASelectionInCodeIsAClickAlsoOfTheSelectedEntry) {
  List.SelectEntry("two");
  List.SelectEntry("two");
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 2);
  List.SelectEntry("Two");
  EXPECT_EQ(List.CurrentText(), "two") << "an entry that is not there";
  EXPECT_EQ(Clicks, 2);
}

TEST_F(FormChooserTest, TheKeyboardSelectsByAClick) {
  List.SelectEntry("one");
  QTest::keyClick(&Widget, Qt::Key_Down);
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 2);
}

TEST_F(FormChooserTest, FillingAnewLetsGoOfTheSelectionWithoutAClick) {
  List.SelectEntry("two");
  List.Show(Three());
  EXPECT_EQ(List.CurrentText(), "");
  EXPECT_EQ(Clicks, 1);
}

}  // namespace
}  // namespace quillon
