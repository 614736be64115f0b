#include "tools/analysis_command.h"
#include "tools/commands.h"

namespace quillon {

RunCommand OfferRaise(CLI::App& options) {
  return OfferAnalysis(AnalysisMode::kPreflopRaise, options);
}

}  // namespace quillon
