#include "shell/feedback.h"

#include <deque>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <utility>
#include <vector>

#include "results/web_addresses.h"
#include "shell/recorded_web.h"
#include "support/recorded_input.h"
#include "support/recorded_messages.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// About screen with a clock that goes on by a fixed step each time somebody looks at it.
class RecordedFeedbackWindow final : public FeedbackWindow {
 public:
  explicit RecordedFeedbackWindow(std::string text) : Text(std::move(text)) {}

  std::int32_t TickCount() override {
    const std::int32_t now = Now;
    Now = static_cast<std::int32_t>(static_cast<std::uint32_t>(Now) + static_cast<std::uint32_t>(Step));
    return now;
  }
  void Yield() override {
    ++Yields;
    if (const auto handle = std::exchange(OnYield, {})) handle();
  }
  [[nodiscard]] std::string FeedbackText() const override { return Text; }
  void SetFeedbackText(std::string_view text) override { Text = text; }
  void SetHourglass(bool shown) override { Hourglass.push_back(shown); }
  [[nodiscard]] MessageBoxes& Messages() override { return Boxes; }
  [[nodiscard]] InputBoxes& Inputs() override { return Questions; }

  std::string Text;
  std::int32_t Now = 1000;
  std::int32_t Step = 1;
  int Yields = 0;
  std::function<void()> OnYield;  // what the user does during the first yield to come
  std::vector<bool> Hourglass;
  RecordedMessages Boxes;
  RecordedInput Questions;
};

Message TooLong() {
  return {"Quillon", "Too much feedback. Please consider sending an email.", MessageIcon::kExclamation,
          MessageButtons::kOk};
}
Message TooShort() {
  return {"Quillon", "Please fill out the feedback before sending.", MessageIcon::kExclamation, MessageButtons::kOk};
}
Message Sent() {
  return {"Quillon", "Your message has been sent.", MessageIcon::kInformation, MessageButtons::kOk};
}
Message NotSent() {
  return {"Error", "There was a problem sending your message.", MessageIcon::kStop, MessageButtons::kOk};
}

std::string Request(const std::string& writer, const std::string& note) {
  return "http://" + std::string(WebHost()) + "/quillon/register/benice.php?email_name=" + writer +
         "&email_body=" + note;
}

// "x@y" and "anonymous" of the request, worked out by hand.
constexpr const char* kWriterCode = "%78%40%79";
constexpr const char* kAnonymousCode = "%6E%6F%62%6F%64%79%40%71%2E%74%65%73%74";

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
      {"digits are encoded too", "09", "%30%39"},
      {"a blank", "a b", "%61%20%62"},
      {"signs of addresses", "&=?%/@", "%26%3D%3F%25%2F%40"},
      {"letters beyond ASCII are one code of the code page", "Ü€é", "%DC%80%E9"},
      {"a character that the code page lacks is a question mark", "a♠b", "%61%3F%62"},
      {"a line end keeps its zeros", "a\r\nb", "%61%0D%0A%62"},
      {"so does each of many", "\r\n\r\n", "%0D%0A%0D%0A"},
      {"a tab has one digit", "\t", "%9"},
      {"a lone line feed has one digit", "a\nb", "%61%A%62"},
      {"a lone carriage return has one digit", "a\rb", "%61%D%62"},
      {"the wrong way round is no line end", "\n\r", "%A%D"},
      {"a character NUL", "\0"s, "%0"},
      {"code 15 has one digit, code 16 two", "\x0F\x10", "%F%10"},
      {"a carriage return before code A1 comes out wrong", "\r¡", "%0D%0A1"},
      {"and before code AF", "\r¯", "%0D%0AF"},
      {"but not before code B0", "\r°", "%D%B0"},
      {"a code that ends in D is no carriage return", "Ý\n", "%DD%A"},
      {"three in a row", "\r\r\n", "%D%0D%0A"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(EncodeForUrl(c.text), c.encoded) << c.rule;
}

TEST(WaitSeconds, YieldsUntilMoreThanTheTimeHasGoneBy) {
  struct Case {
    const char* rule;
    std::int32_t seconds;
    std::int32_t step;
    int yields;
  };
  const std::vector<Case> cases = {
      {"5,000 milliseconds are not enough, 5,001 are", 5, 1, 5001},
      {"five looks a thousand apart are not enough", 5, 1000, 6},
      {"a clock that jumps ends it at once", 5, 60000, 1},
      {"no time at all still yields once", 0, 1, 1},
      {"a clock that stands when looked at again is waited for", 0, 0, 3},
  };
  for (const Case& c : cases) {
    RecordedFeedbackWindow window("");
    window.Step = c.step;
    if (c.step == 0) {
      window.OnYield = [&window] { window.OnYield = [&window] { window.OnYield = [&window] { ++window.Now; }; }; };
    }
    WaitSeconds(c.seconds, window);
    EXPECT_EQ(window.Yields, c.yields) << c.rule;
  }
}

