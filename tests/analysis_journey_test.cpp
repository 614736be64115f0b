// Analyses in the window: whole runs with every cell's colour read off the screen, runs that are stopped, inputs that
// are refused, and the hover panel over the grid.

#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "results/results_grid.h"
#include "testing/range_texts.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

EnteredSituation ACall(std::string pot, std::string call, std::string range = {}) {
  return {std::move(pot), std::move(call), {}, std::move(range), {}};
}

EnteredSituation ARaise(std::string pot, std::string call, std::string shove, std::string range = {},
                        std::string callingRange = {}) {
  return {std::move(pot), std::move(call), std::move(shove), std::move(range), std::move(callingRange)};
}

EnteredSituation AnEquity(std::string range = {}) {
  return {{}, {}, {}, std::move(range), {}};
}

const EnteredSituation kCall = ACall("110", "90", "Button Shove");
const EnteredSituation kRaise = ARaise("150", "50", "400", "Button Shove", "Big Blind Call");
const EnteredSituation kEquity = AnEquity("Tight Open");

// ---- whole runs

struct RunCase {
  const char* name;
  std::int16_t button;
  EnteredSituation typed;
  EnteredSituation meant;
};

std::ostream& operator<<(std::ostream& stream, const RunCase& run) {
  return stream << run.name;
}

class RunJourney : public WindowJourney, public testing::WithParamInterface<RunCase> {};

TEST_P(RunJourney, PaintsEachCellInTheColourOfItsResult) {
  StartProgramWithRanges();
  Analyze(GetParam().button, GetParam().typed, GetParam().meant);
}

INSTANTIATE_TEST_SUITE_P(Window, RunJourney,
                         testing::Values(RunCase{"Call", kCallRun, kCall, kCall},
                                         RunCase{"Raise", kRaiseRun, kRaise, kRaise},
                                         RunCase{"Equity", kEquityRun, kEquity, kEquity},
                                         RunCase{"RaiseWithSums", kRaiseRun,
                                                 ARaise("=735+220-178", "=5-5", "=400", "Tight Open", "Everything"),
                                                 ARaise("777", "0", "400", "Tight Open", "Everything")}),
                         [](const auto& entry) { return std::string(entry.param.name); });

class AnalysisJourney : public WindowJourney {};

TEST_F(AnalysisJourney, KeyboardAloneDoesForACall) {
  StartProgramWithRanges();
  Session().Press({"ctrl+1"});
  Click("txtNumber(0)");
  Session().Type("110");
  Session().Press({"Tab", "Tab"});
  Session().Type("90");
  Session().Press({"Tab", "Tab", "Down", "Down", "Tab", "Tab", "Tab", "Return"});
  const GridColorTable expected = GridColors(AnalysisOf(kCallRun, kCall, Session().Program()));
  Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == expected; });
}

TEST_F(AnalysisJourney, SecondRunReplacesTheFirst) {
  StartProgramWithRanges();
  Analyze(kRaiseRun, kRaise);
  Analyze(kEquityRun, kEquity);
  Analyze(kCallRun, kCall);
}

// ---- runs that are stopped

TEST_F(AnalysisJourney, StopInTheMiddleGoesBackToTheInputScreenWithoutResults) {
  StartProgramWithRanges();
  FillIn(kRaiseRun, kRaise);
  const QImage heading = Session().StillPicture(OnScreen("Label(23)"));
  const QImage noResults = Look("lblNoResults");

  AnalyzeAndHoldUp(kRaiseRun);
  EXPECT_NE(Look("Label(23)"), heading);
  EXPECT_NE(Look("lblNoResults"), noResults) << "it asks to wait";
  Click("lblStopCalc");
  Session().Running().LetGoOn();
  Session().WaitUntil("the input screen is back", [&] { return Look("Label(23)") == heading; });
  Session().WaitUntil("there are no results", [&] { return Look("lblNoResults") == noResults; });
  EXPECT_EQ(BoxText(2), kRaise.Pot);

  // And it can be run again.
  Analyze(kRaiseRun, kRaise);
}

// Both clicks are waiting when the program comes to read them, so the second one finds the run at its first class. The
// results of the run before are gone, too.
TEST_F(AnalysisJourney, StopAtOnceGoesBackToTheInputScreenWithoutResults) {
  StartProgramWithRanges();
  const QImage noResults = Session().StillPicture(OnScreen("lblNoResults"));
  Analyze(kCallRun, kCall);
  Session().WaitUntil("there are results", [&] { return Look("lblNoResults") != noResults; });
  Click("lblNav(0)");
  Session().PutMouseAside();
  const QImage heading = Session().StillPicture(OnScreen("Label(17)"));

  Session().Running().HoldUp();
  Click("cmdPreflopEV(0)");
  Click("lblStopCalc");
  Session().Running().LetGoOn();
  Session().WaitUntil("there are no results", [&] { return Look("lblNoResults") == noResults; });
  Session().WaitUntil("the input screen is back", [&] { return Look("Label(17)") == heading; });
  EXPECT_EQ(BoxText(0), kCall.Pot);
}

// ---- inputs that are refused

struct Refusal {
  std::string_view rule;
  std::int16_t button;
  EnteredSituation typed;
  std::string_view title;
  std::string_view text;
};

constexpr const char* kEmptyRange = "Nothing";

