// A player who paints ranges with the mouse, by the grids' menus and by dropping a text, and exports results.

#include <QImage>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "ranges/card_grid.h"
#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "support/files.h"
#include "testing/range_texts.h"
#include "testing/split_text.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

class PaintingJourney : public WindowJourney {
 protected:
  explicit PaintingJourney(Desk desk = {}) : WindowJourney(desk) { StartProgramWithRanges(); }

  void Press(const std::vector<std::string>& keys) const { Session().Press(keys); }

  /// Waits until a grid shows these hands in full and these at half weight.
  void WaitForHands(const Window& window, const FormPlan& plan, const std::string& full,
                    const std::string& half = {}) const {
    GridColorTable wanted = UnselectedCells();
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      const std::string_view label = HandLabel(static_cast<std::int16_t>(i));
      if (HasLabel(full, label)) wanted.at(i) = kFullColor;
      if (HasLabel(half, label)) wanted.at(i) = kHalfColor;
    }
    Session().WaitUntil("the grid shows the hands", [&] { return CellColors(window, plan) == wanted; });
  }

  [[nodiscard]] QRect Cell(const Window& window, const FormPlan& plan, std::string_view hand) const {
    return OnScreen(window, plan, ObjectName("shapeCardBack", HandIndex(hand)));
  }
  /// Opens a grid's menu on a hand with the right mouse button.
  [[nodiscard]] Window MenuOn(const Window& window, const FormPlan& plan, std::string_view hand) const {
    return Session().OpenedBy([&] { Session().RightClickAt(Cell(window, plan, hand).center()); });
  }
  /// Clicks the entry at this index in an open menu, with this many separators above it.
  void ClickEntry(const Window& menu, int entry, int linesAbove) const {
    const double scale = Session().Screen().Scale;
    constexpr double kEntry = 22;
    constexpr double kLine = 2;
    const double down = (entry + 0.5) * kEntry + linesAbove * kLine;
    Session().ClickAt(menu.Place.topLeft() + QPoint(qRound(30 * scale), qRound(down * scale)));
    Session().WaitUntilGone(menu);
  }
};

class LargePaintingJourney : public PaintingJourney {
 protected:
  LargePaintingJourney() : PaintingJourney(Desk{.Width = 2800, .Height = 2000, .Scale = 2}) {}
};

TEST_F(LargePaintingJourney, ByTheMouseInBothDialogs) {
  const auto pixels = [this](int length) { return qRound(length * Session().Screen().Scale); };
  Click("lblNav(2)");
  Click("lblNewRange(3)");
  // The two grids side by side, above the main window.
  Session().MoveWindow(Session().WaitForWindow(kNewRangeTitle), {pixels(840), pixels(60)});
  const Window newRange = Session().WaitForWindow(kNewRangeTitle);
  Click("lblRangeManager");
  Session().MoveWindow(Session().WaitForWindow(kManagerTitle), {0, 0});
  Session().MoveWindow(Main(), {0, pixels(700)});
  const Window manager = Session().WaitForWindow(kManagerTitle);

  const auto choose = [&](int entry, int linesAbove) {
    ClickEntry(MenuOn(manager, ManagerPlan(), "98s"), entry, linesAbove);
  };
  choose(2, 1);  // Everything
  WaitForHands(manager, ManagerPlan(), AllLabels());
  choose(3, 1);  // Clear
  WaitForHands(manager, ManagerPlan(), "");
  choose(4, 1);  // Invert
  WaitForHands(manager, ManagerPlan(), AllLabels());
  choose(6, 2);  // Undo
  WaitForHands(manager, ManagerPlan(), "");
  Session().ClickAt(Cell(manager, ManagerPlan(), "AA").center());
  Click(manager, ManagerPlan(), "chkHalf");
  Session().ClickAt(Cell(manager, ManagerPlan(), "AKs").center());
  WaitForHands(manager, ManagerPlan(), "AA", "AKs");
  EXPECT_EQ(Session().CopiedBy([&] { choose(0, 0); }), "AA,AKs:0.5");

  // Drags the summary of one dialog to the grid of the other.
  const QRect summary = OnScreen(manager, ManagerPlan(), "txtRangeAbbr");
  Session().ClickAt(summary.center());
  Press({"ctrl+a"});
  Session().Drag(summary.topLeft() + QPoint(pixels(20), pixels(14)), Cell(newRange, NewRangePlan(), "72o").center());
  WaitForHands(newRange, NewRangePlan(), "AA", "AKs");
}

TEST_F(PaintingJourney, ResultsAreTakenAlong) {
  Session().AddCommand("xdg-open");
  Analyze(kRaiseRun, kRaise);
  const QImage shown = Look("GridContainer");

  const std::string picture =
      Session().CopiedBy([&] { ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 0, 0); }, "image/png");
  const QImage copied = QImage::fromData(QByteArray::fromStdString(picture)).convertToFormat(shown.format());
  EXPECT_EQ(copied, shown) << "the grid without the panel of the hand under the mouse";

  const auto companion = [this](const std::vector<std::string>& format) {
    std::vector<std::string> raise = {"raise",        "--pot",           "150",           "--call",
                                      "50",           "--shove",         "400",           "--range",
                                      "Button Shove", "--calling-range", "Big Blind Call"};
    raise.insert(raise.end(), format.begin(), format.end());
    return Companion(raise);
  };
  EXPECT_EQ(Session().CopiedBy([&] { ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 1, 0); }),
            Replaced(companion({"--format", "csv"}), ",", "\t"));

  ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 2, 0);
  const Window dialog = Session().WaitForWindow("Save as Web Page");
  Session().Type("shove.html");
  Answer(dialog, {"Return"});
  const Window question = Session().WaitForWindow("Open Now?");
  EXPECT_EQ(MessageText(question), "Web page saved successfully.\n\nDo you want to open the web page now?");
  Answer(question, {"alt+y"});
  const fs::path page = Session().Program().Path / "Saved Grids" / "shove.html";
  EXPECT_EQ(ReadAllBytes(page), companion({"--format", "html"}));
  EXPECT_TRUE(Session().CommandArguments("xdg-open").ends_with("Saved%20Grids/shove.html\n"));

  ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 4, 1);
  const std::vector<std::string> forum = {"--format", "2+2", "--hand", "KTs"};
  Click("rtfSummary");
  EXPECT_EQ(Session().CopyAllText(), companion(forum));
}

}  // namespace
}  // namespace quillon
