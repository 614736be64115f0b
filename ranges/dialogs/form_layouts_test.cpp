// Both dialogs on the screen: nothing is cut off or covers another control, and each control can be reached with the
// mouse, the Tab key and a screen reader.

#include <QAccessible>
#include <QCheckBox>
#include <QIcon>
#include <gtest/gtest.h>
#include <vector>

#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "testing/dialog_stage.h"
#include "testing/layout_rules.h"

namespace quillon {
namespace {

// What a control shows: of a label its text, of anything else its whole rectangle.
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

// Where Tab goes, once round, from `start`.
std::vector<std::string> TabWay(QWidget& form, QWidget* start) {
  std::vector<std::string> way;
  start->setFocus(Qt::TabFocusReason);
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

// Over every spot of the window, which is where every control is.
void SweepWithTheMouse(QWidget& form) {
  for (int y = 0; y < form.height(); y += 7) {
    for (int x = 0; x < form.width(); x += 7)
      QTest::mouseMove(form.windowHandle(), QPoint(x, y));
  }
  QCoreApplication::processEvents();
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

void ExpectAWindowOfItsOwn(const QWidget& form, const char* title, QSize size) {
  EXPECT_TRUE(form.isWindow());
  EXPECT_FALSE(form.isModal());
  EXPECT_EQ(form.windowTitle(), QLatin1String(title));
  EXPECT_FALSE(form.windowIcon().isNull());
  EXPECT_EQ(form.size(), size);
  EXPECT_EQ(form.minimumSize(), form.maximumSize());
}

TEST(RangeDialogLayouts, AreWindowsOfTheirOwnThatKeepTheirSize) {
  DialogStage stage;
  ExpectAWindowOfItsOwn(stage.OpenManager(), "Range Manager", {911, 592});
  ExpectAWindowOfItsOwn(stage.OpenNewRange(), "Create a New Range for your Opponent", {813, 607});
}

TEST(ManagerForm, NothingIsCutOffOrOverlaps) {
  DialogStage stage;
  const ManagerForm& form = stage.OpenManager();
  ExpectNothingCutOff(form);
  ExpectNoOverlaps(form);
  form.Controls().LabelAt("lblRangeInfo").SetText(QStringLiteral("99.9% selected"));
  ExpectNothingCutOff(form);
}

TEST(NewRangeForm, NothingIsCutOffOrOverlaps) {
  DialogStage stage;
  const NewRangeForm& form = stage.OpenNewRange();
  ExpectNothingCutOff(form);
  ExpectNoOverlaps(form);
  form.Controls().LabelAt("lblPercSelected").SetText(QStringLiteral("99.9% selected"));
  ExpectNothingCutOff(form);
}

TEST(ManagerForm, OnlyTheImagesAndTheCellsShowTheHand) {
  DialogStage stage;
  const ManagerControls& controls = stage.OpenManager().Controls();
  for (const auto name :
       std::to_array<ManagerControls::Key<Picture>>({"imgNew", "imgSave", "imgRename", "imgSaveAs", "imgDelete"}))
    EXPECT_EQ(controls.PictureAt(name).cursor().shape(), Qt::PointingHandCursor) << name.Name();
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    EXPECT_EQ(controls.LabelAt("lblCards", index).cursor().shape(), Qt::PointingHandCursor) << index;
  for (const auto name :
       std::to_array<ManagerControls::Key<Label>>({"lblRename", "lblSaveAs", "lblDelete", "lblRangeName"}))
    EXPECT_EQ(controls.LabelAt(name).cursor().shape(), Qt::ArrowCursor) << name.Name();
}

TEST(NewRangeForm, NoCellShowsTheHand) {
  DialogStage stage;
  const NewRangeControls& controls = stage.OpenNewRange().Controls();
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    EXPECT_EQ(controls.LabelAt("lblCards", index).cursor().shape(), Qt::ArrowCursor) << index;
}

TEST(ManagerForm, AllCaptionsButThatOfDeleteTellOfDeleting) {
  DialogStage stage;
  const ManagerControls& controls = stage.OpenManager().Controls();
  const QString tip = QStringLiteral("Delete current range");
  EXPECT_EQ(controls.LabelAt("lblAction", 0).toolTip(), tip);
  EXPECT_EQ(controls.LabelAt("lblAction", 2).toolTip(), tip);
  EXPECT_EQ(controls.LabelAt("lblSaveAs").toolTip(), tip);
  EXPECT_EQ(controls.LabelAt("lblRename").toolTip(), tip);
  EXPECT_EQ(controls.LabelAt("lblDelete").toolTip(), QString());
  EXPECT_EQ(controls.PictureAt("imgNew").toolTip(), QString());
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

TEST(ManagerForm, TabGoesThroughAllThatCanBeDone) {
  DialogStage stage;
  ManagerForm& form = stage.OpenManager();
  const std::vector<std::string> way = {"lstRanges", "lblCards(0)", "txtRangeAbbr", "imgNew",  "imgSave",
                                        "imgRename", "imgSaveAs",   "imgDelete",    "chkHalf", "cmdOK"};
  EXPECT_EQ(TabWay(form, form.Controls().Find("lstRanges")), way);
}

TEST(NewRangeForm, TabGoesThroughAllThatCanBeDone) {
  DialogStage stage;
  NewRangeForm& form = stage.OpenNewRange();
  const std::vector<std::string> way = {"lblCards(0)",  "txtRangeAbbr", "chkHalf", "txtRangeName",
                                        "chkSaveRange", "cmdCancel",    "cmdOK"};
  EXPECT_EQ(TabWay(form, form.Controls().Find("lblCards(0)")), way);
}

TEST(RangeDialogLayouts, TheFirstOnTheWayHasTheFocusWhenTheWindowComesUp) {
  DialogStage stage;
  EXPECT_EQ(stage.OpenManager().focusWidget()->objectName(), QStringLiteral("lstRanges"));
  EXPECT_EQ(stage.OpenNewRange().focusWidget()->objectName(), QStringLiteral("lblCards(0)"));
}

TEST(RangeDialogLayouts, WhatTheKeyboardReachesHasASpokenName) {
  DialogStage stage;
  ExpectAllReachedAreSpoken(stage.OpenManager());
  ExpectAllReachedAreSpoken(stage.OpenNewRange());
}

TEST(RangeDialogLayouts, TheMouseMayGoAnywhere) {
  DialogStage stage;
  SweepWithTheMouse(stage.OpenManager());
  SweepWithTheMouse(stage.OpenNewRange());
}

}  // namespace
}  // namespace quillon
