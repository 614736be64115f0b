// Texts that somebody types into an amount box: a table of those with a rule of their own, and random ones beside
// the oracle. Companion and window take them alike, and must say the same.

#include <QComboBox>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "testing/main_stage.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/runs.h"
#include "testing/oracle/settings.h"
#include "tests/bad_inputs.h"
#include "tests/companion_in_folder.h"

namespace quillon {
namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;  // pot and call; with a shove it is "Preflop Raise"

const std::string kRange = TextWith("AA KK", "QQ");
const std::string kCallingRange = TextWith("AA KK AKs AKo");

plain::Run RunOf(const Texts& texts) {
  if (texts.size() == 2) return {plain::Mode::kCall, texts[0], texts[1], {}, kRange, {}};
  return {plain::Mode::kRaise, texts[0], texts[1], texts[2], kRange, kCallingRange};
}

/// What the oracle makes of the texts: those that stay in the boxes, and the outcome of a run with them.
struct PlainStory {
  Texts Left;
  plain::Outcome InBoxes;  // of the first text that stops the companion
  plain::Result Result;
};

PlainStory StoryOf(const Texts& texts) {
  PlainStory story{texts, {}, {}};
  for (std::string& text : story.Left) {
    const plain::Outcome outcome = plain::LeaveBox(text);
    if (story.InBoxes.GoesThrough()) story.InBoxes = outcome;
  }
  story.Result = plain::ResultOf(RunOf(story.Left));
  return story;
}

// ---- the companion

/// What is said of amounts that a comma cuts short, before anything else is said of the run.
std::string WarningsOf(const PlainStory& story) {
  std::string warnings;
  for (std::size_t i = 0; story.InBoxes.GoesThrough() && i < story.Left.size(); ++i) {
    const std::string& text = story.Left[i];
    std::string whole = text;
    std::erase(whole, ',');
    const double value = plain::BoxValue(text);
    if (!plain::IsNumeric(text) || value == plain::BoxValue(whole)) continue;
    warnings += "Warning: "s + std::array{"--pot", "--call", "--shove"}.at(i) + " " + text + " counts as " +
                plain::NumberText(value) + "; a comma ends a number.\n";
  }
  return warnings;
}

class Ranges {
 public:
  Ranges() {
    program_.Write("Pairs.txt", kRange);
    program_.Write("Tight.txt", kCallingRange);
  }

  [[nodiscard]] ProgramOutcome Run(const Texts& texts, const std::string& format) const {
    const bool raise = texts.size() == 3;
    return RunCompanionIn(program_.Folder(), Joined({{raise ? "raise" : "call", "--range", "Pairs", "--format", format},
                                                     Option("--pot", texts[0]),
                                                     Option("--call", texts[1]),
                                                     raise ? Option("--shove", texts[2]) : Texts(),
                                                     raise ? Texts{"--calling-range", "Tight"} : Texts()}));
  }
  [[nodiscard]] std::map<std::string, std::string> State() const { return StateOf(program_.Folder().Path); }

