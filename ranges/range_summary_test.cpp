#include "ranges/range_summary.h"

#include <gtest/gtest.h>
#include <vector>

#include "testing/fault_of.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

constexpr const char* kWholeGrid =
    "22+,A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s,A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,72o+,62o+,52o+,"
    "42o+,32o";

struct SummaryCase {
  const char* rule;
  const char* full;
  const char* half;
  const char* summary;
};

void ExpectSummaries(const std::vector<SummaryCase>& cases) {
  for (const SummaryCase& c : cases)
    EXPECT_EQ(RangeSummary(TextWith(c.full, c.half)), c.summary) << c.rule;
}

TEST(RangeSummary, FixedOutputsStandForNothingAndForAll) {
  EXPECT_EQ(RangeSummary(TextWith("")), "[None]");
  EXPECT_EQ(RangeSummary(EveryHandAt(1)), "[Everything]");
  EXPECT_EQ(SummarizeWeight(TextWith(""), 1), "");
  EXPECT_EQ(SummarizeWeight(EveryHandAt(1), 1), kWholeGrid);
  EXPECT_EQ(RangeSummary(EveryHandAt(0.5)), std::string("Full:  | Half: ") + kWholeGrid);
}

TEST(RangeSummary, FoldsRuns) {
  ExpectSummaries({
      {"runs from the top are open", "AA KK QQ AKs AQs AKo", "", "QQ+,AQs+,AKo"},
      {"other runs are closed", "JJ TT 99 88 AQs AJs ATs A9s KQs 76s A2o", "", "JJ-88,AQs-A9s,KQs,76s,A2o"},
      {"the lowest two pairs", "33 22", "", "33-22"},
      {"a whole row is an open run", "42s 43s", "", "42s+"},
      {"the last suited class is never a run", "32s", "", "32s"},
      {"a run ends at its row's end", "K2s QJs", "", "K2s,QJs"},
      {"pairs, suited, offsuit, each from the top down", "32o 22 AKo 32s AKs AA", "", "AA,22,AKs,32s,AKo,32o"},
  });
}

TEST(RangeSummary, HalfClassesStandApart) {
  ExpectSummaries({
      {"full before half", "AA", "KK", "Full: AA | Half: KK"},
      {"half alone leaves two blanks", "", "32o", "Full:  | Half: 32o"},
  });
}

TEST(RangeSummary, HalfRunIntoFullClassVanishes) {
  ExpectSummaries({
      {"with nothing else at half there is no half part", "KK", "AA", "KK"},
      {"a later half run stays", "QQ", "AA KK JJ", "Full: QQ | Half: JJ"},
      {"a gap saves the run", "QQ", "AA", "Full: QQ | Half: AA"},
      {"the next row's full class is no neighbour", "KQs", "A2s", "Full: KQs | Half: A2s"},
  });
}

TEST(SummarizeWeight, TakesAnyTarget) {
  const std::string text = RangeWith({{"AA", 0.25}, {"KK", 0.25}, {"TT", 1}, {"99", 1.5}, {"AKs", 2}});
  EXPECT_EQ(RangeSummary(text), "[None]") << "the 1.5 after TT swallows it";
  EXPECT_EQ(SummarizeWeight(text, 0.25), "KK+");
  EXPECT_EQ(SummarizeWeight(text, 2), "AKs");
  EXPECT_EQ(SummarizeWeight(text, 0.5), "");
  EXPECT_EQ(SummarizeWeight(TextWith(""), 0), kWholeGrid);
}

TEST(RangeSummary, MissingClassesReadByTheCommonRule) {
  // Every missing class of three characters reads the 1 of "AA (1)"; every missing pair reads 0.
  EXPECT_EQ(RangeSummary("AA (1), "), "AA" + std::string(kWholeGrid).substr(3));
}

TEST(RangeSummary, EmptyTextIsFatal) {
  EXPECT_EQ(FaultOf([] { return RangeSummary(""); }), RunTimeFault::kInvalidProcedureCall);
  EXPECT_EQ(FaultOf([] { return SummarizeWeight("", 1); }), RunTimeFault::kInvalidProcedureCall);
}

}  // namespace
}  // namespace quillon
