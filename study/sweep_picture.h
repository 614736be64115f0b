#pragma once

// A sweep as a picture: a line for each hand over the amount or the width that goes up.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "study/sweep.h"

namespace quillon {

/// What a sweep's picture says beside its lines.
struct SweepLabels {
  std::string Title;
  std::string Across;  // what goes up, with its unit
  std::vector<std::string> Hands;  // those of the rows, in their order
};

/// An SVG document: the expected values of the hands, with the zero line, or where no hand was asked for the percentage
/// of hands that are profitable. Axes have ticks at round numbers. Each line is named to its right, beside its end as
/// far as there is room. There must be a row.
[[nodiscard]] std::string SweepPicture(const SweepLabels& labels, std::span<const SweepRow> rows);

/// Round numbers, 1, 2 or 5 times a power of ten apart, from `low` to `high`: at most one more than `wanted`, and where
/// the two are too near to each other for steps, `low` alone. Both must be finite.
///
///     (0, 20, 5) -> 0, 5, 10, 15, 20      (-0.3, 1.1, 6) -> -0.2, 0, 0.2, ... 1      (7, 7, 5) -> 7
[[nodiscard]] std::vector<double> RoundTicks(double low, double high, int wanted);

}  // namespace quillon
