#include "study/hand_order.h"

#include <algorithm>
#include <cstddef>

#include "analysis/scenarios.h"
#include "ranges/range_text.h"

namespace quillon {

std::array<std::int16_t, kHandClassCount> HandsBestFirst(const HandNumbers& hands) {
  const RangeNumbers anything(hands, AllHands());
  std::array<std::int16_t, kHandClassCount> order{};
  std::array<double, kHandClassCount> equities{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const auto i = static_cast<std::size_t>(index);
    order[i] = index;
    equities[i] = anything.FiguresOf(ScenarioOf(AnalysisMode::kEquityOnly), index).Equity;
  }
  const auto isBetter = [&](std::int16_t a, std::int16_t b) {
    return equities[static_cast<std::size_t>(a)] > equities[static_cast<std::size_t>(b)];
  };
  std::ranges::stable_sort(order, isBetter);
  return order;
}

}  // namespace quillon
