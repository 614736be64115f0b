#include "shell/number_boxes.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "shell/expressions.h"
#include "support/recorded_messages.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// Five boxes whose changes are handled, as the window's are: only where a text really changes.
class RecordedBoxes final : public NumberBoxWindow {
 public:
  std::vector<std::string> Boxes = std::vector<std::string>(5);
  OpponentOdds Odds = {.HisOdds = "X:1", .HisBreakEven = "0%"};
  RecordedMessages Problems;
  std::vector<std::string> Log;

  [[nodiscard]] std::string BoxText(std::int16_t index) const override {
    return Boxes.at(static_cast<std::size_t>(index));
  }
  void SetBoxText(std::int16_t index, std::string_view text) override {
    Log.push_back("box " + std::to_string(index) + " " + std::string(text));
    if (Boxes.at(static_cast<std::size_t>(index)) == text) return;
    Boxes.at(static_cast<std::size_t>(index)) = text;
    ChangeNumberBox(index, *this);
  }
  void MoveCaretToEnd(std::int16_t index) override { Log.push_back("caret of " + std::to_string(index)); }
  void SetBoxBorderWidth(std::int16_t index, int width) override {
    Log.push_back("border " + std::to_string(index) + " " + std::to_string(width));
  }
  void SetResultsShown(bool shown) override { Log.emplace_back(shown ? "show results" : "hide results"); }
  void ShowOpponentOdds(const OpponentOdds& texts) override {
    Odds = texts;
    Log.push_back("odds " + texts.HisOdds + ", " + texts.HisBreakEven);
  }
  [[nodiscard]] MessageBoxes& Messages() override { return Problems; }

  /// What the user's typing does.
  void Type(std::int16_t index, const std::string& text) {
    Boxes.at(static_cast<std::size_t>(index)) = text;
    ChangeNumberBox(index, *this);
  }
};

TEST(ChangeNumberBox, HidesTheResultsLinks) {
  for (std::int16_t index = 0; index < 4; ++index) {
    RecordedBoxes window;
    ChangeNumberBox(index, window);
    EXPECT_THAT(window.Log, ElementsAre("hide results")) << "box " << index;
  }
}

TEST(ChangeNumberBox, OfTheOpponentsCallAlsoTellsHisOdds) {
  struct Case {
    const char* rule;
    std::string pot;
    std::string call;
    std::string shove;
    const char* odds;
    const char* breakEven;
  };
  const std::vector<Case> cases = {
      {"zeros at the end do not show", "100", "0", "50", "3 : 1", "25%"},
      {"two decimals", "15", "5", "100", "1.2 : 1", "45.45%"},
      {"empty boxes count as 0", "", "", "50", "1 : 1", "50%"},
      {"no call of the opponent's", "100", "50", "", "N/A", "N/A"},
      {"a call of 0", "100", "50", "0", "N/A", "N/A"},
      {"a sum that is not worked out has the value 0", "100", "50", "=100", "N/A", "N/A"},
      {"dollar signs do not count", "$100", "$0", "$50", "3 : 1", "25%"},
      {"what follows the number does not count", "100 dollars", "0", "50 or so", "3 : 1", "25%"},
      {"a tie goes to the even digit", "1", "0", "8", "1.12 : 1", "47.06%"},
      {"a negative call of the opponent's is taken as it is", "100", "0", "-40", "-1.5 : 1", "-200%"},
  };
  for (const Case& c : cases) {
    RecordedBoxes window;
    window.Boxes = {"7", "8", c.pot, c.call, c.shove};
    ChangeNumberBox(4, window);
    EXPECT_THAT(window.Log, ElementsAre("hide results", std::string("odds ") + c.odds + ", " + c.breakEven)) << c.rule;
  }
}

TEST(ChangeNumberBox, OddsOfMinusOneAreFatal) {
  RecordedBoxes window;
  window.Boxes = {"", "", "100", "0", "-50"};
  try {
    ChangeNumberBox(4, window);
    FAIL() << "there is no such break-even equity";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Fault(), RunTimeFault::kDivisionByZero);
  }
}

TEST(RestoredNumberBox, TellsHisOddsOrThatThereAreNone) {
  struct Case {
    const char* rule;
    std::int16_t index;
    std::vector<std::string> boxes;
    std::vector<std::string> log;
  };
  const std::vector<Case> cases = {
      {"odds as of a change", 4, {"7", "8", "100", "0", "50"}, {"hide results", "odds 3 : 1, 25%"}},
      {"no shove", 4, {"7", "8", "100", "0", "abc"}, {"hide results", "odds N/A, N/A"}},
      {"odds of minus one", 4, {"", "", "40", "", "-20"}, {"hide results", "odds N/A, N/A"}},
      {"a sum that overflows", 4, {"", "", "1e308", "1e308", "1"}, {"hide results", "odds N/A, N/A"}},
      {"a quotient that overflows", 4, {"", "", "1e308", "", "1e-10"}, {"hide results", "odds N/A, N/A"}},
      {"another box leaves them", 3, {"", "", "40", "", "-20"}, {"hide results"}},
  };
  for (const Case& c : cases) {
    RecordedBoxes window;
    window.Boxes = c.boxes;
    RestoredNumberBox(c.index, window);
    EXPECT_EQ(window.Log, c.log) << c.rule;
  }
}

