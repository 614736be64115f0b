#pragma once

// The classes from the best to the worst, as "top 15%" takes them: by their equity against a hand that may be any.

#include <array>
#include <cstdint>

#include "analysis/range_sources.h"
#include "hand/hand_classes.h"

namespace quillon {

/// All class indexes, ordered by what "Equity Only" says of them against a range of all hands; of equal ones the lower
/// index comes first. AA is the first, 32o the last.
[[nodiscard]] std::array<std::int16_t, kHandClassCount> HandsBestFirst(const HandNumbers& hands);

}  // namespace quillon
