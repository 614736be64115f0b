#include <optional>

#include "analysis/input_checks.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

using ChecksInWindow = MainFormTest;

// The complaints themselves are tested without a window.
TEST_F(ChecksInWindow, AComplaintIsShownInsteadOfARun) {
  const auto expectRefusal = [this](std::int16_t button, const char* screen, const Complaint& complaint) {
    SCOPED_TRACE(screen);
    ExpectMessageBox({.title = std::string(complaint.Title),
                      .text = std::string(complaint.Text),
                      .icon = MessageIcon::kExclamation});
    Click("cmdPreflopEV", button);
    VerifyExpectedBoxes();
    ComeToFront();
    EXPECT_EQ(Screen(), screen);
    EXPECT_FALSE(Shows("lblNav", kGridNav));
    EXPECT_EQ(Caption("lblNoResults"), "Please wait...");
    EXPECT_FALSE(LabelAt("lblNoResults").HasUnderline());
    EXPECT_FALSE(Form.State().Running);
  };
  EnterCall("100abc", "50", "Tight");
  expectRefusal(0, "Preflop Call", {"Pot Size Error", "The pot size contains non-numeric characters"});
  EXPECT_EQ(BoxText(0), "100abc");
  EnterRaise("100", "-1", "50", "Tight", "Tight");
  expectRefusal(1, "Preflop Raise", {"Call Amount", "The amount you must call cannot be a negative number."});
  EnterEquity("Nothing");
  expectRefusal(2, "Equity Only", {"Empty Range", "Your opponent's range is empty. Please select another range."});
}

// A user with German amounts.
class GermanChecksInWindow : public testing::Test, public MainStage {
 protected:
  GermanChecksInWindow() : MainStage({"€", ",", "."}) {}
  void SetUp() override { Start(); }
};

TEST_F(GermanChecksInWindow, TheUsersMarksPassAndTheValueIsWhatItIs) {
  EnterCall("", "", "Tight");
  // QTest cannot press non-ASCII keys.
  Get<QLineEdit>("txtNumber", 0).insert(ToQt("100 €"));
  Get<QLineEdit>("txtNumber", 1).insert(ToQt("12,5€"));
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(Form.State().Amounts.PotSize, 100);
  EXPECT_EQ(Form.State().Amounts.CallAmount, 12);
}

// The message box makes the button's release miss it, so the picture is not clicked.
TEST_F(ChecksInWindow, ASumThatCannotBeWorkedOutIsToldInsteadOfARun) {
  Open(kCallNav);
  Choose(0, "Tight");
  Type(1, "50");
  Type(0, "=50*2");
  const QPoint analyze = MiddleOf("cmdPreflopEV", 0);
  const QImage resting = Get("cmdPreflopEV", 0).grab().toImage();
  ExpectDialog([&](QDialog& dialog) {
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Problem");
    QTest::mouseRelease(Form.windowHandle(), Qt::LeftButton, {}, analyze);
    dialog.accept();
  });
  QTest::mousePress(Form.windowHandle(), Qt::LeftButton, {}, analyze);
  VerifyExpectedBoxes();
  ComeToFront();
  EXPECT_EQ(Screen(), "Preflop Call");
  MoveTo({600, 560});
  EXPECT_EQ(Get("cmdPreflopEV", 0).grab().toImage(), resting) << "it does not stay pressed";

  Type(1, "20");
  Type(0, "=50+50");
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(Form.State().Amounts.PotSize, 100) << "evaluated before the checks";
}

}  // namespace
}  // namespace quillon
