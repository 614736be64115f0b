// Every screen and both dialogs as they look, at two scales, against pictures that somebody has checked. Those at
// 100% are those of the documents. After a change that should change them: tools/screenshots.sh

#include <QColor>
#include <QDeadlineTimer>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <tuple>

#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "results/results_grid.h"
#include "study/window/study_form.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

// The small blind with 12 big blinds, against any hand.
const EnteredSituation kSmallBlindShove = {"1.5", "0.5", "11", "Everything", "Big Blind Call"};

// How far a colour may be off, and how much of any one tile of a picture may be further off than that: edges of letters
// are not drawn alike by every version of the font library. Over a whole picture a lost word would hardly count.
constexpr int kNoticeable = 64;
constexpr int kTile = 32;
constexpr double kTileShare = 0.05;
constexpr int kPatience = 10000;  // milliseconds

bool IsNoticeable(QRgb one, QRgb other) {
  const int red = std::abs(qRed(one) - qRed(other));
  const int green = std::abs(qGreen(one) - qGreen(other));
  const int blue = std::abs(qBlue(one) - qBlue(other));
  return std::max({red, green, blue}) > kNoticeable;
}

double NoticeableShare(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x)
      count += IsNoticeable(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
  }
  return static_cast<double>(count) / one.width() / one.height();
}

// The tile that is most different, and how much of it is.
std::pair<double, QRect> WorstTile(const QImage& one, const QImage& other) {
  std::pair<double, QRect> worst;
  for (int y = 0; y < one.height(); y += kTile) {
    for (int x = 0; x < one.width(); x += kTile) {
      const QRect tile(x, y, kTile, kTile);
      const double share = NoticeableShare(one.copy(tile), other.copy(tile));
      if (share > worst.first) worst = {share, tile};
    }
  }
  return worst;
}

QImage WithBlank(QImage image, const QRect& area) {
  QPainter(&image).fillRect(area, Qt::black);
  return image;
}

class ScreensJourney : public WindowJourney, public testing::WithParamInterface<Desk> {
 protected:
  ScreensJourney() : WindowJourney(GetParam()) {}

  void ExpectLook(const Window& window, std::string_view name, const QRect& butFor = {}) const {
    QImage seen = WithoutAlpha(Session().StillPicture(window.Place));
    const fs::path file = FileOf(name);
    if (std::getenv("QUILLON_WRITE_SCREENS") != nullptr) {  // NOLINT(concurrency-mt-unsafe): there is one thread
      fs::create_directories(file.parent_path());
      EXPECT_TRUE(seen.save(QString::fromStdString(file.string()))) << file;
      return;
    }
    const QImage known = WithBlank(WithoutAlpha(QImage(QString::fromStdString(file.string()))), butFor);
    ASSERT_EQ(seen.size(), known.size()) << file;
    auto [share, tile] = WorstTile(WithBlank(seen, butFor), known);
    // Where there is much to do besides, the program may keep still before it has done all.
    for (const QDeadlineTimer limit(kPatience); share > kTileShare && !limit.hasExpired();) {
      seen = WithoutAlpha(Session().StillPicture(window.Place));
      std::tie(share, tile) = WorstTile(WithBlank(seen, butFor), known);
    }
    EXPECT_LE(share, kTileShare) << file << " looks different round " << tile.center().x() << ", " << tile.center().y()
                                 << ": " << SaveForComparison(seen, name);
  }
  void ExpectLook(std::string_view name) const { ExpectLook(Main(), name); }

 private:
  static QImage WithoutAlpha(const QImage& image) { return image.convertToFormat(QImage::Format_RGB32); }

  [[nodiscard]] fs::path FileOf(std::string_view name) const {
    const std::string file(name);
    if (Session().Screen().Scale == 1) return fs::path(QUILLON_SOURCE_FOLDER) / "docs" / "screens" / (file + ".png");
    return fs::path(QUILLON_SOURCE_FOLDER) / "tests" / "screens" / (file + "_200.png");
  }

  [[nodiscard]] std::string SaveForComparison(const QImage& seen, std::string_view name) const {
    const fs::path folder = QUILLON_FAILED_SCREENS_FOLDER;
    fs::create_directories(folder);
    const std::string file = (folder / FileOf(name).filename()).string();
    return seen.save(QString::fromStdString(file)) ? file : "it could not be saved";
  }
};

TEST_P(ScreensJourney, LookAsTheyShould) {
  StartProgramWithRanges();
  Session().PutMouseAside();
  ExpectLook("about");

  FillIn(kCallRun, kCall);
  ExpectLook("preflop_call");
  FillIn(kEquityRun, kEquity);
  ExpectLook("equity_only");
  FillIn(kRaiseRun, kRaise);
  ExpectLook("preflop_raise");

  AnalyzeAndHoldUp(kRaiseRun);
  const QRect bar = OnScreen("Shape2").united(OnScreen("lblProgressPerc"));
  ExpectLook(Main(), "progress", bar.translated(-Main().Place.topLeft()));
  Session().PutMouseAside();
  Session().Running().LetGoOn();

  const GridColorTable colors = GridColors(AnalysisOf(kRaiseRun, kRaise, Session().Program()));
  Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == colors; });
  ExpectLook("grid");
  Session().MoveTo(OnScreen(ObjectName("lblCards", HandIndex("KTs"))).center());
  Session().WaitUntil("the panel shows", [&] { return CellColors() != colors; });
  ExpectLook("hover");

  Click("lblNav(4)");
  Session().PutMouseAside();
  ExpectLook("details_plain");
  TakeFromList("cmboOutputType", {"End"});
  ExpectLook("details_forum");

  Click("lblRangeManager");
  const Window manager = Session().WaitForWindow(kManagerTitle);
  Click(manager, ManagerPlan(), "lstRanges");
  Session().Press({"Home", "Down"});
  Session().PutMouseAside();
  ExpectLook(manager, "range_manager");
  Click(manager, ManagerPlan(), "cmdOK");
  Session().WaitUntilGone(manager);

  Click("lblNav(3)");
  Click("imgSaveAsRange");
  const Window dialog = Session().WaitForWindow(kNewRangeTitle);
  Session().Type("Worth a shove");
  Session().PutMouseAside();
  ExpectLook(dialog, "new_range");
}

TEST_P(ScreensJourney, TheStudyOfAShoveLooksAsItShould) {
  StartProgramWithRanges();
  Analyze(kRaiseRun, kSmallBlindShove);
  const GridColorTable colors = CellColors();
  const QPoint hand = OnScreen(ObjectName("lblCards", HandIndex("A7o"))).center();
  Session().MoveTo(hand);
  Session().WaitUntil("the panel shows", [&] { return CellColors() != colors; });
  ExpectLook("shove_a7o");

  static_cast<void>(Session().OpenedBy([&] { Session().RightClickAt(hand); }));
  Session().Press({"Down", "Down", "Down", "Down", "Return"});
  const Window study = Session().WaitForWindow(kStudyTitle);
  Session().PutMouseAside();
  ExpectLook(study, "study_how_far");
  Session().Press({"ctrl+1"});
  ExpectLook(study, "study_limits");
  Session().Press({"ctrl+3"});
  ExpectLook(study, "study_width");
  Session().Press({"ctrl+4"});
  ExpectLook(study, "study_balanced");
}

INSTANTIATE_TEST_SUITE_P(Window, ScreensJourney,
                         testing::Values(Desk{}, Desk{.Width = 2300, .Height = 1500, .Scale = 2}),
                         [](const auto& entry) { return "At" + std::to_string(qRound(entry.param.Scale * 100)); });

}  // namespace
}  // namespace quillon
