// The looks of every screen and both dialogs, at five scales, compared with checked pictures: at 100% those of the
// documents, at 200% separate ones; at 75%, 150% and 300% the screen is rescaled to 100% and must match the former.
// After an intentional change: tools/screenshots.sh

#include <QColor>
#include <QDeadlineTimer>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

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

// The allowed colour difference, and the allowed share of larger ones in any tile of a picture: versions of the font
// library differ in the edges of letters. Over a whole picture a missing word would hardly count.
constexpr int kNoticeable = 64;
constexpr int kTile = 32;
constexpr double kTileShare = 0.05;
constexpr int kPatience = 10000;  // milliseconds
// A rescaled picture is compared as if seen from four times as far away. The remaining difference is text: longer texts
// wrap differently than at 100%.
constexpr int kDistance = 4;

struct DistantPicture {
  std::string_view Name;
  double TileShare;  // slightly more than at any scale here
};

constexpr auto kDistantPictures = std::to_array<DistantPicture>({
    {"about", 0.1},
    {"preflop_call", 0.12},
    {"equity_only", 0.05},
    {"preflop_raise", 0.12},
    {"progress", 0.05},
    {"grid", 0.22},
    {"hover", 0.22},
    {"details_plain", 0.24},
    {"details_forum", 0.3},
    {"range_manager", 0.06},
    {"new_range", 0.07},
});

double DistantTileShare(std::string_view name) {
  return std::ranges::find(kDistantPictures, name, &DistantPicture::Name)->TileShare;
}

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

// The most different tile, and how different it is.
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

  [[nodiscard]] static bool IsWriting() {
    return std::getenv("QUILLON_WRITE_SCREENS") != nullptr;  // NOLINT(concurrency-mt-unsafe): there is one thread
  }
  [[nodiscard]] bool HasPictures() const { return Session().Screen().Scale == 1 || Session().Screen().Scale == 2; }

  void ExpectLook(const Window& window, std::string_view name, const QRect& butFor = {}) const {
    QImage seen = WithoutAlpha(Session().StillPicture(window.Place));
    const fs::path file = FileOf(name);
    if (IsWriting()) {
      fs::create_directories(file.parent_path());
      EXPECT_TRUE(seen.save(QString::fromStdString(file.string()))) << file;
      return;
    }
    const QImage known(QString::fromStdString(file.string()));
    if (!HasPictures()) {
      const double scale = Session().Screen().Scale;
      const QRect blank(butFor.topLeft() / scale, butFor.size() / scale);
      return ExpectAlikeFromAfar(WithBlank(seen, butFor), WithBlank(WithoutAlpha(known), blank), name);
    }
    ASSERT_EQ(seen.size(), known.size()) << file;
    auto [share, tile] = WorstTile(WithBlank(seen, butFor), WithBlank(WithoutAlpha(known), butFor));
    // On a busy machine the program may pause before it has finished.
    for (const QDeadlineTimer limit(kPatience); share > kTileShare && !limit.hasExpired();) {
      seen = WithoutAlpha(Session().StillPicture(window.Place));
      std::tie(share, tile) = WorstTile(WithBlank(seen, butFor), WithBlank(WithoutAlpha(known), butFor));
    }
    EXPECT_LE(share, kTileShare) << file << " looks different round " << tile.center().x() << ", " << tile.center().y()
                                 << ": " << SaveForComparison(seen, name);
  }
  void ExpectLook(std::string_view name) const { ExpectLook(Main(), name); }

 private:
  static QImage WithoutAlpha(const QImage& image) { return image.convertToFormat(QImage::Format_RGB32); }

  void ExpectAlikeFromAfar(const QImage& seen, const QImage& known, std::string_view name) const {
    const double scale = Session().Screen().Scale;
    EXPECT_NEAR(seen.width(), known.width() * scale, 1);
    EXPECT_NEAR(seen.height(), known.height() * scale, 1);
    const QSize size = known.size() / kDistance;
    const QImage one = seen.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage other = known.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const auto [share, tile] = WorstTile(one, other);
    EXPECT_LE(share, DistantTileShare(name))
        << name << " at " << scale << " looks different round " << tile.center().x() * kDistance << ", "
        << tile.center().y() * kDistance << ": " << SaveForComparison(seen, name);
  }

  [[nodiscard]] fs::path FileOf(std::string_view name) const {
    const std::string file(name);
    if (Session().Screen().Scale != 2) return fs::path(QUILLON_SOURCE_FOLDER) / "docs" / "screens" / (file + ".png");
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
  if (!HasPictures() && IsWriting()) GTEST_SKIP() << "there are no pictures at this scale";
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

// The study window's layout depends on its texts' size, so it does not scale exactly.
TEST_P(ScreensJourney, TheStudyOfAShoveLooksAsItShould) {
  if (!HasPictures()) GTEST_SKIP() << "there are no pictures at this scale";
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
                         testing::Values(Desk{.Scale = 0.75}, Desk{}, Desk{.Width = 1900, .Height = 1200, .Scale = 1.5},
                                         Desk{.Width = 2300, .Height = 1500, .Scale = 2},
                                         Desk{.Width = 3400, .Height = 2200, .Scale = 3}),
                         [](const auto& entry) { return "At" + std::to_string(qRound(entry.param.Scale * 100)); });

}  // namespace
}  // namespace quillon
