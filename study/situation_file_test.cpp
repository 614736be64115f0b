#include "study/situation_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hand/equity_table.h"
#include "study/batch.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr AnalysisMode kCall = AnalysisMode::kPreflopCall;
constexpr AnalysisMode kRaise = AnalysisMode::kPreflopRaise;
constexpr AnalysisMode kEquity = AnalysisMode::kEquityOnly;

std::vector<std::string> TextsOf(const EnteredSituation& entered) {
  return {entered.Pot, entered.Call, entered.Shove, entered.Range, entered.CallingRange};
}

struct SavedCase {
  const char* rule;
  ScreenSituation situation;
  const char* line;
};

TEST(SituationFile, IsALineOfABatchThatReadsBackAsItWasTyped) {
  const std::vector<SavedCase> cases = {
      {"amounts as typed, ranges by name",
       {kRaise, {"1.5", "0.50", "$9", "Any", "Tight"}},
       R"({"mode":"raise","pot":"1.5","call":"0.50","shove":"$9","range":"Any","calling_range":"Tight"})"},
      {"what the screen does not ask for is not there",
       {kCall, {"150", "50", "9", "Any", "Tight"}},
       R"({"mode":"call","pot":"150","call":"50","range":"Any"})"},
      {"no amounts", {kEquity, {"150", "50", "9", "Any", "Tight"}}, R"({"mode":"equity","range":"Any"})"},
      {"empty boxes and lists",
       {kRaise, {}},
       R"({"mode":"raise","pot":"","call":"","shove":"","range":"","calling_range":""})"},
      {"any character",
       {kCall, {"100 €", "\"5\"\\", {}, "Käse | 2", {}}},
       R"({"mode":"call","pot":"100 €","call":"\"5\"\\","range":"Käse | 2"})"},
      {"what is no UTF-8", {kEquity, {{}, {}, {}, "K\xE4se", {}}}, R"({"mode":"equity","range":"K�se"})"},
  };
  for (const SavedCase& c : cases) {
    const SituationText text = TextOfSituation(c.situation);
    EXPECT_EQ(text.Line, c.line + std::string("\n")) << c.rule;
    EXPECT_EQ(text.Fault, "") << c.rule;
    const auto back = std::get<ReadSituation>(SituationOfText(text.Line));
    EXPECT_EQ(back.Situation.Mode, c.situation.Mode) << c.rule;
    EXPECT_EQ(TextOfSituation(back.Situation).Line, text.Line) << c.rule;
    EXPECT_THAT(back.NotTaken, IsEmpty()) << c.rule;
  }
}

TEST(SituationFile, KeepsASumThatReadsBackAsItsValue) {
  const SituationText text = TextOfSituation({kCall, {"=735+220-178", "50", {}, "Any", {}}});
  EXPECT_THAT(text.Line, HasSubstr(R"("pot":"=735+220-178")"));
  EXPECT_EQ(std::get<ReadSituation>(SituationOfText(text.Line)).Situation.Entered.Pot, "777");
}

TEST(SituationFile, IsNotMadeOfWhatNobodyCouldRead) {
  EXPECT_EQ(TextOfSituation({kCall, {std::string(1001, '1'), {}, {}, {}, {}}}).Fault,
            "\"pot\" has more than 1000 bytes");
  EXPECT_EQ(TextOfSituation({kEquity, {{}, {}, {}, std::string(1001, 'x'), {}}}).Fault,
            "\"range\" has more than 1000 bytes");
  EXPECT_EQ(TextOfSituation({kCall, {std::string(1000, '1'), {}, {}, {}, {}}}).Fault, "");
}

TEST(SituationFile, IsAnsweredByABatchAsItIs) {
  LoadEquityTable();
  const TemporaryProgram program;
  program.Write("Tight.txt", TextWith("AA KK QQ AKs AKo") + "\r\n");
  const SituationText text = TextOfSituation({kRaise, {"=1+0.5", "", "9", "Tight", "Tight"}});
  const BatchAnswer answer = Batch(program.Folder(), {"pot", "call", "shove", "range"}).Answer(text.Line, 1);
  EXPECT_EQ(answer.Line, R"({"id":null,"pot":1.5,"call":0.0,"shove":9.0,"range":"Tight"})");
}

