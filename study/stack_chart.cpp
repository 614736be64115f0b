#include "study/stack_chart.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <future>

#include "ranges/range_text.h"
#include "study/equilibrium.h"
#include "support/number_text.h"

namespace quillon {
namespace {

using PlayedHands = std::array<bool, kHandClassCount>;

struct PlayAtStack {
  PlayedHands Shove{};
  PlayedHands Call{};
};

PlayedHands PlayedOf(const ClassWeights& weights) {
  constexpr double kPlayed = 0.5;
  PlayedHands played{};
  std::ranges::transform(weights, played.begin(), [](double weight) { return weight >= kPlayed; });
  return played;
}

PlayAtStack PlayAt(const HandNumbers& hands, const std::string& stack) {
  // The shove as written in decimals: 2.3 - 1 is not quite the number 1.3.
  const double shove = LeadingNumber(NumberText(LeadingNumber(stack) - 1));
  // With all hands there is always an answer: the larger the stack, the fewer hands are indifferent.
  const Equilibrium found = FindEquilibrium(hands, {.Pot = 1.5, .Call = 0.5, .Shove = shove}).value();
  return {PlayedOf(found.Shove), PlayedOf(found.Call)};
}

std::vector<PlayAtStack> PlayAtAll(const HandNumbers& hands, const Steps& stacks, unsigned jobs,
                                   const std::function<void(std::int64_t done)>& goesOn) {
  std::vector<PlayAtStack> plays(static_cast<std::size_t>(stacks.Count()));
  std::atomic<std::int64_t> next = 0;
  std::atomic<std::int64_t> done = 0;
  const auto work = [&](const std::function<void(std::int64_t)>& tell) {
    for (std::int64_t step = next++; step < stacks.Count(); step = next++) {
      plays[static_cast<std::size_t>(step)] = PlayAt(hands, stacks.Text(step));
      const std::int64_t soFar = ++done;
      if (tell) tell(soFar);
    }
  };
  std::vector<std::future<void>> others;
  for (unsigned job = 1; job < jobs; ++job)
    others.push_back(std::async(std::launch::async, work, std::function<void(std::int64_t)>()));
  work(goesOn);
  for (std::future<void>& other : others)
    other.get();
  return plays;
}

StackLimit LimitOf(const std::vector<PlayAtStack>& plays, PlayedHands PlayAtStack::*which, std::size_t hand,
                   const Steps& stacks) {
  const auto played = [&](std::int64_t step) { return (plays[static_cast<std::size_t>(step)].*which)[hand]; };
  std::int64_t largest = stacks.Count() - 1;
  while (largest >= 0 && !played(largest))
    --largest;
  if (largest < 0) return {};
  StackLimit limit{.Largest = stacks.Text(largest), .IsLast = largest == stacks.Count() - 1};
  for (std::int64_t step = 0; step < largest; ++step) {
    if (played(step)) continue;
    const std::int64_t first = step;
    while (!played(step + 1))
      ++step;
    limit.Gaps.push_back({stacks.Text(first), stacks.Text(step)});
  }
  return limit;
}

}  // namespace

StackChart MakeStackChart(const HandNumbers& hands, const Steps& stacks, unsigned jobs,
                          const std::function<void(std::int64_t done)>& goesOn) {
  const std::vector<PlayAtStack> plays = PlayAtAll(hands, stacks, jobs, goesOn);
  StackChart chart;
  for (std::size_t hand = 0; hand < kHandClassCount; ++hand) {
    chart.Shove[hand] = LimitOf(plays, &PlayAtStack::Shove, hand, stacks);
    chart.Call[hand] = LimitOf(plays, &PlayAtStack::Call, hand, stacks);
  }
  return chart;
}

std::string StackText(const StackLimit& limit) {
  if (limit.Largest.empty()) return "never";
  return limit.Largest + (limit.IsLast ? "+" : "");
}

std::string GapsText(const StackLimit& limit) {
  std::string text;
  for (const StackSpan& gap : limit.Gaps) {
    if (!text.empty()) text += ' ';
    text += gap.From == gap.To ? gap.From : gap.From + "-" + gap.To;
  }
  return text;
}

}  // namespace quillon
