#include "tools/analysis_command.h"
#include "tools/commands.h"

namespace quillon {

RunCommand OfferCall(CLI::App& options) {
  return OfferAnalysis(AnalysisMode::kPreflopCall, options);
}

}  // namespace quillon
