#include "analysis/analysis_driver.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/results_table.h"
#include "hand/equity_table.h"
#include "testing/fault_of.h"
#include "testing/recorded_messages.h"
#include "testing/split_text.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr std::int16_t kCallButton = 0;
constexpr std::int16_t kRaiseButton = 1;
constexpr std::int16_t kEquityButton = 2;

const std::string kShoveLine =
    "SetProgressMessage Please wait while we determine what hands you should go ALL IN with...";

// Very short range texts, for quick runs. A class that a text does not name reads the number before the first bracket.
const std::string kEveryHand = "all 1)";
const std::string kNoHand = "all 0)";
const std::string kAces = "all 0), AA (1)";
const std::string kPairs = "all 0), AA (1), KK (1), QQ (1), 22 (0.5)";

// A window that logs the calls of a click on an Analyze button, each as its name and arguments: "ShowFrame Progress",
// "RaiseCell 0". After logging a call it runs `OnCall`. The boxes and lists of every screen hold what was entered.
class RecordingWindow : public AnalysisWindow {
 public:
  explicit RecordingWindow(EnteredSituation entered) : Entered(std::move(entered)) {}

  [[nodiscard]] std::string BoxText(std::int16_t index) const override {
    const std::array<const std::string*, 3> amounts = {&Entered.Pot, &Entered.Call, &Entered.Shove};
    for (const InputScreen& screen : kInputScreens) {
      for (std::size_t i = 0; i < amounts.size(); ++i) {
        if (screen.AmountBoxes.at(i) == index) return *amounts.at(i);
      }
    }
    return "no box";
  }
  [[nodiscard]] std::string SelectedRange(std::int16_t index) const override {
    for (const InputScreen& screen : kInputScreens) {
      if (screen.RangeLists[0] == index) return Entered.Range;
      if (screen.RangeLists[1] == index) return Entered.CallingRange;
    }
    return "no list";
  }
  [[nodiscard]] NumberMarks Marks() const override { return {}; }
  [[nodiscard]] MessageBoxes& Messages() override { return Boxes; }

  void ShowFrame(std::string_view name) override { Note("ShowFrame", name); }
  void SetResultsShown(bool shown) override { Note("SetResultsShown", shown ? "true" : "false"); }
  void SetNoResultsCaption(std::string_view caption) override { Note("SetNoResultsCaption", caption); }
  void SetNoResultsUnderline(bool underline) override { Note("SetNoResultsUnderline", underline ? "true" : "false"); }
  void SetProgressMessage(std::string_view caption) override { Note("SetProgressMessage", caption); }
  void SetProgressPercent(std::string_view caption) override { Note("SetProgressPercent", caption); }
  void SetProgressBarWidth(float twips) override {
    Note("SetProgressBarWidth", NumberText(static_cast<double>(twips)));
  }
  void RaiseCell(std::int16_t index) override { Note("RaiseCell", std::to_string(index)); }
  void HideGridBack() override { Note("HideGridBack", ""); }
  void Yield() override { Note("Yield", ""); }
  void PresentResults(const Analysis& /*analysis*/) override { Note("PresentResults", ""); }
  void ShowGrid(const Analysis& /*analysis*/) override { Note("ShowGrid", ""); }

  // The number of log lines that start with `text`.
  [[nodiscard]] std::ptrdiff_t Count(std::string_view text) const {
    return std::count_if(Log.begin(), Log.end(), [&](const std::string& line) { return line.starts_with(text); });
  }

  // The lines from the last one equal to `line` onwards, inclusive; none if there is no such line.
  [[nodiscard]] std::vector<std::string> LogFromLast(std::string_view line) const {
    const auto last = std::find(Log.rbegin(), Log.rend(), line);
    if (last == Log.rend()) return {};
    return {last.base() - 1, Log.end()};
  }

  EnteredSituation Entered;
  RecordedMessages Boxes;
  std::vector<std::string> Log;
  std::function<void(const std::string& line)> OnCall;

