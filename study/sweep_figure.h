#pragma once

// A sweep as a figure: a line for each hand over the amount or width that goes up.

#include <span>
#include <string>
#include <vector>

#include "study/figure.h"
#include "study/sweep.h"

namespace quillon {

/// The texts of a sweep's figure.
struct SweepLabels {
  std::string Title;
  std::string Across;  // what goes up, with its unit
  std::vector<std::string> Hands;  // those of the rows, in order
};

/// The expected values of the hands, with the zero line, or without hands the percentage of profitable hands. At least
/// one row.
[[nodiscard]] Figure SweepFigure(const SweepLabels& labels, std::span<const SweepRow> rows);

}  // namespace quillon