TEST(ChangeNumberBox, OfPotOrCallLeavesHisOddsStale) {
  RecordedBoxes window;
  window.Type(2, "100");
  window.Type(3, "0");
  EXPECT_EQ(window.Odds, (OpponentOdds{.HisOdds = "X:1", .HisBreakEven = "0%"})) << "the design's texts";
  window.Type(4, "50");
  EXPECT_EQ(window.Odds, (OpponentOdds{.HisOdds = "3 : 1", .HisBreakEven = "25%"}));
  window.Type(2, "1000");
  window.Type(3, "500");
  EXPECT_EQ(window.Odds, (OpponentOdds{.HisOdds = "3 : 1", .HisBreakEven = "25%"}));
  window.Type(4, "500");
  EXPECT_EQ(window.Odds, (OpponentOdds{.HisOdds = "4 : 1", .HisBreakEven = "20%"}));
}

TEST(EnterNumberBox, ThickensItsBorder) {
  for (std::int16_t index = 0; index < 5; ++index) {
    RecordedBoxes window;
    window.Boxes.assign(5, "=1+2");
    EnterNumberBox(index, window);
    EXPECT_THAT(window.Log, ElementsAre("border " + std::to_string(index) + " 3"));
  }
}

TEST(LeaveNumberBox, ThinsItsBorderAndThenWorksOutItsSum) {
  for (std::int16_t index = 0; index < 4; ++index) {
    RecordedBoxes window;
    window.Boxes.assign(5, "=735+220-178");
    LeaveNumberBox(index, window);
    const std::string name = std::to_string(index);
    EXPECT_THAT(window.Log, ElementsAre("border " + name + " 1", "box " + name + " 777", "hide results"));
    EXPECT_EQ(window.BoxText(index), "777");
  }
}

TEST(LeaveNumberBox, TellsHisOddsOfTheSumsValue) {
  RecordedBoxes window;
  window.Boxes = {"", "", "100", "0", ""};
  window.Type(4, "=20+30");
  EXPECT_EQ(window.Odds.HisOdds, "N/A");
  LeaveNumberBox(4, window);
  EXPECT_EQ(window.Odds, (OpponentOdds{.HisOdds = "3 : 1", .HisBreakEven = "25%"}));
}

TEST(LeaveNumberBox, TextThatStaysIsNotSet) {
  for (const char* text : {"", "777", "$35", "abc", " =1+2", "1+2"}) {
    RecordedBoxes window;
    window.Boxes[0] = text;
    LeaveNumberBox(0, window);
    EXPECT_THAT(window.Log, ElementsAre("border 0 1")) << text;
    EXPECT_EQ(window.BoxText(0), text);
    EXPECT_THAT(window.Problems.Shown, IsEmpty()) << text;
  }
}

TEST(LeaveNumberBox, BadSumStaysAfterAMessage) {
  for (const char* text : {"=1 + 2", "=$5", "=1,000", "=2*3", "=(1+2)"}) {
    RecordedBoxes window;
    window.Boxes[1] = text;
    LeaveNumberBox(1, window);
    EXPECT_THAT(window.Log, ElementsAre("border 1 1")) << text;
    EXPECT_EQ(window.BoxText(1), text);
    EXPECT_THAT(window.Problems.Shown,
                ElementsAre(Message{.title = "Problem",
                                    .text = "There was a problem processing your expression: \r\n\r\n"
                                            "Only addition (+) and subtract (-) are supported",
                                    .icon = MessageIcon::kInformation,
                                    .buttons = MessageButtons::kOk}))
        << text;
  }
}

TEST(PressKeyInNumberBox, EnterWorksOutTheSumAndPutsTheCaretBehindIt) {
  RecordedBoxes window;
  window.Boxes[2] = "=.5+.5";
  PressKeyInNumberBox(2, 13, window);
  EXPECT_THAT(window.Log, ElementsAre("box 2 1", "hide results", "caret of 2"));
}

TEST(PressKeyInNumberBox, EnterPutsTheCaretBehindAnyText) {
  for (const char* text : {"", "150", "=2*3"}) {
    RecordedBoxes window;
    window.Boxes[0] = text;
    PressKeyInNumberBox(0, kEnterKey, window);
    EXPECT_THAT(window.Log, ElementsAre("caret of 0")) << text;
    EXPECT_EQ(window.BoxText(0), text);
  }
}

TEST(PressKeyInNumberBox, OtherKeysDoNothing) {
  for (const int key : {0, 8, 9, 10, 27, 32, int{'='}, int{'5'}, -13}) {
    RecordedBoxes window;
    window.Boxes[0] = "=1+2";
    PressKeyInNumberBox(0, key, window);
    EXPECT_THAT(window.Log, IsEmpty()) << "key " << key;
  }
}

TEST(PressKeyInNumberBox, EnterAndThenLeavingComplainsTwice) {
  RecordedBoxes window;
  window.Boxes[0] = "=2*3";
  PressKeyInNumberBox(0, kEnterKey, window);
  LeaveNumberBox(0, window);
  EXPECT_THAT(window.Problems.Shown, SizeIs(2));
}

}  // namespace
}  // namespace quillon
