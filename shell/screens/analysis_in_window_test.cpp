#include <vector>

#include "analysis/entered_situation.h"
#include "analysis/input_screens.h"
#include "analysis/results_table.h"
#include "shell/field_help.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

constexpr std::string_view kNothingYet = "There are no results to display at this time.";

// The right edge of the bar after this many classes.
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
  /// The results of the engine alone.
  std::string EngineTable(std::int16_t button, const EnteredSituation& situation) {
    return Analyze(SituationOf(ScreenOfButton(button).Mode, situation, Program.Folder()))->HandInfo;
  }

  QWidget& Bar() { return Get("picProgBar"); }
};

// The state's fields are tested without a window.
TEST_F(AnalysisInWindow, EachComesToTheEnginesResults) {
  EXPECT_EQ(Get("frameContent", kGridScreen).childAt(Get("imgGridBack").geometry().center()), &Get("imgGridBack"))
      << "it covers the grid until the first run";
  RunCall("150", "50", "Pairs");
  EXPECT_EQ(Form.State().HandInfo, EngineTable(0, {"150", "50", "", "Pairs", ""}));
  EXPECT_EQ(Caption("lblProgressMsg"), "Please wait while we determine what hands you should go ALL IN with...");
  RunRaise("150", "50", "62.5", "Pairs", "Tight");
  EXPECT_EQ(Form.State().HandInfo, EngineTable(1, {"150", "50", "62.5", "Pairs", "Tight"}));
  RunEquity("Tight");
  EXPECT_EQ(Form.State().HandInfo, EngineTable(2, {"", "", "", "Tight", ""}));
  EXPECT_EQ(Caption("lblProgressMsg"), "Quillon is determing your equity vs the following range: \r\nTight");
  EXPECT_EQ(Form.State().Amounts.ShoveAmount, 62.5) << "no amount is touched";
  EXPECT_FALSE(Form.State().Running);
  EXPECT_EQ(Screen(), "ALL IN Grid");
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

TEST_F(AnalysisInWindow, ARunInsideARunStopsTheOuterOne) {
  EnterRaise("150", "50", "62.5", "Pairs", "Tight");
  DuringRun("20%", [this] { RunEquity("Tight"); });
  Click("cmdPreflopEV", 1);
  EXPECT_EQ(Form.State().HandInfo, EngineTable(2, {"", "", "", "Tight", ""}));
  EXPECT_FALSE(Form.State().Running);
  EXPECT_EQ(Screen(), "Equity Only") << "the inner run's, after which the outer one stops";
}

TEST_F(AnalysisInWindow, WhatIsTypedDuringARunIsFeltByTheClassesToCome) {
  EnterCall("150", "50", "Pairs");
  DuringRun("50%", [this] {
    Open(kCallNav);
    Type(0, "300");
  });
  Click("cmdPreflopEV", 0);
  const auto ofAces = [](const std::string& table) { return table.substr(0, table.find("\r\n")); };
  const auto ofDeuces = [](const std::string& table) { return table.substr(table.find("\r\n22\t")); };
  EXPECT_EQ(ofAces(Form.State().HandInfo), ofAces(EngineTable(0, {"150", "50", "", "Pairs", ""})));
  EXPECT_EQ(ofDeuces(Form.State().HandInfo), ofDeuces(EngineTable(0, {"300", "50", "", "Pairs", ""})));
  EXPECT_EQ(Form.State().Amounts.PotSize, 150);
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
