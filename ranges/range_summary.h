#pragma once

// The short form in which poker players write a range, such as "88+,ATs+,KQs,AJo+". It is never parsed.
//
// Items are separated by commas without spaces: first the pairs from AA down, then the suited hands by high card from A
// down, then the offsuit hands likewise. An item is one class ("88", "KQs"), an open run ("88+", "ATs+": that class and
// every better one, for pairs up to AA, for other hands with the same high card up to the second card directly below
// it), or a closed run ("JJ-88", "AQs-A9s": all classes between the two, the better one first).

#include <string>
#include <string_view>

namespace quillon {

/// The notation of the classes whose weight is exactly `target`, the empty text if there are none.
///
///     AA, KK, QQ, AKs, AQs, AKo at 1                      -> "QQ+,AQs+,AKo"
///     JJ, TT, 99, 88, AQs, AJs, ATs, A9s, KQs, A2o at 1   -> "JJ-88,AQs-A9s,KQs,A2o"
///     AA, 22 at 1 -> "AA,22"      33, 22 at 1 -> "33-22"      A3s, A2s at 1 -> "A3s-A2s"      32s at 1 -> "32s"
///
/// A run at `target` whose next class down has a higher weight is left out. Intentional: with AA at 0.5 and KK at 1,
/// SummarizeWeight(text, 0.5) is the empty text.
///
/// Fails as RangeWeightOf does.
[[nodiscard]] std::string SummarizeWeight(std::string_view text, double target);

/// The full notation of a range text: the classes at weight 1 or, if some class at 0.5 has a notation, "Full: ", those
/// at 1, " | Half: ", those at 0.5. All 169 classes at 1 give "[Everything]", nothing at all gives "[None]". A class at
/// any other weight does not appear.
///
///     AA at 1, KK at 0.5 -> "Full: AA | Half: KK"      32o alone at 0.5 -> "Full:  | Half: 32o"
///     AA at 0.5, KK at 1 -> "KK"
///
/// Fails as RangeWeightOf does.
[[nodiscard]] std::string RangeSummary(std::string_view text);

}  // namespace quillon