 private:
  TemporaryProgram program_;
};

struct TextCase {
  const char* Name;  // the rule
  Texts In;
  std::string Outcome;  // "pot 777, call 50" as they are read, or what standard error says
};

std::string Amounts(const nlohmann::json& object) {
  std::string text = "pot " + plain::NumberText(object["pot"]) + ", call " + plain::NumberText(object["call"]);
  return object["shove"].is_null() ? text : text + ", shove " + plain::NumberText(object["shove"]);
}

constexpr const char* kProblem =
    "Problem: There was a problem processing your expression: \n\nOnly addition (+) and subtract (-) are supported\n";
constexpr const char* kPotAboveCall =
    "Pot Size Error: The pot size must be greater than the amount you have to call.\n";
constexpr const char* kPotNotNumeric = "Pot Size Error: The pot size contains non-numeric characters\n";
constexpr const char* kCallNotNumeric = "Call Size Error: The call size contains non-numeric characters\n";
constexpr const char* kCallAboveZero = "Call Size Error: The amount to call must be greater than zero.\n";
constexpr const char* kTooLarge = "Run-time error '6': Overflow\n";
constexpr const char* kLargestPot = "pot 1.79769313486232E+308, call 1";

std::vector<TextCase> Sums() {
  return {
      {"A sum is worked out", {"=735+220-178", "50"}, "pot 777, call 50"},
      {"A sum may begin with a plus", {"=+100", "50"}, "pot 100, call 50"},
      {"A sum may begin with a minus", {"=-5+105", "50"}, "pot 100, call 50"},
      {"A sum may end with a sign", {"=100+", "50"}, "pot 100, call 50"},
      {"Two signs hold a zero between them", {"=100--30", "50"}, "pot 70, call 50"},
      {"A point may lead", {"=.5+.5", "=.1+.2"}, "pot 1, call 0.3"},
      {"A point may be last", {"=5.", "1"}, "pot 5, call 1"},
      {"Of a number with two points the first part counts", {"=1.5.2", "1"}, "pot 1.5, call 1"},
      {"A point alone is zero", {"=.", "50"}, kPotAboveCall},
      {"An empty sum is zero", {"=", "50"}, kPotAboveCall},
      {"A sign alone is zero", {"=+", "50"}, kPotAboveCall},
      {"A sum below zero is an amount below zero", {"100", "=-3"}, kCallAboveZero},
      {"Sixteen digits become fifteen", {"=1234567890123456", "1"}, "pot 1.23456789012346E+15, call 1"},
      {"A thousand terms are worked out", {"="s + std::string(998, '+') + "7+8", "1"}, "pot 15, call 1"},
      {"A blank is no part of a sum", {"=1 + 2", "1"}, kProblem},
      {"A blank at the end is no part of a sum", {"=3 ", "1"}, kProblem},
      {"A currency sign is no part of a sum", {"=$5", "1"}, kProblem},
      {"A comma is no part of a sum", {"=1,000", "1"}, kProblem},
      {"A product is no sum", {"=2*3", "1"}, kProblem},
      {"A quotient is no sum", {"=6/2", "1"}, kProblem},
      {"Brackets are no part of a sum", {"=(1+2)", "1"}, kProblem},
      {"An exponent is no part of a sum", {"=1e3", "1"}, kProblem},
      {"A second sign of equality is no part of a sum", {"==5", "1"}, kProblem},
      {"A letter is no part of a sum", {"=5x", "1"}, kProblem},
      {"A minus of typography is no part of a sum", {"=5\u22122", "1"}, kProblem},
      {"Digits of other scripts are no part of a sum", {"=\u0665", "1"}, kProblem},
      {"A line end is no part of a sum", {"=5\n", "1"}, kProblem},
      {"Bytes of no character are no part of a sum", {"=5\xFF", "1"}, kProblem},
      {"The first bad sum is the one that is told", {"=a", "=b"}, kProblem},
      {"A bad sum behind a good one is told", {"=5+5", "=b"}, kProblem},
      {"A sum beyond all numbers ends the program",
       {"=" + std::string(400, '9') + "+" + std::string(400, '9'), "1"},
       kTooLarge},
      {"A sum that comes back from beyond is zero",
       {"=" + std::string(400, '9') + "-" + std::string(400, '9'), "1"},
       kPotAboveCall},
  };
}

std::vector<TextCase> PlainTexts() {
  return {
      {"A currency sign is left out", {"$100", "$50"}, "pot 100, call 50"},
      {"A currency sign may stand before the sign", {"$+100", "+$50"}, "pot 100, call 50"},
      {"A currency sign in the middle is no number", {"1$00", "50"}, kPotNotNumeric},
      {"Two currency signs are no number", {"$$100", "50"}, kPotNotNumeric},
      {"A currency sign alone is zero", {"$", "50"}, kPotAboveCall},
      {"A comma ends the value and passes", {"1,000", "0.5"}, "pot 1, call 0.5"},
      {"A comma at the end is no number", {"100,", "50"}, kPotNotNumeric},
      {"Two commas are no number", {"1,,000", "0.5"}, kPotNotNumeric},
      {"A decimal comma is a separator", {"12,5", "1,5"}, "pot 12, call 1"},
      {"A comma behind the point is no number", {"1.5,0", "1"}, kPotNotNumeric},
      {"Blanks round a number pass", {"  100  ", " 50 "}, "pot 100, call 50"},
      {"A blank within is read over and is no number", {"1 000", "50"}, kPotNotNumeric},
      {"A tab is no blank", {"\t100", "50"}, kPotAboveCall},
      {"A tab behind is no number", {"100\t", "50"}, kPotNotNumeric},
      {"An exponent passes", {"1e3", "5E1"}, "pot 1000, call 50"},
      {"An exponent left open is no number", {"100e", "50"}, kPotNotNumeric},
      {"A plus passes", {"+100", "+50"}, "pot 100, call 50"},
      {"Letters behind are no number", {"100abc", "50"}, kPotNotNumeric},
      {"A percent sign behind is no number", {"100", "50%"}, kCallNotNumeric},
      {"Letters are zero", {"abc", "50"}, kPotAboveCall},
      {"Nothing is zero", {"", ""}, kPotAboveCall},
      {"Quotes are no part of a number", {"\"100\"", "50"}, kPotAboveCall},
      {"Square brackets are no part of a number", {"[100]", "50"}, kPotAboveCall},
      {"Hexadecimal is zero and a letter", {"0x64", "50"}, kPotAboveCall},
      {"NaN is zero", {"NaN", "1"}, kPotAboveCall},
      {"Infinity is zero", {"inf", "1"}, kPotAboveCall},
      {"Fullwidth digits are zero", {"\uFF15", "1"}, kPotAboveCall},
      {"A euro sign is no currency here", {"100", "\u20AC50"}, kCallAboveZero},
      {"A hard blank is no blank", {"100\u00A0", "50"}, kPotNotNumeric},
      {"Bytes of no character are no number", {"100\xFF\xFE", "50"}, kPotNotNumeric},
      {"A line end behind is no number", {"100\r\n", "50"}, kPotNotNumeric},
      {"A dash option is a text", {"--call", "1"}, kPotAboveCall},
      {"A call below all numbers is zero", {"100", "1e-999"}, kCallAboveZero},
      {"A pot beyond all numbers is the largest", {"1e999", "1"}, kLargestPot},
      {"A pot beyond 32 bits goes through", {"1e10", "1"}, "pot 10000000000, call 1"},
      {"Zero for both is complained of as no greater pot", {"0", "0"}, kPotAboveCall},
      {"A pot of zero above a call below it is complained of",
       {"0", "-5"},
       "Pot Size Error: The pot size must be greater than zero.\n"},
      {"A hundred thousand nines are the largest", {std::string(100000, '9'), "1"}, kLargestPot},
      {"A hundred thousand letters are zero", {std::string(100000, 'x'), "1"}, kPotAboveCall},
  };
}

std::vector<TextCase> Raises() {
  return {
      {"A call left empty is zero", {"100", "", "50"}, "pot 100, call 0, shove 50"},
      {"A call of a blank is no number", {"100", " ", "50"}, "Call Size: The call size contains illegal characters\n"},
      {"A call of letters is no number",
       {"100", "abc", "50"},
       "Call Size: The call size contains illegal characters\n"},
      {"A call below zero is told",
       {"100", "-1", "50"},
       "Call Amount: The amount you must call cannot be a negative number.\n"},
      {"A call below zero comes before letters",
       {"100", "-1x", "50"},
       "Call Amount: The amount you must call cannot be a negative number.\n"},
      {"A pot of zero is told", {"0", "0", "50"}, "Pot Size: The pot size must be greater than zero.\n"},
      {"A pot left empty is told", {"", "0", "50"}, "Pot Size: The pot size must be greater than zero.\n"},
      {"A pot with letters is told", {"100x", "0", "50"}, "Pot Size: The pot size contains non-numeric characters\n"},
      {"A shove of zero is told",
       {"100", "0", "0"},
       "Pot Size: The amount your opponent must call must be greater than zero.\n"},
      {"A shove left empty is told",
       {"100", "0", ""},
       "Pot Size: The amount your opponent must call must be greater than zero.\n"},
      {"A shove with letters is told",
       {"100", "0", "50x"},
       "Shove Size: The amount your opponent must call when you shove contains illegal characters.\n"},
      {"A bad sum in the shove is told", {"100", "0", "=5*5"}, kProblem},
      {"A shove beyond all numbers ends the program", {"100", "0", "1e308"}, kTooLarge},
  };
}

TEST(BadBoxTexts, AreTakenAsTold) {
  const Ranges ranges;
  const auto before = ranges.State();
  for (const auto& cases : {Sums(), PlainTexts(), Raises()}) {
    for (const TextCase& one : cases) {
      SCOPED_TRACE(one.Name);
      const ProgramOutcome outcome = ranges.Run(one.In, "json");
      const PlainStory story = StoryOf(one.In);
      const std::string warnings = WarningsOf(story);
      EXPECT_EQ(outcome.Errors.substr(0, warnings.size()), warnings);
      const std::string errors = outcome.Errors.substr(std::min(warnings.size(), outcome.Errors.size()));
      EXPECT_EQ(outcome.Status == 0 ? Amounts(nlohmann::json::parse(outcome.Output)) : errors, one.Outcome);
      EXPECT_EQ(outcome.Status == 0, errors.empty());
      const plain::Outcome& plain = story.InBoxes.GoesThrough() ? story.Result.Outcome : story.InBoxes;
      EXPECT_EQ(outcome.Status, plain.Status());
      EXPECT_EQ(errors, plain.GoesThrough() ? "" : plain.Told() + "\n") << "by the plain reader";
    }
  }
  EXPECT_TRUE(ranges.State() == before) << "a file was written to";
}

// Good texts in all boxes but one, more often than not: one bad text is enough for a message.
Texts RandomTexts(BadInputs& inputs) {
  Texts texts(2 + inputs.Below(2));
  for (std::string& text : texts)
    text = inputs.BoxText();
  return texts;
}

std::string AllShown(const Texts& texts) {
  std::string all;
  for (const std::string& text : texts)
    all += Shown(text) + "; ";
  return all;
}

std::string CellOf(const std::string& row, int column) {
  std::istringstream cells(row);
  std::string cell;
  for (int i = 0; i <= column; ++i)
    std::getline(cells, cell, ',');
  return cell;
}

void ExpectFigures(const std::string& csv, const plain::Result& result, bool raise) {
  std::istringstream lines(csv);
  std::string line;
  std::getline(lines, line);
  for (std::size_t i = 0; i < plain::Labels().size(); ++i) {
    ASSERT_TRUE(std::getline(lines, line));
    EXPECT_EQ(CellOf(line, 2), plain::NumberText(result.ExpectedValues[i])) << line;
    EXPECT_EQ(CellOf(line, 3), plain::NumberText(result.Equities[i])) << line;
    EXPECT_EQ(CellOf(line, 4), raise ? plain::NumberText(result.FoldShares[i]) : "") << line;
  }
}

TEST(BadBoxTexts, ThatAreRandomAreTakenByTheCompanionAsByThePlainReader) {
  const Ranges ranges;
  const auto before = ranges.State();
  BadInputs inputs(3);
  Tally tally("companion runs on texts");
  for (int left = RandomInputs(25); left > 0 && !HasFailure();) {
    Texts texts = RandomTexts(inputs);
    for (std::string& text : texts)
      std::erase(text, '\0');  // ends an argument
    left -= static_cast<int>(texts.size());
    SCOPED_TRACE(AllShown(texts));
    const PlainStory story = StoryOf(texts);
    const plain::Outcome& plain = story.InBoxes.GoesThrough() ? story.Result.Outcome : story.InBoxes;
    const ProgramOutcome outcome = ranges.Run(texts, "csv");
    EXPECT_EQ(outcome.Status, plain.Status());
    EXPECT_EQ(outcome.Errors, WarningsOf(story) + (plain.GoesThrough() ? "" : plain.Told() + "\n"));
    EXPECT_EQ(outcome.Output.empty(), !plain.GoesThrough());
    if (plain.GoesThrough()) ExpectFigures(outcome.Output, story.Result, texts.size() == 3);
    tally.Count(plain.Fate());
  }
  EXPECT_TRUE(ranges.State() == before) << "a file was written to";
}

// ---- the window

class BadBoxTextsInWindow : public MainFormTest {
 protected:
  /// Replaces the box's text, as from the clipboard.
  void Paste(std::int16_t box, const std::string& text) {
    auto& edit = Get<QLineEdit>("txtNumber", box);
    edit.setFocus(Qt::TabFocusReason);
    edit.selectAll();
    edit.insert(QString::fromStdString(text));
    if (text.empty()) edit.del();
  }

