#pragma once

// What the commands call, raise and equity have in common: one analysis, printed.

#include "analysis/scenarios.h"
#include "tools/command_inputs.h"

namespace quillon {

/// Adds the options of a scenario's command, and returns what runs it.
[[nodiscard]] RunCommand OfferAnalysis(AnalysisMode mode, CLI::App& options);

}  // namespace quillon
