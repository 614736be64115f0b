#include "shell/feedback.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "results/web_addresses.h"
#include "testing/fault_of.h"

namespace quillon {
namespace {

TEST(EncodeForUrl, EveryCharacterIsItsCodeWithoutLeadingZeros) {
  using namespace std::string_literals;
  struct Case {
    const char* rule;
    std::string text;
    const char* encoded;
  };
  const std::vector<Case> cases = {
      {"nothing", "", ""},
      {"letters are encoded too", "aZ", "%61%5A"},
      {"a blank", "a b", "%61%20%62"},
      {"letters beyond ASCII are one code of the code page", "Ü€é", "%DC%80%E9"},
      {"a character that the code page lacks is a question mark", "a♠b", "%61%3F%62"},
      {"a line end keeps its zeros", "a\r\nb", "%61%0D%0A%62"},
      {"a tab has one digit", "\t", "%9"},
      {"a lone line feed has one digit", "a\nb", "%61%A%62"},
      {"a character NUL", "\0"s, "%0"},
      {"code 15 has one digit, code 16 two", "\x0F\x10", "%F%10"},
      {"a carriage return before code A1 comes out wrong", "\r¡", "%0D%0A1"},
      {"but not before code B0", "\r°", "%D%B0"},
      {"a code that ends in D is no carriage return", "Ý\n", "%DD%A"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(EncodeForUrl(c.text), c.encoded) << c.rule;
}

TEST(IsTimeToSend, IsSoAfterMoreThanFiveSeconds) {
  constexpr std::int32_t kLast = 2147483647;
  struct Case {
    const char* rule;
    std::int32_t start;
    std::int32_t now;
    bool over;
  };
  const std::vector<Case> cases = {
      {"5,000 milliseconds are not enough", 1000, 6000, false},
      {"5,001 are", 1000, 6001, true},
      {"the last tick before the turn", kLast - 5001, kLast, true},
      {"the longest way that 32 bits hold", -1, kLast - 1, true},
      {"after the turn all is well", -kLast - 1, -kLast, false},
      {"a clock that goes back has not come far", 1000, 0, false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(IsTimeToSend(c.start, c.now), c.over) << c.rule;
  for (const std::int32_t start : {kLast, kLast - 5000})
    EXPECT_EQ(FaultOf([&] { return IsTimeToSend(start, -kLast - 1); }), RunTimeFault::kOverflow) << start;
  EXPECT_EQ(FaultOf([] { return IsTimeToSend(-1, kLast); }), RunTimeFault::kOverflow);
}

TEST(FeedbackComplaint, LengthIsFromThreeToAThousandCharacters) {
  const Message tooLong = {"Quillon", "Too much feedback. Please consider sending an email.", MessageIcon::kExclamation,
                           MessageButtons::kOk};
  const Message tooShort = {"Quillon", "Please fill out the feedback before sending.", MessageIcon::kExclamation,
                            MessageButtons::kOk};
  struct Case {
    const char* rule;
    std::string text;
    std::optional<Message> complaint;
  };
  const auto thousand = [](std::size_t tail) { return std::string(1000 - tail, 'x'); };
  const std::vector<Case> cases = {
      {"nothing", "", tooShort},
      {"two characters do not pass", "ab", tooShort},
      {"three do", "abc", {}},
      {"a thousand do", thousand(0), {}},
      {"a thousand and one do not", thousand(0) + "x", tooLong},
      {"a thousand letters of three bytes pass", thousand(1) + "€", {}},
      {"a line end is two characters", "a\n", {}},
      {"and so makes a text too long", thousand(1) + "\n", tooLong},
      {"a line end alone is too short", "\r\n", tooShort},
  };
  for (const Case& c : cases)
    EXPECT_EQ(FeedbackComplaint(c.text), c.complaint) << c.rule;
}

TEST(FeedbackWriter, IsAnAnswerWithAnAtAsItIs) {
  for (const char* answer : {"x@y", "@", " x@y"})
    EXPECT_EQ(FeedbackWriter(answer), answer);
  for (const char* answer : {"somebody", ""})
    EXPECT_EQ(FeedbackWriter(answer), kAnonymousAddress);
}

TEST(FeedbackRequest, HasBothTextsInItsQueryAndLineEndsAsCrLf) {
  const std::string script = "http://" + std::string(WebHost()) + "/quillon/register/benice.php";
  EXPECT_EQ(FeedbackRequest("x@y", "abc"), script + "?email_name=%78%40%79&email_body=%61%62%63");
  for (const char* text : {"one\r\ntwo", "one\ntwo"})
    EXPECT_EQ(FeedbackRequest("@", text), script + "?email_name=%40&email_body=%6F%6E%65%0D%0A%74%77%6F");
  EXPECT_EQ(FeedbackRequest("@", ""), script + "?email_name=%40&email_body=");
}

TEST(TellsSent, IsTheWordAnywhere) {
  for (const char* reply : {"sent", "<p>Your mail was sent.</p>", "Our postman is absent."})
    EXPECT_TRUE(TellsSent(reply)) << reply;
  for (const char* reply : {"Sent SENT", "sen t", ""})
    EXPECT_FALSE(TellsSent(reply)) << reply;
}

TEST(FeedbackOutcome, IsTold) {
  EXPECT_EQ(FeedbackOutcome(true),
            (Message{"Quillon", "Your message has been sent.", MessageIcon::kInformation, MessageButtons::kOk}));
  EXPECT_EQ(FeedbackOutcome(false),
            (Message{"Error", "There was a problem sending your message.", MessageIcon::kStop, MessageButtons::kOk}));
}

}  // namespace
}  // namespace quillon