  static void ExpectTold(const plain::Outcome& outcome) {
    if (!outcome.IsRefused()) return;
    std::string text = outcome.Text;
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2)
      text.replace(at, 1, "\r\n");
    const bool sum = outcome.Title == "Problem";
    ExpectMessageBox(
        {.title = outcome.Title, .text = text, .icon = sum ? MessageIcon::kInformation : MessageIcon::kExclamation});
  }

  /// Puts a text into a box and leaves it. Returns the text that is there in the end.
  std::string Fill(std::int16_t box, const std::string& text, std::int16_t chooser) {
    Paste(box, text);
    const std::string held = BoxText(box);
    std::string left = held;
    ExpectTold(plain::LeaveBox(left));
    Get<QComboBox>("cmboRanges", chooser).setFocus(Qt::TabFocusReason);
    VerifyExpectedBoxes();
    ComeToFront();
    EXPECT_EQ(BoxText(box), left);
    return left;
  }
};

// Whether the window stays when it is given these texts one after the other: what ends it is tested elsewhere.
bool Endures(const Texts& texts) {
  Texts left = texts;
  for (std::string& text : left) {
    if (plain::LeaveBox(text).Fault != 0) return false;
  }
  const bool raise = left.size() == 3;
  if (raise &&
      (plain::OddsOf(left[0], left[1], texts[2]).Fault != 0 || plain::OddsOf(left[0], left[1], left[2]).Fault != 0)) {
    return false;
  }
  return plain::ResultOf(RunOf(left)).Outcome.Fault == 0;
}

