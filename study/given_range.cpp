#include "study/given_range.h"

#include "ranges/range_lookup.h"
#include "ranges/range_notation.h"

namespace quillon {

RangeFinding TypedRange(std::string_view notation, std::span<const std::int16_t, kHandClassCount> bestFirst) {
  const NotationReading reading = ReadRangeNotation(notation, bestFirst);
  if (const auto* const error = std::get_if<NotationError>(&reading)) return MarkedPlace(notation, *error);
  const auto& weights = std::get<ClassWeights>(reading);
  GivenRange range{RangeNotation(weights), SearchableRangeText(weights)};
  range.Weights = *WrittenWeightsOf(range.Text);  // as RangeWeightsOf reads such a text, but faster
  return range;
}

RangeFinding SavedRange(const std::string& name, const ProgramFolder& folder) {
  if (auto unknown = WhyUnknown(name, folder)) return *unknown;
  if (auto unreadable = WhyUnreadable(name, folder)) return *unreadable;
  GivenRange range{name, LoadRangeText(folder, name)};
  range.Weights = RangeWeightsOf(range.Text);
  return range;
}

}  // namespace quillon
