#pragma once

// What the main window keeps between runs: the situation of the last run begun and the results of the last one
// finished. Only the driver writes it ("analysis/analysis_driver.h"), except that the stop label clears `Running`. A
// field that a scenario does not ask for keeps its value from an earlier run.

#include "analysis/analysis.h"

namespace quillon {

struct AnalysisState : Analysis {
  bool Running = false;  // from just before the first class until the run ends or is stopped
  int RunsBegun = 0;  // lets a run notice that another has begun inside it
};

}  // namespace quillon