 private:
  void Note(std::string line, std::string_view argument) {
    if (!argument.empty()) line.append(" ").append(argument);
    Log.push_back(line);
    const auto action = OnCall;  // it may replace or clear itself
    if (action) action(line);
  }
};

class AnalysisDriver : public testing::Test {
 public:
  void SetUp() override {
    LoadEquityTable();
    ranges_.Save("Full", kEveryHand);
    ranges_.Save("Aces", kAces);
    ranges_.Save("Pairs", kPairs);
    ranges_.Save("Nothing", kNoHand);
  }

  void Run(std::int16_t button) { RunAnalysis(state_, button, window_, ranges_.Folder()); }

  // The engine's table for the same entries.
  [[nodiscard]] std::string TableOf(std::int16_t button, const EnteredSituation& entered) const {
    return Analyze(SituationOf(ScreenOfButton(button).Mode, entered, ranges_.Folder()))->HandInfo;
  }

  // Calls `action` during yield number `yield`, counted from 1.
  template <class Action>
  void AtYield(int yield, Action action) {
    window_.OnCall = [this, yield, action](const std::string& line) {
      if (line == "Yield" && window_.Count("Yield") == yield) action();
    };
  }

  TemporaryProgram ranges_;
  RecordingWindow window_{{"100", "50", "200", "Pairs", "Aces"}};
  AnalysisState state_;
};

TEST_F(AnalysisDriver, ARunStartsInOrder) {
  struct Row {
    std::int16_t button;
    std::string message;
  };
  for (const Row& row :
       {Row{kCallButton, kShoveLine}, Row{kRaiseButton, kShoveLine},
        Row{kEquityButton, "SetProgressMessage Quillon is determing your equity vs the following range: \r\nPairs"}}) {
    window_.Log.clear();
    state_ = {};
    std::string stored;  // at each call, whether the situation is stored and whether the state is running
    window_.OnCall = [&](const std::string& /*line*/) {
      stored += state_.RangeName.empty() ? '-' : state_.Running ? 'R' : 'S';
    };
    Run(row.button);
    const std::vector<std::string> start(window_.Log.begin(), window_.Log.begin() + 7);
    EXPECT_THAT(start, ElementsAre("SetResultsShown false", "SetNoResultsCaption Please wait...", row.message,
                                   "ShowFrame Progress", "SetNoResultsUnderline true", "HideGridBack", "RaiseCell 0"));
    EXPECT_EQ(stored.substr(0, start.size()), "---SRRR");
  }
}

TEST_F(AnalysisDriver, EachClassIsRaisedCountedAndFollowedByOneYield) {
  Run(kEquityButton);
  std::vector<std::string> expected;
  for (int index = 0; index < 169; ++index) {
    const auto width = static_cast<double>(static_cast<float>((index + 1) / 169.0 * 7815));
    expected.push_back("RaiseCell " + std::to_string(index));
    expected.push_back("SetProgressPercent " + NumberText(std::nearbyint((index + 1) / 169.0 * 100)) + "%");
    expected.push_back("SetProgressBarWidth " + NumberText(width));
    expected.push_back("Yield");
  }
  const std::vector<std::string> loop(window_.Log.begin() + 6, window_.Log.end() - 5);
  EXPECT_THAT(loop, ElementsAreArray(expected));
}

TEST_F(AnalysisDriver, AFinishedRunEndsInOrder) {
  window_.OnCall = [this](const std::string& line) {
    if (line != "PresentResults") return;
    EXPECT_FALSE(state_.Running);
    EXPECT_EQ(Lines(state_.HandInfo, "\r\n").size(), 169U);
  };
  Run(kCallButton);
  EXPECT_THAT(window_.LogFromLast("Yield"),
              ElementsAre("Yield", "SetNoResultsUnderline false",
                          "SetNoResultsCaption There are no results to display at this time.", "PresentResults",
                          "SetResultsShown true", "ShowGrid"));
  EXPECT_FALSE(state_.Running);
}

