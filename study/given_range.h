#pragma once

// A range given by notation or file name, ready for an analysis, or the error in words.

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
  std::string Name;  // its notation if it was given by one
  std::string Text;
  ClassWeights Weights{};
};

/// The range, or the error.
using RangeFinding = std::variant<GivenRange, std::string>;

/// The range that a notation describes, named by the program's spelling of it; or the error with its place marked
/// (MarkedPlace). `bestFirst` is as for ReadRangeNotation.
[[nodiscard]] RangeFinding TypedRange(std::string_view notation,
                                      std::span<const std::int16_t, kHandClassCount> bestFirst);

/// The range in the file of that name; or the error of WhyUnknown or WhyUnreadable. Fails as RangeWeightsOf does.
[[nodiscard]] RangeFinding SavedRange(const std::string& name, const ProgramFolder& folder);

}  // namespace quillon
