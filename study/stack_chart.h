#pragma once

// The chart of heads-up play, all in or fold: with blinds of a half and one and both players holding the same stack,
// which hands the small blind shoves and which the big blind calls with, in balanced ranges ("study/equilibrium.h"). A
// stack of S big blinds is a pot of 1.5, half a blind to call, and a shove of S - 1.
//
// A hand counts as played where its weight is a half or more. Most hands are played up to some stack and no further;
// a few, such as 63s, are given up at some stacks and played again at larger ones, so each limit tells its gaps.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "analysis/range_sources.h"
#include "hand/hand_classes.h"
#include "study/sweep.h"

namespace quillon {

/// Stacks of the chart from one to another, both included; texts as Steps writes them.
struct StackSpan {
  std::string From;
  std::string To;

  bool operator==(const StackSpan&) const = default;
};

/// Up to which stack of the chart a class is played.
struct StackLimit {
  std::string Largest{};  // the largest at which it is played; empty if at none
  bool IsLast = false;  // which is the last of the chart, so that it may be played beyond
  std::vector<StackSpan> Gaps{};  // below it, where it is not played, from the smallest on

  bool operator==(const StackLimit&) const = default;
};

using StackLimits = std::array<StackLimit, kHandClassCount>;

struct StackChart {
  StackLimits Shove{};
  StackLimits Call{};
};

/// A stack of more big blinds is beyond what balanced ranges are found for.
inline constexpr double kMostStack = 1e8;

/// The chart of these stacks, the first of which must be above 1 and the last at most kMostStack. The work is done on
/// `jobs` threads, the calling one included; that one tells `goesOn` from time to time how many stacks are done. How
/// many threads there are does not change the chart.
[[nodiscard]] StackChart MakeStackChart(const HandNumbers& hands, const Steps& stacks, unsigned jobs,
                                        const std::function<void(std::int64_t done)>& goesOn = {});

/// A limit in words: "7", "20+" where it is the last stack of the chart, "never".
[[nodiscard]] std::string StackText(const StackLimit& limit);

/// The gaps of a limit: "2.3-5.1", "1.1 3-4", or nothing.
[[nodiscard]] std::string GapsText(const StackLimit& limit);

}  // namespace quillon
