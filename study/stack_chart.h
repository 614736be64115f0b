#pragma once

// The push/fold chart for heads-up play: with blinds of a half and one and equal stacks, which hands the small blind
// shoves and which the big blind calls with, in balanced ranges ("study/equilibrium.h"). A stack of S big blinds is a
// pot of 1.5, half a blind to call, and a shove of S - 1.
//
// A hand counts as played at a weight of at least one half. Most hands are played up to some stack and no further; a
// few, such as 63s, are dropped at some stacks and played again at larger ones, so each limit lists its gaps.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "analysis/range_sources.h"
#include "hand/hand_classes.h"
#include "study/sweep.h"

namespace quillon {

/// A span of stacks in the chart, both ends included; texts as Steps writes them.
struct StackSpan {
  std::string From;
  std::string To;

  bool operator==(const StackSpan&) const = default;
};

/// Up to which stack of the chart a class is played.
struct StackLimit {
  std::string Largest{};  // the largest at which it is played; may be empty
  bool IsLast = false;  // it is the last of the chart, so the class may be played beyond
  std::vector<StackSpan> Gaps{};  // below it, where the class is not played, in ascending order

  bool operator==(const StackLimit&) const = default;
};

using StackLimits = std::array<StackLimit, kHandClassCount>;

struct StackChart {
  StackLimits Shove{};
  StackLimits Call{};
};

/// No balanced ranges are found beyond this many big blinds.
inline constexpr double kMostStack = 1e8;

/// The chart of these stacks, the first of which must be above 1 and the last at most kMostStack. Uses `jobs` threads
/// including the calling one, which reports the number of finished stacks to `goesOn` from time to time. The number of
/// threads does not change the chart.
[[nodiscard]] StackChart MakeStackChart(const HandNumbers& hands, const Steps& stacks, unsigned jobs,
                                        const std::function<void(std::int64_t done)>& goesOn = {});

/// A limit in words: "7", "20+" if it is the last stack of the chart, "never".
[[nodiscard]] std::string StackText(const StackLimit& limit);

/// The gaps of a limit: "2.3-5.1", "1.1 3-4", or nothing.
[[nodiscard]] std::string GapsText(const StackLimit& limit);

}  // namespace quillon
