// A new player's first minutes, with two questions from the start of the guide: is A7o a shove for 12 big blinds, and
// up to what stack; and what should he call with?

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hand/equity_table.h"
#include "ranges/range_lists.h"
#include "results/results_grid.h"
#include "study/equilibrium.h"
#include "study/window/study_form.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

using testing::HasSubstr;

const EnteredSituation kShove = {"1.5", "0.5", "11", "Everything", "Big Blind Call"};

class FirstMinutes : public WindowJourney {
 protected:
  void SetUp() override {
    StartProgramWithRanges();
    Session().PutMouseAside();
  }

  /// The number of steps down from the first entry, which is blank.
  [[nodiscard]] std::size_t EntryOf(const std::string& range) const {
    const std::vector<std::string> files = RangeFolderEntries(Session().Program());
    return static_cast<std::size_t>(std::ranges::find(files, range + ".txt") - files.begin()) + 1;
  }
  void PressTimes(const std::string& key, std::size_t times) const {
    Session().Press(std::vector<std::string>(times, key));
  }
  void WaitForGrid() const {
    const GridColorTable expected = GridColors(AnalysisOf(kRaiseRun, kShove, Session().Program()));
    Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == expected; });
  }

  /// Saves the calling range under the proposed name.
  void SaveHisRange() const {
    const Window name = Session().WaitForWindow("Pick a Name");
    Answer(name, {"Return"});
    Answer(Session().WaitForWindow("Quillon"), {"Return"});
  }
  void ExpectHisRangeSaved() const {
    LoadEquityTable();
    const auto found = FindEquilibrium(HandNumbers(), {.Pot = 1.5, .Call = 0.5, .Shove = 11});
    ASSERT_TRUE(found);
    EXPECT_EQ(LoadRangeText(Session().Program(), "Balanced call"), SearchableRangeText(found->Call));
  }
};

TEST_F(FirstMinutes, AnswerBothQuestionsByKeys) {
  Session().Press({"ctrl+2"});
  for (const std::string& amount : {kShove.Pot, kShove.Call, kShove.Shove}) {
    Session().Type(amount);
    Session().Press({"Tab"});
  }
  PressTimes("Down", EntryOf(kShove.Range));
  Session().Press({"Tab"});
  PressTimes("Down", EntryOf(kShove.CallingRange));
  Session().Press({"ctrl+Return"});
  WaitForGrid();
  const GridColorTable colors = CellColors();
  PressTimes("Down", 7);
  Session().WaitUntil("the panel of A7o shows", [&] { return CellColors() != colors; });

  Session().Press({"Menu"});
  Session().WaitUntil("the menu shows", [&] { return Session().WindowCount() == 2; });
  Session().Press({"Down", "Down", "Down", "Return"});
  const Window study = Session().WaitForWindow(kStudyTitle);
  Session().Press({"ctrl+1"});
  EXPECT_THAT(Session().CopyAllText(), HasSubstr("A7o\tup to\t47.14"));

  // Past the amounts, the box below them and both grids.
  Session().Press({"ctrl+4"});
  static_cast<void>(Session().StillPicture(study.Place));
  PressTimes("Tab", 6);
  Session().Press({"space"});
  SaveHisRange();
  ExpectHisRangeSaved();
}

}  // namespace
}  // namespace quillon
