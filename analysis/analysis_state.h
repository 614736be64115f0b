#pragma once

// What outlives a run in the main window: the situation of the last run that began and the results of the last one that
// finished. Only the driver writes it ("analysis/analysis_driver.h"), but for `Running`, which the stop label clears
// too. A field that a scenario does not ask for keeps what an earlier run left in it.

#include "analysis/analysis.h"

namespace quillon {

struct AnalysisState : Analysis {
  bool Running = false;  // from just before the first class until the run ends or is stopped
  int RunsBegun = 0;  // by this a run finds out that another has begun inside it
};

}  // namespace quillon
