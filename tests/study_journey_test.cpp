// A player who asks on in the study window, by keys, and hears what it says. Its figures are those
// that the companion prints.

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

class StudyJourney : public ScreenReaderJourney {
 protected:
  void OpenStudyOfARaise() {
    FillIn(kRaiseRun, kDeepRaise);
    Press("push button", "Analyze");
    static_cast<void>(The("link", "ALL IN Grid"));
    Session().Press({"ctrl+t"});
    static_cast<void>(Session().WaitForWindow(kStudyTitle));
  }

  [[nodiscard]] std::string CellWords(std::string_view hand) { return Reader().Description(The("link", hand)); }

  void WaitForFocusOn(std::string_view hand) {
    const Part cell = The("link", hand);
    Session().WaitUntil("the keyboard is on " + std::string(hand), [&] { return Reader().HasFocus(cell); });
  }

  // A figure of the companion's table, by its line and its column, as the window rounds it.
  [[nodiscard]] static std::string Told(const std::string& table, const std::string& place, std::size_t column) {
    for (const std::string& line : Split(table, "\n")) {
      const std::vector<std::string> cells = Split(line, ",");
      if (cells.front() == place) return NumberText(RoundTo(LeadingNumber(cells.at(column)), 4));
    }
    return "no such line";
  }

  void WaitForAnnouncement(const std::string& start) {
    Session().WaitUntil("it is announced: " + start, [&] {
      const std::vector<std::string> said = Reader().TakeAnnouncements();
      return std::ranges::any_of(said, [&start](const std::string& text) { return text.starts_with(start); });
    });
  }
};

TEST_F(StudyJourney, LimitsAreReadByKeysAndAreTheCompanions) {
  OpenStudyOfARaise();
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

// By keys alone: the hands, the points, and the table, which is the companion's byte for byte.
TEST_F(StudyJourney, HowFarIsReadOffByKeysAndSaved) {
  OpenStudyOfARaise();
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
