#include "analysis/range_equity.h"

#include "hand/equity_table.h"
#include "support/rounding.h"
#include "support/run_time_error.h"

namespace quillon {

double EquityVsRange(std::string_view heroLabel, const HandList& list) {
  if (list.empty()) throw RunTimeError(RunTimeFault::kSubscriptOutOfRange);
  double weight = 0;
  double weightedEquity = 0;
  for (const HandRecord& hand : list) {
    if (hand.Weight <= 0) continue;
    weight += hand.Weight;
    weightedEquity += hand.Weight * HandEquity(heroLabel, hand.Label);
  }
  return Divide(weightedEquity, weight);
}

}  // namespace quillon
