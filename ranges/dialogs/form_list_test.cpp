#include "ranges/dialogs/form_list.h"

#include <QTest>
#include <gtest/gtest.h>

namespace quillon {
namespace {

template <typename Adapter>
void FillWithThree(Adapter& list) {
  for (const std::string_view name : {"one", "two", "three"})
    list.Add(name);
}

class FormListBoxTest : public testing::Test {
 public:
  FormListBoxTest() {
    Widget.setObjectName(QStringLiteral("lstRanges"));
    FillWithThree(List);
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

TEST_F(FormListBoxTest, StartsWithNothingSelectedAndNoClick) {
  EXPECT_EQ(List.ControlName(), "lstRanges");
  EXPECT_EQ(List.Count(), 3);
  EXPECT_EQ(List.Entry(2), "three");
  EXPECT_EQ(List.CurrentText(), "");
  EXPECT_EQ(Clicks, 0);
}

TEST_F(FormListBoxTest, ASelectionInCodeIsAClickAlsoOfTheSelectedEntry) {
  List.Select(1);
  List.Select(1);
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 2);
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

TEST_F(FormListBoxTest, EmptyingAndFillingIsNoClick) {
  List.Select(2);
  List.Clear();
  EXPECT_EQ(List.CurrentText(), "");
  FillWithThree(List);
  EXPECT_EQ(Clicks, 1);
}

TEST_F(FormListBoxTest, ANameKeepsItsLettersAndIsNoMarkUp) {
  List.Add("<b>K\xC3\xB6nig</b>");
  EXPECT_EQ(List.Entry(3), "<b>K\xC3\xB6nig</b>");
}

class FormChooserTest : public testing::Test {
 public:
  FormChooserTest() {
    Widget.setObjectName(QStringLiteral("cmboRanges(0)"));
    FillWithThree(List);
    QObject::connect(&List, &FormChooser::Clicked, &List, [this] { ++Clicks; });
    Widget.show();
  }

  QComboBox Widget;
  FormChooser List{Widget};
  int Clicks = 0;
};

TEST_F(FormChooserTest, FillingSelectsNothing) {
  EXPECT_EQ(List.ControlName(), "cmboRanges(0)");
  EXPECT_EQ(List.Count(), 3);
  EXPECT_EQ(List.CurrentText(), "");
  EXPECT_EQ(Clicks, 0);
}

TEST_F(FormChooserTest, ASelectionInCodeIsAClickAlsoOfTheSelectedEntry) {
  List.Select(1);
  List.Select(1);
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 2);
}

TEST_F(FormChooserTest, TheKeyboardSelectsByAClick) {
  List.Select(0);
  QTest::keyClick(&Widget, Qt::Key_Down);
  EXPECT_EQ(List.CurrentText(), "two");
  EXPECT_EQ(Clicks, 2);
}

TEST_F(FormChooserTest, EmptyingIsNoClick) {
  List.Select(1);
  List.Clear();
  EXPECT_EQ(List.CurrentText(), "");
  EXPECT_EQ(Clicks, 1);
}

}  // namespace
}  // namespace quillon