// A range that has been chosen stays chosen, so what is refused for want of one comes first on each screen.
const std::vector<Refusal>& Refusals() {
  static const std::vector<Refusal> kRows = {
      {"call, no range", kCallRun, ACall("10", "5"),  //
       "Missing Range", "Please choose a range for your opponent."},
      {"call, empty range", kCallRun, ACall("10", "5", kEmptyRange), "No Hands in Range",
       "No hands in your opponent's current range."},
      {"call as large as the pot", kCallRun, ACall("100", "100", "Tight Open"), "Pot Size Error",
       "The pot size must be greater than the amount you have to call."},
      {"call, no pot", kCallRun, ACall("0", "-5"),  //
       "Pot Size Error", "The pot size must be greater than zero."},
      {"call of nothing", kCallRun, ACall("10", "0"), "Call Size Error",
       "The amount to call must be greater than zero."},
      {"call, letters behind the pot", kCallRun, ACall("12abc", "5"), "Pot Size Error",
       "The pot size contains non-numeric characters"},
      {"call, letters behind the call", kCallRun, ACall("100", "12abc"), "Call Size Error",
       "The call size contains non-numeric characters"},

      {"raise, no range", kRaiseRun, ARaise("10", "5", "20"), "Missing Range",
       "You must assign or create a range of hands for your opponent."},
      {"raise, no calling range", kRaiseRun, ARaise("10", "5", "20", "Tight Open"), "Missing Range",
       "You must assign or create a range of hands for your opponent to call with."},
      {"raise, no pot", kRaiseRun, ARaise("0", "5", "20", {}, "Tight Open"), "Pot Size",
       "The pot size must be greater than zero."},
      {"raise, call below nothing", kRaiseRun, ARaise("10", "-1", "20"), "Call Amount",
       "The amount you must call cannot be a negative number."},
      {"raise, no shove", kRaiseRun, ARaise("10", "5", "0"), "Pot Size",
       "The amount your opponent must call must be greater than zero."},
      {"raise, letters behind the pot", kRaiseRun, ARaise("12abc", "5", "20"), "Pot Size",
       "The pot size contains non-numeric characters"},
      {"raise, letters for a call", kRaiseRun, ARaise("10", "abc", "20"), "Call Size",
       "The call size contains illegal characters"},
      {"raise, letters behind the shove", kRaiseRun, ARaise("10", "", "20x"), "Shove Size",
       "The amount your opponent must call when you shove contains illegal characters."},

      {"equity, no range", kEquityRun, AnEquity(),  //
       "Select Range", "Please select a range for your opponent."},
      {"equity, empty range", kEquityRun, AnEquity(kEmptyRange), "Empty Range",
       "Your opponent's range is empty. Please select another range."},
  };
  return kRows;
}

TEST_F(AnalysisJourney, EveryBadInputIsRefusedInItsOwnWords) {
  Session().AddExampleRanges();
  std::ofstream(RangeFilePath(Session().Program(), kEmptyRange)) << TextWith({});
  StartProgram();
  for (const Refusal& row : Refusals()) {
    SCOPED_TRACE(row.rule);
    FillIn(row.button, row.typed);
    Click(ObjectName("cmdPreflopEV", row.button));
    const Window box = Session().WaitForWindow(row.title);
    EXPECT_EQ(MessageText(box), row.text);
    Answer(box, {"Return"});
  }
}

// ---- the hover panel

// The smallest rectangle round all that differs between two pictures of one size.
QRect Difference(const QImage& one, const QImage& other) {
  QRect area;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (one.pixel(x, y) != other.pixel(x, y)) area |= QRect(x, y, 1, 1);
    }
  }
  return area;
}

struct HoverCase {
  std::string_view hand;
  bool above;
};

TEST_F(AnalysisJourney, HoverPanelStandsBesideItsCellAndGoesAwayInAGap) {
  constexpr std::array kCases = {
      HoverCase{"AA", false}, HoverCase{"A2s", false}, HoverCase{"77", false},
      HoverCase{"A2o", true}, HoverCase{"22", true},
  };
  constexpr QSize kPanel(252, 221);
  StartProgramWithRanges();
  Analyze(kRaiseRun, kRaise);
  const QRect screen = OnScreen("frameContent(1)").intersected(Main().Place);
  const QImage grid = Session().StillPicture(screen);
  for (const HoverCase& c : kCases) {
    SCOPED_TRACE(c.hand);
    const std::int16_t index = HandIndex(c.hand);
    const QRect cell = OnScreen(ObjectName("shapeCardBack", index)).translated(-screen.topLeft());
    Session().MoveTo(OnScreen(ObjectName("lblCards", index)).center());
    Session().WaitUntil("the panel shows", [&] { return Session().Picture(screen) != grid; });
    const QRect panel = Difference(grid, Session().StillPicture(screen));
    EXPECT_EQ(panel.size(), kPanel);
    EXPECT_EQ(panel.left(), cell.left());
    const int gap = c.above ? cell.top() - panel.bottom() - 1 : panel.top() - cell.bottom() - 1;
    EXPECT_GE(gap, 1);
    EXPECT_LE(gap, 2);

    Session().MoveTo(screen.topLeft() + QPoint(cell.right() + 1, cell.center().y()));
    Session().WaitUntil("the panel has gone in the gap", [&] { return Session().Picture(screen) == grid; });
    Session().MoveTo(OnScreen(ObjectName("lblCards", index)).center());
    Session().WaitUntil("the panel shows again", [&] { return Session().Picture(screen) != grid; });
    Session().MoveTo(screen.topLeft() + QPoint(cell.center().x(), cell.top() + 2));
    Session().WaitUntil("the panel has gone over a cell's upper strip",
                        [&] { return Session().Picture(screen) == grid; });
  }
}

}  // namespace
}  // namespace quillon
