#include "results/hand_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "testing/sample_analysis.h"

namespace quillon {
namespace {

using ::testing::IsEmpty;

// The line for a hand with the given cells: expected value, equity, fold share.
std::string LineFor(Analysis state, std::string_view hand, std::string_view cells) {
  state.HandInfo = sample::ResultsTable({{hand, cells}}, "7\t0.7\t0.7");
  ReportText report;
  AddSpecificHand(report, state, hand);
  return PlainText(report);
}

Analysis ShoveOf(double shove) {
  Analysis state = sample::RaiseState();
  state.ShoveAmount = shove;
  return state;
}

Analysis CallFor(double pot, double call) {
  Analysis state = sample::CallState();
  state.PotSize = pot;
  state.CallAmount = call;
  return state;
}

struct LineCase {
  const char* rule;
  Analysis state;
  const char* hand;
  const char* cells;
  const char* line;  // without line breaks and mark-up
};

TEST(HandLine, HoldsTheWorkingOfTheHand) {
  const std::vector<LineCase> cases = {
      {"a call that wins has a plus sign", CallFor(150, 50), "AA", "120.46\t0.8523\t1",
       "EV for AA = 0.8523 * (200) - 50 = +120.46"},
      {"an equity has four decimals", CallFor(150, 50), "AA", "1\t0.123456\t1", "EV for AA = 0.1235 * (200) - 50 = +1"},
      {"a call that wins nothing has no sign", CallFor(150, 50), "AKo", "0\t0.25\t1",
       "EV for AKo = 0.25 * (200) - 50 = 0"},
      {"a call that loses brings its minus sign", CallFor(150, 50), "72o", "-12.5\t0.1875\t1",
       "EV for 72o = 0.1875 * (200) - 50 = -12.5"},
      {"the amounts are not rounded", CallFor(12.34567, 1.11111), "AA", "1\t0.5\t1",
       "EV for AA = 0.5 * (13.45678) - 1.11111 = +1"},
      {"a win too small to be seen keeps its sign", CallFor(150, 50), "AA", "0.001\t0.5\t1",
       "EV for AA = 0.5 * (200) - 50 = +0"},
      {"a shove that wins", ShoveOf(100), "AKs", "98.2\t0.55\t0.4",
       "EV for AKs = (0.4*150)+(1-0.4)*(0.55*(150+50+2*100)-(50+100)) = +98.2"},
      {"a shove that is never called has an equity of -1", ShoveOf(100), "22", "150\t-1\t1",
       "EV for 22 = (1*150)+(1-1)*(-1*(150+50+2*100)-(50+100)) = +150"},
      {"an equity is not rounded and has a tab after its colon", sample::EquityState(), "AA", "0\t0.852312345678901\t1",
       "Equity for AA :\t 0.852312345678901"},
  };
  for (const LineCase& c : cases) {
    EXPECT_EQ(LineFor(c.state, c.hand, c.cells), std::string("\r\n[COLOR=\"DimGray\"]") + c.line + "[/COLOR]\r")
        << c.rule;
  }
}

TEST(HandLine, IsBlackCourierOfTenPoints) {
  ReportText report = {"one\r"};
  AddSpecificHand(report, sample::EquityState(), "22");
  EXPECT_EQ(report, (ReportText{"one\r", ReportFont{"Courier New", 10, 0},
                                "\r\n[COLOR=\"DimGray\"]Equity for 22 :\t 0.5[/COLOR]\r"}));
}

TEST(HandLine, IsNotAddedForNoneNorBeforeAnyAnalysis) {
  for (const Analysis& state : {Analysis{}, sample::CallState(), sample::RaiseState(), sample::EquityState()}) {
    ReportText report;
    AddSpecificHand(report, state, state.Mode == AnalysisMode::kNone ? "AA" : "None");
    EXPECT_THAT(report, IsEmpty());
  }
}

}  // namespace
}  // namespace quillon
