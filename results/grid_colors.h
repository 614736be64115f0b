#pragma once

// The shades of the results grid, which show at a glance which starting hands make money and how much. A cell's
// fraction is its value relative to the best (or, for a loss, the worst) value of the grid; in "Equity Only" it is the
// position of its equity between the lowest and the highest. So it runs from 0 to about 1, in steps of 0.05: twenty
// shades for wins and losses, fifteen for equity, whose ramp ends at three quarters.
//
// The step is floor(fraction / 0.05) in 64-bit floats, so 0.15, since 0.15 / 0.05 is slightly below 3, has the shade of
// 0.10. Nothing here fails: components are clamped to 0 to 255.

#include <string_view>

#include "support/rgb.h"

namespace quillon {

/// The shade of a win if `sign` is "+", otherwise of a loss. The smaller the amount the paler: wins in green, losses
/// with the same numbers in red. A fraction above 1 is darker still; where the ramp would go below black, the shade is
/// that of 1 again, so that the best hands look like the best hands.
///
///     (0, "+") -> 200, 255, 200      (0.5, "+") -> 33, 255, 33       (0.75, "+") -> 0, 204, 0
///     (1, "+") -> 0, 120, 0          (1.05, "+") -> 0, 103, 0        (1, "-") -> 120, 0, 0
///     (1.35, "+") -> 0, 3, 0         (1.41, "+") -> 0, 120, 0
[[nodiscard]] Rgb EVColor(double fraction, std::string_view sign);

/// The shade of an equity, by its position between the lowest and the highest: white at 0, full blue at 0.5, dark blue
/// at 0.75, where the ramp ends.
///
///     0 -> 255, 255, 255      0.25 -> 128, 192, 255      0.5 -> 0, 128, 255      0.75 and above -> 0, 65, 129
[[nodiscard]] Rgb EquityColor(double fraction);

}  // namespace quillon
