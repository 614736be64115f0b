#include "study/stack_chart.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <variant>
#include <vector>

#include "study/equilibrium.h"
#include "support/number_text.h"
#include "testing/study_hands.h"

namespace quillon {
namespace {

StackChart ChartOf(const std::string& stacks, unsigned jobs = 2) {
  return MakeStackChart(Hands(), std::get<Steps>(Steps::Read(stacks)), jobs);
}

const StackLimit& At(const StackLimits& limits, std::string_view hand) {
  return limits.at(static_cast<std::size_t>(HandIndex(hand)));
}

// Whether the chart has a hand played at a stack.
bool Plays(const StackLimit& limit, double stack) {
  if (limit.Largest.empty() || stack > LeadingNumber(limit.Largest)) return false;
  return std::ranges::none_of(limit.Gaps, [stack](const StackSpan& gap) {
    return stack >= LeadingNumber(gap.From) && stack <= LeadingNumber(gap.To);
  });
}

TEST(StackChart, AgreesWithWhatIsPublishedOfHeadsUpPlay) {
  const StackChart chart = ChartOf("2:7.4:0.1");
  EXPECT_TRUE(Plays(At(chart.Call, "Q2o"), 5.5));
  EXPECT_FALSE(Plays(At(chart.Call, "Q2o"), 5.7));
  EXPECT_TRUE(At(chart.Call, "Q2o").Gaps.empty());
  for (const double stack : {7.0, 5.2, 2.2})
    EXPECT_TRUE(Plays(At(chart.Shove, "63s"), stack)) << stack;
  for (const double stack : {7.2, 5.0, 4.0, 2.4})
    EXPECT_FALSE(Plays(At(chart.Shove, "63s"), stack)) << stack;
  EXPECT_EQ(At(chart.Shove, "63s").Largest, "7.1");
  EXPECT_EQ(At(chart.Shove, "63s").Gaps.front(), (StackSpan{"2.4", "5"}));
  EXPECT_EQ(StackText(At(chart.Shove, "AA")), "7.4+");
}

// Compares each class at each stack with a question about that stack alone.
TEST(StackChart, TellsWhatEachStackSays) {
  const auto stacks = std::get<Steps>(Steps::Read("1.3:16:2.1"));
  const StackChart chart = ChartOf("1.3:16:2.1");
  for (std::int64_t step = 0; step < stacks.Count(); ++step) {
    const double stack = LeadingNumber(stacks.Text(step));
    const auto found =
        FindEquilibrium(Hands(), {.Pot = 1.5, .Call = 0.5, .Shove = LeadingNumber(NumberText(stack - 1))});
    ASSERT_TRUE(found);
    for (std::size_t hand = 0; hand < kHandClassCount; ++hand) {
      EXPECT_EQ(Plays(chart.Shove.at(hand), stack), found->Shove.at(hand) >= 0.5) << stack;
      EXPECT_EQ(Plays(chart.Call.at(hand), stack), found->Call.at(hand) >= 0.5) << stack;
    }
  }
}

TEST(StackChart, IsTheSameOnAnyNumberOfThreads) {
  const StackChart one = ChartOf("2:9:0.5", 1);
  EXPECT_FALSE(At(one.Shove, "63s").Gaps.empty());
  for (const unsigned jobs : {2U, 9U, 40U}) {
    const StackChart many = ChartOf("2:9:0.5", jobs);
    EXPECT_EQ(one.Shove, many.Shove) << jobs;
    EXPECT_EQ(one.Call, many.Call) << jobs;
  }
}

TEST(StackChart, EndsAtTheLargestStack) {
  const StackChart chart = ChartOf("1000:100000000:9999900");
  EXPECT_EQ(At(chart.Shove, "AA").Largest, "100000000");
  EXPECT_EQ(At(chart.Call, "AA").Largest, "100000000");
  EXPECT_EQ(At(chart.Call, "22").Largest, "");
}

TEST(StackChart, TellsHowFarItIs) {
  std::vector<std::int64_t> told;
  const auto stacks = std::get<Steps>(Steps::Read("2:4:1"));
  (void)MakeStackChart(Hands(), stacks, 1, [&told](std::int64_t done) { told.push_back(done); });
  EXPECT_EQ(told, (std::vector<std::int64_t>{1, 2, 3}));
}

TEST(StackLimit, IsToldInWords) {
  EXPECT_EQ(StackText({}), "never");
  EXPECT_EQ(StackText({.Largest = "7.1"}), "7.1");
  EXPECT_EQ(StackText({.Largest = "20", .IsLast = true}), "20+");
  EXPECT_EQ(GapsText({}), "");
  EXPECT_EQ(GapsText({.Gaps = {{"1.1", "1.1"}, {"2.3", "5.1"}}}), "1.1 2.3-5.1");
}

}  // namespace
}  // namespace quillon
