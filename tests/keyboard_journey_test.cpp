// A player who never touches the mouse: all three analyses, both dialogs, the report and the user guide.

#include <QImage>
#include <QUrl>
#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "ranges/range_lists.h"
#include "results/results_grid.h"
#include "shell/user_guide.h"
#include "support/files.h"
#include "testing/range_texts.h"
#include "tests/window_journey.h"

namespace quillon {
namespace {

class KeyboardJourney : public WindowJourney {
 protected:
  KeyboardJourney() {
    Session().AddCommand("xdg-open");
    StartProgramWithRanges();
    Session().PutMouseAside();
  }

  void Press(const std::vector<std::string>& keys) const { Session().Press(keys); }
  void PressTimes(const std::string& key, std::size_t times) const { Press(std::vector<std::string>(times, key)); }

  /// In the focused list. Its first entry is blank.
  void ChooseByKeys(const std::string& range) const {
    const std::vector<std::string> files = RangeFolderEntries(Session().Program());
    const auto wanted = std::ranges::find(files, range + ".txt");
    ASSERT_NE(wanted, files.end());
    Press({"Home"});
    PressTimes("Down", static_cast<std::size_t>(wanted - files.begin()) + 1);
  }

  void WaitForGridOf(std::int16_t button, const EnteredSituation& situation) const {
    const GridColorTable expected = GridColors(AnalysisOf(button, situation, Session().Program()));
    Session().WaitUntil("the grid shows the colours of the analysis", [&] { return CellColors() == expected; });
  }

  /// Whether the dark line of the focus mark surrounds the whole cell.
  [[nodiscard]] bool IsMarked(const Window& window, const FormPlan& plan, std::string_view hand) const {
    const int out = qRound(Session().Screen().Scale);
    const QRect line =
        OnScreen(window, plan, ObjectName("shapeCardBack", HandIndex(hand))).adjusted(-out, -out, out, out);
    const QPoint upper(line.center().x(), line.top());
    return std::ranges::all_of(
        std::array{line.topLeft(), line.topRight(), line.bottomLeft(), line.bottomRight(), upper},
        [&](QPoint point) { return Session().Color(point) == qRgb(0x10, 0x20, 0x30); });
  }
};

TEST_F(KeyboardJourney, LeadsThroughTheWholeProgram) {
  Press({"ctrl+1"});
  Session().Type("=100+10");
  Press({"Tab"});
  Session().Type(kCall.Call);
  Press({"Tab"});
  ChooseByKeys(kCall.Range);
  Press({"Tab", "Return"});
  WaitForGridOf(kCallRun, kCall);
  Session().WaitUntil("the grid has the keyboard", [&] { return IsMarked(Main(), MainPlan(), "AA"); });

  const GridColorTable colors = CellColors();
  Press({"Right", "Down"});
  Session().WaitUntil("the panel of KK shows", [&] { return CellColors() != colors; });
  Session().WaitUntil("KK is marked", [&] { return IsMarked(Main(), MainPlan(), "KK"); });
  Press({"Escape"});
  Session().WaitUntil("the panel has gone", [&] { return CellColors() == colors; });

  Press({"ctrl+2"});
  Session().Type(kRaise.Pot);
  Press({"Tab"});
  Session().Type(kRaise.Call);
  Press({"Tab"});
  Session().Type(kRaise.Shove);
  Press({"Tab"});
  ChooseByKeys(kRaise.Range);
  Press({"Tab"});
  ChooseByKeys(kRaise.CallingRange);
  Press({"ctrl+Return"});
  WaitForGridOf(kRaiseRun, kRaise);
  Press({"ctrl+5"});
  EXPECT_THAT(Session().CopyAllText(), testing::HasSubstr("KTs"));
  Press({"ctrl+4"});
  WaitForGridOf(kRaiseRun, kRaise);

  Press({"ctrl+3"});
  ChooseByKeys(kEquity.Range);
  Press({"ctrl+Return"});
  WaitForGridOf(kEquityRun, kEquity);

  Press({"F1"});
  const QUrl guide = QUrl::fromLocalFile(QString::fromStdString(UserGuidePath(Session().Program().Path).string()));
  EXPECT_EQ(Session().CommandArguments("xdg-open"), guide.toEncoded().toStdString() + "\n");

  Press({"ctrl+q"});
  EXPECT_EQ(Session().WaitForEnd(), 0);
}

TEST_F(KeyboardJourney, PaintsRangesInBothDialogs) {
  Press({"ctrl+r"});
  const Window manager = Session().WaitForWindow(kManagerTitle);
  Press({"ctrl+n"});
  const Window name = Session().WaitForWindow("Rename Range");
  Session().Type("By hand");
  Answer(name, {"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));
  Press({"Tab", "End"});
  Session().WaitUntil("A2s is marked", [&] { return IsMarked(manager, ManagerPlan(), "A2s"); });
  Press({"space", "ctrl+Home", "space", "ctrl+s"});
  Answer(Session().WaitForWindow("Quillon"), {"Return"});
  static_cast<void>(Session().WaitForWindow(kManagerTitle));
  EXPECT_EQ(ReadAllBytes(RangeFilePath(Session().Program(), "By hand")), TextWith("AA A2s") + "\r\n");
  Press({"Escape"});
  Session().WaitUntilGone(manager);
  static_cast<void>(Session().WaitForWindow(kMainTitle));

  // On to Analyze, and to the link after it.
  Press({"ctrl+3", "Tab", "Tab", "Return"});
  const Window dialog = Session().WaitForWindow(kNewRangeTitle);
  Press({"Right", "space", "Tab", "Tab", "Tab"});
  Session().Type("Suited");
  Press({"Return"});
  Answer(Session().WaitForWindow("Quillon"), {"Return"});
  Session().WaitUntilGone(dialog);
  EXPECT_EQ(ReadAllBytes(RangeFilePath(Session().Program(), "Suited")), TextWith("AKs") + "\r\n");

  static_cast<void>(Session().WaitForWindow(kMainTitle));
  Press({"ctrl+Return"});
  WaitForGridOf(kEquityRun, {{}, {}, {}, "Suited", {}});
  EXPECT_EQ(CloseProgram(), 0);
}

}  // namespace
}  // namespace quillon
