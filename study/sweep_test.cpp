#include "study/sweep.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "analysis/analysis.h"
#include "ranges/range_notation.h"
#include "study/hand_order.h"
#include "support/number_text.h"
#include "testing/study_hands.h"

namespace quillon {
namespace {

// The texts of all steps separated by spaces, or the error.
std::string Read(const std::string& text) {
  const auto read = Steps::Read(text);
  if (const auto* const reason = std::get_if<std::string>(&read)) return *reason;
  const Steps& steps = std::get<Steps>(read);
  std::string texts;
  for (std::int64_t step = 0; step < steps.Count(); ++step)
    texts.append(texts.empty() ? "" : " ").append(steps.Text(step));
  return texts;
}

Steps StepsOf(const std::string& text) {
  return std::get<Steps>(Steps::Read(text));
}

TEST(Steps, GoInDecimals) {
  struct Case {
    const char* text;
    const char* steps;
  };
  for (const Case& c : {
           Case{"1:2:0.25", "1 1.25 1.5 1.75 2"},
           Case{"0.1:0.35:0.1", "0.1 0.2 0.3"},
           Case{"5:5:1", "5"},
           Case{"5:9:10", "5"},
           Case{".5:2.:.5", "0.5 1 1.5 2"},
           Case{"0:0.003:0.001", "0 0.001 0.002 0.003"},
           Case{"99.99:100.01:0.01", "99.99 100 100.01"},
           Case{"100:300:100", "100 200 300"},
       })
    EXPECT_EQ(Read(c.text), c.steps) << c.text;
}

TEST(Steps, RefuseWhatDoesNotEnd) {
  const std::string form = "steps are written FROM:TO:STEP, such as 5:20:0.5";
  const std::string decimal = " is not a plain decimal of at most 15 digits";
  struct Case {
    std::string text;
    std::string reason;
  };
  for (const Case& c : std::vector<Case>{
           {"1:2:0", "the step must be above 0"},
           {"1:2:0.000", "the step must be above 0"},
           {"2:1:1", "the end may not be below the start"},
           {"0:1000000000:1", "there may be at most 100000 steps"},
           {"0:100000:1", "there may be at most 100000 steps"},
           {"1:2", form},
           {"", form},
           {"1:2:3:4", form},
           {"1:2:-1", "\"-1\"" + decimal},
           {"1:2:", "\"\"" + decimal},
           {"1:.:1", "\".\"" + decimal},
           {"1:1.2.3:1", "\"1.2.3\"" + decimal},
           {"1:1e3:1", "\"1e3\"" + decimal},
           {"1:nan:1", "\"nan\"" + decimal},
           {"1:1234567890123456:1", "\"1234567890123456\"" + decimal},
           {"1:100000000000000:0.00000000000001", "the numbers have too many digits, taken together, to be exact"},
       })
    EXPECT_EQ(Read(c.text), c.reason) << c.text;
  EXPECT_EQ(StepsOf("0:99999:1").Count(), 100000);
}

struct ProfitableShare {
  int combos = 0;
  std::vector<double> values;
};

// The result of a separate analysis.
ProfitableShare Separate(const Situation& situation, const SweepQuestion& question) {
  const Analysis analysis = Analyze(situation).value_or(Analysis{});
  ProfitableShare share;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const HandResult result = GetHandResult(analysis.HandInfo, HandLabel(index));
    if (result.ExpectedValue >= 0) share.combos += result.Combos;
  }
  for (const std::int16_t index : question.Hands)
    share.values.push_back(GetHandResult(analysis.HandInfo, HandLabel(index)).ExpectedValue);
  return share;
}

void ExpectSeparate(const SweepRow& row, const Situation& situation, const SweepQuestion& question) {
  const ProfitableShare separate = Separate(situation, question);
  EXPECT_EQ(row.ProfitableCombos, separate.combos) << row.At;
  EXPECT_EQ(row.ExpectedValues, separate.values) << row.At;
}

ClassWeights Top(std::string_view percent) {
  const auto reading = ReadRangeNotation(std::string(percent) + "%", HandsBestFirst(Hands()));
  return std::get<ClassWeights>(reading);
}

const std::vector<std::int16_t> kSomeHands = {HandIndex("72o"), HandIndex("AA"), HandIndex("A5s")};

TEST(Sweep, OfAnAmountEqualsSeparateAnalyses) {
  struct Case {
    const char* what;
    AnalysisMode mode;
    double Amounts::*amount;
    const char* steps;
  };
  const Amounts fixed = {100, 30, 250};
  for (const Case& c : {
           Case{"call", AnalysisMode::kPreflopCall, &Amounts::CallAmount, "0.1:0.7:0.3"},
           Case{"pot of a call", AnalysisMode::kPreflopCall, &Amounts::PotSize, "31:200:66.66"},
           Case{"shove", AnalysisMode::kPreflopRaise, &Amounts::ShoveAmount, "1:3000:999.9"},
           Case{"call of a raise", AnalysisMode::kPreflopRaise, &Amounts::CallAmount, "0:60:20"},
       }) {
    const ClassWeights range = Top("40");
    const ClassWeights calling = Top("12.5");
    const SweepQuestion question = {c.mode, fixed, kSomeHands};
    const auto rows = SweepAmount(question, RangeNumbers(Hands(), range, calling), c.amount, StepsOf(c.steps));
    EXPECT_EQ(rows.size(), static_cast<std::size_t>(StepsOf(c.steps).Count())) << c.what;
    for (const SweepRow& row : rows) {
      Situation situation = {
          .Mode = c.mode, .Amounts = fixed, .RangeText = RangeTextOf(range), .CallingRangeText = RangeTextOf(calling)};
      situation.Amounts.*c.amount = LeadingNumber(row.At);
      SCOPED_TRACE(c.what);
      ExpectSeparate(row, situation, question);
    }
  }
}

TEST(Sweep, OfARangeEqualsSeparateAnalyses) {
  const SweepQuestion question = {AnalysisMode::kPreflopRaise, {100, 30, 250}, kSomeHands};
  for (const std::string at : {"0", "25", "50", "75", "100"}) {
    const SweepRow row = SweepRowAt(question, RangeNumbers(Hands(), AllHands(), Top(at)), at);
    ExpectSeparate(row,
                   {.Mode = question.Mode,
                    .Amounts = {100, 30, 250},
                    .RangeText = RangeTextOf(AllHands()),
                    .CallingRangeText = RangeTextOf(Top(row.At))},
                   question);
  }
  const SweepRow uncalled = SweepRowAt(question, RangeNumbers(Hands(), AllHands(), Top("0")), "0");
  EXPECT_EQ(uncalled.ProfitableCombos, 1326);
  EXPECT_EQ(ProfitablePercent(uncalled), 100);
  EXPECT_EQ(ProfitablePercent({"", 663, {}}), 50);
}

}  // namespace
}  // namespace quillon