std::optional<RunTimeFault> FaultOfWaiting(std::int32_t now, std::int32_t step) {
  RecordedFeedbackWindow window("");
  window.Now = now;
  window.Step = step;
  try {
    WaitSeconds(5, window);
  } catch (const RunTimeError& error) {
    return error.Fault();
  }
  return std::nullopt;
}

TEST(WaitSeconds, CounterThatTurnsDuringTheWaitIsFatal) {
  constexpr std::int32_t kLast = 2147483647;
  EXPECT_EQ(FaultOfWaiting(kLast - 5001, 1), std::nullopt) << "ends on the last tick before the turn";
  EXPECT_EQ(FaultOfWaiting(kLast - 5000, 1), RunTimeFault::kOverflow);
  EXPECT_EQ(FaultOfWaiting(kLast, 1), RunTimeFault::kOverflow);
  EXPECT_EQ(FaultOfWaiting(-kLast - 1, 1), std::nullopt) << "after the turn all is well";
  EXPECT_EQ(FaultOfWaiting(-2500, 1), std::nullopt) << "going through 0 is no turn";
  EXPECT_EQ(FaultOfWaiting(-1, kLast), std::nullopt) << "the longest way that 32 bits hold";
}

TEST(SendFeedback, LengthIsFromThreeToAThousandCharacters) {
  struct Case {
    const char* rule;
    std::string text;
    std::vector<Message> messages;
  };
  const auto thousand = [](std::size_t tail) { return std::string(1000 - tail, 'x'); };
  const std::vector<Case> cases = {
      {"nothing", "", {TooShort()}},
      {"two characters do not pass", "ab", {TooShort()}},
      {"three do", "abc", {Sent()}},
      {"a thousand do", thousand(0), {Sent()}},
      {"a thousand and one do not", thousand(0) + "x", {TooLong()}},
      {"blanks count", "   ", {Sent()}},
      {"a letter of two bytes is one character", "éé", {TooShort()}},
      {"a thousand letters of three bytes pass", thousand(1) + "€", {Sent()}},
      {"a character of four bytes is one character", "🂡🂡", {TooShort()}},
      {"a line end is two characters", "a\n", {Sent()}},
      {"however the box gives it", "a\r\n", {Sent()}},
      {"and so makes a text too long", thousand(1) + "\n", {TooLong()}},
      {"a line end alone is too short", "\r\n", {TooShort()}},
  };
  for (const Case& c : cases) {
    RecordedFeedbackWindow window(c.text);
    RecordedWeb web({"sent"});
    SendFeedback(window, web);
    EXPECT_EQ(window.Boxes.Shown, c.messages) << c.rule;
    const bool passed = c.messages.front() == Sent();
    EXPECT_EQ(web.Asked.size(), passed ? 1U : 0U) << c.rule;
    EXPECT_EQ(window.Questions.Asked.size(), passed ? 1U : 0U) << c.rule;
    if (!passed) {
      EXPECT_EQ(window.Text, c.text) << c.rule;
      EXPECT_THAT(window.Hourglass, IsEmpty()) << c.rule;
      EXPECT_EQ(window.Yields, 0) << c.rule;
    }
  }
}

TEST(SendFeedback, AsksWhoWritesAndTakesAnAnswerWithAnAtAsItIs) {
  struct Case {
    const char* rule;
    std::deque<std::string> answers;
    const char* encoded;
  };
  const std::vector<Case> cases = {
      {"an address", {"x@y"}, kWriterCode},      {"an at sign alone", {"@"}, "%40"},
      {"blanks stay", {" x@y"}, "%20%78%40%79"}, {"no at sign", {"somebody"}, kAnonymousCode},
      {"an empty answer", {""}, kAnonymousCode}, {"a cancelled box", {}, kAnonymousCode},
  };
  for (const Case& c : cases) {
    RecordedFeedbackWindow window("abc");
    window.Questions.Answers = c.answers;
    RecordedWeb web({"sent"});
    SendFeedback(window, web);
    EXPECT_THAT(window.Questions.Asked, ElementsAre(InputQuestion{"What is your email address?", "Quillon", ""}))
        << c.rule;
    EXPECT_THAT(web.Asked, ElementsAre(Request(c.encoded, "%61%62%63"))) << c.rule;
  }
}

