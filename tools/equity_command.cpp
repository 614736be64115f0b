#include "tools/analysis_command.h"
#include "tools/commands.h"

namespace quillon {

RunCommand OfferEquity(CLI::App& options) {
  return OfferAnalysis(AnalysisMode::kEquityOnly, options);
}

}  // namespace quillon
