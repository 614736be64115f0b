#pragma once

// The classes from best to worst, for "top 15%": by their equity against a random hand.

#include <array>
#include <cstdint>

#include "analysis/range_sources.h"
#include "hand/hand_classes.h"

namespace quillon {

/// All class indexes, ordered by their "Equity Only" result against a range of all hands; ties by lower index first. AA
/// is the first, 32o the last.
[[nodiscard]] std::array<std::int16_t, kHandClassCount> HandsBestFirst(const HandNumbers& hands);

}  // namespace quillon
