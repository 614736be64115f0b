#pragma once

// The shades of the results grid: one look shows which starting hands make money and how much. A cell's fraction is its
// value measured against the best (or, for a loss, the worst) value of the grid; where equity alone was asked for, it
// is the place of the cell's equity between the lowest and the highest. So it runs from 0 to about 1, and the shades
// move in steps of 0.05 of it: twenty for wins and losses, fifteen for equity, whose ramp ends at three quarters.
//
// The step is floor(fraction / 0.05) in 64-bit floats, taken as the division gives it: 0.15 / 0.05 is a little below 3,
// so 0.15 still has the shade of 0.10. Nothing here fails: a component that comes out beyond 0 to 255 counts as the end
// it passed.

#include <string_view>

#include "support/rgb.h"

namespace quillon {

/// The shade of a win, where `sign` is "+", or with any other sign of a loss. The smaller the amount the paler: wins
/// run through green, losses through the same numbers in red. A fraction may lie above 1 and then goes on darkening;
/// where the ramp would go below black, the shade is that of 1 again, so that the best hands look like the best hands.
///
///     (0, "+") -> 200, 255, 200      (0.5, "+") -> 33, 255, 33       (0.75, "+") -> 0, 204, 0
///     (1, "+") -> 0, 120, 0          (1.05, "+") -> 0, 103, 0        (1, "-") -> 120, 0, 0
///     (1.35, "+") -> 0, 3, 0         (1.41, "+") -> 0, 120, 0
[[nodiscard]] Rgb EVColor(double fraction, std::string_view sign);

/// The shade of an equity, by its place between the lowest and the highest: white at 0, full blue at 0.5, dark blue at
/// 0.75, where the scale ends.
///
///     0 -> 255, 255, 255      0.25 -> 128, 192, 255      0.5 -> 0, 128, 255      0.75 and above -> 0, 65, 129
[[nodiscard]] Rgb EquityColor(double fraction);

}  // namespace quillon
