#include "ranges/dialogs/manager_form.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <gtest/gtest.h>

#include "ranges/dialogs/dialog_fixtures.h"
#include "shell/settings_file.h"

namespace quillon {
namespace {

const InputQuestion kNewQuestion = {"What do you want to name the range?", "Rename Range", ""};
const InputQuestion kSaveAsQuestion = {"What do you want to call the new range?", "Pick a Name", "Button Shove"};
const InputQuestion kRenameQuestion = {"What do you want to rename the range to?", "Rename Range", "Button Shove"};

class ManagerFormTest : public testing::Test {
 public:
  ManagerFormTest() { Stage.OpenManager(); }

  [[nodiscard]] ManagerForm& Form() const { return *Stage.Dialogs.LoadedManager(); }
  [[nodiscard]] const FormControls& Controls() const { return Form().Controls(); }
  void Click(std::string_view name) const { ClickOn(Controls(), name); }
  void Cell(std::string_view label) const { ClickCell(Controls(), label); }
  void SelectRow(int row) const {
    auto& list = Controls().Get<QListWidget>("lstRanges");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
  }
  [[nodiscard]] std::string Selected() const { return Form().RangeList().CurrentText(); }
  [[nodiscard]] std::string Title() const { return FromQt(Controls().LabelAt("lblRangeName").Text()); }
  [[nodiscard]] std::string Share() const { return FromQt(Controls().LabelAt("lblRangeInfo").Text()); }
  [[nodiscard]] std::string Summary() const {
    return FromQt(Controls().Get<QPlainTextEdit>("txtRangeAbbr").toPlainText());
  }
  [[nodiscard]] std::string GridText() const { return RangeTextFromGrid(Form().Grid()); }
  [[nodiscard]] bool IsClosed() const { return Stage.Dialogs.LoadedManager() == nullptr; }
  [[nodiscard]] std::string FileText(std::string_view name) const {
    return LoadRangeText(Stage.Program.Folder(), name);
  }

