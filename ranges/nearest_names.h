#pragma once

// What a user may have meant by a name that does not exist.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// How many bytes must be inserted, deleted or changed to turn one text into the other, without regard to the case of
/// the letters A to Z: ("tihgt", "Tight") is 2. Source: V. I. Levenshtein, "Binary codes capable of correcting
/// deletions, insertions, and reversals", 1966.
[[nodiscard]] std::size_t EditDistance(std::string_view from, std::string_view to);

/// The `count` of `names` that are nearest to `wanted` by EditDistance, or all where there are fewer: the nearest
/// first, those equally near in the order given.
[[nodiscard]] std::vector<std::string> NearestNames(std::string_view wanted, std::vector<std::string> names,
                                                    std::size_t count);

}  // namespace quillon
