#pragma once

// The notation in which players write a range, such as "22+,A2s+,K3s-K2s:0.5,AKo:0.25". It can be read and written, and
// it is exact: reading what was written gives the same range, whatever its weights. The summary of
// "ranges/range_summary.h" is for display only and leaves out some hands at half weight.
//
// Items are separated by commas, semicolons, spaces or line ends. Letter case does not matter, "10" is T, and either
// card of a hand may come first. A leading byte-order mark is skipped.
//
//     88   AKs   AKo   AK               one class; AK is AKs and AKo
//     88+  ATs+  AT+                    that class and every better one; of two ranks the high card stays
//     JJ-88   A9s-AQs   76s-54s         all classes between the two, in either order, without spaces; the high card
//                                       stays, or both fall
//     top 15%   15%                     the best classes by a given order, as many as come nearest to that share
//     any   [Everything]                all classes
//     none   [None]                     no class
//
// A weight from 0 to 1 may follow any item, as "AA:0.5", "AA:50%" or, as in a range file, "AA (0.5)". "Full:" and
// "Half:" set the weight of the following items that have none of their own, and "|" may come before either. If several
// items name the same class, the last counts.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "hand/hand_classes.h"
#include "ranges/range_text.h"

namespace quillon {

/// Longer notations, in bytes, are refused. A range whose weights all differ needs a tenth of this.
inline constexpr std::size_t kLongestNotation = 65536;

/// Why a notation cannot be read.
struct NotationError {
  std::size_t Place = 0;  // the byte offset of the faulty item
  std::string Reason;  // such as "\"X\" is not a rank"

  bool operator==(const NotationError&) const = default;
};

/// The class indexes in some order, each once.
using HandOrder = std::array<std::int16_t, kHandClassCount>;

/// Which weights an item may have.
enum class NotationWeights : std::uint8_t {
  kAny,  // from 0 to 1
  kOfGrid,  // 0, 0.5 and 1, which a card grid can show
};

/// The weights of a range, or the error.
using NotationReading = std::variant<ClassWeights, NotationError>;

/// The range that a notation describes. `bestFirst` is the order for "top": the share counts concrete hands, and of two
/// equally near the smaller is taken. A notation without items is an error (the empty range is "none"), and so is an
/// item with a weight that `allowed` excludes.
[[nodiscard]] NotationReading ReadRangeNotation(std::string_view notation,
                                                std::span<const std::int16_t, kHandClassCount> bestFirst,
                                                NotationWeights allowed = NotationWeights::kAny);

/// The line of the notation with the error, and under it a mark with the reason. A long line is cut to `around` bytes
/// on each side of the place; control characters show as "?".
///
///     AKs, KXs+
///          ^ "X" is not a rank
[[nodiscard]] std::string MarkedPlace(std::string_view notation, const NotationError& error, std::size_t around = 60);

/// The notation of weights in class index order: pairs, suited hands, offsuit hands, each from the best down, folded
/// into runs of equal weight. A weight other than 1 follows its run in the general number form; "any" and "none" are
/// all classes and no class. Reading it gives RangeTextOf(weights), byte for byte, for weights from 0 to 1; others are
/// written too, but cannot be read. RunTimeError "Overflow" for a weight that is not finite.
[[nodiscard]] std::string RangeNotation(std::span<const double, kHandClassCount> weights);

/// The same for a range text: read entry by entry if it is as the program writes it, so that no weight hides another,
/// and by search otherwise. Fails as RangeWeightOf does.
[[nodiscard]] std::string RangeNotation(std::string_view rangeText);

}  // namespace quillon
