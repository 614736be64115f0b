// Both dialogs on screen: nothing is cut off or covers another control, and each control can be reached by mouse, Tab
// key and screen reader.

#include <QAccessible>
#include <QCheckBox>
#include <QIcon>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "testing/dialog_stage.h"
#include "testing/layout_rules.h"

namespace quillon {
namespace {

// The visible part of a control: a label's text, anything else's whole rectangle.
QRect SeenPart(const QWidget& control) {
  const auto* label = qobject_cast<const Label*>(&control);
  if (label == nullptr) return control.geometry();
  return {label->pos(), label->TextSize()};
}

std::vector<QWidget*> VisibleControls(const QWidget& form) {
  std::vector<QWidget*> visible;
  for (QWidget* control : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (control->isVisibleTo(&form)) visible.push_back(control);
  }
  return visible;
}

bool IsCell(const QWidget& control) {
  return control.objectName().startsWith(QStringLiteral("lblCards")) ||
         control.objectName().startsWith(QStringLiteral("shapeCardBack"));
}

void ExpectNothingCutOff(const QWidget& form) {
  ExpectTextsFit(form);
  for (const QWidget* control : VisibleControls(form)) {
    EXPECT_TRUE(form.rect().contains(control->geometry())) << control->objectName().toStdString();
    const auto* box = qobject_cast<const QCheckBox*>(control);
    if (box == nullptr || box->text().isEmpty()) continue;
    EXPECT_GE(box->height(), box->minimumSizeHint().height()) << control->objectName().toStdString();
  }
}

void ExpectNoOverlaps(const QWidget& form) {
  const std::vector<QWidget*> controls = VisibleControls(form);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (IsCell(*controls[i]) && IsCell(*controls[j])) continue;
      EXPECT_FALSE(SeenPart(*controls[i]).intersects(SeenPart(*controls[j])))
          << controls[i]->objectName().toStdString() << " and " << controls[j]->objectName().toStdString();
    }
  }
}

// One full round of the Tab key, from the initial focus.
std::vector<std::string> TabWay(const QWidget& form) {
  std::vector<std::string> way;
  const QWidget* start = form.focusWidget();
  do {
    way.push_back(form.focusWidget()->objectName().toStdString());
    QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
  } while (form.focusWidget() != start && way.size() < 20);
  return way;
}

std::string SpokenName(QWidget& control) {
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&control);
  return interface == nullptr ? std::string() : interface->text(QAccessible::Name).toStdString();
}

void ExpectAllReachedAreSpoken(const QWidget& form) {
  for (QWidget* control : VisibleControls(form)) {
    if ((control->focusPolicy() & Qt::TabFocus) == 0) continue;
    EXPECT_NE(SpokenName(*control), "") << control->objectName().toStdString();
  }
}

TEST(RangeDialogLayouts, KeepTheRulesOfEveryLayout) {
  DialogStage stage;
  const ManagerForm& manager = stage.OpenManager();
  ExpectBuiltAsItsRows(manager, manager.Controls(), manager_layout::kTables);
  ExpectNoLabelRunsIntoItsNeighbours(manager.Controls(), manager_layout::kTables);
  ExpectPicturesAreThere(manager.Controls(), manager_layout::kTables);
  const NewRangeForm& newRange = stage.OpenNewRange();
  ExpectBuiltAsItsRows(newRange, newRange.Controls(), new_range_layout::kTables);
  ExpectNoLabelRunsIntoItsNeighbours(newRange.Controls(), new_range_layout::kTables);
  ExpectPicturesAreThere(newRange.Controls(), new_range_layout::kTables);
}

void ExpectAWindowOfItsOwn(const QWidget& form, std::string_view title, const TwipSize& size) {
  EXPECT_TRUE(form.isWindow());
  EXPECT_FALSE(form.isModal());
  EXPECT_EQ(FromQt(form.windowTitle()), title);
  EXPECT_FALSE(form.windowIcon().isNull());
  EXPECT_EQ(form.size(), PixelPlace({0, 0, size.Width, size.Height}).size());
  EXPECT_EQ(form.minimumSize(), form.maximumSize());
}

TEST(RangeDialogLayouts, AreWindowsOfTheirOwnThatKeepTheirSize) {
  DialogStage stage;
  ExpectAWindowOfItsOwn(stage.OpenManager(), kManagerTitle, kManagerSize);
  ExpectAWindowOfItsOwn(stage.OpenNewRange(), kNewRangeTitle, kNewRangeSize);
}

TEST(RangeDialogLayouts, CutNothingOffAndCoverNothing) {
  DialogStage stage;
  const auto expectAllSeen = [](const QWidget& form, Label& share) {
    ExpectNothingCutOff(form);
    ExpectNoOverlaps(form);
    share.SetText(QStringLiteral("99.9% selected"));
    ExpectNothingCutOff(form);
  };
  const ManagerForm& manager = stage.OpenManager();
  expectAllSeen(manager, manager.Controls().LabelAt("lblRangeInfo"));
  const NewRangeForm& newRange = stage.OpenNewRange();
  expectAllSeen(newRange, newRange.Controls().LabelAt("lblPercSelected"));
}

TEST(RangeDialogLayouts, TabGoesThroughAllThatCanBeDone) {
  DialogStage stage;
  EXPECT_THAT(TabWay(stage.OpenManager()),
              testing::ElementsAre("lstRanges", "lblCards(0)", "txtRangeAbbr", "imgNew", "imgSave", "imgRename",
                                   "imgSaveAs", "imgDelete", "chkHalf", "cmdOK"));
  EXPECT_THAT(TabWay(stage.OpenNewRange()), testing::ElementsAre("lblCards(0)", "txtRangeAbbr", "chkHalf",
                                                                 "txtRangeName", "chkSaveRange", "cmdCancel", "cmdOK"));
}

TEST(NewRangeForm, TheKeyShowsTheColoursOfTheGrid) {
  DialogStage stage;
  const NewRangeControls& controls = stage.OpenNewRange().Controls();
  const std::array colors = {kUnselectedSuitedColor, kFullColor, kUnselectedOffsuitColor, kUnselectedPairColor,
                             kHalfColor};
  for (std::int16_t index = 0; index < 5; ++index) {
    const QColor fill = controls.ShapeAt("shapeKey", index).Fill();
    const Rgb color = colors.at(static_cast<std::size_t>(index));
    EXPECT_EQ(fill, QColor(color.Red, color.Green, color.Blue)) << index;
  }
}

TEST(RangeDialogLayouts, WhatTheKeyboardReachesHasASpokenName) {
  DialogStage stage;
  ExpectAllReachedAreSpoken(stage.OpenManager());
  ExpectAllReachedAreSpoken(stage.OpenNewRange());
}

}  // namespace
}  // namespace quillon
