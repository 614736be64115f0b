#include "analysis/analysis_state.h"

namespace quillon {

std::string_view ScreenName(AnalysisMode mode) {
  switch (mode) {
    case AnalysisMode::kPreflopCall:
      return "Preflop Call";
    case AnalysisMode::kPreflopRaise:
      return "Preflop Raise";
    case AnalysisMode::kEquityOnly:
      return "Equity Only";
    case AnalysisMode::kNone:
      break;
  }
  return {};
}

AnalysisMode ModeOfButton(std::int16_t index) {
  if (index == 0) return AnalysisMode::kPreflopCall;
  if (index == 2) return AnalysisMode::kEquityOnly;
  return AnalysisMode::kPreflopRaise;
}

}  // namespace quillon
