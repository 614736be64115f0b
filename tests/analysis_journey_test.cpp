// A run in the window that is stopped in the middle. The other journeys cover whole runs.

#include <gtest/gtest.h>

#include "tests/window_journey.h"

namespace quillon {
namespace {

using AnalysisJourney = WindowJourney;

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

  // It can be run again.
  Analyze(kRaiseRun, kRaise);
}

}  // namespace
}  // namespace quillon
