// The two dialogs together, as the main window uses them.

#include "ranges/dialogs/range_dialogs.h"

#include <QCloseEvent>
#include <QPointer>
#include <gtest/gtest.h>

#include "testing/dialog_stage.h"

namespace quillon {
namespace {

void LetGo() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(RangeDialogs, NothingIsLoadedBeforeItIsTouched) {
  const DialogStage stage;
  EXPECT_EQ(stage.Dialogs.LoadedManager(), nullptr);
  EXPECT_EQ(stage.Dialogs.LoadedNewRange(), nullptr);
}

TEST(RangeDialogs, ARefreshLoadsTheManagerHiddenAndFilled) {
  DialogStage stage;
  stage.Dialogs.RefreshLists();
  ASSERT_NE(stage.Dialogs.LoadedManager(), nullptr);
  EXPECT_FALSE(stage.Dialogs.LoadedManager()->isVisible());
  EXPECT_EQ(stage.Dialogs.LoadedManager()->RangeList().CurrentText(), "Button Shove");
  // The load of the dialog nests a second refresh.
  EXPECT_EQ(stage.Refreshes, 2);
}

TEST(RangeDialogs, TheManagerIsShownAsItStands) {
  DialogStage stage;
  stage.Dialogs.RefreshLists();
  stage.Dialogs.LoadedManager()->RangeList().SelectEntry("Tight");
  const ManagerForm& form = stage.OpenManager();
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.Controls().LabelAt("lblRangeName").Text(), QStringLiteral("Tight"));
}

TEST(RangeDialogs, EditingOpensTheManagerOnTheChosenRangeAlsoWhereItWasClosed) {
  DialogStage stage;
  stage.Dialogs.RefreshLists();
  stage.List(2).SelectEntry("Tight");
  EXPECT_TRUE(stage.Main.OffersEdit(2));
  for (int opening = 0; opening < 2; ++opening) {
    stage.ClickEdit(2);
    EXPECT_TRUE(stage.Dialogs.LoadedManager()->isVisible());
    EXPECT_EQ(stage.Dialogs.LoadedManager()->RangeList().CurrentText(), "Tight");
    stage.Dialogs.LoadedManager()->close();
  }
}

TEST(RangeDialogs, AManagerThatWasClosedGoesAndTheNextTouchLoadsAFreshOneHidden) {
  DialogStage stage;
  const QPointer<ManagerForm> before = &stage.OpenManager();
  ClickCell(before->Controls(), "22");
  before->close();
  EXPECT_EQ(stage.Dialogs.LoadedManager(), nullptr);

  stage.Dialogs.RefreshLists();
  ManagerForm* const after = stage.Dialogs.LoadedManager();
  ASSERT_NE(after, nullptr);
  EXPECT_FALSE(after->isVisible());
  EXPECT_EQ(RangeTextFromGrid(after->Grid().Colors()), TextWith("AA", "AKs"));
  LetGo();
  EXPECT_TRUE(before.isNull());
  EXPECT_EQ(stage.Dialogs.LoadedManager(), after);
}

TEST(RangeDialogs, ALateCloseEventOfAFormThatWasClosedTouchesNoOther) {
  DialogStage stage;
  ManagerForm& before = stage.OpenManager();
  before.close();
  const ManagerForm& after = stage.OpenManager();
  QCloseEvent late;
  QCoreApplication::sendEvent(&before, &late);
  EXPECT_EQ(stage.Dialogs.LoadedManager(), &after);
  EXPECT_TRUE(after.isVisible());
}

TEST(RangeDialogs, AManagerThatIsMinimisedComesBack) {
  DialogStage stage;
  ManagerForm& form = stage.OpenManager();
  form.showMinimized();
  stage.OpenManager();
  EXPECT_FALSE(form.isMinimized());
  EXPECT_TRUE(form.isVisible());
}

TEST(RangeDialogs, AChosenRangeThatIsDeletedLeavesTheBlankEntry) {
  DialogStage stage;
  const ManagerForm& form = stage.OpenManager();
  stage.List(1).SelectEntry("Button Shove");
  EXPECT_TRUE(stage.Main.OffersEdit(1));
  ExpectMessageBox({"Delete?", "Do you really want to delete \"Button Shove\"?", MessageIcon::kQuestion,
                    MessageButtons::kYesNoCancel},
                   MessageAnswer::kYes);
  ClickOn(form.Controls(), "imgDelete");
  EXPECT_EQ(stage.Chosen(1), "");
  EXPECT_FALSE(stage.Main.OffersEdit(1));
}

// With another window in front, Qt would leave it there.
TEST(RangeDialogs, TheFocusLeavesALinkThatGoesWithItsRange) {
  DialogStage stage;
  stage.Dialogs.RefreshLists();
  stage.List(0).SelectEntry("Tight");
  Label& edit = stage.Main.Controls.LabelAt("lblEditRange", 0);
  edit.setFocus();
  ASSERT_EQ(stage.Main.focusWidget(), &edit);
  stage.List(0).SelectEntry("");
  EXPECT_EQ(stage.Main.focusWidget(), &stage.Main);
}

TEST(RangeDialogs, ANewRangeStandsInTheManagersListAtOnceAndDropsItsChanges) {
  DialogStage stage;
  ManagerForm& manager = stage.OpenManager();
  ClickCell(manager.Controls(), "22");
  NewRangeForm& form = stage.OpenNewRange();
  form.Controls().Get<TextBox>("txtRangeName").setText(QStringLiteral("Mine"));
  ExpectMessageBox({"Quillon", "The range \"Mine\" was saved successfully!"});
  ClickOn(form.Controls(), "cmdOK");
  EXPECT_EQ(manager.Controls().Get<QListWidget>("lstRanges").count(), 3);
  EXPECT_EQ(manager.RangeList().CurrentText(), "Button Shove");
  EXPECT_EQ(RangeTextFromGrid(manager.Grid().Colors()), TextWith("AA", "AKs"));
}

TEST(RangeDialogs, AShiftPressIsUsedUpForBothDialogs) {
  DialogStage stage;
  ManagerForm& manager = stage.OpenManager();
  NewRangeForm& form = stage.OpenNewRange();
  stage.ShiftHeld = true;
  QTest::keyPress(form.windowHandle(), Qt::Key_Shift, Qt::ShiftModifier);
  ClickCell(form.Controls(), "QQ");
  ClickCell(manager.Controls(), "QQ");
  EXPECT_EQ(RangeTextFromGrid(form.Grid().Colors()), TextWith("AA KK QQ"));
  EXPECT_EQ(RangeTextFromGrid(manager.Grid().Colors()), TextWith("AA QQ", "AKs"));
  QTest::keyRelease(form.windowHandle(), Qt::Key_Shift);
}

TEST(RangeDialogs, AnEmptyFolderGivesAnEmptyManager) {
  DialogStage stage;
  std::filesystem::remove(stage.Program.RangeFile("Button Shove.txt"));
  std::filesystem::remove(stage.Program.RangeFile("Tight.txt"));
  ManagerForm& form = stage.OpenManager();
  EXPECT_EQ(form.Controls().Get<QListWidget>("lstRanges").count(), 0);
  EXPECT_EQ(form.Controls().LabelAt("lblRangeName").Text(), QStringLiteral("Title"));
  EXPECT_EQ(RangeTextFromGrid(form.Grid().Colors()), TextWith(""));
}

}  // namespace
}  // namespace quillon
