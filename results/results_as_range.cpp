#include "results/results_as_range.h"

#include "analysis/results_table.h"
#include "hand/hand_classes.h"

namespace quillon {

std::vector<std::int16_t> ProfitableHands(std::string_view handInfo) {
  std::vector<std::int16_t> hands;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (GetHandInfo(handInfo, HandLabel(index), kExpectedValueColumn) > 0) hands.push_back(index);
  }
  return hands;
}

}  // namespace quillon
