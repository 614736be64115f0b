// A player who keeps situations: saved on one day and opened on another, by keys and with the mouse, and answered by
// the companion as they are.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "results/results_grid.h"
#include "shell/situations.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

const EnteredSituation kRaise = {"150", "50", "400", "Button Shove", "Big Blind Call"};
const EnteredSituation kCall = {"110", "90", "", "Tight Open", ""};

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
  FillIn(kRaiseRun, kRaise);
  Save("Shove over the button");
  FillIn(kCallRun, kCall);
  Save("Call a short stack");
  Fill(0, "7");
  EXPECT_EQ(CloseProgram(), 0);

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

TEST_F(SituationJourney, IsSavedAndOpenedWithTheMouse) {
  StartProgramWithRanges();
  FillIn(kCallRun, kCall);
  Save("B");
  Save("A");
  Fill(0, "7");

  // Its second entry is a little below the place of the click.
  const QPoint place = OnScreen("cmdPreflopEV(0)").topRight() + QPoint(-100, -200);
  Session().RightClickAt(place);
  Session().WaitUntil("the menu shows", [&] { return Session().WindowCount() == 2; });
  Session().ClickAt(place + QPoint(60, 35));
  const Window list = Session().WaitForWindow("Open Situation");
  const QPoint first = list.Place.topLeft() + QPoint(60, 45);
  Session().ClickAt(first);
  Session().ClickAt(first);
  Session().WaitUntilGone(list);
  static_cast<void>(Session().WaitForWindow(kMainTitle));
  EXPECT_EQ(BoxText(0), kCall.Pot);
  Click("cmdPreflopEV(0)");
  ExpectGridOf(kCallRun, kCall);
  EXPECT_EQ(CloseProgram(), 0);
}

TEST_F(SituationJourney, IsAnsweredByTheCompanionAsItIs) {
  StartProgramWithRanges();
  FillIn(kRaiseRun, {"=100+50", "50", "400", "Button Shove", "Big Blind Call"});
  Save("Sum");
  const ProgramFolder& folder = Session().Program();
  ProgramRun run;
  run.Program = QUILLON_CLI_PROGRAM;
  run.Arguments = {"batch",    SituationFilePath(folder, "Sum").string(),
                   "--fields", "pot,best,worst",
                   "--folder", folder.Path.string()};
  EXPECT_EQ(RunProgram(run).Output, "{\"id\":null,\"pot\":150.0,\"best\":\"AA\",\"worst\":\"72o\"}\n");
  EXPECT_EQ(CloseProgram(), 0);
}

}  // namespace
}  // namespace quillon
