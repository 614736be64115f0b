// What a player does with ranges and results: a range painted by hand, a result that becomes a range, a
// report on the clipboard, and the grid as a picture.

#include <QImage>
#include <QUrl>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "analysis/results_table.h"
#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "results/results_grid.h"
#include "support/files.h"
#include "testing/range_texts.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

const EnteredSituation kRaise = {"150", "50", "400", "Button Shove", "Big Blind Call"};
const std::vector<std::string> kRaiseCommand = {"raise",        "--pot",           "150",           "--call",
                                                "50",           "--shove",         "400",           "--range",
                                                "Button Shove", "--calling-range", "Big Blind Call"};

class ResultsJourney : public WindowJourney {
 protected:
  using WindowJourney::WindowJourney;

  /// What the companion prints for the same situation.
  [[nodiscard]] std::string CompanionText(const std::vector<std::string>& more) const {
    ProgramRun run;
    run.Program = QUILLON_CLI_PROGRAM;
    run.Arguments = kRaiseCommand;
    run.Arguments.insert(run.Arguments.end(), {"--folder", Session().Program().Path.string()});
    run.Arguments.insert(run.Arguments.end(), more.begin(), more.end());
    return RunProgram(run).Output;
  }

  void ClickWithShift(const Window& window, const FormPlan& plan, std::string_view control) const {
    Session().HoldKey("shift");
    Click(window, plan, control);
    Session().ReleaseKey("shift");
  }

  [[nodiscard]] static std::string Cell(std::string_view hand) { return ObjectName("lblCards", HandIndex(hand)); }
};

// ---- ranges