TEST(SendFeedback, LineEndsAreSentAsCrLf) {
  for (const char* text : {"one\r\ntwo", "one\ntwo"}) {
    RecordedFeedbackWindow window(text);
    RecordedWeb web({"sent"});
    SendFeedback(window, web);
    EXPECT_THAT(web.Asked, ElementsAre(Request(kAnonymousCode, "%6F%6E%65%0D%0A%74%77%6F")));
  }
}

TEST(SendFeedback, ReplyThatHoldsSentEmptiesTheBoxAndAnyOtherKeepsItsText) {
  struct Case {
    const char* rule;
    std::deque<std::string> replies;
    bool sent;
  };
  const std::vector<Case> cases = {
      {"the word alone", {"sent"}, true},
      {"the word in a page", {"<p>Your mail was sent.</p>"}, true},
      {"the word inside another", {"Our postman is absent."}, true},
      {"another case", {"Sent SENT"}, false},
      {"another reply", {"sen t"}, false},
      {"a failed request", {}, false},
  };
  for (const Case& c : cases) {
    RecordedFeedbackWindow window("abc");
    RecordedWeb web(c.replies);
    SendFeedback(window, web);
    EXPECT_THAT(window.Boxes.Shown, ElementsAre(c.sent ? Sent() : NotSent())) << c.rule;
    EXPECT_EQ(window.Text, c.sent ? "" : "abc") << c.rule;
  }
}

TEST(SendFeedback, WaitsFiveSecondsUnderTheHourglassBeforeTheRequest) {
  RecordedFeedbackWindow window("abc");
  window.OnYield = [&] {
    EXPECT_THAT(window.Hourglass, ElementsAre(true));
    EXPECT_EQ(window.Questions.Asked.size(), 1U) << "the question comes before the wait";
  };
  RecordedWeb web({"sent"});
  web.WhileAsked = [&] {
    EXPECT_EQ(window.Yields, 5001);
    EXPECT_THAT(window.Hourglass, ElementsAre(true));
    EXPECT_THAT(window.Boxes.Shown, IsEmpty());
  };
  SendFeedback(window, web);
  EXPECT_THAT(window.Hourglass, ElementsAre(true, false));
  EXPECT_EQ(web.Asked.size(), 1U);
}

TEST(SendFeedback, WhatTheBoxHoldsAfterTheWaitIsSentWhateverItsLength) {
  for (const std::string& changed : {std::string("a"), std::string(), std::string(1001, 'a')}) {
    RecordedFeedbackWindow window("abc");
    window.OnYield = [&] { window.Text = changed; };
    RecordedWeb web({"sent"});
    SendFeedback(window, web);
    EXPECT_THAT(web.Asked, ElementsAre(Request(kAnonymousCode, EncodeForUrl(changed))));
    EXPECT_THAT(window.Boxes.Shown, ElementsAre(Sent()));
  }
}

TEST(SendFeedback, SecondClickDuringTheWaitSendsInsideTheFirst) {
  RecordedFeedbackWindow window("abc");
  window.Questions.Answers = {"x@y", "@"};
  RecordedWeb web({"no", "sent"});
  window.OnYield = [&] {
    SendFeedback(window, web);
    EXPECT_THAT(window.Boxes.Shown, ElementsAre(NotSent()));
    EXPECT_THAT(window.Hourglass, ElementsAre(true, true, false));
  };
  SendFeedback(window, web);
  EXPECT_THAT(web.Asked, ElementsAre(Request("%40", "%61%62%63"), Request(kWriterCode, "%61%62%63")));
  EXPECT_THAT(window.Boxes.Shown, ElementsAre(NotSent(), Sent()));
}

TEST(SendFeedback, SecondClickThatSendsLeavesTheFirstAnEmptyNote) {
  RecordedFeedbackWindow window("abc");
  RecordedWeb web({"sent", "sent"});
  window.OnYield = [&] { SendFeedback(window, web); };
  SendFeedback(window, web);
  EXPECT_THAT(web.Asked, ElementsAre(Request(kAnonymousCode, "%61%62%63"), Request(kAnonymousCode, "")));
}

TEST(SendFeedback, CounterThatTurnsIsFatalAndSendsNothing) {
  RecordedFeedbackWindow window("abc");
  window.Now = 2147483647;
  RecordedWeb web({"sent"});
  EXPECT_THROW(SendFeedback(window, web), RunTimeError);
  EXPECT_THAT(web.Asked, IsEmpty());
  EXPECT_EQ(window.Text, "abc");
}

TEST(SendFeedback, AnonymousAddressReachesNobody) {
  EXPECT_EQ(kAnonymousAddress.size(), 13U);
  EXPECT_THAT(std::string(kAnonymousAddress), HasSubstr("@"));
  EXPECT_TRUE(kAnonymousAddress.ends_with(".test"));
}

}  // namespace
}  // namespace quillon
