// A new player's first minutes, with two questions that the guide begins with: is A7o a shove for 12 big blinds, and up
// to where; and what should he call with? One player leaves the keyboard alone but for what is typed, the other the
// mouse.

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

  /// Down from the first entry, which is blank.
  [[nodiscard]] std::size_t EntryOf(const std::string& range) const {
    const std::vector<std::string> files = RangeFolderEntries(Session().Program());
    return static_cast<std::size_t>(std::ranges::find(files, range + ".txt") - files.begin()) + 1;
  }
  void PressTimes(const std::string& key, std::size_t times) const {
    Session().Press(std::vector<std::string>(times, key));
  }
  void ChooseWithMouse(std::string_view list, const std::string& range) const {
    constexpr int kRow = 18;
    const QRect box = OnScreen(list);
    Session().ClickAt(box.center());
    Session().WaitUntil("the list is open", [&] { return Session().WindowCount() == 2; });
    const int down = kRow * static_cast<int>(EntryOf(range)) + kRow / 2;
    Session().ClickAt({box.left() + 60, box.bottom() + down});
    Session().WaitUntil("the list is closed", [&] { return Session().WindowCount() == 1; });
  }
  void WaitForGrid() const {
    const GridColorTable expected = GridColors(AnalysisOf(kRaiseRun, kShove, Session().Program()));
    Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == expected; });
  }

  /// What he should call with was saved under the name that is offered.
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

  // Past the amounts, the box under them and both grids.
  Session().Press({"ctrl+4"});
  static_cast<void>(Session().StillPicture(study.Place));
  PressTimes("Tab", 6);
  Session().Press({"space"});
  SaveHisRange();
  ExpectHisRangeSaved();
}

TEST_F(FirstMinutes, AnswerBothQuestionsWithTheMouse) {
  Click("lblNav(1)");
  Fill(2, kShove.Pot);
  Fill(3, kShove.Call);
  Fill(4, kShove.Shove);
  ChooseWithMouse("cmboRanges(1)", kShove.Range);
  ChooseWithMouse("cmboRanges(2)", kShove.CallingRange);
  Click("cmdPreflopEV(1)");
  Session().PutMouseAside();
  WaitForGrid();

  const QPoint hand = OnScreen(ObjectName("lblCards", HandIndex("A7o"))).center();
  Session().RightClickAt(hand);
  Session().WaitUntil("the menu shows", [&] { return Session().WindowCount() == 2; });
  Session().ClickAt(hand + QPoint(50, 78));
  const Window study = Session().WaitForWindow(kStudyTitle);
  const auto inStudy = [&](int x, int y) { return study.Place.topLeft() + QPoint(x, y); };
  Session().ClickAt(inStudy(38, 47));
  EXPECT_THAT(Session().CopiedBy([&] { Session().ClickAt(inStudy(836, 645)); }), HasSubstr("A7o\tup to\t47.14"));

  Session().ClickAt(inStudy(251, 47));
  static_cast<void>(Session().StillPicture(study.Place));
  Session().ClickAt(inStudy(787, 612));
  SaveHisRange();
  ExpectHisRangeSaved();
}

}  // namespace
}  // namespace quillon
