// Both dialogs as somebody sees them: what stands where, that nothing is cut off or lies on another thing, and the ways
// of the mouse, the Tab key and a screen reader through them.

#include <QAccessible>
#include <QCheckBox>
#include <QIcon>
#include <gtest/gtest.h>
#include <set>
#include <vector>

#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "testing/dialog_stage.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

struct DesignedPlace {
  std::string_view Name;
  std::int16_t Index;
  std::string_view Text;
  TwipRect Place;
};

std::vector<const ControlRow*> RowsOf(std::span<const ControlTable> tables) {
  std::vector<const ControlRow*> rows;
  for (const ControlTable& table : tables) {
    for (const ControlRow& row : table.Rows)
      rows.push_back(&row);
  }
  return rows;
}

// The row of that name, and of that text where several share the name.
const ControlRow* FindRow(std::span<const ControlTable> tables, const DesignedPlace& design) {
  for (const ControlRow* row : RowsOf(tables)) {
    const bool same = row->Name == design.Name && (design.Name == "Label" || row->Index == design.Index);
    if (same && row->Text == design.Text) return row;
  }
  return nullptr;
}

void ExpectPlaces(std::span<const ControlTable> tables, std::span<const DesignedPlace> designs) {
  for (const DesignedPlace& design : designs) {
    SCOPED_TRACE(std::string(design.Name) + " " + std::string(design.Text));
    const ControlRow* row = FindRow(tables, design);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->Place.Left, design.Place.Left);
    EXPECT_EQ(row->Place.Top, design.Place.Top);
    if (design.Place.Width > 0) {
      EXPECT_EQ(row->Place.Width, design.Place.Width);
      EXPECT_EQ(row->Place.Height, design.Place.Height);
    }
  }
}

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
  for (const QWidget* control : VisibleControls(form)) {
    SCOPED_TRACE(control->objectName().toStdString());
    EXPECT_TRUE(form.rect().contains(control->geometry()));
    if (const auto* label = qobject_cast<const Label*>(control)) {
      EXPECT_LE(label->TextSize().width(), label->width());
      EXPECT_LE(label->TextSize().height(), label->height());
    } else if (control->minimumSizeHint().isValid() && !control->objectName().startsWith(QStringLiteral("chkHalf"))) {
      EXPECT_GE(control->height(), qobject_cast<const QCheckBox*>(control) ? control->minimumSizeHint().height() : 0);
    }
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

constexpr auto kManagerDesign = std::to_array<DesignedPlace>({
    {"Label", 0, "Select a Range:", {1140, 360, 2235, 315}},
    {"lstRanges", kNoIndex, "", {1200, 720, 3495, 7020}},
    {"lblRangeName", kNoIndex, "Title", {4800, 300, 5835, 375}},
    {"shapeBlue", kNoIndex, "", {4860, 720, 0, 0}},
    {"lblRangeInfo", kNoIndex, "0% selected", {9240, 6480, 1395, 195}},
    {"Label", 0, "Abbreviated Format:", {4920, 6780, 3660, 300}},
    {"txtRangeAbbr", kNoIndex, "None\r\n", {4920, 7020, 5775, 885}},
    {"chkHalf", kNoIndex, "", {10860, 5640, 255, 255}},
    {"Label", 0, "Make next selection \"Maybe\" (half as likely)", {11220, 5640, 1815, 555}},
    {"Label", 0, "Tip: Hold Shift while clicking to select similar groups of hands.", {4860, 8280, 5580, 360}},
    {"lblAction", 0, "New", {10800, 1440, 0, 0}},
    {"lblAction", 2, "Save", {12225, 1440, 0, 0}},
    {"lblRename", kNoIndex, "Rename", {10905, 2700, 0, 0}},
    {"lblSaveAs", kNoIndex, "Save As", {12225, 2640, 0, 0}},
    {"lblDelete", kNoIndex, "Delete", {10905, 3960, 0, 0}},
    {"cmdOK", kNoIndex, "OK", {11400, 8160, 1815, 495}},
});

constexpr auto kNewRangeDesign = std::to_array<DesignedPlace>({
    {"Label", 0, "Create a Range:", {1260, 420, 2220, 330}},
    {"shapeBlue", kNoIndex, "", {1260, 840, 0, 0}},
    {"Label", 0, "Tip: Hold Shift while clicking to select similar groups of hands.", {1320, 8100, 5580, 360}},
    {"Label", 0, "Instructions", {7560, 840, 1410, 285}},
    {"Label",
     0,
     "When you're done, pick a short descriptive name for the range, then click OK.",
     {7620, 2460, 4380, 780}},
    {"chkHalf", kNoIndex, "", {7620, 3300, 255, 255}},
    {"Label", 0, "Make next selection \"Maybe\" (half as likely)", {7980, 3300, 2115, 615}},
    {"Label", 0, "Key", {7560, 4140, 450, 285}},
    {"shapeKey", 0, "", {7620, 4620, 285, 285}},
    {"shapeKey", 2, "", {7620, 4980, 285, 285}},
    {"shapeKey", 3, "", {7620, 5340, 285, 285}},
    {"shapeKey", 1, "", {7620, 5700, 285, 285}},
    {"shapeKey", 4, "", {7620, 6060, 285, 285}},
    {"chkSaveRange", kNoIndex, "Save this range for future use", {7740, 7380, 3735, 375}},
    {"cmdOK", kNoIndex, "OK", {10500, 8460, 1575, 495}},
});

TEST(ManagerLayout, StandsAsDesigned) {
  ExpectPlaces(manager_layout::kTables, kManagerDesign);
}

TEST(NewRangeLayout, StandsAsDesigned) {
  ExpectPlaces(new_range_layout::kTables, kNewRangeDesign);
}

TEST(RangeDialogLayouts, NoNameStandsTwice) {
  for (const std::span<const ControlTable> tables : {manager_layout::kTables, new_range_layout::kTables}) {
    std::set<std::string> names;
    for (const ControlRow* row : RowsOf(tables))
      EXPECT_TRUE(names.insert(ObjectName(row->Name, row->Index)).second) << ObjectName(row->Name, row->Index);
  }
}

TEST(ManagerForm, IsAWindowOfItsOwnThatKeepsItsSize) {
  DialogStage stage;
  const ManagerForm& form = stage.OpenManager();
  EXPECT_TRUE(form.isWindow());
  EXPECT_FALSE(form.isModal());
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Range Manager"));
  EXPECT_FALSE(form.windowIcon().isNull());
  EXPECT_EQ(form.size(), QSize(911, 592));
  EXPECT_EQ(form.minimumSize(), form.maximumSize());
}

TEST(NewRangeForm, IsAWindowOfItsOwnThatKeepsItsSize) {
  DialogStage stage;
  const NewRangeForm& form = stage.OpenNewRange();
  EXPECT_TRUE(form.isWindow());
  EXPECT_FALSE(form.isModal());
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Create a New Range for your Opponent"));
  EXPECT_FALSE(form.windowIcon().isNull());
  EXPECT_EQ(form.size(), QSize(813, 607));
  EXPECT_EQ(form.minimumSize(), form.maximumSize());
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
