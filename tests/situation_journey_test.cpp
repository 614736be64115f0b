// A player who saves situations: saved one day, answered by the companion as they are, and opened another day.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "results/results_grid.h"
#include "shell/situations.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

const EnteredSituation kTightCall = {"110", "90", "", "Tight Open", ""};

class SituationJourney : public WindowJourney {
 protected:
  void Save(const std::string& name) {
    Session().Press({"ctrl+s"});
    const Window box = Session().WaitForWindow("Save Situation");
    Session().Press({"ctrl+a"});
    Session().Type(name);
    Answer(box, {"Return"});
    Answer(Session().WaitForWindow("Quillon"), {"Return"});
    static_cast<void>(Session().WaitForWindow(kMainTitle));
  }
  void ExpectGridOf(std::int16_t button, const EnteredSituation& situation) {
    const GridColorTable expected = GridColors(AnalysisOf(button, situation, Session().Program()));
    Session().PutMouseAside();
    Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == expected; });
  }
};

TEST_F(SituationJourney, IsSavedOnOneDayAndOpenedByKeysOnAnother) {
  StartProgramWithRanges();
  FillIn(kRaiseRun, {"=100+50", "50", "400", "Button Shove", "Big Blind Call"});
  Save("Shove over the button");
  FillIn(kCallRun, kTightCall);
  Save("Call a short stack");
  Fill(0, "7");
  EXPECT_EQ(CloseProgram(), 0);

  const std::string file = SituationFilePath(Session().Program(), "Shove over the button").string();
  EXPECT_EQ(Companion({"batch", file, "--fields", "pot,best,worst"}),
            "{\"id\":null,\"pot\":150.0,\"best\":\"AA\",\"worst\":\"72o\"}\n");

  StartProgram();
  Session().Press({"ctrl+o"});
  const Window list = Session().WaitForWindow("Open Situation");
  Session().Type("sh");
  Session().Press({"Return"});
  Session().WaitUntilGone(list);
  static_cast<void>(Session().WaitForWindow(kMainTitle));
  EXPECT_EQ(BoxText(2), kRaise.Pot);
  EXPECT_EQ(BoxText(4), kRaise.Shove);
  Session().Press({"ctrl+Return"});
  ExpectGridOf(kRaiseRun, kRaise);

  Session().Press({"ctrl+o"});
  static_cast<void>(Session().WaitForWindow("Open Situation"));
  Session().Press({"Delete"});
  Answer(Session().WaitForWindow("Delete?"), {"Return"});
  static_cast<void>(Session().WaitForWindow("Open Situation"));
  EXPECT_THAT(SituationNames(Session().Program()), testing::ElementsAre("Call a short stack"));
  Session().Press({"Escape"});
  static_cast<void>(Session().WaitForWindow(kMainTitle));
  EXPECT_EQ(CloseProgram(), 0);
}

}  // namespace
}  // namespace quillon