TEST_F(ResultsJourney, PaintedRangeIsOnDiskAndCanBeAnalysed) {
  StartProgramWithRanges();
  Click("lblRangeManager");
  const Window manager = Session().WaitForWindow(kManagerTitle);

  Click(manager, ManagerPlan(), "imgNew");
  const Window name = Session().WaitForWindow("Rename Range");
  Session().Type("My 3-bets");
  Answer(name, {"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));

  Click(manager, ManagerPlan(), Cell("AKs"));
  Click(manager, ManagerPlan(), Cell("AQo"));
  ClickWithShift(manager, ManagerPlan(), Cell("JJ"));
  Click(manager, ManagerPlan(), Cell("AQo"));
  Click(manager, ManagerPlan(), "chkHalf");
  ClickWithShift(manager, ManagerPlan(), Cell("A4s"));
  Click(manager, ManagerPlan(), Cell("KQs"));
  Click(manager, ManagerPlan(), "imgSave");
  const Window saved = Session().WaitForWindow("Quillon");
  EXPECT_EQ(MessageText(saved), "The range \"My 3-bets\" was saved successfully!");
  Answer(saved, {"Return"});
  EXPECT_EQ(ReadAllBytes(RangeFilePath(Session().Program(), "My 3-bets")),
            TextWith("JJ QQ KK AA", "A4s A5s A6s A7s A8s A9s ATs AJs AQs AKs KQs") + "\r\n");

  static_cast<void>(Session().WaitForWindow(kManagerTitle));
  Click(manager, ManagerPlan(), "cmdOK");
  Session().WaitUntilGone(manager);
  Analyze(kEquityRun, {{}, {}, {}, "My 3-bets", {}});
}

TEST_F(ResultsJourney, ProfitableHandsBecomeARange) {
  StartProgramWithRanges();
  Analyze(kRaiseRun, kRaise);
  Click("imgSaveAsRange");
  const Window dialog = Session().WaitForWindow(kNewRangeTitle);
  Session().Type("Worth a shove");
  Session().Press({"Return"});
  const Window saved = Session().WaitForWindow("Quillon");
  EXPECT_EQ(MessageText(saved), "The range \"Worth a shove\" was saved successfully!");
  Answer(saved, {"Return"});
  Session().WaitUntilGone(dialog);

  const Analysis state = AnalysisOf(kRaiseRun, kRaise, Session().Program());
  std::string profitable;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view label = HandLabel(index);
    if (GetHandInfo(state.HandInfo, label, kExpectedValueColumn) > 0) profitable.append(label).append(" ");
  }
  EXPECT_EQ(ReadAllBytes(RangeFilePath(Session().Program(), "Worth a shove")), TextWith(profitable) + "\r\n");
}

// ---- reports

TEST_F(ResultsJourney, CopiedReportIsTheOneThatTheCompanionPrints) {
  StartProgramWithRanges();
  Analyze(kRaiseRun, kRaise);
  Click("lblNav(4)");
  Click("rtfSummary");
  EXPECT_EQ(Session().CopyAllText(), CompanionText({"--format", "plain"}));

  TakeFromList("cmboOutputType", {"End"});
  Click("rtfSummary");
  EXPECT_EQ(Session().CopyAllText(), CompanionText({"--format", "2+2"}));

  // The working of a hand goes in at the caret.
  Session().Press({"ctrl+End"});
  TakeFromList("cmbo169", {"Home", "Down", "Down"});
  Click("rtfSummary");
  EXPECT_EQ(Session().CopyAllText(), CompanionText({"--format", "2+2", "--hand", "AKs"}));
}

// ---- the grid as a picture

struct ScaleCase {
  const char* name;
  Desk desk;
};

class GridImageJourney : public ResultsJourney, public testing::WithParamInterface<ScaleCase> {
 protected:
  GridImageJourney() : ResultsJourney(GetParam().desk) {}

  void ExpectPictureOfTheGrid(const fs::path& file) const {
    const QImage image = QImage(QString::fromStdString(file.string()), "BMP").convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(image.size(), QSize(409, 521) * Session().Screen().Scale);
    // What lay over the grid to the last may still be on its way from the screen.
    Session().WaitUntil("the screen shows what is in the file", [&] { return Look("GridContainer") == image; });
  }
};

TEST_P(GridImageJourney, IsOnDiskWithTheScreensOwnPixels) {
  Session().AddCommand("xdg-open");
  StartProgramWithRanges();
  Analyze(kRaiseRun, kRaise);
  const fs::path folder = Session().Program().Path / "Saved Grids";

  Click("imgSave");
  const Window first = Session().WaitForWindow("Save Expected Value Grid");
  Session().Type("shove");
  Answer(first, {"Return"});
  const Window question = Session().WaitForWindow("Open Now?");
  EXPECT_EQ(MessageText(question), "Screen shot saved successfully.\n\nDo you want to open the screen shot now?");
  Answer(question, {"alt+n"});
  static_cast<void>(Session().WaitForWindow(kMainTitle));
  ExpectPictureOfTheGrid(folder / "shove");

  Click("imgSave");
  const Window second = Session().WaitForWindow("Save Expected Value Grid");
  Session().Press({"ctrl+a"});
  Session().Type("again.bmp");
  Answer(second, {"Return"});
  Answer(Session().WaitForWindow("Open Now?"), {"alt+y"});
  const QUrl address = QUrl::fromLocalFile(QString::fromStdString((folder / "again.bmp").string()));
  EXPECT_EQ(Session().CommandArguments("xdg-open"), address.toEncoded().toStdString() + "\n");
  ExpectPictureOfTheGrid(folder / "again.bmp");
}

TEST_P(GridImageJourney, TheMarkOfTheFocusIsNotInThePictureAndComesBack) {
  StartProgramWithRanges();
  FillIn(kRaiseRun, kRaise);
  Session().Press({"ctrl+Return"});
  const QRect cell = OnScreen("shapeCardBack(0)");
  const QPoint line(cell.center().x(), cell.top() - qRound(Session().Screen().Scale));
  constexpr QRgb kMark = qRgb(0x10, 0x20, 0x30);
  Session().WaitUntil("the cell is marked", [&] { return Session().Color(line) == kMark; });

  Click("imgSave");
  const Window dialog = Session().WaitForWindow("Save Expected Value Grid");
  Session().Type("unmarked");
  Answer(dialog, {"Return"});
  Answer(Session().WaitForWindow("Open Now?"), {"alt+n"});
  Session().WaitUntil("the cell is marked again", [&] { return Session().Color(line) == kMark; });
  const fs::path file = Session().Program().Path / "Saved Grids" / "unmarked";
  const QImage image(QString::fromStdString(file.string()), "BMP");
  ASSERT_FALSE(image.isNull());
  EXPECT_NE(image.pixelColor(line - OnScreen("GridContainer").topLeft()), QColor(kMark));
}

TEST_P(GridImageJourney, AnotherProgramsWindowOverTheGridIsInThePicture) {
  StartProgramWithRanges();
  Analyze(kRaiseRun, kRaise);

  Click("imgSave");
  const Window dialog = Session().WaitForWindow("Save Expected Value Grid");
  Session().Type("covered");
  const QRect note = Session().LayNote(OnScreen("GridContainer").topLeft() + QPoint(60, 60), dialog);
  Session().Press({"Return"});
  Answer(Session().WaitForWindow("Open Now?"), {"alt+n"});
  const fs::path file = Session().Program().Path / "Saved Grids" / "covered";
  const QImage image(QString::fromStdString(file.string()), "BMP");
  EXPECT_EQ(image.pixelColor(note.topLeft() - OnScreen("GridContainer").topLeft() + QPoint(2, 2)), QColor(Qt::yellow));
}

INSTANTIATE_TEST_SUITE_P(Window, GridImageJourney,
                         testing::Values(ScaleCase{"FullScale", Desk{}},
                                         ScaleCase{"DoubleScale", Desk{.Width = 2300, .Height = 1500, .Scale = 2}}),
                         [](const auto& entry) { return std::string(entry.param.name); });

}  // namespace
}  // namespace quillon