// Whatever the scenario does not ask for keeps its value from an earlier run.
TEST_F(AnalysisDriver, ARunStoresItsSituation) {
  window_.Entered = {"15", "", "100", "Pairs", "Full"};
  std::string dropped;
  state_.DroppedHands = "of an earlier run";
  AtYield(168, [&] { dropped = state_.DroppedHands; });
  Run(kRaiseButton);
  Situation stored = SituationOf(AnalysisMode::kPreflopRaise, window_.Entered, ranges_.Folder());
  EXPECT_EQ(static_cast<const Situation&>(state_), stored);
  EXPECT_EQ(dropped, "of an earlier run") << "they are listed with the last class";
  EXPECT_TRUE(state_.DroppedHands.starts_with("AKs, AKo, AQs,")) << state_.DroppedHands;
  EXPECT_TRUE(state_.DroppedHands.ends_with("32s, 22 (½'d)")) << state_.DroppedHands;
  dropped = state_.DroppedHands;

  window_.Entered = {"150", "50", "7", "Aces", "Aces"};
  Run(kCallButton);
  stored.Mode = AnalysisMode::kPreflopCall;
  stored.Amounts = {150, 50, 100};
  stored.RangeName = "Aces";
  stored.RangeText = kAces;
  EXPECT_EQ(static_cast<const Situation&>(state_), stored);
  EXPECT_EQ(state_.DroppedHands, dropped);

  window_.Entered = {"1", "2", "3", "Full", "Aces"};
  Run(kEquityButton);
  stored.Mode = AnalysisMode::kEquityOnly;
  stored.RangeName = "Full";
  stored.RangeText = kEveryHand;
  EXPECT_EQ(static_cast<const Situation&>(state_), stored);
}

TEST_F(AnalysisDriver, AFailedCheckLeavesTheWaitCaptionBehind) {
  struct Row {
    std::int16_t button;
    AnalysisMode mode;
    const char* title;
  };
  window_.Entered = {"0", "0", "0", "", ""};
  state_.HandInfo = "an earlier table";
  state_.RangeName = "an earlier range";
  for (const Row& row : {Row{kCallButton, AnalysisMode::kPreflopCall, "Missing Range"},
                         Row{kRaiseButton, AnalysisMode::kPreflopRaise, "Missing Range"},
                         Row{kEquityButton, AnalysisMode::kEquityOnly, "Select Range"}}) {
    window_.Log.clear();
    window_.Boxes.Shown.clear();
    Run(row.button);
    EXPECT_THAT(window_.Log, ElementsAre("SetResultsShown false", "SetNoResultsCaption Please wait..."));
    ASSERT_EQ(window_.Boxes.Shown.size(), 1U);
    EXPECT_EQ(window_.Boxes.Shown[0].title, row.title);
    EXPECT_EQ(state_.Mode, row.mode);
    EXPECT_FALSE(state_.Running);
    EXPECT_EQ(state_.HandInfo, "an earlier table");
    EXPECT_EQ(state_.RangeName, "an earlier range");
  }
}

TEST_F(AnalysisDriver, OnlyTheWaitCaptionIsALink) {
  for (const std::string_view caption : {kNoResultsCaption, std::string_view("please wait..."), std::string_view()})
    ClickNoResults(caption, window_);
  EXPECT_THAT(window_.Log, ElementsAre());
  ClickNoResults("Please wait...", window_);
  EXPECT_THAT(window_.Log, ElementsAre("ShowFrame Progress"));
}

TEST_F(AnalysisDriver, AStopInAYieldLetsTheNextClassFinish) {
  AtYield(1, [this] { StopAnalysis(state_); });
  Run(kRaiseButton);
  EXPECT_EQ(window_.Count("RaiseCell"), 2);
  EXPECT_EQ(window_.Count("SetProgressPercent"), 2);
  EXPECT_EQ(window_.Count("Yield"), 1);
  EXPECT_THAT(
      window_.LogFromLast("SetNoResultsUnderline false"),
      ElementsAre("SetNoResultsUnderline false", "SetNoResultsCaption There are no results to display at this time.",
                  "ShowFrame Preflop Raise"));
}

