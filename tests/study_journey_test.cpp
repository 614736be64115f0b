// A player with further questions in the study window, by keys and mouse, with a screen reader. Its figures are those
// of the companion.

#include <algorithm>
#include <gmock/gmock.h>
#include <string>
#include <string_view>
#include <vector>

#include "study/window/study_form.h"
#include "support/files.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "testing/split_text.h"
#include "tests/screen_reader_journey.h"

namespace quillon {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const EnteredSituation kDeepRaise = {"150", "50", "1200", "Button Shove", "Big Blind Call"};
constexpr std::string_view kRaiseWords =
    "Preflop Raise: pot 150, 50 to call, he must call 1200; he plays \"Button Shove\" and calls with \"Big Blind "
    "Call\"";
constexpr std::string_view kCallWords = "Preflop Call: pot 110, 90 to call; he plays \"Button Shove\"";

class StudyJourney : public ScreenReaderJourney {
 protected:
  // There is room for both windows, one below the other.
  StudyJourney() : ScreenReaderJourney(Desk{.Width = 1400, .Height = 2700, .IsHeard = true}) {}

  /// From the link of the scenario's screen to the end of the run, whatever window is in front.
  void RunRaise() {
    Open("lblNav(1)");
    Fill("How much is the current pot?", kDeepRaise.Pot);
    Fill("How much do you have to call?", kDeepRaise.Call);
    Fill("How much will your opponent have to call if you go ALL IN?", kDeepRaise.Shove);
    Choose("What is his current range?", kDeepRaise.Range);
    Choose("What range will he call with?", kDeepRaise.CallingRange);
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

  [[nodiscard]] std::string CellWords(std::string_view hand) { return Reader().Description(The("link", hand)); }

  void WaitForFocusOn(std::string_view hand) {
    const Part cell = The("link", hand);
    Session().WaitUntil("the keyboard is on " + std::string(hand), [&] { return Reader().HasFocus(cell); });
  }

  // A figure of the companion's table, by line and column, rounded as in the window.
  [[nodiscard]] static std::string Told(const std::string& table, const std::string& place, std::size_t column) {
    for (const std::string& line : Split(table, "\n")) {
      const std::vector<std::string> cells = Split(line, ",");
      if (cells.front() == place) return NumberText(RoundTo(LeadingNumber(cells.at(column)), 4));
    }
    return "no such line";
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

// By keys alone: the hands, the points, and the table, which equals the companion's byte for byte.
TEST_F(StudyJourney, HowFarIsReadOffByKeysAndSaved) {
  RunRaise();
  static_cast<void>(OpenStudy());
  Session().Press({"ctrl+2"});
  const Part hands = The("text", "Hands, such as A7o 88");
  Reader().GiveFocus(hands);
  Session().WaitUntil("the box has the focus", [&] { return Reader().HasFocus(hands); });
  static_cast<void>(Reader().TakeAnnouncements());
  Session().Press({"ctrl+a"});
  Session().Type("K9o 88");
  Session().Press({"Return"});
  const std::string figure = NextAnnouncement();
  EXPECT_THAT(figure, AllOf(StartsWith("Preflop Raise: pot 150, 50 to call. He plays \"Button Shove\" and calls with "
                                       "\"Big Blind Call\". now 1200 chips, 8 pots. K9o, up to "),
                            EndsWith(". 88, always")));

  const std::string table =
      Companion({"sweep", "raise", "--pot", "150", "--call", "50", "--shove", "20:2400:20", "--range", "Button Shove",
                 "--calling-range", "Big Blind Call", "--hand", "K9o", "--hand", "88", "--format", "csv"});
  const Part chart = The("chart", figure);
  Reader().GiveFocus(chart);
  Session().WaitUntil("the figure has the focus", [&] { return Reader().HasFocus(chart); });
  EXPECT_THAT(Reader().Description(chart), StartsWith("K9o at 1200 chips, 8 pots, now: " + Told(table, "1200", 2)));
  static_cast<void>(Reader().TakeAnnouncements());
  Session().Press({"Up", "Right"});
  WaitForAnnouncement("88 at 1220 chips, 8.1333 pots: " + Told(table, "1220", 3));

  Session().Press({"ctrl+shift+s"});
  const Window box = Session().WaitForWindow("Save Table");
  Session().Press({"ctrl+a"});
  Session().Type("how far.csv");
  Session().Press({"Return"});
  Session().WaitUntilGone(box);
  WaitForAnnouncement("Saved as how far.csv.");
  EXPECT_EQ(ReadAllBytes(Session().Program().Path / "Saved Grids" / "how far.csv"), table);
}

}  // namespace
}  // namespace quillon
