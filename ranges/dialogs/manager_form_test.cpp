#include "ranges/dialogs/manager_form.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "shell/settings_file.h"
#include "testing/dialog_stage.h"
#include "testing/heard_announcements.h"
#include "testing/range_dialog_messages.h"

namespace quillon {
namespace {

const InputQuestion kNewQuestion = {"What do you want to name the range?", "Rename Range", ""};
const InputQuestion kSaveAsQuestion = {"What do you want to call the new range?", "Pick a Name", "Button Shove"};
const InputQuestion kRenameQuestion = {"What do you want to rename the range to?", "Rename Range", "Button Shove"};

class ManagerFormTest : public DialogFormTest<ManagerForm> {
 protected:
  ManagerFormTest() { Stage.OpenManager(); }

  void SelectRow(int row) const {
    auto& list = Controls().Get<QListWidget>("lstRanges");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
  }
  [[nodiscard]] std::string Selected() const { return Form().RangeList().CurrentText(); }
  [[nodiscard]] std::string Title() const { return FromQt(Controls().LabelAt("lblRangeName").Text()); }

  // Empties the folder and the list.
  void LoseAllRanges() {
    for (const char* name : {"Button Shove", "Tight"})
      DeleteRange(Stage.Program.Folder(), name);
    Stage.Dialogs.RefreshLists();
  }
};

TEST_F(ManagerFormTest, ShowsTheFirstRangeOnceItIsLoaded) {
  EXPECT_EQ(Title(), "Button Shove");
  EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
  EXPECT_EQ(Share(), "0.6% selected");
  EXPECT_EQ(Summary(), "Full: AA | Half: AKs");
}

TEST_F(ManagerFormTest, AClickOnTheListShowsThatRangeAsItsFileHasIt) {
  for (const bool byAnother : {false, true}) {
    Cell("22");
    if (byAnother) {
      SelectRow(1);
      EXPECT_EQ(Title(), "Tight");
      EXPECT_EQ(GridText(), TextWith("AA KK QQ"));
    }
    SelectRow(0);
    EXPECT_EQ(GridText(), TextWith("AA", "AKs"));
  }
}

TEST_F(ManagerFormTest, ACellIsSummedUpAndNothingIsWritten) {
  Cell("AKs");
  Cell("KK");
  EXPECT_EQ(Share(), "0.9% selected");
  EXPECT_EQ(Summary(), "KK+");
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA", "AKs"));
  Click("chkHalf");
  Cell("QQ");
  EXPECT_EQ(GridText(), TextWith("AA KK", "QQ"));
}

TEST_F(ManagerFormTest, ARefreshByTheMainWindowDropsChangesWithoutAQuestion) {
  SelectRow(1);
  Cell("22");
  Stage.Dialogs.RefreshLists();
  EXPECT_EQ(Title(), "Tight");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ"));
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

TEST_F(ManagerFormTest, TheScratchRangeIsReplacedWithoutAWordAboutItsName) {
  const auto scratch = [this] { return FileText("Temp Range1"); };
  Stage.Program.Write("Temp Range1.txt", TextWith("22"));
  ExpectInputBox(kNewQuestion, "Temp Range1");
  Click("imgNew");
  EXPECT_EQ(scratch(), TextWith(""));

  Cell("33");
  ExpectInputBox({kRenameQuestion.prompt, kRenameQuestion.title, "Temp Range1"}, "Temp Range1");
  ExpectMessageBox({"Quillon", "The range was successfull renamed: \r\n\r\nOld: \tTemp Range1\r\nNew: \tTemp Range1"});
  Click("imgRename");
  EXPECT_EQ(scratch(), TextWith("33"));
  EXPECT_EQ(Selected(), "Temp Range1");

  SelectRow(0);
  ExpectInputBox(kRenameQuestion, "Temp Range1");
  ExpectMessageBox({"Quillon", "The range was successfull renamed: \r\n\r\nOld: \tButton Shove\r\nNew: \tTemp Range1"});
  Click("imgRename");
  EXPECT_EQ(scratch(), TextWith("AA", "AKs"));
  EXPECT_FALSE(RangeExists(Stage.Program.Folder(), "Button Shove"));
}

// Save shows its message before the lists are filled; Save As and Rename show the new range first.
TEST_F(ManagerFormTest, ItIsToldBeforeOrAfterTheListsAreFilled) {
  std::string selected;
  int refreshes = 0;
  const auto look = [&](QDialog& box) {
    selected = Selected();
    refreshes = Stage.Refreshes;
    box.accept();
  };
  for (const auto picture : std::to_array<ManagerControls::Key<>>({"imgSave", "imgSaveAs", "imgRename"})) {
    SCOPED_TRACE(picture.Name());
    SelectRow(0);
    Stage.Refreshes = 0;
    const bool asksName = picture.Name() != "imgSave";
    if (asksName) {
      ExpectDialog([&](QDialog& box) {
        box.findChild<QLineEdit*>()->setText(ToQt("Zz " + std::string(picture.Name())));
        box.accept();
      });
    }
    ExpectDialog(look);
    Click(picture);
    EXPECT_EQ(refreshes, asksName ? 1 : 0);
    EXPECT_EQ(selected, asksName ? "Zz " + std::string(picture.Name()) : "Button Shove");
    EXPECT_EQ(Stage.Refreshes, 1);
  }
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

TEST_F(ManagerFormTest, OnlyARenameThatIsCancelledIsTold) {
  ExpectInputBoxCancelled(kNewQuestion);
  Click("imgNew");
  ExpectInputBoxCancelled(kSaveAsQuestion);
  Click("imgSaveAs");
  ExpectInputBoxCancelled(kRenameQuestion);
  ExpectMessageBox(NoName());
  Click("imgRename");
  EXPECT_EQ(Title(), "Button Shove");
  EXPECT_THAT(RangeFolderEntries(Stage.Program.Folder()), testing::ElementsAre("Button Shove.txt", "Tight.txt"));
}

TEST_F(ManagerFormTest, DeleteAsksAndThenShowsTheFirstRangeLeft) {
  ExpectMessageBox(AskToDelete("Button Shove"), MessageAnswer::kYes);
  Click("imgDelete");
  EXPECT_FALSE(RangeExists(Stage.Program.Folder(), "Button Shove"));
  EXPECT_EQ(Title(), "Tight");
  EXPECT_EQ(GridText(), TextWith("AA KK QQ"));
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

TEST_F(ManagerFormTest, SaveWithNothingSelectedWritesTheRangeWithoutAName) {
  LoseAllRanges();
  ExpectMessageBox(Saved(""));
  Click("imgSave");
  EXPECT_THAT(RangeFolderEntries(Stage.Program.Folder()), testing::ElementsAre(".txt"));
  EXPECT_EQ(FileText(""), TextWith("AA", "AKs")) << "the grid still showed the last selected range";
}

TEST_F(ManagerFormTest, NewInAnEmptyFolderSelectsItsRange) {
  LoseAllRanges();
  ExpectInputBox(kNewQuestion, "Fresh");
  Click("imgNew");
  EXPECT_EQ(Selected(), "Fresh");
}

TEST_F(ManagerFormTest, EnterOnTheOkButtonPressesIt) {
  Controls().Get<QWidget>("cmdOK").setFocus();
  QTest::keyClick(Form().windowHandle(), Qt::Key_Return);
  EXPECT_TRUE(IsClosed());
}

TEST_F(ManagerFormTest, OkSavesOnYesDropsTheChangesOnNoAndStaysOpenOnCancel) {
  for (const MessageAnswer answer : {MessageAnswer::kCancel, MessageAnswer::kNo, MessageAnswer::kYes}) {
    if (IsClosed()) Stage.OpenManager();
    SelectRow(0);
    Cell("22");
    ExpectMessageBox(AskToSave("Button Shove"), answer);
    if (answer == MessageAnswer::kYes) ExpectMessageBox(Saved("Button Shove"));
    Click("cmdOK");
    EXPECT_EQ(IsClosed(), answer != MessageAnswer::kCancel);
    EXPECT_EQ(FileText("Button Shove"),
              answer == MessageAnswer::kYes ? TextWith("AA 22", "AKs") : TextWith("AA", "AKs"));
    EXPECT_TRUE(IsClosed() || GridText() == TextWith("AA 22", "AKs"));
  }
}

TEST_F(ManagerFormTest, ChangedMeansThatGridAndFileDifferAsTexts) {
  struct Case {
    const char* rule;
    std::string text;
    bool changed;
  };
  const std::string rest = TextWith("KK").substr(8);
  const std::vector<Case> cases = {
      {"as saved", TextWith("AA", "KK"), false},
      {"a weight that the grid cannot show", "AA (0.25), " + rest, true},
      {"a weight that is written in another way", "AA (1.0), " + rest, true},
      {"a remark after the entries", TextWith("AA") + "my best", true},
      {"a second line end", TextWith("AA") + "\r\n", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.rule);
    SaveRangeText(Stage.Program.Folder(), "Button Shove", c.text);
    Stage.OpenManager();
    SelectRow(0);
    if (c.changed) ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kNo);
    Click("cmdOK");
    EXPECT_TRUE(IsClosed());
    VerifyExpectedBoxes();
  }
}

TEST_F(ManagerFormTest, AFileThatChangedBeneathTheGridCountsAsChanged) {
  Stage.Program.Write("Button Shove.txt", TextWith("22"));
  ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kCancel);
  Click("cmdOK");
  std::filesystem::remove(Stage.Program.RangeFile("Button Shove.txt"));
  ExpectMessageBox(AskToSave("Button Shove"), MessageAnswer::kCancel);
  Click("cmdOK");
  EXPECT_TRUE(Form().isVisible());
}

TEST_F(ManagerFormTest, ClosingKeepsThePlaceAndGivesThePointerBack) {
  Form().move(120, 64);
  Click("cmdOK");
  EXPECT_EQ(ReadIniValue("Manager", "Left", Stage.Program.Folder()), "1800");
  EXPECT_EQ(ReadIniValue("Manager", "Top", Stage.Program.Folder()), "960");
  EXPECT_TRUE(Stage.Main.HasDefaultPointer());
  EXPECT_EQ(Stage.OpenManager().pos(), QPoint(120, 64));
}

TEST(ManagerFormDeathTest, AFileThatIsGoneStopsTheProgramAndIsNamed) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto startWithoutTight = [](const std::function<void(const ManagerControls&)>& act) {
    DialogStage stage;
    const ManagerControls& controls = stage.OpenManager().Controls();
    QTest::keyClick(&controls.Get<QListWidget>("lstRanges"), Qt::Key_Down);
    std::filesystem::remove(stage.Program.RangeFile("Tight.txt"));
    act(controls);
  };
  EXPECT_EXIT(startWithoutTight([](const ManagerControls& controls) {
                QTest::keyClick(&controls.Get<QListWidget>("lstRanges"), Qt::Key_Up);
                QTest::keyClick(&controls.Get<QListWidget>("lstRanges"), Qt::Key_Down);
              }),
              testing::ExitedWithCode(1), "Invalid procedure call");
  EXPECT_EXIT(startWithoutTight([](const ManagerControls& controls) {
                ExpectMessageBox(AskToDelete("Tight"), MessageAnswer::kYes);
                ClickOn(controls, "imgDelete");
              }),
              testing::ExitedWithCode(1), "'53': File not found.*Ranges/Tight.txt");
}

// The box that opens shows what a key pressed.
TEST_F(ManagerFormTest, KeysPressTheActions) {
  ComeToFront();
  const auto press = [this](Qt::Key key, Qt::KeyboardModifiers held = {}) {
    Press(key, held);
    VerifyExpectedBoxes();
    ComeToFront();
  };
  ExpectInputBoxCancelled(kNewQuestion);
  press(Qt::Key_N, Qt::ControlModifier);
  ExpectMessageBox(Saved("Button Shove"));
  press(Qt::Key_S, Qt::ControlModifier);
  ExpectInputBoxCancelled(kSaveAsQuestion);
  press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  ExpectInputBoxCancelled(kRenameQuestion);
  ExpectMessageBox(NoName());
  press(Qt::Key_F2);
  ExpectMessageBox(AskToDelete("Button Shove"), MessageAnswer::kNo);
  press(Qt::Key_Delete);
  EXPECT_EQ(FileText("Button Shove"), TextWith("AA", "AKs")) << "deleted only on Yes";
}

TEST_F(ManagerFormTest, EscapeAndControlWCloseLikeTheCloseBox) {
  for (const auto& [key, held] : {std::pair(Qt::Key_Escape, Qt::KeyboardModifiers()),
                                  std::pair(Qt::Key_W, Qt::KeyboardModifiers(Qt::ControlModifier))}) {
    Stage.OpenManager();
    ComeToFront();
    Cell("22");
    Press(key, held);
    EXPECT_TRUE(IsClosed()) << "without a question";
  }
}

TEST_F(ManagerFormTest, ASavedRangeIsAnnounced) {
  const HeardAnnouncements heard;
  ExpectMessageBox(Saved("Button Shove"));
  Click("imgSave");
  ExpectInputBox(kSaveAsQuestion, "Pushes");
  ExpectMessageBox(Saved("Pushes"));
  Click("imgSaveAs");
  ExpectInputBox(kNewQuestion, "Folds");
  Click("imgNew");
  EXPECT_THAT(heard.Texts(),
              testing::ElementsAre(Saved("Button Shove").text, Saved("Pushes").text, Saved("Folds").text));
}

}  // namespace
}  // namespace quillon