TEST_F(AnalysisDriver, AStopInTheLastYieldThrowsAllClassesAway) {
  state_.HandInfo = "an earlier table";
  AtYield(169, [this] { StopAnalysis(state_); });
  Run(kEquityButton);
  EXPECT_EQ(window_.Count("RaiseCell"), 169);
  EXPECT_EQ(window_.Count("PresentResults"), 0);
  EXPECT_EQ(window_.Count("SetResultsShown true"), 0);
  EXPECT_EQ(window_.Log.back(), "ShowFrame Equity Only");
  EXPECT_EQ(state_.HandInfo, "an earlier table");
  EXPECT_EQ(state_.RangeName, "Pairs");

  window_.OnCall = nullptr;
  Run(kEquityButton);
  EXPECT_EQ(window_.Log.back(), "ShowGrid") << "the next run succeeds";
}

TEST_F(AnalysisDriver, ARunInsideARunStopsTheOuterOneAtItsNextClass) {
  AtYield(3, [this] {
    window_.OnCall = nullptr;
    window_.Entered.Range = "Aces";
    Run(kEquityButton);
  });
  Run(kRaiseButton);
  EXPECT_THAT(
      window_.LogFromLast("PresentResults"),
      ElementsAre("PresentResults", "SetResultsShown true", "ShowGrid", "RaiseCell 3", "SetProgressPercent 2%",
                  "SetProgressBarWidth 184.970413208008", "SetNoResultsUnderline false",
                  "SetNoResultsCaption There are no results to display at this time.", "ShowFrame Equity Only"));
  EXPECT_EQ(window_.Count("RaiseCell"), 4 + 169);
  EXPECT_EQ(state_.HandInfo, TableOf(kEquityButton, {"", "", "", "Aces", ""}));
  EXPECT_FALSE(state_.Running);
}

TEST_F(AnalysisDriver, AnOuterRunLeavesTheDroppedHandsOfAnInnerOne) {
  AtYield(168, [this] {
    window_.OnCall = nullptr;
    window_.Entered = {"15", "5", "100", "Aces", "Pairs"};
    Run(kRaiseButton);
  });
  window_.Entered = {"15", "5", "100", "Aces", "Full"};
  Run(kRaiseButton);
  EXPECT_EQ(state_.DroppedHands, "KK, QQ");
}

TEST_F(AnalysisDriver, AClickThatItsCheckRefusesLeavesTheRunItsOwnScenario) {
  const EnteredSituation situation = window_.Entered;
  const EnteredSituation nothing;
  for (const std::int16_t button : {kCallButton, kRaiseButton, kEquityButton}) {
    for (const std::int16_t refused : {kCallButton, kRaiseButton, kEquityButton}) {
      SCOPED_TRACE(testing::Message() << "button " << button << ", refused " << refused);
      state_ = {};
      window_.Boxes.Shown.clear();
      window_.Entered = situation;
      AnalysisMode presented = AnalysisMode::kNone;
      window_.OnCall = [&](const std::string& line) {
        if (line == "PresentResults") presented = state_.Mode;
        if (line != "SetProgressPercent 30%") return;
        window_.Entered = nothing;
        Run(refused);
        EXPECT_EQ(state_.Mode, ScreenOfButton(refused).Mode);
        window_.Entered = situation;
      };
      Run(button);
      EXPECT_FALSE(window_.Boxes.Shown.empty());
      EXPECT_EQ(window_.Log.back(), "ShowGrid") << "the run continues and finishes";
      EXPECT_EQ(presented, ScreenOfButton(button).Mode);
      EXPECT_EQ(state_.HandInfo, TableOf(button, situation));
    }
  }
}

