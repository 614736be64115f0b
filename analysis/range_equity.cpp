#include "analysis/range_equity.h"

#include "hand/equity_table.h"
#include "support/run_time_error.h"

namespace quillon {

double EquityVsRange(std::string_view heroLabel, const HandList& list) {
  if (list.empty()) throw RunTimeError(RunTimeFault::kSubscriptOutOfRange);
  RangeSums sums;
  for (const HandRecord& hand : list)
    sums.Add(hand.Weight, hand.Weight, hand.Weight > 0 ? HandEquity(heroLabel, hand.Label) : 0);
  return sums.Equity();
}

}  // namespace quillon
