#include "study/batch.h"

#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "hand/equity_table.h"
#include "ranges/range_notation.h"
#include "results/analysis_json.h"
#include "support/number_text.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::ordered_json;

class BatchTest : public testing::Test {
 protected:
  BatchTest() {
    LoadEquityTable();
    program_.Write("Tight.txt", TextWith("AA KK QQ AKs AKo") + "\r\n");
    program_.Write("Empty.txt", "\r\n");
    program_.Write("Nobody.txt", TextWith("") + "\r\n");
  }

  [[nodiscard]] Batch Make(std::vector<std::string> fields = {}) const {
    return Batch(program_.Folder(), std::move(fields));
  }
  [[nodiscard]] const TemporaryProgram& Files() const { return program_; }

 private:
  TemporaryProgram program_;
};

std::string Dumped(const Json& object) {
  return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// ---- results

TEST_F(BatchTest, AnswersWithTheIdBeforeTheFieldsOfAnAnalysis) {
  const BatchAnswer answer = Make().Answer(R"({"id":"a7","mode":"call","pot":150,"call":50,"range":"Tight"})", 1);
  EXPECT_FALSE(answer.Refused) << answer.Line;
  EXPECT_THAT(answer.Line,
              StartsWith(R"({"id":"a7","mode":"call","pot":150.0,"call":50.0,"shove":null,"range":"Tight",)"));
  EXPECT_EQ(answer.Line.find('\n'), std::string::npos);
  const Json object = Json::parse(answer.Line);
  EXPECT_EQ(object["hands"].size(), 169U);
  EXPECT_EQ(object.size(), AnalysisFieldNames().size() - 6 + 1) << "all except those of a hand, and the id";
}

// An id is not an amount, so it loses no digit.
TEST_F(BatchTest, TakesWholeNumbersOfAnySizeAsIds) {
  for (const std::string id :
       {"0", "-7", "18446744073709551615", "-9223372036854775808", "123456789012345678901234567890"})
    EXPECT_EQ(Make({"best"}).Answer(R"({"mode":"equity","hands":"KK","id":)" + id + "}", 1).Line,
              "{\"id\":" + id + ",\"best\":\"AA\"}");
}

struct SameCase {
  const char* rule;
  const char* line;
  const char* plain;  // a line that must have the same answer
};

TEST_F(BatchTest, AnswersALineAlikeWhicheverWayItIsWritten) {
  constexpr const char* kRaise = R"({"mode":"raise","pot":1.5,"call":0,"shove":9,"hands":"any","calling_hands":"QQ+"})";
  const Batch batch = Make();
  for (const SameCase& c : {
           SameCase{"AmountsAsTexts",
                    R"({"mode":"raise","pot":"$1.50","call":"","shove":"=10-1","hands":"any","calling_hands":"QQ+"})",
                    kRaise},
           SameCase{"AmountsWithExponents",
                    R"({"mode":"raise","pot":15e-1,"call":0.0,"shove":0.9E1,"hands":"any","calling_hands":"QQ+"})",
                    kRaise},
           SameCase{"OtherOrder",
                    R"({"calling_hands":"QQ+","hands":"any","shove":9,"call":0,"pot":1.5,"mode":"raise"})", kRaise},
           SameCase{"EscapedText",
                    R"({"mode":"raise","pot":1.5,"call":0,"shove":9,"hands":"\u0061ny","calling_hands":"QQ\u002b"})",
                    kRaise},
           SameCase{"NullIsNotThere",
                    R"({"id":null,"mode":"equity","range":"Tight","hands":null,"pot":null,"shove":null})",
                    R"({"mode":"equity","range":"Tight"})"},
           SameCase{"AfterAByteOrderMark", "\xEF\xBB\xBF{\"mode\":\"equity\",\"range\":\"Tight\"}",
                    R"({"mode":"equity","range":"Tight"})"},
           SameCase{"SpacesAndReturn", " { \"mode\" : \"equity\" , \"range\" : \"Tight\" } \r",
                    R"({"mode":"equity","range":"Tight"})"},
       }) {
    const BatchAnswer expected = batch.Answer(c.plain, 1);
    ASSERT_FALSE(expected.Refused) << expected.Line;
    EXPECT_EQ(batch.Answer(c.line, 2).Line, expected.Line) << c.rule;
  }
}

// The result of a single run of the same situation, from texts.
std::string SingleRun(const Situation& situation) {
  return Dumped(AnalysisJson(*Analyze(situation)));
}

// A notation of random classes and weights.
std::string AnyNotation(std::mt19937& random) {
  std::uniform_int_distribution<int> kinds(0, 3);
  std::uniform_real_distribution<double> share(0, 1);
  const double density = share(random);
  ClassWeights weights{};
  for (double& weight : weights) {
    if (share(random) > density) continue;
    const int kind = kinds(random);
    weight = kind == 0   ? 1
             : kind == 1 ? 0.5
             : kind == 2 ? 0.01 * std::uniform_int_distribution<int>(0, 100)(random)
                         : share(random);
  }
  weights.front() = 1;  // so that the opponent has a hand
  return RangeNotation(weights);
}

std::string AnyAmount(std::mt19937& random) {
  const double cents = std::uniform_int_distribution<int>(1, 100000)(random);
  return NumberText(std::uniform_int_distribution<int>(0, 3)(random) == 0 ? cents / 7 : cents / 100);
}

// Each answer equals an analysis of texts to the last digit, on several threads too.
TEST_F(BatchTest, EqualsSingleRunsToTheLastDigit) {
  constexpr int kSituations = 12;
  std::mt19937 random(20261122);
  const Batch batch = Make();
  std::vector<std::string> lines;
  std::vector<std::future<BatchAnswer>> answers;
  for (int i = 0; i < kSituations; ++i) {
    Json line = {{"id", i}, {"mode", i % 4 == 0 ? "call" : i % 8 == 1 ? "equity" : "raise"}};
    line["hands"] = AnyNotation(random);
    if (line["mode"] != "equity") line["pot"] = AnyAmount(random);
    if (line["mode"] == "call") line["call"] = NumberText(LeadingNumber(line["pot"].get<std::string>()) / 3);
    if (line["mode"] == "raise") {
      line["call"] = AnyAmount(random);
      line["shove"] = LeadingNumber(AnyAmount(random));
      line["calling_hands"] = i % 6 == 2 ? "none" : AnyNotation(random);
    }
    lines.push_back(line.dump());
    answers.push_back(std::async(std::launch::async, [&batch, text = lines.back()] { return batch.Answer(text, 1); }));
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto question = batch.Read(lines[i]);
    ASSERT_TRUE(std::holds_alternative<BatchQuestion>(question)) << lines[i];
    const std::string single = SingleRun(std::get<BatchQuestion>(question).Situation);
    EXPECT_EQ(answers[i].get().Line, "{\"id\":" + std::to_string(i) + "," + single.substr(1)) << lines[i];
  }
}

TEST_F(BatchTest, NarrowsToTheFieldsAskedFor) {
  const std::string line = R"({"id":1,"mode":"equity","hands":"KK"})";
  const Json all = Json::parse(Make().Answer(line, 1).Line);
  EXPECT_EQ(Make({"best", "mode"}).Answer(line, 1).Line, R"({"id":1,"mode":"equity","best":"AA"})");
  const Json narrowed = Json::parse(Make({"equity", "worst"}).Answer(line, 1).Line);
  ASSERT_EQ(narrowed.size(), 3U);
  ASSERT_EQ(narrowed["hands"].size(), 169U);
  for (std::size_t i = 0; i < 169; ++i) {
    EXPECT_EQ(narrowed["hands"][i], (Json{{"hand", all["hands"][i]["hand"]}, {"equity", all["hands"][i]["equity"]}}));
  }
  EXPECT_EQ(Json::parse(Make({"hands"}).Answer(line, 1).Line)["hands"], all["hands"]);
  EXPECT_EQ(Make({"id"}).Answer(line, 1).Line, R"({"id":1})");
  EXPECT_EQ(Json::parse(Make({"id", "hand"}).Answer(line, 1).Line)["hands"][168], (Json{{"hand", "22"}}));
}

TEST_F(BatchTest, ReadsASavedRangeOnce) {
  const Batch batch = Make({"range_summary"});
  const std::string line = R"({"mode":"equity","range":"Tight"})";
  const std::string before = batch.Answer(line, 1).Line;
  Files().Write("Tight.txt", TextWith("22") + "\r\n");
  EXPECT_EQ(batch.Answer(line, 2).Line, before);
  EXPECT_NE(Make({"range_summary"}).Answer(line, 2).Line, before);
}

TEST_F(BatchTest, WarnsOfACommaThatCutsAnAmountShort) {
  const Batch batch = Make({"pot", "call"});
  const BatchAnswer answer = batch.Answer(R"({"mode":"call","pot":"1,500","call":"=0.2+0.3","hands":"AA"})", 1);
  EXPECT_EQ(answer.Line, R"({"id":null,"pot":1.0,"call":0.5})");
  EXPECT_EQ(answer.Warning, "Warning: pot 1,500 counts as 1; a comma ends a number.");
}

// ---- lines that are refused

struct RefusedCase {
  const char* rule;
  std::string line;
  const char* id;
  const char* error;  // its start
};

std::vector<RefusedCase> RefusedLines() {
  using namespace std::string_literals;  // NOLINT(google-build-using-namespace): literals
  const auto with = [](const std::string& more) {
    return R"({"id":1,"mode":"call","hands":"AA","pot":3)" + more + "}";
  };
  return {
      {"Empty", "", "null", "the line is empty"},
      {"Blank", " \t\r", "null", "the line is empty"},
      {"ByteOrderMark", "\xEF\xBB\xBF", "null", "the line is empty"},
      {"NoJson", "pot 3", "null", "this is not JSON from byte 1 on: p"},
      {"Cut", R"({"id":1,"mode":"ca)", "1", "this is not JSON from byte 19 on"},
      {"SomethingAfterIt", with("") + " x", "1", "this is not JSON"},
      {"NotANumber", with(R"(,"call":NaN)"), "1", "this is not JSON from byte 51 on: \"call\":N"},
      {"Infinity", with(R"(,"call":Infinity)"), "1", "this is not JSON"},
      {"NulByte", with(",\"call\":\0 1"s), "1", "this is not JSON from byte 51 on: \"call\":<U+0000>"},
      {"NulAfterIt", with(",\"call\":1") + "\0"s, "1", "this is not JSON from byte 53 on: a NUL character"},
      {"NulBeforeMore", with(",\"call\":1") + "\0 x"s, "1", "this is not JSON from byte 53 on: a NUL character"},
      {"NulInAText", with(",\"call\":\"1\0\""s), "1", "this is not JSON"},
      {"NotUtf8", with(",\"call\":\"\xff\""), "1", "this is not JSON"},
      {"BeyondAllNumbers", with(R"(,"call":1e999)"), "1", "1e999 is beyond all numbers"},
      {"TooLong", R"({"id":1,"hands":")" + std::string(10 << 20, 'A') + "\"}", "null",
       "a line has at most 1048576 bytes"},
      {"NoObject", "[1]", "null", "a line is one JSON object"},
      {"Number", "5", "null", "a line is one JSON object"},
      {"Null", "null", "null", "a line is one JSON object"},
      {"DeepBrackets", std::string(100000, '['), "null", "a line is one JSON object"},
      {"UnknownKey", R"({"stack":5,"id":1})", "1",
       "there is no key \"stack\"; there are id, mode, pot, call, shove, range, "},
      {"LongUnknownKey", "{\"" + std::string(100000, 'x') + "\":5}", "null", "there is no key \"xxxxxxxx"},
      {"KeyTwice", with(R"(,"pot":3)"), "1", "\"pot\" is there twice"},
      {"IdTwice", R"({"id":1,"id":2})", "1", "\"id\" is there twice"},
      {"ObjectForAText", with(R"(,"call":{"id":7,"amount":1})"), "1", "\"call\" is a number or a text"},
      {"ListForAText", R"({"range":["Tight"],"id":1})", "1", "\"range\" is a text"},
      {"TruthForAnAmount", with(R"(,"call":true)"), "1", "\"call\" is a number or a text"},
      {"NumberForARange", with(R"(,"range":5)"), "1", "\"range\" is a text"},
      {"FractionForAnId", R"({"id":1.5})", "null", "\"id\" is a text or a whole number"},
      {"ExponentForAnId", R"({"id":1e3})", "null", "\"id\" is a text or a whole number in digits"},
      {"OddCharactersInAnUnknownKey", "{\"" + std::string(59, 'x') + "½\":5}", "null",
       "there is no key \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\"; there are"},
      {"OddCharactersInWhatIsNoJson", R"({"mode":"½)" + std::string(28, 'x') + "\x01", "null",
       "this is not JSON from byte 40 on: xxxxxxxxxxxxxxxxxxxxx"},
      {"LongId", R"({"id":")" + std::string(2000, 'x') + "\"}", "null", "\"id\" has more than 1000 bytes"},
      {"NoMode", R"({"id":"½"})", "\"½\"", "\"mode\" is missing"},
      {"UnknownMode", R"({"mode":"fold"})", "null", "\"mode\" is call, raise or equity, not \"fold\""},
      {"NoCall", with(""), "1", "\"call\" is missing"},
      {"NullCall", with(R"(,"call":null)"), "1", "\"call\" is missing"},
      {"ShoveOfACall", with(R"(,"call":1,"shove":2)"), "1", "\"shove\" does not go with mode \"call\""},
      {"CallersOfACall", with(R"(,"call":1,"calling_hands":"AA")"), "1", "\"calling_hands\" does not go with"},
      {"TwoRanges", with(R"(,"call":1,"range":"Tight")"), "1", "\"range\" and \"hands\" exclude each other"},
      {"NoRange", R"({"id":-1,"mode":"equity"})", "-1", "\"range\" or \"hands\" is missing"},
      {"BadSum", with(R"(,"call":"=1 + 2")"), "1", "\"call\": Only addition (+) and subtract (-) are supported"},
      {"SumTooLarge", with(R"(,"call":"=)" + std::string(310, '9') + "+" + std::string(310, '9') + "\""), "1",
       "\"call\": the sum is beyond all numbers"},
      {"CallAboveThePot", with(R"(,"call":4)"), "1", "Pot Size Error: The pot size must be greater than the amount"},
      {"NoNumber", with(R"(,"call":"1x")"), "1", "Call Size Error: The call size contains non-numeric characters"},
      {"ValueBeyondAllNumbers",
       R"({"mode":"raise","pot":1e308,"call":1e308,"shove":1e308,"hands":"AA","calling_hands":"AA"})", "null",
       "the amounts make a value that is beyond all numbers"},
      {"BadNotation", R"({"mode":"equity","hands":"AA KX"})", "null", "AA KX\n   ^ \"X\" is not a rank"},
      {"NoHands", R"({"mode":"equity","hands":"none"})", "null", "Empty Range: Your opponent's range is empty."},
      {"SavedWithoutHands", R"({"mode":"equity","range":"Nobody"})", "null", "Empty Range: "},
      {"RangeElsewhere", R"({"mode":"equity","range":"../Ranges/Tight"})", "null",
       "There is no range \"../Ranges/Tight\" in "},
      {"UnknownRange", R"({"mode":"equity","range":"Tihgt"})", "null", "There is no range \"Tihgt\" in "},
      {"EmptyFile", R"({"mode":"equity","range":"Empty"})", "null", "The range \"Empty\" cannot be read: "},
      {"NulInAName", R"({"mode":"equity","range":"Tight.txt\u0000"})", "null", "There is no range \"Tight.txt"},
      {"LongName", R"({"mode":"equity","range":")" + std::string(2000, 'x') + "\"}", "null",
       "\"range\" has more than 1000"},
  };
}

TEST_F(BatchTest, RefusesALineWithItsIdItsNumberAndTheReason) {
  const Batch batch = Make();
  for (const RefusedCase& c : RefusedLines()) {
    SCOPED_TRACE(c.rule);
    const BatchAnswer answer = batch.Answer(c.line, 12);
    EXPECT_TRUE(answer.Refused);
    const Json object = Json::parse(answer.Line);
    EXPECT_EQ(object.size(), 3U);
    EXPECT_EQ(object["id"].dump(), c.id);
    EXPECT_EQ(object["line"], 12);
    EXPECT_THAT(object["error"].get<std::string>(), StartsWith(c.error));
    EXPECT_LT(answer.Line.size(), 1000U);
  }
}

}  // namespace
}  // namespace quillon