TEST_F(AnalysisDriver, ARunThatIsStoppedAfterARefusedClickReturnsToTheRefusedScreen) {
  AtYield(2, [this] {
    window_.Entered.Range = "";
    Run(kEquityButton);
    StopAnalysis(state_);
  });
  Run(kCallButton);
  EXPECT_EQ(window_.Log.back(), "ShowFrame Equity Only");
}

TEST_F(AnalysisDriver, ABoxEditedDuringARunIsFeltByTheClassesToCome) {
  const EnteredSituation before{"100", "50", "200", "Pairs", "Pairs"};
  const EnteredSituation after{"120", "40", "300", "Pairs", "Pairs"};
  for (const std::int16_t button : {kCallButton, kRaiseButton}) {
    window_.Log.clear();
    window_.Entered = before;
    AtYield(50, [&] { window_.Entered = after; });
    Run(button);
    const auto rows = Lines(state_.HandInfo, "\r\n");
    const auto rowsBefore = Lines(TableOf(button, before), "\r\n");
    const auto rowsAfter = Lines(TableOf(button, after), "\r\n");
    for (std::size_t index = 0; index < rows.size(); ++index)
      EXPECT_EQ(rows[index], (index < 50 ? rowsBefore : rowsAfter)[index]);
    EXPECT_EQ(state_.Amounts.PotSize, 100);
    EXPECT_EQ(state_.Amounts.CallAmount, 50);
  }
  EXPECT_EQ(state_.Amounts.ShoveAmount, 200);
}

// A window in which a range's file vanishes when the run starts, after the check has read it.
class VanishingRange : public RecordingWindow {
 public:
  VanishingRange(EnteredSituation entered, const TemporaryProgram& ranges, int readings = 1)
      : RecordingWindow(std::move(entered)), ranges_(ranges), readings_(readings) {}

  [[nodiscard]] std::string SelectedRange(std::int16_t index) const override {
    if (++asked_ == readings_ + 1) ranges_.Remove("Aces");
    return RecordingWindow::SelectedRange(index);
  }

 private:
  const TemporaryProgram& ranges_;
  int readings_;  // of the lists by the check
  mutable int asked_ = 0;
};

TEST_F(AnalysisDriver, ARangeFileThatReturnsBeforeTheFirstClassIsReadThenAndKept) {
  struct Row {
    std::int16_t button;
    EnteredSituation entered;
    int readings;
    std::string AnalysisState::*text;
  };
  for (const Row& row : {Row{kCallButton, {"100", "50", "", "Aces", ""}, 1, &AnalysisState::RangeText},
                         Row{kRaiseButton, {"15", "5", "100", "Full", "Aces"}, 2, &AnalysisState::CallingRangeText}}) {
    VanishingRange window(row.entered, ranges_, row.readings);
    window.OnCall = [&](const std::string& line) {
      if (line != "ShowFrame Progress") return;
      EXPECT_EQ(state_.*row.text, "");
      ranges_.Save("Aces", kAces);
    };
    RunAnalysis(state_, row.button, window, ranges_.Folder());
    EXPECT_EQ(state_.*row.text, kAces);
    EXPECT_EQ(state_.HandInfo, TableOf(row.button, row.entered));
  }
}

TEST_F(AnalysisDriver, AShoveWithoutARangeFileFailsOnTheFirstClass) {
  ranges_.Save("Hollow", "");
  struct Row {
    const char* name;
    const char* range;
    const char* callingRange;
  };
  for (const Row& row : {Row{"no current file", "Missing", "Full"}, Row{"no calling file", "Full", "Missing"},
                         Row{"an empty current file", "Hollow", "Full"}, Row{"an empty calling file", "Full", "Hollow"},
                         Row{"neither file", "Missing", "Missing"}}) {
    window_.Log.clear();
    window_.Entered = {"15", "5", "100", row.range, row.callingRange};
    EXPECT_EQ(FaultOf([&] { Run(kRaiseButton); }), RunTimeFault::kSubscriptOutOfRange) << row.name;
    EXPECT_EQ(window_.Log.back(), "RaiseCell 0") << row.name;
  }
}

}  // namespace
}  // namespace quillon
