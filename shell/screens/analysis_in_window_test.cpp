#include <vector>

#include "analysis/entered_situation.h"
#include "analysis/input_screens.h"
#include "analysis/results_table.h"
#include "shell/field_help.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

constexpr std::string_view kNothingYet = "There are no results to display at this time.";

// The right edge of the bar after so many classes.
int BarWidthAfter(int classes) {
  return PixelPlace({1980, 3180, static_cast<float>(classes / 169.0 * 7815), 495}).width();
}

class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& control) : QObject(&control) { control.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Paints;
    return false;
  }
  int Paints = 0;
};

class AnalysisInWindow : public MainFormTest {
 protected:
  /// The results that the engine alone comes to.
  std::string EngineTable(std::int16_t button, const EnteredSituation& situation) {
    return Analyze(SituationOf(ScreenOfButton(button).Mode, situation, Program.Folder()))->HandInfo;
  }

  QWidget& Bar() { return Get("picProgBar"); }
};

TEST_F(AnalysisInWindow, CallComesToTheEnginesResults) {
  RunCall("150", "50", "Pairs");
  EXPECT_EQ(Form.State().HandInfo, EngineTable(0, {"150", "50", "", "Pairs", ""}));
  EXPECT_EQ(Form.State().Mode, AnalysisMode::kPreflopCall);
  EXPECT_EQ(Form.State().PotSize, 150);
  EXPECT_EQ(Form.State().CallAmount, 50);
  EXPECT_EQ(Form.State().RangeName, "Pairs");
  EXPECT_EQ(Form.State().RangeText, TextWith("AA KK", "QQ"));
  EXPECT_FALSE(Form.State().Running);
  EXPECT_EQ(Screen(), "ALL IN Grid");
  EXPECT_EQ(Caption("lblProgressMsg"), "Please wait while we determine what hands you should go ALL IN with...");
}

TEST_F(AnalysisInWindow, RaiseComesToTheEnginesResults) {
  RunRaise("150", "50", "62.5", "Pairs", "Tight");
  EXPECT_EQ(Form.State().HandInfo, EngineTable(1, {"150", "50", "62.5", "Pairs", "Tight"}));
  EXPECT_EQ(Form.State().Mode, AnalysisMode::kPreflopRaise);
  EXPECT_EQ(Form.State().ShoveAmount, 62.5);
  EXPECT_EQ(Form.State().CallingRangeName, "Tight");
  EXPECT_EQ(Form.State().CallingRangeText, TextWith("AA KK AKs AKo"));
  EXPECT_FALSE(Form.State().DroppedHands.empty());
  EXPECT_EQ(Screen(), "ALL IN Grid");
}

TEST_F(AnalysisInWindow, EquityComesToTheEnginesResultsAndTouchesNoAmount) {
  RunRaise("150", "50", "100", "Pairs", "Tight");
  RunEquity("Tight");
  EXPECT_EQ(Form.State().HandInfo, EngineTable(2, {"", "", "", "Tight", ""}));
  EXPECT_EQ(Form.State().Mode, AnalysisMode::kEquityOnly);
  EXPECT_EQ(Form.State().PotSize, 150);
  EXPECT_EQ(Form.State().CallAmount, 50);
  EXPECT_EQ(Form.State().ShoveAmount, 100);
  EXPECT_EQ(Caption("lblProgressMsg"), "Quillon is determing your equity vs the following range: \r\nTight");
}

