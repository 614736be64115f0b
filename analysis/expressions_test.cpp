#include "analysis/expressions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/fault_of.h"
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
    {"nothing is 0", "=", "0"},
    {"minus nothing is 0 without a sign", "=-", "0"},
    {"a sign at the end adds nothing", "=5+", "5"},
    {"of two signs the first has an empty number", "=--3", "-3"},
    {"of a number with two points the leading one counts", "=1.5.2", "1.5"},
    {"and what follows it is gone", "=1.5.2+1", "2.5"},
    {"fractions need no digit before the point", "=.5+.5", "1"},
    {"nor after it", "=5.+1", "6"},
    {"a point alone is 0", "=.", "0"},
    {"a large sum takes the exponent form", "=999999999999999+1", "1E+15"},
    {"what cancels out is 0", "=5-5", "0"},
};

const std::vector<TextCase> kNoSums = {
    {"a blank between", "=1 + 2", ""},
    {"a dollar sign", "=$5", ""},
    {"a thousands separator", "=1,000", ""},
    {"a product", "=2*3", ""},
    {"brackets", "=(1+2)", ""},
    {"an exponent", "=1e3", ""},
    {"a letter after a good sum", "=1+2x", ""},
    {"a letter that is not ASCII", "=5€", ""},
    {"a NUL", std::string("=1\0", 3), ""},
};

TEST(EvalExpression, ASumBeyondADoubleOverflows) {
  const std::string huge(310, '9');
  EXPECT_EQ(FaultOf([&] { return EvalExpression("=" + huge + "+" + huge); }), RunTimeFault::kOverflow);
}

TEST(EvalExpression, TheFirstCharacterIsNotLookedAt) {
  EXPECT_EQ(EvalExpression("x1+2"), "3");
}

TEST(GetNumber, TakesDigitsAndPoints) {
  const std::vector<TextCase> cases = {
      {"up to a sign", "12+3", "12"}, {"any number of points", "1.5.2-1", "1.5.2"},
      {"no sign", "-5", ""},          {"no exponent", "1e3", "1"},
      {"nothing of nothing", "", ""},
  };
  for (const TextCase& c : cases)
    EXPECT_EQ(GetNumber(c.text), c.result) << c.rule;
}

TEST(EvalTextBox, ASumBecomesItsValue) {
  for (const TextCase& c : kSums) {
    RecordedMessages messages;
    EXPECT_EQ(EvalExpression(c.text), c.result) << c.rule;
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
    EXPECT_EQ(EvalExpression(c.text), kExpressionErrorText) << c.rule;
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

}  // namespace
}  // namespace quillon
