#include "ranges/dialogs/new_range_form.h"

#include <QCheckBox>
#include <gtest/gtest.h>
#include <vector>

#include "shell/settings_file.h"
#include "testing/dialog_stage.h"
#include "testing/range_dialog_messages.h"
#include "toolkit/text_box.h"

namespace quillon {
namespace {

class NewRangeFormTest : public DialogFormTest<NewRangeForm> {
 protected:
  NewRangeFormTest() {
    Stage.Dialogs.RefreshLists();
    Stage.OpenNewRange();
  }

  [[nodiscard]] TextBox& Name() const { return Controls().Get<TextBox>("txtRangeName"); }
  void Type(const char* text) const { QTest::keyClicks(&Name(), QString::fromUtf8(text)); }
  // The middle of the check box is beside its caption.
  void ToggleSave() const {
    QTest::mouseClick(&Controls().Get<QCheckBox>("chkSaveRange"), Qt::LeftButton, {}, QPoint(8, 12));
  }
  [[nodiscard]] std::string Chosen(std::int16_t index) const { return Stage.Chosen(index); }
};

TEST_F(NewRangeFormTest, StartsEmptyAndReadyToBeSaved) {
  EXPECT_EQ(Share(), "0% Selected");
  EXPECT_EQ(Summary(), "None\n");
  EXPECT_EQ(GridText(), TextWith(""));
  EXPECT_EQ(Name().text(), QStringLiteral(""));
  EXPECT_TRUE(Name().isEnabled());
  EXPECT_TRUE(Controls().Get<QCheckBox>("chkSaveRange").isChecked());
  EXPECT_FALSE(Controls().Get<QCheckBox>("chkHalf").isChecked());
}

TEST_F(NewRangeFormTest, ItsLoadRefreshesNoList) {
  Form().close();
  Stage.Refreshes = 0;
  Stage.OpenNewRange();
  EXPECT_EQ(Stage.Refreshes, 0);
}

TEST_F(NewRangeFormTest, ACellIsSummedUp) {
  Cell("AA");
  EXPECT_EQ(Share(), "0.5% selected");
  EXPECT_EQ(Summary(), "AA");
  Cell("AA");
  EXPECT_EQ(Share(), "0% selected");
  Click("chkHalf");
  Cell("AA");
  EXPECT_EQ(Share(), "0.2% selected");
}

TEST_F(NewRangeFormTest, UncheckedTheNameIsTheScratchNameAndCheckedAgainItIsReadyToBeTypedOver) {
  Type("Mine");
  ToggleSave();
  EXPECT_EQ(Name().text(), QStringLiteral("Temp Range1"));
  EXPECT_FALSE(Name().isEnabled());
  ToggleSave();
  EXPECT_EQ(Name().text(), QStringLiteral("Temp Range1"));
  EXPECT_TRUE(Name().isEnabled());
  EXPECT_EQ(Form().focusWidget(), &Name());
  EXPECT_EQ(Name().selectedText(), QStringLiteral("Temp Range1"));
  Press(Qt::Key_X);
  EXPECT_EQ(Name().text(), QStringLiteral("x"));
}

TEST_F(NewRangeFormTest, AProposalTogglesItsCellsSumsUpAndPutsTheFocusOnTheName) {
  Cell("72o");
  Form().Propose(std::vector{HandIndex("72o"), HandIndex("AA"), HandIndex("KK")});
  EXPECT_EQ(GridText(), TextWith("AA KK"));
  EXPECT_EQ(Share(), "0.9% selected");
  EXPECT_EQ(Summary(), "KK+");
  EXPECT_EQ(Form().focusWidget(), &Name());
  EXPECT_EQ(Name().text(), QString());
}

TEST_F(NewRangeFormTest, EachCellOfAProposalTakesTheShiftTest) {
  Stage.ShiftHeld = true;
  Form().Propose(std::vector{HandIndex("QQ"), HandIndex("JJ")});
  EXPECT_EQ(GridText(), TextWith("AA KK QQ JJ")) << "the first hand uses up the press";
}

TEST_F(NewRangeFormTest, AnEmptyProposalSumsUpWhatIsThereAndLeavesTheFocusWhereTheNameIsDisabled) {
  ToggleSave();
  Form().Propose({});
  EXPECT_EQ(GridText(), TextWith(""));
  EXPECT_EQ(Share(), "0% selected");
  EXPECT_EQ(Summary(), "[None]");
  EXPECT_NE(Form().focusWidget(), &Name());
}

TEST_F(NewRangeFormTest, OkSavesChoosesTheRangeAndCloses) {
  Cell("AA");
  Type("Mine");
  Form().move(75, 32);
  ExpectMessageBox(Saved("Mine"));
  Click("cmdOK");
  EXPECT_TRUE(IsClosed());
  EXPECT_EQ(FileText("Mine"), TextWith("AA"));
  EXPECT_EQ(Chosen(0), "Mine");
  EXPECT_EQ(ReadIniValue("New", "Left", Stage.Program.Folder()), "1125");
  EXPECT_TRUE(Stage.Main.HasDefaultPointer());
}

TEST_F(NewRangeFormTest, EnterInTheNameIsAClickOnOk) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    Stage.OpenNewRange();
    const std::string name = key == Qt::Key_Return ? "one" : "two";
    Name().setText(ToQt(name));
    Name().setFocus();
    ExpectMessageBox(Saved(name));
    Press(key);
    EXPECT_TRUE(IsClosed());
  }
}

