// A player's work with ranges and results: a range painted by hand, and the grid as a picture.

#include <QImage>
#include <QUrl>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/dialogs/manager_layout.h"
#include "support/files.h"
#include "testing/range_texts.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

class ResultsJourney : public WindowJourney {
 protected:
  using WindowJourney::WindowJourney;

  void ClickWithShift(const Window& window, const FormPlan& plan, std::string_view control) const {
    Session().HoldKey("shift");
    Click(window, plan, control);
    Session().ReleaseKey("shift");
  }

  [[nodiscard]] static std::string Cell(std::string_view hand) { return ObjectName("lblCards", HandIndex(hand)); }
};

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

// At twice the scale, where the screen's pixels are finer than the window's.
class GridImageJourney : public ResultsJourney {
 protected:
  GridImageJourney() : ResultsJourney(Desk{.Width = 2300, .Height = 1500, .Scale = 2}) {}

  void ExpectPictureOfTheGrid(const fs::path& file) const {
    const QImage image = QImage(QString::fromStdString(file.string()), "BMP").convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(image.size(), QSize(409, 521) * Session().Screen().Scale);
    // What covered the grid may not have left the screen yet.
    Session().WaitUntil("the screen shows what is in the file", [&] { return Look("GridContainer") == image; });
  }
};

TEST_F(GridImageJourney, IsOnDiskWithTheScreensOwnPixels) {
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

TEST_F(GridImageJourney, HasAnotherProgramsWindowInItButNotTheMarkOfTheFocus) {
  StartProgramWithRanges();
  FillIn(kRaiseRun, kRaise);
  Session().Press({"ctrl+Return"});
  const QRect cell = OnScreen("shapeCardBack(0)");
  const QPoint line(cell.center().x(), cell.top() - qRound(Session().Screen().Scale));
  constexpr QRgb kMark = qRgb(0x10, 0x20, 0x30);
  Session().WaitUntil("the cell is marked", [&] { return Session().Color(line) == kMark; });

  Click("imgSave");
  const Window dialog = Session().WaitForWindow("Save Expected Value Grid");
  Session().Type("covered");
  const QPoint corner = OnScreen("GridContainer").topLeft();
  const QRect note = Session().LayNote(corner + QPoint(60, 400), dialog);
  Session().Press({"Return"});
  Answer(Session().WaitForWindow("Open Now?"), {"alt+n"});
  Session().WaitUntil("the cell is marked again", [&] { return Session().Color(line) == kMark; });
  const fs::path file = Session().Program().Path / "Saved Grids" / "covered";
  const QImage image(QString::fromStdString(file.string()), "BMP");
  EXPECT_EQ(image.pixelColor(note.topLeft() - corner + QPoint(2, 2)), QColor(Qt::yellow));
  EXPECT_NE(image.pixelColor(line - corner), QColor(kMark));
}

}  // namespace
}  // namespace quillon
