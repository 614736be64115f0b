#pragma once

// Suggestions for a name that does not exist.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The number of bytes to insert, delete or change to turn one text into the other, ignoring the case of A to Z:
/// ("tihgt", "Tight") is 2. Source: V. I. Levenshtein, "Binary codes capable of correcting deletions, insertions, and
/// reversals", 1966.
[[nodiscard]] std::size_t EditDistance(std::string_view from, std::string_view to);

/// The `count` of `names` nearest to `wanted` by EditDistance, or all if fewer; nearest first, ties in the given order.
[[nodiscard]] std::vector<std::string> NearestNames(std::string_view wanted, std::vector<std::string> names,
                                                    std::size_t count);

}  // namespace quillon