TEST_F(AnalysisInWindow, TheResultsGoAtTheClick) {
  RunEquity("Tight");
  EXPECT_TRUE(Shows("lblNav", kGridNav));
  EnterCall("100", "50", "Tight");
  DuringRun("1%", [this] {
    EXPECT_EQ(Screen(), "Progress");
    EXPECT_FALSE(Shows("lblNav", kGridNav));
    EXPECT_FALSE(Shows("lblNav", kDetailsNav));
    EXPECT_TRUE(Shows("lblNoResults"));
    EXPECT_EQ(Caption("lblNoResults"), "Please wait...");
    EXPECT_TRUE(LabelAt("lblNoResults").HasUnderline());
    EXPECT_EQ(LabelAt("lblNoResults").cursor().shape(), Qt::PointingHandCursor);
    EXPECT_TRUE(Get("imgGridBack").isHidden());
  });
  Click("cmdPreflopEV", 0);
  EXPECT_TRUE(Shows("lblNav", kGridNav));
  EXPECT_TRUE(Shows("lblNav", kDetailsNav));
  EXPECT_FALSE(Shows("lblNoResults"));
  EXPECT_EQ(Caption("lblNoResults"), kNothingYet);
  EXPECT_FALSE(LabelAt("lblNoResults").HasUnderline());
  EXPECT_EQ(LabelAt("lblNoResults").cursor().shape(), Qt::ArrowCursor);
}

TEST_F(AnalysisInWindow, ThePictureCoversTheGridUntilTheFirstRun) {
  EXPECT_FALSE(Get("imgGridBack").isHidden());
  EXPECT_EQ(Get("frameContent", kGridScreen).childAt(Get("imgGridBack").geometry().center()), &Get("imgGridBack"));
  RunEquity("Tight");
  EXPECT_FALSE(Shows("imgGridBack"));
}

TEST_F(AnalysisInWindow, TheBarMovesAndIsPaintedForEachClass) {
  PaintCount bar(Bar());
  std::vector<int> widths;
  std::vector<std::string> percents;
  EnterEquity("Tight");
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &Form, [&] {
    if (!Form.State().Running) return;
    widths.push_back(Bar().width());
    percents.push_back(Caption("lblProgressPerc"));
  });
  look.start(0);
  Click("cmdPreflopEV", 2);

  std::vector<int> expected;
  for (int classes = 1; classes <= kHandClassCount; ++classes)
    expected.push_back(BarWidthAfter(classes));
  EXPECT_EQ(widths, expected);
  ASSERT_EQ(percents.size(), 169U);
  EXPECT_EQ(percents[0], "1%");
  EXPECT_EQ(percents[84], "50%");
  EXPECT_EQ(percents[168], "100%");
  EXPECT_GE(bar.Paints, 169);
}

TEST_F(AnalysisInWindow, AStopIsNoticedAfterTheNextClass) {
  EnterCall("100", "50", "Tight");
  DuringRun("1%", [this] {
    EXPECT_EQ(Bar().width(), BarWidthAfter(1));
    Click("lblStopCalc");
    EXPECT_EQ(Screen(), "Progress");
  });
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Bar().width(), BarWidthAfter(2));
  EXPECT_EQ(Screen(), "Preflop Call");
  EXPECT_EQ(Caption("lblNoResults"), kNothingYet);
  EXPECT_FALSE(LabelAt("lblNoResults").HasUnderline());
  EXPECT_FALSE(Shows("lblNav", kGridNav));
  EXPECT_EQ(Form.State().HandInfo, "");
}

TEST_F(AnalysisInWindow, OtherScreensStayUsableAndTheLinkLeadsBack) {
  EnterEquity("Tight");
  DuringRun("20%", [this] {
    Open(kRaiseNav);
    EXPECT_EQ(Screen(), "Preflop Raise");
  });
  DuringRun("30%", [this] {
    EXPECT_EQ(Screen(), "Preflop Raise") << "the run goes on unseen";
    Click("lblWhatsThis", 0);
  });
  ExpectMessageBox({.title = "Pot Size", .text = FieldHelpText("Pot Size")});
  DuringRun("40%", [this] {
    Click("lblNoResults");
    EXPECT_EQ(Screen(), "Progress");
  });
  Click("cmdPreflopEV", 2);
  EXPECT_EQ(Screen(), "ALL IN Grid");
}

