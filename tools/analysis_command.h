#pragma once

// The common part of the commands call, raise and equity: one analysis, printed.

#include "analysis/scenarios.h"
#include "tools/command_inputs.h"

namespace quillon {

/// Adds the options of a scenario's command, and returns the function that runs it.
[[nodiscard]] RunCommand OfferAnalysis(AnalysisMode mode, CLI::App& options);

}  // namespace quillon
