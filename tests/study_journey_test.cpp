// A player who asks on in the study window, by keys and by the mouse, and hears what it says. Its figures are those
// that the companion prints.

#include <algorithm>
#include <gmock/gmock.h>
#include <string>
#include <string_view>

#include "hand/equity_table.h"
#include "ranges/range_files.h"
#include "ranges/range_text.h"
#include "study/balance_texts.h"
#include "study/window/study_form.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "tests/program_run.h"
#include "tests/screen_reader_journey.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const EnteredSituation kRaise = {"150", "50", "1200", "Button Shove", "Big Blind Call"};
constexpr std::string_view kRaiseWords =
    "Preflop Raise: pot 150, 50 to call, he must call 1200; he plays \"Button Shove\" and calls with \"Big Blind "
    "Call\"";
const EnteredSituation kCall = {"110", "90", "", "Button Shove", ""};
constexpr std::string_view kCallWords = "Preflop Call: pot 110, 90 to call; he plays \"Button Shove\"";

class StudyJourney : public ScreenReaderJourney {
 protected:
  // There is room for both windows, one below the other.
  StudyJourney() : ScreenReaderJourney(Desk{.Width = 1400, .Height = 2700, .IsHeard = true}) {}

  /// From the link of the scenario's screen to the end of the run, whatever window is in front.
  void RunRaise() {
    Open("lblNav(1)");
    Fill("How much is the current pot?", kRaise.Pot);
    Fill("How much do you have to call?", kRaise.Call);
    Fill("How much will your opponent have to call if you go ALL IN?", kRaise.Shove);
    Choose("What is his current range?", kRaise.Range);
    Choose("What range will he call with?", kRaise.CallingRange);
    WaitForResults();
  }
  void RunCall() {
    Open("lblNav(0)");
    Fill("How much is the current pot?", kCall.Pot);
    Fill("How much do you have to call?", kCall.Call);
    Choose("What is his current range?", kCall.Range);
    WaitForResults();
  }

  Window OpenStudy() {
    Session().Press({"ctrl+t"});
    const Window study = Session().WaitForWindow(kStudyTitle);
    Session().MoveWindow(study, {50, 1700});
    return study;
  }

  [[nodiscard]] std::string Companion(std::vector<std::string> arguments) const {
    arguments.insert(arguments.end(), {"--folder", Session().Program().Path.string()});
    ProgramRun run;
    run.Program = QUILLON_CLI_PROGRAM;
    run.Arguments = std::move(arguments);
    const ProgramOutcome outcome = RunProgram(run);
    EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
    return outcome.Output;
  }

  [[nodiscard]] std::string CellWords(std::string_view hand) { return Reader().Description(The("link", hand)); }

  void WaitForFocusOn(std::string_view hand) {
    const Part cell = The("link", hand);
    Session().WaitUntil("the keyboard is on " + std::string(hand), [&] { return Reader().HasFocus(cell); });
  }

  [[nodiscard]] QPoint MiddleOf(std::string_view role, std::string_view name) {
    return Reader().PlaceOf(The(role, name)).center();
  }

  void WaitForAnnouncement(const std::string& start) {
    Session().WaitUntil("it is announced: " + start, [&] {
      const std::vector<std::string> said = Reader().TakeAnnouncements();
      return std::ranges::any_of(said, [&start](const std::string& text) { return text.starts_with(start); });
    });
  }

 private:
  void Open(std::string_view link) {
    Click(link);
    static_cast<void>(Session().WaitForWindow(kMainTitle));
  }
  void WaitForResults() {
    Press("push button", "Analyze");
    static_cast<void>(The("link", "ALL IN Grid"));
  }
};

TEST_F(StudyJourney, LimitsAreReadByKeysAndAreTheCompanions) {
  RunRaise();
  static_cast<void>(OpenStudy());
  static_cast<void>(The("label", kRaiseWords));
  static_cast<void>(The("panel", "Limits"));
  WaitForFocusOn("AA");
  Session().Press({"Right", "Down", "ctrl+End", "Home"});
  WaitForFocusOn("A2o");
  EXPECT_THAT(CellWords("A2o"), AllOf(StartsWith("up to "), EndsWith(" at 1200")));

  std::string table = Session().CopyAllText();
  std::ranges::replace(table, '\t', ',');
  EXPECT_EQ(table, Companion({"limits", "raise", "--pot", "150", "--call", "50", "--range", "Button Shove",
                              "--calling-range", "Big Blind Call", "--format", "csv"}));
  Session().Press({"ctrl+w"});
  Session().WaitUntil("the study has gone", [&] { return !Session().FindWindow(kStudyTitle); });
  EXPECT_EQ(CloseProgram(), 0);
}

TEST_F(StudyJourney, ANewAnalysisIsOfferedAndFollowedByMouse) {
  static_cast<void>(OpenStudy());
  static_cast<void>(The("label", "No situation yet"));
  RunRaise();
  static_cast<void>(The("label", kRaiseWords));

  static_cast<void>(Reader().TakeAnnouncements());
  RunCall();
  WaitForAnnouncement("Follow the new analysis: " + std::string(kCallWords));
  static_cast<void>(The("label", kRaiseWords));
  Session().ClickAt(MiddleOf("push button", "Follow the new analysis"));
  static_cast<void>(The("label", kCallWords));
  EXPECT_FALSE(Reader().Find("push button", "Follow the new analysis"));

  const std::string words = CellWords("K9o");
  const std::size_t comma = words.find(", ");
  Session().MoveTo(MiddleOf("link", "K9o"));
  static_cast<void>(The("label", "Does not lose: " + words.substr(0, comma) + "\nNow, at 90: " +
                                     (words.ends_with(", loses at 90") ? "loses" : "does not lose")));
}

TEST_F(StudyJourney, HisBalancedRangeIsSavedAndChosen) {
  RunRaise();
  static_cast<void>(OpenStudy());
  Session().ClickAt(MiddleOf("page tab", "Balanced ranges"));
  WaitForAnnouncement("Shove: ");
  LoadEquityTable();
  const ClassWeights his = RangeWeightsOf(LoadRangeText(Session().Program(), kRaise.Range));
  const Equilibrium found =
      FindEquilibrium(HandNumbers(), {.Pot = 150, .Call = 50, .Shove = 1200, .HisHands = his}).value();
  static_cast<void>(The("label", BalanceWords(found)));
  EXPECT_THAT(Companion({"balance", "--pot", "150", "--call", "50", "--shove", "1200", "--range", "Button Shove",
                         "--save-call", "Theirs"}),
              HasSubstr("Worth " + NumberText(RoundTo(found.Value, 6)) + " on average"));

  Press("push button", "Save his range...");
  const Window name = Session().WaitForWindow("Pick a Name");
  Session().Press({"ctrl+a"});
  Session().Type("Ours");
  Answer(name, {"Return"});
  Answer(Session().WaitForWindow("Quillon"), {"Return"});
  Session().WaitUntil("the range is chosen", [&] {
    const auto list = Reader().FindAnywhere("combo box", "What range will he call with?");
    return list && Reader().Description(*list) == "Ours";
  });
  EXPECT_EQ(LoadRangeText(Session().Program(), "Ours"), LoadRangeText(Session().Program(), "Theirs"));
}

}  // namespace
}  // namespace quillon