TEST_F(AnalysisInWindow, TypingDuringARunTakesItsLinkAway) {
  EnterEquity("Tight");
  DuringRun("20%", [this] {
    Open(kCallNav);
    Click("txtNumber", 0);
    TypeKeys("9");
    EXPECT_EQ(Caption("lblNoResults"), kNothingYet);
    Click("lblNoResults");
    EXPECT_EQ(Screen(), "Preflop Call");
  });
  Click("cmdPreflopEV", 2);
  EXPECT_EQ(Screen(), "ALL IN Grid");
}

TEST_F(AnalysisInWindow, ANestedRunEndsFirstAndStopsTheOuterOne) {
  EnterCall("100", "50", "Tight");
  DuringRun("10%", [this] {
    RunEquity("Pairs");
    EXPECT_EQ(Screen(), "ALL IN Grid");
    EXPECT_EQ(Caption("lblGridTitle"), "Equity Grid");
    EXPECT_TRUE(Shows("lblNav", kGridNav));
  });
  Click("cmdPreflopEV", 0);
  EXPECT_EQ(Screen(), "Equity Only") << "stopped, under the scenario of the nested run";
  EXPECT_EQ(Form.State().HandInfo, EngineTable(2, {"", "", "", "Pairs", ""}));
  EXPECT_TRUE(Shows("lblNav", kGridNav)) << "the nested run's results stay";
  EXPECT_FALSE(Form.State().Running);
}

TEST_F(AnalysisInWindow, ARefusedClickLeavesPleaseWait) {
  Open(kEquityNav);
  ExpectMessageBox(
      {.title = "Select Range", .text = "Please select a range for your opponent.", .icon = MessageIcon::kExclamation});
  Click("cmdPreflopEV", 2);
  VerifyExpectedBoxes();
  EXPECT_EQ(Form.State().Mode, AnalysisMode::kEquityOnly) << "written before the check";
  EXPECT_EQ(Screen(), "Equity Only");
  EXPECT_FALSE(Shows("lblNav", kGridNav));
  EXPECT_EQ(Caption("lblNoResults"), "Please wait...");
  EXPECT_FALSE(LabelAt("lblNoResults").HasUnderline());
  EXPECT_EQ(LabelAt("lblNoResults").cursor().shape(), Qt::PointingHandCursor);

  Click("lblNoResults");
  EXPECT_EQ(Screen(), "Progress") << "though nothing runs";
  EXPECT_EQ(Caption("lblProgressMsg"), "Quillon...");
  EXPECT_EQ(Caption("lblProgressPerc"), "%...");
  Click("lblStopCalc");
  EXPECT_EQ(Screen(), "Progress") << "there is nothing to stop";
  Open(kEquityNav);
  EXPECT_EQ(Screen(), "Equity Only");

  RunEquity("Tight");
  EXPECT_EQ(Caption("lblNoResults"), kNothingYet) << "the next run sets it right";
}

TEST_F(AnalysisInWindow, ThePressedLookEndsWithTheClick) {
  EnterEquity("Tight");
  const QImage before = Get("cmdPreflopEV", 2).grab().toImage();
  MoveOver("cmdPreflopEV", 2);
  const QImage hovered = Get("cmdPreflopEV", 2).grab().toImage();
  QTest::mousePress(Form.windowHandle(), Qt::LeftButton, {}, MiddleOf("cmdPreflopEV", 2));
  const QImage pressed = Get("cmdPreflopEV", 2).grab().toImage();
  EXPECT_NE(before, hovered);
  EXPECT_NE(hovered, pressed);
  QTest::mouseRelease(Form.windowHandle(), Qt::LeftButton, {}, MiddleOf("cmdPreflopEV", 2));
  Open(kEquityNav);
  EXPECT_EQ(Get("cmdPreflopEV", 2).grab().toImage(), before);
}

}  // namespace
}  // namespace quillon
