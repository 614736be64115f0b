// Odd and random texts typed into an amount box. Companion and window must handle them as the oracle does, and show the
// same messages.

#include <QComboBox>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "testing/companion_program.h"
#include "testing/folder_state.h"
#include "testing/main_stage.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/runs.h"
#include "testing/oracle/settings.h"
#include "testing/split_text.h"
#include "tests/bad_inputs.h"

namespace quillon {
namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;  // pot and call; three texts are "Preflop Raise"

constexpr std::array kOptions = {"--pot", "--call", "--shove"};

const std::string kRange = TextWith("AA KK", "QQ");
const std::string kCallingRange = TextWith("AA KK AKs AKo");

plain::Run RunOf(const Texts& texts) {
  if (texts.size() == 2) return {plain::Mode::kCall, texts[0], texts[1], {}, kRange, {}};
  return {plain::Mode::kRaise, texts[0], texts[1], texts[2], kRange, kCallingRange};
}

/// The oracle's view of the texts: those that stay in the boxes, and the outcome of a run with them.
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

/// The warnings about amounts that a comma cuts short, which come before any others.
std::string WarningsOf(const PlainStory& story) {
  std::string warnings;
  for (std::size_t i = 0; story.InBoxes.GoesThrough() && i < story.Left.size(); ++i) {
    const std::string& text = story.Left[i];
    std::string whole = text;
    std::erase(whole, ',');
    const double value = plain::BoxValue(text);
    if (!plain::IsNumeric(text) || value == plain::BoxValue(whole)) continue;
    warnings += "Warning: "s + kOptions.at(i) + " " + text + " counts as " + plain::NumberText(value) +
                "; a comma ends a number.\n";
  }
  return warnings;
}

class Ranges {
 public:
  Ranges() {
    program_.Write("Pairs.txt", kRange);
    program_.Write("Tight.txt", kCallingRange);
  }

  [[nodiscard]] CompanionOutcome Run(const Texts& texts) const {
    const bool raise = texts.size() == 3;
    Arguments arguments = {raise ? "raise" : "call", "--range", "Pairs", "--format", "csv"};
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const std::string option = kOptions.at(i);
      arguments = With(arguments, texts[i].empty() ? Texts{option, ""} : Texts{option + "=" + texts[i]});
    }
    return RunCompanionIn(program_.Folder().Path, raise ? With(arguments, {"--calling-range", "Tight"}) : arguments);
  }

  [[nodiscard]] auto State() const { return FolderState(program_.Folder().Path); }

 private:
  TemporaryProgram program_;
};

const std::vector<std::string> kOddTexts = {
    // sums
    "=735+220-178", "=+100", "=-5+105", "=100+", "=100--30", "=.5+.5", "=.1+.2", "=5.", "=1.5.2", "=.", "=", "=+",
    "=-3", "=1234567890123456", "="s + std::string(998, '+') + "7+8", "=1 + 2", "=3 ", "=$5", "=1,000", "=2*3", "=6/2",
    "=(1+2)", "=1e3", "==5", "=5x", "=5\u22122", "=\u0665", "=5\n", "=5\xFF",
    "=" + std::string(400, '9') + "+" + std::string(400, '9'),
    "=" + std::string(400, '9') + "-" + std::string(400, '9'),
    // amounts
    "$100", "$+100", "1$00", "$$100", "$", "1,000", "100,", "1,,000", "12,5", "1.5,0", "  100  ", "1 000", "\t100",
    "100\t", "1e3", "5E1", "100e", "+100", "100abc", "50%", "abc", "", " ", "\"100\"", "[100]", "0x64", "NaN", "inf",
    "\uFF15", "\u20AC50", "100\u00A0", "100\xFF\xFE", "100\r\n", "--call", "1e-999", "1e308", "1e999", "1e10", "0",
    "-1", "-1x", "-5", std::string(100000, '9'), std::string(100000, 'x')};

// Usually valid texts in all boxes but one: one bad text is enough for a message.
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

/// Returns the outcome.
std::string ExpectAsThePlainReader(const Ranges& ranges, const Texts& texts) {
  SCOPED_TRACE(AllShown(texts));
  const PlainStory story = StoryOf(texts);
  const plain::Outcome& plain = story.InBoxes.GoesThrough() ? story.Result.Outcome : story.InBoxes;
  const CompanionOutcome outcome = ranges.Run(texts);
  EXPECT_EQ(outcome.Status, plain.Status());
  EXPECT_EQ(outcome.Errors, WarningsOf(story) + (plain.GoesThrough() ? "" : plain.Told() + "\n"));
  EXPECT_EQ(outcome.Output.empty(), !plain.GoesThrough());
  if (plain.GoesThrough()) ExpectFigures(outcome.Output, story.Result, RunOf(texts).Scenario);
  return plain.Fate();
}

TEST(BadBoxTexts, AreTakenByTheCompanionAsByThePlainReader) {
  const Ranges ranges;
  const auto before = ranges.State();
  Tally tally("companion runs on texts");
  for (const std::string& odd : kOddTexts) {
    for (const Texts& texts : {Texts{odd, "1"}, {"100", odd, "50"}, {"100", "0", odd}, {"=a", odd}})
      tally.Count(ExpectAsThePlainReader(ranges, texts));
  }
  BadInputs inputs(3);
  for (int left = RandomInputs(25); left > 0 && !HasFailure();) {
    Texts texts = RandomTexts(inputs);
    for (std::string& text : texts)
      std::erase(text, '\0');  // a NUL would end an argument
    left -= static_cast<int>(texts.size());
    tally.Count(ExpectAsThePlainReader(ranges, texts));
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
    const bool sum = outcome.Title == "Problem";
    ExpectMessageBox({.title = outcome.Title,
                      .text = Replaced(outcome.Text, "\n", "\r\n"),
                      .icon = sum ? MessageIcon::kInformation : MessageIcon::kExclamation});
  }

  /// Types a text into a box and leaves it. Returns the resulting text.
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

// Whether the window survives these texts one after the other; texts that end it are tested elsewhere.
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
  const auto before = FolderState(Program.Folder().Path);
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
    EXPECT_EQ(Shows("lblNav", kGridNav), through);
    if (through) {
      EXPECT_EQ(Form.State().Amounts.PotSize, plain::BoxValue(boxes[0]));
      EXPECT_EQ(Form.State().Amounts.CallAmount, plain::BoxValue(boxes[1]));
      if (raise) {
        EXPECT_EQ(Form.State().Amounts.ShoveAmount, plain::BoxValue(boxes[2]));
      }
    }
  }
  EXPECT_TRUE(FolderState(Program.Folder().Path) == before) << "a file was written to";
}

TEST_F(BadBoxTextsInWindow, SumBeyondAllNumbersEndsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  Open(kCallNav);
  Paste(0, "=" + std::string(400, '9') + "+" + std::string(400, '9'));
  EXPECT_EXIT(Press(Qt::Key_Return), testing::ExitedWithCode(EXIT_FAILURE), "Run-time error '6': Overflow");
}

}  // namespace
}  // namespace quillon
