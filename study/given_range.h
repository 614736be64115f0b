#pragma once

// A range as it is given, by a notation or by the name of a file, made ready for an analysis. What cannot be had is
// told in words.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "hand/hand_classes.h"
#include "ranges/range_files.h"
#include "ranges/range_text.h"

namespace quillon {

/// `Weights` are those that an analysis reads from `Text`, which holds 15 digits of each.
struct GivenRange {
  std::string Name;  // its notation where it was given by that
  std::string Text;
  ClassWeights Weights{};
};

/// The range, or why there is none.
using RangeFinding = std::variant<GivenRange, std::string>;

/// The range that a notation describes, named by it as the program writes it; otherwise the place that is wrong, marked
/// (MarkedPlace). `bestFirst` is the order of ReadRangeNotation.
[[nodiscard]] RangeFinding TypedRange(std::string_view notation,
                                      std::span<const std::int16_t, kHandClassCount> bestFirst);

/// The range in the file of that name; otherwise what WhyUnknown or WhyUnreadable says. Fails as RangeWeightsOf does
/// where a file with some weights lacks others.
[[nodiscard]] RangeFinding SavedRange(const std::string& name, const ProgramFolder& folder);

}  // namespace quillon
