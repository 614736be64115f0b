#include "ranges/range_summary.h"
#include "tools/commands.h"

namespace quillon {

RunCommand OfferSummary(CLI::App& options) {
  return OfferRangeText(options, [](std::string_view rangeText) { return RangeSummary(rangeText); });
}

}  // namespace quillon