  DialogStage Stage;
};

TEST_F(ManagerFormTest, ShowsTheFirstRangeOnceItIsLoaded) {
  EXPECT_EQ(Title(), "Button Shove");
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
  EXPECT_EQ(Share(), "0.6% selected");
  EXPECT_EQ(Summary(), "Full: AA | Half: AKs");
}

TEST_F(ManagerFormTest, AClickOnTheListShowsThatRange) {
  SelectRow(1);
  EXPECT_EQ(Title(), "Tight");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ"));
}

TEST_F(ManagerFormTest, TheArrowKeysOfTheListShowRangesToo) {
  QTest::keyClick(&Controls().Get<QListWidget>("lstRanges"), Qt::Key_Down);
  EXPECT_EQ(Title(), "Tight");
}

TEST_F(ManagerFormTest, AClickOnTheShownRangePutsItBackToItsFile) {
  Cell("22");
  SelectRow(0);
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
}

TEST_F(ManagerFormTest, ACellIsSummedUpAndNothingIsWritten) {
  Cell("AKs");
  Cell("KK");
  EXPECT_EQ(Share(), "0.9% selected");
  EXPECT_EQ(Summary(), "KK+");
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA", "AKs"));
}

TEST_F(ManagerFormTest, TheHalfBoxMakesCellsHalf) {
  Click("chkHalf");
  Cell("KK");
  EXPECT_EQ(GridText(), TextWith("AA", "KK AKs"));
}

TEST_F(ManagerFormTest, SelectingAnotherRangeDropsChangesWithoutAQuestion) {
  Cell("22");
  SelectRow(1);
  SelectRow(0);
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
}

TEST_F(ManagerFormTest, ARefreshByTheMainWindowDropsChangesWithoutAQuestion) {
  SelectRow(1);
  Cell("22");
  Stage.Main.RefreshLists();
  EXPECT_EQ(Title(), "Tight");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ"));
}

TEST_F(ManagerFormTest, CaptionsAreNoButtons) {
  Click("lblRename");
  Click("lblSaveAs");
  Click("lblDelete");
  ClickOn(Controls(), "lblAction", 0);
  ClickOn(Controls(), "lblAction", 2);
  EXPECT_EQ(Title(), "Button Shove");
}

TEST_F(ManagerFormTest, NewSavesAndShowsAnEmptyRange) {
  Cell("22");
  ExpectInputBox(kNewQuestion, "Fresh");
  Click("imgNew");
  EXPECT_EQ(FileText("Fresh"), TextWith(""));
  EXPECT_EQ(Title(), "Fresh");
  EXPECT_EQ(Share(), "0% selected");
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA", "AKs"));
}

TEST_F(ManagerFormTest, NewWithATakenNameLeavesAllAsItWas) {
  Cell("22");
  ExpectInputBox(kNewQuestion, "Tight");
  ExpectMessageBox(Exists("Tight"));
  Click("imgNew");
  EXPECT_EQ(Title(), "Button Shove");
  EXPECT_EQ(GridText(), TextWith("AA 22", "AKs"));
}

TEST_F(ManagerFormTest, NewThatIsCancelledIsSilent) {
  ExpectInputBoxCancelled(kNewQuestion);
  Click("imgNew");
  EXPECT_EQ(Title(), "Button Shove");
}

TEST_F(ManagerFormTest, SaveWritesTheGridAndTells) {
  Cell("22");
  ExpectMessageBox(Saved("Button Shove"));
  Click("imgSave");
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA 22", "AKs"));
  EXPECT_EQ(GridText(), TextWith("AA 22", "AKs"));
}

TEST_F(ManagerFormTest, SaveAsLeavesTheOldFileAndSelectsTheNewName) {
  Cell("22");
  ExpectInputBox(kSaveAsQuestion, "Wider");
  ExpectMessageBox(Saved("Wider"));
  Click("imgSaveAs");
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA", "AKs"));
  EXPECT_EQ(FileText("Wider"), TextWith("AA 22", "AKs"));
  EXPECT_EQ(Selected(), "Wider");
}

TEST_F(ManagerFormTest, SaveAsWithTheNameOnOfferIsRefused) {
  ExpectInputBox(kSaveAsQuestion, "Button Shove");
  ExpectMessageBox(Exists("Button Shove"));
  Click("imgSaveAs");
  EXPECT_EQ(Selected(), "Button Shove");
}

TEST_F(ManagerFormTest, RenameSavesTheGridUnderTheNewName) {
  Cell("22");
  ExpectInputBox(kRenameQuestion, "Late Shove");
  ExpectMessageBox({"Quillon", "The range was successfull renamed: \r\n\r\nOld: \tButton Shove\r\nNew: \tLate Shove"});
  Click("imgRename");
  EXPECT_EQ(FileText("Late Shove"), TextWith("AA 22", "AKs"));
  EXPECT_FALSE(RangeExists(Stage.Program.Folder(), "Button Shove"));
  EXPECT_EQ(Title(), "Late Shove");
}

TEST_F(ManagerFormTest, RenameThatIsCancelledIsTold) {
  ExpectInputBoxCancelled(kRenameQuestion);
  ExpectMessageBox(NoName());
  Click("imgRename");
  EXPECT_EQ(Title(), "Button Shove");
}

TEST_F(ManagerFormTest, DeleteAsksAndThenShowsTheFirstRangeLeft) {
  ExpectMessageBox(AskToDelete("Button Shove"), MessageAnswer::kYes);
  Click("imgDelete");
  EXPECT_FALSE(RangeExists(Stage.Program.Folder(), "Button Shove"));
  EXPECT_EQ(Title(), "Tight");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ"));
}

TEST_F(ManagerFormTest, DeleteKeepsTheRangeOnAnyOtherAnswer) {
  ExpectMessageBox(AskToDelete("Button Shove"), MessageAnswer::kNo);
  Click("imgDelete");
  ExpectMessageBox(AskToDelete("Button Shove"), MessageAnswer::kCancel);
  Click("imgDelete");
  ExpectMessageBoxClosed(AskToDelete("Button Shove"));
  Click("imgDelete");
  EXPECT_TRUE(RangeExists(Stage.Program.Folder(), "Button Shove"));
}

TEST_F(ManagerFormTest, TheGridGoesOnShowingTheLastRangeDeleted) {
  SelectRow(1);
  ExpectMessageBox(AskToDelete("Tight"), MessageAnswer::kYes);
  Click("imgDelete");
  ExpectMessageBox(AskToDelete("Button Shove"), MessageAnswer::kYes);
  Click("imgDelete");
  EXPECT_EQ(Selected(), "");
  EXPECT_EQ(Title(), "Button Shove");
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));

