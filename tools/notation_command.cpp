#include "ranges/range_notation.h"
#include "tools/commands.h"

namespace quillon {

RunCommand OfferNotation(CLI::App& options) {
  return OfferRangeText(options, [](std::string_view rangeText) { return RangeNotation(rangeText); });
}

}  // namespace quillon
