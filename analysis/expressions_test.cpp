#include "analysis/expressions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "analysis/entered_situation.h"
#include "support/run_time_error.h"
#include "testing/recorded_messages.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct TextCase {
  const char* rule;
  std::string text;
  std::string result;
};

const std::vector<TextCase> kSums = {
    {"a sum and a difference", "=735+220-178", "777"},
    {"a single number", "=12", "12"},
    {"a first sign is allowed", "=+5", "5"},
    {"a first minus", "=-5", "-5"},
    {"nothing is 0", "=", "0"},
    {"a sign alone is 0", "=+", "0"},
    {"minus nothing is 0 without a sign", "=-", "0"},
    {"a sign at the end adds nothing", "=5+", "5"},
    {"of two signs the first has an empty number", "=--3", "-3"},
    {"a minus before a plus is lost too", "=-+3", "3"},
    {"of a number with two points the leading one counts", "=1.5.2", "1.5"},
    {"and what follows it is gone", "=1.5.2+1", "2.5"},
    {"fractions need no digit before the point", "=.5+.5", "1"},
    {"nor after it", "=5.+1", "6"},
    {"a point alone is 0", "=.", "0"},
    {"trailing zeros do not show", "=0.1+0.2", "0.3"},
    {"fifteen digits show", "=1.23456789012345678", "1.23456789012346"},
    {"a large sum takes the exponent form", "=999999999999999+1", "1E+15"},
    {"and so does a very small one", "=.0000000000000001", "1E-16"},
    {"what cancels out is 0", "=5-5", "0"},
    {"leading zeros do not matter", "=007", "7"},
};

const std::vector<TextCase> kNoSums = {
    {"a blank between", "=1 + 2", ""},
    {"a blank in front", "= 1", ""},
    {"a space after", "=1 ", ""},
    {"a dollar sign", "=$5", ""},
    {"a thousands separator", "=1,000", ""},
    {"a product", "=2*3", ""},
    {"a quotient", "=6/2", ""},
    {"brackets", "=(1+2)", ""},
    {"an exponent", "=1e3", ""},
    {"a second equals sign", "==5", ""},
    {"a word", "=pot", ""},
    {"a letter after a good sum", "=1+2x", ""},
    {"a letter that is not ASCII", "=5€", ""},
    {"a line end", "=1\r\n", ""},
    {"a NUL", std::string("=1\0", 3), ""},
};

TEST(EvalExpression, AddsAndSubtracts) {
  for (const TextCase& c : kSums)
    EXPECT_EQ(EvalExpression(c.text), c.result) << c.rule;
}

TEST(EvalExpression, AnythingElseGivesTheErrorText) {
  for (const TextCase& c : kNoSums)
    EXPECT_EQ(EvalExpression(c.text), "Only addition (+) and subtract (-) are supported") << c.rule;
}

TEST(EvalExpression, TheErrorTextIsItsOwnResult) {
  EXPECT_EQ(EvalExpression(kExpressionErrorText), kExpressionErrorText);
}

TEST(EvalExpression, TheFirstCharacterIsNotLookedAt) {
  EXPECT_EQ(EvalExpression("x1+2"), "3");
  EXPECT_EQ(EvalExpression(""), "0");
}

TEST(EvalExpression, ASumBeyondADoubleOverflows) {
  const std::string huge(310, '9');
  try {
    static_cast<void>(EvalExpression("=" + huge + "+" + huge));
    FAIL() << "a sum without end has no text";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Fault(), RunTimeFault::kOverflow);
  }
}

TEST(GetNumber, TakesDigitsAndPoints) {
  const std::vector<TextCase> cases = {
      {"up to a sign", "12+3", "12"},
      {"the whole text", "12.5", "12.5"},
      {"any number of points", "1.5.2-1", "1.5.2"},
      {"points alone", "..x", ".."},
      {"no sign", "-5", ""},
      {"no blank", " 5", ""},
      {"no exponent", "1e3", "1"},
      {"no separator", "1,000", "1"},
      {"nothing of nothing", "", ""},
      {"zeros as typed", "007x", "007"},
  };
  for (const TextCase& c : cases)
    EXPECT_EQ(GetNumber(c.text), c.result) << c.rule;
}

TEST(EvalTextBox, ASumBecomesItsValue) {
  for (const TextCase& c : kSums) {
    RecordedMessages messages;
    EXPECT_EQ(EvalTextBox(c.text, messages), c.result) << c.rule;
    EXPECT_THAT(messages.Shown, IsEmpty()) << c.rule;
  }
}

TEST(EvalTextBox, ABadSumStaysAfterAMessage) {
  const Message problem = {.title = "Problem",
                           .text =
                               "There was a problem processing your expression: \r\n\r\n"
                               "Only addition (+) and subtract (-) are supported",
                           .icon = MessageIcon::kInformation,
                           .buttons = MessageButtons::kOk};
  for (const TextCase& c : kNoSums) {
    RecordedMessages messages;
    EXPECT_EQ(EvalTextBox(c.text, messages), c.text) << c.rule;
    EXPECT_THAT(messages.Shown, ElementsAre(problem)) << c.rule;
  }
}

TEST(EvalTextBox, WithoutAnEqualsSignInFrontTheTextStays) {
  for (const char* text : {"", "150", "$35", "35 dollars", " =1+2", "1+2", "1=2", "x"}) {
    RecordedMessages messages;
    EXPECT_EQ(EvalTextBox(text, messages), text);
    EXPECT_THAT(messages.Shown, IsEmpty()) << text;
  }
}

TEST(EvalTextBox, UntilThenASumCountsAsNothing) {
  RecordedMessages messages;
  const OpponentOdds none = {.HisOdds = "N/A", .HisBreakEven = "N/A"};
  const OpponentOdds evaluated = {.HisOdds = "2 : 1", .HisBreakEven = "33.33%"};
  EXPECT_EQ(OpponentOddsTexts(100, 0, BoxValue("=100")), none);
  EXPECT_EQ(OpponentOddsTexts(100, 0, BoxValue(EvalTextBox("=100", messages))), evaluated);
}

}  // namespace
}  // namespace quillon
