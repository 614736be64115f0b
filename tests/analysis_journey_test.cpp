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

// ---- inputs that are refused

struct Refusal {
  std::int16_t button;
  EnteredSituation typed;
  std::string_view title;
  std::string_view text;
};

TEST_F(AnalysisJourney, BadInputIsRefusedInItsOwnWords) {
  StartProgramWithRanges();
  for (const Refusal& row :
       std::vector<Refusal>{{kCallRun, ACall("10", "5"), "Missing Range", "Please choose a range for your opponent."},
                            {kCallRun, ACall("100", "12abc", "Tight Open"), "Call Size Error",
                             "The call size contains non-numeric characters"},
                            {kRaiseRun, ARaise("10", "-1", "20", "Tight Open", "Tight Open"), "Call Amount",
                             "The amount you must call cannot be a negative number."},
                            {kEquityRun, AnEquity(), "Select Range", "Please select a range for your opponent."}}) {
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
      HoverCase{"A2s", false},
      HoverCase{"22", true},
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
