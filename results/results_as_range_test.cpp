#include "results/results_as_range.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hand/hand_classes.h"
#include "testing/sample_analysis.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(ProfitableHands, HaveAValueAboveZero) {
  const std::string table = sample::ResultsTable(
      {{"AA", "120\t0.9\t1"}, {"KK", "1E-09\t0.5\t1"}, {"AKs", "0\t0.25\t1"}, {"22", "-0.5\t0.2\t1"}}, "-1\t0\t1");
  EXPECT_THAT(ProfitableHands(table), ElementsAre(HandIndex("AA"), HandIndex("KK"))) << "a hand at exactly 0 stays out";
}

TEST(ProfitableHands, CanBeNoneAndAll) {
  EXPECT_THAT(ProfitableHands(sample::ResultsTable({}, "-1\t0\t1")), IsEmpty());
  EXPECT_THAT(ProfitableHands(sample::EquityState().HandInfo), IsEmpty()) << "every value is 0";
  EXPECT_THAT(ProfitableHands(sample::ResultsTable({}, "0.5\t0.5\t0.5")), SizeIs(kHandClassCount));
}

}  // namespace
}  // namespace quillon