struct OpenedCase {
  const char* rule;
  std::string text;
  AnalysisMode mode;
  std::vector<std::string> texts;  // pot, call, shove, range, calling range
  std::vector<std::string> notTaken;
};

TEST(SituationFile, AnyLineOfABatchIsTakenAsFarAsTheScreenGoes) {
  const std::string unknownKey =
      "there is no key \"stack\"; there are id, mode, pot, call, shove, range, hands, calling_range or calling_hands";
  const std::string hugeSum = "=" + std::string(400, '9') + "+" + std::string(400, '9');
  const std::vector<OpenedCase> cases = {
      {"numbers as they are written",
       R"({"mode":"call","pot":1.50,"call":5e1,"range":"A"})",
       kCall,
       {"1.50", "5e1", "", "A", ""},
       {}},
      {"keys in any order, and null for none",
       R"({"range":"A","call":2,"shove":null,"id":null,"pot":3,"mode":"call"})",
       kCall,
       {"3", "2", "", "A", ""},
       {}},
      {"a mark, spaces, blank lines and CR LF",
       "\xEF\xBB\xBF{\"mode\": \"equity\", \"range\": \"A\" }\r\n\r\n",
       kEquity,
       {"", "", "", "A", ""},
       {}},
      {"blank lines first", " \r\n\n{\"mode\":\"equity\",\"range\":\"A\"}", kEquity, {"", "", "", "A", ""}, {}},
      {"the first of several lines",
       "{\"mode\":\"equity\",\"range\":\"A\"}\n{\"mode\":\"equity\",\"range\":\"B\"}\n",
       kEquity,
       {"", "", "", "A", ""},
       {"only the first line of the file is taken"}},
      {"an id",
       R"({"id":7,"mode":"equity","range":"A"})",
       kEquity,
       {"", "", "", "A", ""},
       {"\"id\" has no place on a screen"}},
      {"an unknown key",
       R"({"mode":"equity","range":"A","stack":[1,{"pot":5}]})",
       kEquity,
       {"", "", "", "A", ""},
       {unknownKey}},
      {"a key that is there twice",
       R"({"mode":"equity","range":"A","range":"B"})",
       kEquity,
       {"", "", "", "A", ""},
       {"\"range\" is there twice"}},
      {"a value of another form",
       R"({"mode":"call","pot":[3],"call":true,"range":4})",
       kCall,
       {"", "", "", "", ""},
       {"\"pot\" is a number or a text", "\"call\" is a number or a text", "\"range\" is a text", "\"pot\" is missing",
        "\"call\" is missing", "\"range\" or \"hands\" is missing"}},
      {"keys of other modes",
       R"({"mode":"call","pot":3,"call":2,"shove":9,"range":"A","calling_range":"B","calling_hands":"AA"})",
       kCall,
       {"3", "2", "", "A", ""},
       {"\"shove\" does not go with mode \"call\"", "\"calling_range\" does not go with mode \"call\"",
        "\"calling_hands\" does not go with mode \"call\""}},
      {"notations",
       R"({"mode":"raise","pot":3,"call":2,"shove":9,"hands":"any","calling_hands":"top 30%"})",
       kRaise,
       {"3", "2", "9", "", ""},
       {"\"hands\" is a notation, and the list takes only ranges with a name: any",
        "\"calling_hands\" is a notation, and the list takes only ranges with a name: top 30%"}},
      {"a notation beside a name",
       R"({"mode":"equity","range":"A","hands":"AA"})",
       kEquity,
       {"", "", "", "A", ""},
       {"\"hands\" is a notation, and the list takes only ranges with a name: AA"}},
      {"a long notation, up to a whole character",
       R"({"mode":"equity","range":"A","hands":")" + std::string(99, 'A') + "ääää\"}",
       kEquity,
       {"", "", "", "A", ""},
       {"\"hands\" is a notation, and the list takes only ranges with a name: " + std::string(99, 'A') + "..."}},
      {"what is missing leaves its box empty",
       R"({"mode":"raise","call":2})",
       kRaise,
       {"", "2", "", "", ""},
       {"\"pot\" is missing", "\"shove\" is missing", "\"range\" or \"hands\" is missing",
        "\"calling_range\" or \"calling_hands\" is missing"}},
      {"a sum",
       R"({"mode":"call","pot":"=735+220-178","call":"=--3","range":"A"})",
       kCall,
       {"777", "-3", "", "A", ""},
       {}},
      {"a sum that cannot be worked out",
       R"({"mode":"call","pot":"=2*3","call":")" + hugeSum + R"(","range":"A"})",
       kCall,
       {"=2*3", hugeSum, "", "A", ""},
       {"\"pot\": Only addition (+) and subtract (-) are supported", "\"call\": the sum is beyond all numbers"}},
  };
  for (const OpenedCase& c : cases) {
    const auto read = SituationOfText(c.text);
    const auto* const situation = std::get_if<ReadSituation>(&read);
    ASSERT_NE(situation, nullptr) << c.rule << ": " << std::get<std::string>(read);
    EXPECT_EQ(situation->Situation.Mode, c.mode) << c.rule;
    EXPECT_EQ(TextsOf(situation->Situation.Entered), c.texts) << c.rule;
    EXPECT_THAT(situation->NotTaken, ElementsAreArray(c.notTaken)) << c.rule;
  }
}

