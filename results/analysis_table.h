#pragma once

// A finished analysis as a table for other programs: spreadsheets and scripts.

#include <string>

#include "analysis/analysis.h"

namespace quillon {

/// A header row, then hand, combos, ev, equity, fold and colour for each class in index order, with `separator` between
/// the cells and a line end after each row. A value that the scenario does not have is empty. Numbers have the general
/// form and read back as in the results table; an equity of -1 means that the opponent never calls.
///
///     hand,combos,ev,equity,fold,colour
///     AA,6,120.46,0.8523,,#007800
[[nodiscard]] std::string AnalysisTable(const Analysis& analysis, char separator);

}  // namespace quillon
