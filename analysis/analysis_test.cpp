#include "analysis/analysis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hand/equity_table.h"
#include "testing/fault_of.h"
#include "testing/range_texts.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

using testing::EndsWith;
using testing::StartsWith;

const std::string kEveryHand = EveryHandAt(1);
const std::string kNoHand = EveryHandAt(0);
const std::string kAces = RangeWith({{"AA", 1}});
const std::string kPairs = RangeWith({{"AA", 1}, {"KK", 1}, {"QQ", 1}, {"22", 0.5}});

Situation ACall(const std::string& range) {
  return {.Mode = AnalysisMode::kPreflopCall, .Amounts = {100, 50, 0}, .RangeText = range};
}

Situation ARaise(const std::string& range, const std::string& callingRange) {
  return {.Mode = AnalysisMode::kPreflopRaise,
          .Amounts = {100, 50, 200},
          .RangeText = range,
          .CallingRangeText = callingRange};
}

Situation AnEquity(const std::string& range) {
  return {.Mode = AnalysisMode::kEquityOnly, .RangeText = range};
}

class AnalyzeTest : public testing::Test {
 public:
  void SetUp() override { LoadEquityTable(); }
};

TEST_F(AnalyzeTest, TheSituationComesBackAsItWas) {
  Situation situation = ARaise(kPairs, kAces);
  situation.RangeName = "Pairs";
  situation.CallingRangeName = "Aces";
  EXPECT_EQ(static_cast<const Situation&>(*Analyze(situation)), situation);
}

TEST_F(AnalyzeTest, RowsAgainstARangeOfAces) {
  const auto call = Lines(Analyze(ACall(kAces))->HandInfo, "\r\n");
  EXPECT_EQ(call[0], "AA\t25\t0.5\t1\t") << "150 * 0.5 - 50";
  EXPECT_EQ(call[14], "KK\t-22.91915\t0.180539\t1\t") << "150 * 0.180539 - 50";
  const auto equity = Lines(Analyze(AnEquity(kAces))->HandInfo, "\r\n");
  EXPECT_EQ(equity[0], "AA\t0\t0.5\t1\t");
  EXPECT_EQ(equity[14], "KK\t0\t0.180539\t1\t");
}

TEST_F(AnalyzeTest, WhatCannotBeReadOrWrittenFails) {
  struct Row {
    const char* name;
    Situation situation;
    RunTimeFault fault;
  };
  Situation beyond = ARaise(kEveryHand, kEveryHand);
  beyond.Amounts.PotSize = beyond.Amounts.CallAmount = beyond.Amounts.ShoveAmount = 1e308;
  for (const Row& row :
       {Row{"a call without a range text", ACall(""), RunTimeFault::kSubscriptOutOfRange},
        Row{"a shove without a range text", ARaise("", kEveryHand), RunTimeFault::kSubscriptOutOfRange},
        Row{"a shove without a calling range text", ARaise(kEveryHand, ""), RunTimeFault::kSubscriptOutOfRange},
        Row{"a text that is no range", ACall("no weights here"), RunTimeFault::kInvalidProcedureCall},
        Row{"a range without weight", ACall(kNoHand), RunTimeFault::kOverflow},
        Row{"a value beyond all numbers", beyond, RunTimeFault::kOverflow}}) {
    EXPECT_EQ(FaultOf([&] { return Analyze(row.situation); }), row.fault) << row.name;
  }
}

TEST_F(AnalyzeTest, AListenerHearsOfEachClassBeforeAndAfterIt) {
  std::string heard;
  const auto rowsIn = [](const Analysis& soFar) { return std::to_string(Lines(soFar.HandInfo, "\r\n").size()); };
  const auto analysis = Analyze(
      AnEquity(kAces), {.Begins = [&](std::int16_t index) { heard += "begins " + std::to_string(index) + ", "; },
                        .AmountsNow =
                            [&] {
                              heard += "amounts, ";
                              return Amounts{};
                            },
                        .GoesOn =
                            [&](std::int16_t index, const Analysis& soFar) {
                              heard += "done " + std::to_string(index) + " with " + rowsIn(soFar) + " rows, ";
                              return true;
                            }});
  EXPECT_TRUE(analysis);
  EXPECT_THAT(heard, StartsWith("begins 0, amounts, done 0 with 1 rows, begins 1, amounts, done 1 with 2 rows, "));
  EXPECT_THAT(heard, EndsWith("begins 168, amounts, done 168 with 169 rows, "));
}

TEST_F(AnalyzeTest, AListenerStopsAfterAnyClass) {
  for (const int last : {0, 84, 168}) {
    int done = -1;
    std::string dropped = "none yet";
    const auto analysis = Analyze(ARaise(kAces, kPairs), {.GoesOn = [&](std::int16_t index, const Analysis& soFar) {
                                    done = index;
                                    dropped = soFar.DroppedHands;
                                    return index < last;
                                  }});
    EXPECT_FALSE(analysis) << last;
    EXPECT_EQ(done, last);
    EXPECT_EQ(dropped, last == 168 ? "KK, QQ" : "") << "they come with the last class";
  }
}

}  // namespace
}  // namespace quillon