TEST_F(NewRangeFormTest, ARefusedNameLeavesTheDialogOpen) {
  Cell("AA");
  ExpectMessageBox(NoName());
  QTest::keyClick(&Name(), Qt::Key_Return);
  VerifyExpectedBoxes();
  Type("Tight");
  ExpectMessageBox(Exists("Tight"));
  Click("cmdOK");
  EXPECT_TRUE(Form().isVisible());
  EXPECT_EQ(GridText(), TextWith("AA"));
  EXPECT_EQ(FileText("Tight"), TextWith("AA KK QQ"));
}

TEST_F(NewRangeFormTest, TheScratchRangeIsOverwrittenEachTime) {
  for (const std::string_view label : {"AA", "KK"}) {
    Stage.OpenNewRange();
    Cell(label);
    ToggleSave();
    ExpectMessageBox(Saved("Temp Range1"));
    Click("cmdOK");
    EXPECT_EQ(FileText("Temp Range1"), TextWith(std::string(label)));
    EXPECT_EQ(Chosen(0), "Temp Range1");
  }
}

TEST_F(NewRangeFormTest, OpenedFromASecondChooserTheRangeGoesThere) {
  Cell("AA");
  Stage.List(1).SelectEntry("Button Shove");
  Stage.OpenNewRange(3);
  EXPECT_EQ(GridText(), TextWith("AA")) << "the dialog is open already";
  Type("Mine");
  ExpectMessageBox(Saved("Mine"));
  Click("cmdOK");
  EXPECT_EQ(Chosen(0), "");
  EXPECT_EQ(Chosen(1), "Button Shove");
  EXPECT_EQ(Chosen(3), "Mine");
  EXPECT_EQ(Stage.Main.Controls.Get<QComboBox>("cmboRanges", 2).count(), 4) << "each list has it";
}

TEST_F(NewRangeFormTest, CancelHidesAndReopeningBringsAllBack) {
  Cell("AA");
  Type("Mine");
  Click("chkHalf");
  Click("cmdCancel");
  EXPECT_FALSE(Form().isVisible());
  EXPECT_EQ(ReadIniValue("New", "Left", Stage.Program.Folder()), "");
  EXPECT_FALSE(Stage.Main.HasDefaultPointer());

  Stage.OpenNewRange(1);
  EXPECT_TRUE(Form().isVisible());
  EXPECT_EQ(GridText(), TextWith("AA"));
  EXPECT_EQ(Share(), "0.5% selected");
  EXPECT_EQ(Name().text(), QStringLiteral("Mine"));
  EXPECT_TRUE(Controls().Get<QCheckBox>("chkHalf").isChecked());
}

TEST_F(NewRangeFormTest, EscapeHidesLikeCancelAndControlWClosesLikeTheCloseBox) {
  ComeToFront();
  Cell("AA");
  Press(Qt::Key_Escape);
  ASSERT_FALSE(IsClosed());
  EXPECT_FALSE(Form().isVisible());
  Stage.OpenNewRange();
  EXPECT_EQ(GridText(), TextWith("AA"));
  ComeToFront();
  Press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(IsClosed());
}

TEST_F(NewRangeFormTest, TheCloseBoxClosesAndReopeningIsFresh) {
  Cell("AA");
  Type("Mine");
  Form().move(75, 32);
  Form().close();
  EXPECT_TRUE(IsClosed());
  EXPECT_EQ(ReadIniValue("New", "Left", Stage.Program.Folder()), "1125");
  EXPECT_EQ(ReadIniValue("New", "Top", Stage.Program.Folder()), "480");
  EXPECT_TRUE(Stage.Main.HasDefaultPointer());

  Stage.OpenNewRange();
  EXPECT_EQ(GridText(), TextWith(""));
  EXPECT_EQ(Name().text(), QStringLiteral(""));
  EXPECT_EQ(Form().pos(), QPoint(75, 32));
}

TEST(NewRangeFormDeathTest, AFileThatCannotBeWrittenStopsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        DialogStage stage;
        NewRangeForm& form = stage.OpenNewRange();
        std::filesystem::remove_all(RangeFolderPath(stage.Program.Folder()));
        form.Controls().Get<TextBox>("txtRangeName").setText(QStringLiteral("Mine"));
        ClickOn(form.Controls(), "cmdOK");
      },
      testing::ExitedWithCode(1), "Mine");
}

}  // namespace
}  // namespace quillon
