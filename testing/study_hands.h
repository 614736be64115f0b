#pragma once

#include "analysis/range_sources.h"
#include "hand/equity_table.h"

namespace quillon {

/// The numbers of all hands, read once for a test program.
[[nodiscard]] inline const HandNumbers& Hands() {
  static const HandNumbers hands = [] {
    LoadEquityTable();
    return HandNumbers();
  }();
  return hands;
}

}  // namespace quillon
