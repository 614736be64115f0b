#include "results/results_as_range.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "ranges/range_fixtures.h"
#include "ranges/recorded_dialogs.h"
#include "results/sample_analysis.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ResultsAsRange : public testing::Test {
 public:
  void Click(const AnalysisState& state) { SaveResultsAsRange(state, main); }
  [[nodiscard]] std::string GridText() const { return RangeTextFromGrid(dialog.Cells); }

  // A table with a value for each of these hands and -1 for all others.
  static AnalysisState StateWith(const sample::TextsByHand& values) {
    AnalysisState state = sample::CallState();
    state.HandInfo = sample::ResultsTable(values, "-1\t0\t1");
    return state;
  }

  TemporaryProgram program;
  RecordedMain main{program.Folder()};
  RecordedNewRange dialog{main};
};

TEST_F(ResultsAsRange, HandsThatProfitAreMarked) {
  Click(StateWith({{"AA", "120\t0.9\t1"}, {"KK", "1E-09\t0.5\t1"}, {"AKs", "0\t0.25\t1"}, {"22", "-0.5\t0.2\t1"}}));
  EXPECT_EQ(GridText(), TextWith("AA KK")) << "a hand at exactly 0 stays out";
  EXPECT_EQ(dialog.Selection, "0.9% selected");
  EXPECT_EQ(dialog.Summary, "KK+");
}

TEST_F(ResultsAsRange, DialogIsShownForWhereItWasOpenedLastAndTheNameHasTheFocus) {
  main.LastEditCaption = "2";
  Click(StateWith({{"AA", "120\t0.9\t1"}}));
  EXPECT_THAT(main.Notes, ElementsAre("show new range for 2", "focus name"));
  EXPECT_EQ(main.LastEditCaption, "2");
  EXPECT_EQ(dialog.Name, "") << "nothing is named or saved";
  EXPECT_TRUE(RangeFolderEntries(program.Folder()).empty());
}

TEST_F(ResultsAsRange, WithoutResultsNothingHappens) {
  Click(AnalysisState());
  EXPECT_THAT(main.Notes, IsEmpty());
  EXPECT_EQ(dialog.Selection, "0% Selected");
}

TEST_F(ResultsAsRange, HalfCheckedMarksAtHalfWeight) {
  dialog.Cells.Half = true;
  Click(StateWith({{"AA", "120\t0.9\t1"}}));
  EXPECT_EQ(GridText(), TextWith("", "AA"));
  EXPECT_EQ(dialog.Selection, "0.2% selected");
}

TEST_F(ResultsAsRange, ShiftWidensAHandToItsGroup) {
  // The first hand asked about takes the press, in class index order.
  dialog.Cells.ShiftAnswers = {true};
  Click(StateWith({{"QQ", "1\t0.9\t1"}, {"JJ", "1\t0.9\t1"}}));
  EXPECT_EQ(GridText(), TextWith("AA KK QQ JJ"));
  EXPECT_EQ(dialog.Cells.ShiftQuestions, 2) << "each toggled cell asks";
}

TEST_F(ResultsAsRange, CellsAreFlippedAndNotOverwritten) {
  ToggleCell(dialog.Cells, HandIndex("AA"));
  ToggleCell(dialog.Cells, HandIndex("72o"));
  Click(StateWith({{"AA", "120\t0.9\t1"}, {"KK", "120\t0.9\t1"}}));
  EXPECT_EQ(GridText(), TextWith("KK 72o"));
}

TEST_F(ResultsAsRange, SecondClickUndoesTheFirst) {
  const AnalysisState state = StateWith({{"AA", "120\t0.9\t1"}, {"A5s", "3\t0.5\t1"}});
  Click(state);
  EXPECT_EQ(GridText(), TextWith("AA A5s"));
  Click(state);
  EXPECT_EQ(GridText(), TextWith(""));
  EXPECT_EQ(dialog.Selection, "0% selected");
  EXPECT_EQ(dialog.Summary, "[None]");
}

TEST_F(ResultsAsRange, NoHandThatProfitsMarksNone) {
  Click(StateWith({}));
  EXPECT_EQ(GridText(), TextWith(""));
  EXPECT_EQ(dialog.Selection, "0% selected");
  EXPECT_EQ(dialog.Summary, "[None]");
}

TEST_F(ResultsAsRange, EquityOnlyShowsTheDialogWithWhatItShowed) {
  ToggleCell(dialog.Cells, HandIndex("AA"));
  Click(sample::EquityState());
  EXPECT_EQ(GridText(), TextWith("AA"));
  EXPECT_EQ(dialog.Selection, "0.5% selected");
  EXPECT_EQ(dialog.Summary, "AA");
  EXPECT_THAT(main.Notes, ElementsAre("show new range for 0", "focus name"));
}

TEST_F(ResultsAsRange, EveryHandCanProfit) {
  AnalysisState state = sample::RaiseState();
  state.HandInfo = sample::ResultsTable({}, "0.5\t0.5\t0.5");
  Click(state);
  EXPECT_EQ(GridText(), TextWith(AllLabels()));
  EXPECT_EQ(dialog.Selection, "100% selected");
  EXPECT_EQ(dialog.Summary, "[Everything]");
}

}  // namespace
}  // namespace quillon