TEST(SituationFile, TellsOfAHandfulOfFaults) {
  std::string line = R"({"mode":"equity","range":"A")";
  for (int key = 0; key < 1000; ++key)
    line += ",\"key" + std::to_string(key) + "\":1";
  EXPECT_EQ(std::get<ReadSituation>(SituationOfText(line + "}")).NotTaken.size(), 8U);
}

struct UnreadCase {
  const char* rule;
  std::string text;
  const char* reason;
};

TEST(SituationFile, WithoutAnObjectOrAModeHoldsNoSituation) {
  using namespace std::string_literals;
  const std::vector<UnreadCase> cases = {
      {"nothing", "", "the line is empty"},
      {"blank lines", " \n\r\n", "the line is empty"},
      {"no JSON", "AA (1), AKs (1), ", "this is not JSON from byte 1 on: A"},
      {"a line that is cut", R"({"mode":"ca)", "this is not JSON from byte"},
      {"an unknown key before the cut", R"({"stack":1,"mode":"ca)", "this is not JSON from byte"},
      {"a line that is cut before its end", "{\"pot\": 1.5, \r\n", "this is not JSON from byte 15 on: 1.5,"},
      {"an object over two lines", "{\"mode\":\n\"equity\"}", "this is not JSON from byte"},
      {"UTF-16", "{\0\"\0"s, "this is not JSON from byte 2 on"},
      {"a NUL character", "{\"mode\":\"equity\"}\0"s, "this is not JSON from byte 18 on: a NUL character"},
      {"an array", "[1]", "a line is one JSON object"},
      {"a number beyond all numbers", R"({"mode":"call","pot":1e999})", "1e999 is beyond all numbers"},
      {"a line too long", std::string((1 << 20) + 1, ' ') + "{}", "a line has at most 1048576 bytes"},
      {"no mode", R"({"range":"A"})", "\"mode\" is missing"},
      {"an unknown mode", R"({"mode":"fold"})", "\"mode\" is call, raise or equity, not \"fold\""},
  };
  for (const UnreadCase& c : cases) {
    const auto read = SituationOfText(c.text);
    const auto* const reason = std::get_if<std::string>(&read);
    ASSERT_NE(reason, nullptr) << c.rule;
    EXPECT_THAT(*reason, HasSubstr(c.reason)) << c.rule;
    EXPECT_EQ(reason->find_last_not_of(" \r\n"), reason->size() - 1) << c.rule << ": it goes into a sentence";
  }
}

}  // namespace
}  // namespace quillon
