// A player who paints ranges fast and takes results along: by the menus of the grids with the mouse and the keyboard,
// by keys, and by dropping a text.

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

const EnteredSituation kRaise = {"150", "50", "400", "Button Shove", "Big Blind Call"};

class PaintingJourney : public WindowJourney, public testing::WithParamInterface<Desk> {
 protected:
  PaintingJourney() : WindowJourney(GetParam()) { StartProgramWithRanges(); }

  void Press(const std::vector<std::string>& keys) const { Session().Press(keys); }
  void Paste(std::string_view text) const {
    Session().PutOnClipboard(text);
    Press({"ctrl+v"});
  }
  [[nodiscard]] std::string Copied() const {
    return Session().CopiedBy([this] { Press({"ctrl+c"}); });
  }

  /// Waits until a grid shows these hands in full and those at half weight.
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
  /// Clicks into an open menu, so many entries below its first, with so many lines between groups above that one.
  void ClickEntry(const Window& menu, int entry, int linesAbove) const {
    const double scale = Session().Screen().Scale;
    constexpr double kEntry = 22;
    constexpr double kLine = 2;
    const double down = (entry + 0.5) * kEntry + linesAbove * kLine;
    Session().ClickAt(menu.Place.topLeft() + QPoint(qRound(30 * scale), qRound(down * scale)));
    Session().WaitUntilGone(menu);
  }

  [[nodiscard]] std::string CompanionText(const std::vector<std::string>& more) const {
    ProgramRun run;
    run.Program = QUILLON_CLI_PROGRAM;
    run.Arguments = {"raise",          "--pot",    "150",     "--call",       "50",
                     "--shove",        "400",      "--range", "Button Shove", "--calling-range",
                     "Big Blind Call", "--folder", Folder()};
    run.Arguments.insert(run.Arguments.end(), more.begin(), more.end());
    return RunProgram(run).Output;
  }
  [[nodiscard]] std::string Folder() const { return Session().Program().Path.string(); }
};

TEST_P(PaintingJourney, ByKeysInTheRangeManager) {
  Press({"ctrl+r"});
  const Window manager = Session().WaitForWindow(kManagerTitle);
  Press({"ctrl+n"});
  const Window name = Session().WaitForWindow("Rename Range");
  Session().Type("Fast");
  Answer(name, {"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));

  Paste("QQ+, AKs:0.5");
  WaitForHands(manager, ManagerPlan(), "AA KK QQ", "AKs");
  EXPECT_EQ(Copied(), "QQ+,AKs:0.5");
  Press({"ctrl+z"});
  WaitForHands(manager, ManagerPlan(), "");
  Press({"ctrl+shift+z"});
  WaitForHands(manager, ManagerPlan(), "AA KK QQ", "AKs");

  Paste("QQ+, KXs");
  const Window message = Session().WaitForWindow("This Is Not a Range");
  EXPECT_EQ(MessageText(message), "QQ+, KXs\n     ^ \"X\" is not a rank");
  Answer(message, {"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));
  WaitForHands(manager, ManagerPlan(), "AA KK QQ", "AKs");

  // The menu by Shift+F10 on the first hand, down to "Top x%...", and by the menu key, up to "Undo".
  Press({"Tab", "shift+F10", "Down", "Down", "Down", "Down", "Down", "Return"});
  const Window share = Session().WaitForWindow("Top x%");
  Session().Type("1");
  Answer(share, {"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));
  WaitForHands(manager, ManagerPlan(), "AA KK");
  Press({"Menu", "Up", "Return"});
  WaitForHands(manager, ManagerPlan(), "AA KK QQ", "AKs");

  Press({"ctrl+s"});
  Answer(Session().WaitForWindow("Quillon"), {"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));
  EXPECT_EQ(ReadAllBytes(RangeFilePath(Session().Program(), "Fast")), TextWith("AA KK QQ", "AKs") + "\r\n");
}

TEST_P(PaintingJourney, ByTheMouseInBothDialogs) {
  const auto pixels = [this](int length) { return qRound(length * Session().Screen().Scale); };
  Click("lblNav(2)");
  Click("lblNewRange(3)");
  // The two grids beside each other, above the main window.
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

  // The summary of the one dialog, dragged on to the grid of the other.
  const QRect summary = OnScreen(manager, ManagerPlan(), "txtRangeAbbr");
  Session().ClickAt(summary.center());
  Press({"ctrl+a"});
  Session().Drag(summary.topLeft() + QPoint(pixels(20), pixels(14)), Cell(newRange, NewRangePlan(), "72o").center());
  WaitForHands(newRange, NewRangePlan(), "AA", "AKs");
}

TEST_P(PaintingJourney, ResultsAreTakenAlong) {
  Session().AddCommand("xdg-open");
  Analyze(kRaiseRun, kRaise);
  const QImage shown = Look("GridContainer");

  const std::string picture =
      Session().CopiedBy([&] { ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 0, 0); }, "image/png");
  const QImage copied = QImage::fromData(QByteArray::fromStdString(picture)).convertToFormat(shown.format());
  EXPECT_EQ(copied, shown) << "the grid without the panel of the hand under the mouse";

  EXPECT_EQ(Session().CopiedBy([&] { ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 1, 0); }),
            Replaced(CompanionText({"--format", "csv"}), ",", "\t"));

  ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 2, 0);
  const Window dialog = Session().WaitForWindow("Save as Web Page");
  Session().Type("shove.html");
  Answer(dialog, {"Return"});
  const Window question = Session().WaitForWindow("Open Now?");
  EXPECT_EQ(MessageText(question), "Web page saved successfully.\n\nDo you want to open the web page now?");
  Answer(question, {"alt+y"});
  const fs::path page = Session().Program().Path / "Saved Grids" / "shove.html";
  EXPECT_EQ(ReadAllBytes(page), CompanionText({"--format", "html"}));
  EXPECT_TRUE(Session().CommandArguments("xdg-open").ends_with("Saved%20Grids/shove.html\n"));

  ClickEntry(MenuOn(Main(), MainPlan(), "KTs"), 4, 1);
  const std::vector<std::string> forum = {"--format", "2+2", "--hand", "KTs"};
  Click("rtfSummary");
  EXPECT_EQ(Session().CopyAllText(), CompanionText(forum));

  // The same by the keyboard alone, of the hand that it has reached.
  Session().PutMouseAside();
  Press({"ctrl+4", "ctrl+Home", "Right", "shift+F10", "Up", "Return"});
  Session().WaitUntil("the report shows", [&] { return Look("GridContainer") != shown; });
  Click("rtfSummary");
  EXPECT_EQ(Session().CopyAllText(), CompanionText({"--format", "2+2", "--hand", "AKs"}));

  Press({"ctrl+4", "ctrl+Home", "Menu", "Up", "Up", "Return"});
  static_cast<void>(Session().WaitForWindow("Study"));
}

INSTANTIATE_TEST_SUITE_P(Window, PaintingJourney,
                         testing::Values(Desk{}, Desk{.Width = 2800, .Height = 2000, .Scale = 2}),
                         [](const auto& entry) { return entry.param.Scale == 1 ? "At100" : "At200"; });

}  // namespace
}  // namespace quillon