TEST_F(BadBoxTextsInWindow, ThatAreRandomAreTakenAsByThePlainReader) {
  Open(kRaiseNav);
  Choose(1, "Pairs");
  Choose(2, "Tight");
  Open(kCallNav);
  Choose(0, "Pairs");
  BadInputs inputs(4);
  Tally tally("window runs on texts");
  const auto before = StateOf(Program.Folder().Path);
  for (int left = RandomInputs(25); left > 0 && !HasFailure();) {
    Texts texts = RandomTexts(inputs);
    for (std::string& text : texts)
      text = plain::Utf8(text);  // no characters that the machine's fonts may lack
    Texts lines = texts;
    for (std::string& line : lines)
      line = plain::Line(line);
    if (!Endures(lines)) continue;
    left -= static_cast<int>(texts.size());
    SCOPED_TRACE(AllShown(texts));

    const bool raise = texts.size() == 3;
    const std::int16_t first = raise ? 2 : 0;
    Open(raise ? kRaiseNav : kCallNav);
    if (raise) Paste(4, "");  // so that its change comes last
    Texts boxes;
    for (std::size_t i = 0; i < texts.size(); ++i)
      boxes.push_back(Fill(static_cast<std::int16_t>(first + static_cast<std::int16_t>(i)), texts[i], raise ? 1 : 0));
    const PlainStory story = StoryOf(lines);
    EXPECT_EQ(boxes, story.Left);
    if (raise) {
      EXPECT_EQ(Caption("lblHisOdds") + ", " + Caption("lblHisBEP"),
                plain::OddsOf(boxes[0], boxes[1], boxes[2]).Labels);
    }

    ExpectTold(story.Result.Outcome);
    Click("cmdPreflopEV", raise ? 1 : 0);
    VerifyExpectedBoxes();
    ComeToFront();
    const bool through = story.Result.Outcome.GoesThrough();
    tally.Count(story.Result.Outcome.Fate());
    EXPECT_EQ(Screen(), through ? "ALL IN Grid" : raise ? "Preflop Raise" : "Preflop Call");
    EXPECT_EQ(Shows("lblNav", kGridNavIndex), through);
    if (through) {
      EXPECT_EQ(Form.State().PotSize, plain::BoxValue(boxes[0]));
      EXPECT_EQ(Form.State().CallAmount, plain::BoxValue(boxes[1]));
      if (raise) {
        EXPECT_EQ(Form.State().ShoveAmount, plain::BoxValue(boxes[2]));
      }
    }
  }
  EXPECT_TRUE(StateOf(Program.Folder().Path) == before) << "a file was written to";
}

TEST_F(BadBoxTextsInWindow, SumBeyondAllNumbersEndsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  Open(kCallNav);
  Paste(0, "=" + std::string(400, '9') + "+" + std::string(400, '9'));
  EXPECT_EXIT(Press(Qt::Key_Return), testing::ExitedWithCode(EXIT_FAILURE), "Run-time error '6': Overflow");
}

}  // namespace
}  // namespace quillon
