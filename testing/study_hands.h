#pragma once

#include <string>
#include <variant>

#include "analysis/range_sources.h"
#include "hand/equity_table.h"
#include "ranges/range_notation.h"
#include "study/hand_order.h"

namespace quillon {

/// The numbers of all hands, read once per test program.
[[nodiscard]] inline const HandNumbers& Hands() {
  static const HandNumbers hands = [] {
    LoadEquityTable();
    return HandNumbers();
  }();
  return hands;
}

/// The classes, best first, and the range of a valid notation.
[[nodiscard]] inline const HandOrder& BestFirst() {
  static const HandOrder order = HandsBestFirst(Hands());
  return order;
}
[[nodiscard]] inline ClassWeights RangeOf(const std::string& notation) {
  return std::get<ClassWeights>(ReadRangeNotation(notation, BestFirst()));
}

}  // namespace quillon