  ExpectMessageBox(AskToSave(""), MessageAnswer::kNo);
  Click("cmdOK");
  EXPECT_TRUE(IsClosed());
}

TEST_F(ManagerFormTest, ImagesArePressedByEnterAndSpace) {
  auto& save = Controls().PictureAt("imgSave");
  save.setFocus(Qt::TabFocusReason);
  ExpectMessageBox(Saved("Button Shove"));
  QTest::keyClick(Form().windowHandle(), Qt::Key_Return);
  ExpectMessageBox(Saved("Button Shove"));
  QTest::keyClick(Form().windowHandle(), Qt::Key_Space);
}

TEST_F(ManagerFormTest, OkClosesWithoutAQuestionWhereNothingDiffers) {
  Cell("22");
  Cell("22");
  Click("cmdOK");
  EXPECT_TRUE(IsClosed());
}

TEST_F(ManagerFormTest, EnterOnTheOkButtonPressesIt) {
  Controls().Get<QWidget>("cmdOK").setFocus();
  QTest::keyClick(Form().windowHandle(), Qt::Key_Return);
  EXPECT_TRUE(IsClosed());
}

TEST_F(ManagerFormTest, OkSavesOnYesAndCloses) {
  Cell("22");
  ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kYes);
  ExpectMessageBox(Saved("Button Shove"));
  Click("cmdOK");
  EXPECT_TRUE(IsClosed());
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA 22", "AKs"));
}

TEST_F(ManagerFormTest, OkDropsTheChangesOnNo) {
  Cell("22");
  ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kNo);
  Click("cmdOK");
  EXPECT_TRUE(IsClosed());
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA", "AKs"));
}

TEST_F(ManagerFormTest, OkStaysOpenOnCancel) {
  Cell("22");
  ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kCancel);
  Click("cmdOK");
  EXPECT_TRUE(Form().isVisible());
  EXPECT_EQ(GridText(), TextWith("AA 22", "AKs"));
}

TEST_F(ManagerFormTest, AWeightThatTheGridCannotShowCountsAsChanged) {
  std::string text = TextWith("AA");
  text.replace(text.find("KK (0)"), 6, "KK (0.25)");
  Stage.Program.Write("Odd.txt", text);
  Stage.Main.RefreshLists();
  SelectRow(1);
  ASSERT_EQ(Title(), "Odd");
  EXPECT_EQ(Summary(), "AA");
  ExpectMessageBox(AskToSave("Odd"), MessageAnswer::kYes);
  ExpectMessageBox(Saved("Odd"));
  Click("cmdOK");
  EXPECT_EQ(FileText("Odd"), TextWith("AA"));
}

TEST_F(ManagerFormTest, TheCloseBoxAsksNothing) {
  Cell("22");
  Form().close();
  EXPECT_TRUE(IsClosed());
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA", "AKs"));
}

TEST_F(ManagerFormTest, ClosingKeepsThePlaceAndGivesThePointerBack) {
  Form().move(120, 64);
  Click("cmdOK");
  EXPECT_EQ(ReadIniValue("Manager", "Left", Stage.Program.Folder()), "1800");
  EXPECT_EQ(ReadIniValue("Manager", "Top", Stage.Program.Folder()), "960");
  EXPECT_EQ(Stage.Main.PointerResets, 1);
  EXPECT_EQ(Stage.OpenManager().pos(), QPoint(120, 64));
}

TEST(ManagerFormDeathTest, ARangeWhoseFileIsGoneStopsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        DialogStage stage;
        const FormControls& controls = stage.OpenManager().Controls();
        std::filesystem::remove(stage.Program.RangeFile("Tight.txt"));
        QTest::keyClick(&controls.Get<QListWidget>("lstRanges"), Qt::Key_Down);
      },
      testing::ExitedWithCode(1), "Tight|Invalid procedure call");
}

}  // namespace
}  // namespace quillon
