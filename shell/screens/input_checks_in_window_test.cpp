#include <optional>

#include "testing/main_stage.h"

namespace quillon {
namespace {

struct CheckCase {
  const char* Name;
  std::string_view Pot;
  std::string_view Call;
  std::string_view Shove;
  std::string_view Range;
  std::string_view CallingRange;
  std::string_view Title;  // empty: the run goes through
  std::string_view Text;
};

class CheckInWindow : public MainFormTest, public testing::WithParamInterface<CheckCase> {
 protected:
  /// Announces the row's message; whether there is one.
  static bool ExpectRefusal() {
    if (GetParam().Title.empty()) return false;
    ExpectMessageBox({.title = std::string(GetParam().Title),
                      .text = std::string(GetParam().Text),
                      .icon = MessageIcon::kExclamation});
    return true;
  }

  /// What a click that ended in a message, or in results, leaves behind.
  void ExpectOutcome(bool refused, std::string_view inputScreen) {
    VerifyExpectedBoxes();
    EXPECT_EQ(Screen(), refused ? inputScreen : "ALL IN Grid");
    EXPECT_EQ(Shows("lblNav", kGridNavIndex), !refused);
    EXPECT_EQ(Caption("lblNoResults"), refused ? "Please wait..." : "There are no results to display at this time.");
    EXPECT_FALSE(LabelAt("lblNoResults").HasUnderline());
    EXPECT_FALSE(Form.State().Running);
  }
};

constexpr std::string_view kPotError = "Pot Size Error";
constexpr std::string_view kCallError = "Call Size Error";
constexpr std::string_view kPotMustBeGreater = "The pot size must be greater than the amount you have to call.";

using CallCheckInWindow = CheckInWindow;

TEST_P(CallCheckInWindow, StopsAtTheFirstComplaint) {
  EnterCall(GetParam().Pot, GetParam().Call, GetParam().Range);
  const bool refused = ExpectRefusal();
  Click("cmdPreflopEV", 0);
  ExpectOutcome(refused, "Preflop Call");
  EXPECT_EQ(BoxText(0), GetParam().Pot);
  EXPECT_EQ(BoxText(1), GetParam().Call);
}

INSTANTIATE_TEST_SUITE_P(
    CheckInWindow, CallCheckInWindow,
    testing::Values(
        CheckCase{"NoRange", "100", "50", "", "", "", "Missing Range", "Please choose a range for your opponent."},
        CheckCase{"EmptyRange", "100", "50", "", "Nothing", "", "No Hands in Range",
                  "No hands in your opponent's current range."},
        CheckCase{"CallAboveThePot", "100", "101", "", "Tight", "", kPotError, kPotMustBeGreater},
        CheckCase{"CallEqualToThePot", "100", "100", "", "Tight", "", kPotError, kPotMustBeGreater},
        CheckCase{"BothZero", "0", "0", "", "Tight", "", kPotError, kPotMustBeGreater},
        CheckCase{"BothEmpty", "", "", "", "Tight", "", kPotError, kPotMustBeGreater},
        CheckCase{"WordCountsAsZero", "abc", "50", "", "Tight", "", kPotError, kPotMustBeGreater},
        CheckCase{"PotZero", "0", "-5", "", "Tight", "", kPotError, "The pot size must be greater than zero."},
        CheckCase{"CallZero", "100", "0", "", "Tight", "", kCallError, "The amount to call must be greater than zero."},
        CheckCase{"CallNegative", "100", "-1", "", "Tight", "", kCallError,
                  "The amount to call must be greater than zero."},
        CheckCase{"LettersBehindThePot", "100abc", "50", "", "Tight", "", kPotError,
                  "The pot size contains non-numeric characters"},
        CheckCase{"LettersBehindTheCall", "100", "50abc", "", "Tight", "", kCallError,
                  "The call size contains non-numeric characters"},
        CheckCase{"RangeComesBeforeAmounts", "x", "x", "", "", "", "Missing Range",
                  "Please choose a range for your opponent."},
        CheckCase{"CurrencyPasses", "$100", "$50", "", "Tight", "", "", ""}),
    CaseName<CheckCase>);

constexpr std::string_view kPotTitle = "Pot Size";

using RaiseCheckInWindow = CheckInWindow;

TEST_P(RaiseCheckInWindow, StopsAtTheFirstComplaint) {
  EnterRaise(GetParam().Pot, GetParam().Call, GetParam().Shove, GetParam().Range, GetParam().CallingRange);
  const bool refused = ExpectRefusal();
  Click("cmdPreflopEV", 1);
  ExpectOutcome(refused, "Preflop Raise");
}

INSTANTIATE_TEST_SUITE_P(
    CheckInWindow, RaiseCheckInWindow,
    testing::Values(CheckCase{"NoRange", "100", "0", "50", "", "Tight", "Missing Range",
                              "You must assign or create a range of hands for your opponent."},
                    CheckCase{"NoCallingRange", "100", "0", "50", "Tight", "", "Missing Range",
                              "You must assign or create a range of hands for your opponent to call with."},
                    CheckCase{"PotZero", "0", "0", "50", "Tight", "Tight", kPotTitle,
                              "The pot size must be greater than zero."},
                    CheckCase{"PotNegative", "-1", "0", "50", "Tight", "Tight", kPotTitle,
                              "The pot size must be greater than zero."},
                    CheckCase{"CallNegative", "100", "-1", "50", "Tight", "Tight", "Call Amount",
                              "The amount you must call cannot be a negative number."},
                    CheckCase{"ShoveZero", "100", "0", "0", "Tight", "Tight", kPotTitle,
                              "The amount your opponent must call must be greater than zero."},
                    CheckCase{"LettersBehindThePot", "12abc", "0", "50", "Tight", "Tight", kPotTitle,
                              "The pot size contains non-numeric characters"},
                    CheckCase{"LettersInTheCall", "100", "abc", "50", "Tight", "Tight", "Call Size",
                              "The call size contains illegal characters"},
                    CheckCase{"LettersBehindTheShove", "100", "0", "50abc", "Tight", "Tight", "Shove Size",
                              "The amount your opponent must call when you shove contains illegal characters."},
                    CheckCase{"EmptyCallPasses", "100", "", "50", "Tight", "Tight", "", ""},
                    CheckCase{"EmptyCallingRangePasses", "100", "0", "50", "Tight", "Nothing", "", ""}),
    CaseName<CheckCase>);

using EquityCheckInWindow = CheckInWindow;

TEST_P(EquityCheckInWindow, StopsAtTheFirstComplaint) {
  EnterEquity(GetParam().Range);
  const bool refused = ExpectRefusal();
  Click("cmdPreflopEV", 2);
  ExpectOutcome(refused, "Equity Only");
}

INSTANTIATE_TEST_SUITE_P(CheckInWindow, EquityCheckInWindow,
                         testing::Values(CheckCase{"NoRange", "", "", "", "", "", "Select Range",
                                                   "Please select a range for your opponent."},
                                         CheckCase{"EmptyRange", "", "", "", "Nothing", "", "Empty Range",
                                                   "Your opponent's range is empty. Please select another range."},
                                         CheckCase{"AnyRangePasses", "", "", "", "Pairs", "", "", ""}),
                         CaseName<CheckCase>);

using ChecksInWindow = MainFormTest;

TEST_F(ChecksInWindow, AThousandsSeparatorEndsTheValue) {
  RunCall("1,000", "0.5", "Tight");
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(Form.State().PotSize, 1);
}

// A user of German amounts.
class GermanChecksInWindow : public testing::Test, public MainStage {
 protected:
  GermanChecksInWindow() : MainStage(StageClock::kHurried, {"€", ",", "."}) {}
  void SetUp() override { Start(); }
};

TEST_F(GermanChecksInWindow, TheUsersMarksPassAndTheValueIsWhatItIs) {
  EnterCall("", "", "Tight");
  // Keys that are not of ASCII cannot be pressed.
  Get<QLineEdit>("txtNumber", 0).insert(ToQt("100 €"));
  Get<QLineEdit>("txtNumber", 1).insert(ToQt("12,5€"));
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(Form.State().PotSize, 100);
  EXPECT_EQ(Form.State().CallAmount, 12);
}

TEST_F(ChecksInWindow, AnotherCurrencyIsNotNumeric) {
  EnterCall("", "50", "Tight");
  Get<QLineEdit>("txtNumber", 0).insert(ToQt("100 €"));
  ExpectMessageBox({.title = "Pot Size Error",
                    .text = "The pot size contains non-numeric characters",
                    .icon = MessageIcon::kExclamation});
  Click("cmdPreflopEV", 0);
}

TEST_F(ChecksInWindow, SeveralFaultsAreMetOneClickAtATime) {
  Open(kCallNav);
  ExpectMessageBox({.title = "Missing Range",
                    .text = "Please choose a range for your opponent.",
                    .icon = MessageIcon::kExclamation});
  Click("cmdPreflopEV", 0);
  Choose(0, "Nothing");
  ExpectMessageBox({.title = "No Hands in Range",
                    .text = "No hands in your opponent's current range.",
                    .icon = MessageIcon::kExclamation});
  Click("cmdPreflopEV", 0);
  Choose(0, "Tight");
  ExpectMessageBox(
      {.title = "Pot Size Error", .text = std::string(kPotMustBeGreater), .icon = MessageIcon::kExclamation});
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Form.focusWidget(), &Get("cmdPreflopEV", 0)) << "a message moves no focus";
}

// The Analyze picture takes the focus, so the sum is worked out before the checks look.
TEST_F(ChecksInWindow, ASumThatStillStandsIsWorkedOutFirst) {
  Open(kCallNav);
  Choose(0, "Tight");
  Type(1, "50");
  Type(0, "=50+50");
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(BoxText(0), "100");
  EXPECT_EQ(Form.State().PotSize, 100);
}

// The button comes up again over the message box, and so the picture is not clicked.
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

  Type(0, "50");
  Type(1, "20");
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Screen(), "ALL IN Grid");
}

TEST_F(ChecksInWindow, ARangeWhoseFileIsGoneEndsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EnterEquity("Tight");
  std::filesystem::remove(Program.RangeFile("Tight.txt"));
  EXPECT_EXIT(Click("cmdPreflopEV", 2), testing::ExitedWithCode(EXIT_FAILURE),
              "Run-time error '9': Subscript out of range .the range file \"Tight.txt\" is missing or empty");
}

}  // namespace
}  // namespace quillon
