#pragma once

// Rounding and division. Rounding is half to even on the binary value: only a double exactly between two decimals is a
// tie, so 2.675, which is stored slightly lower, rounds to 2.67.

#include <cstdint>

namespace quillon {

/// `value` rounded to `digits` decimals (0 to 15), ties to even: (62.5, 0) is 62, (0.125, 2) is 0.12. A value that is
/// not finite is returned as it is.
[[nodiscard]] double RoundTo(double value, int digits);

/// `value` as a 16-bit integer, ties to even, for channel arithmetic: 87.5 is 88, 120.5 is 120. Values outside the
/// 16-bit range are clamped, and NaN gives 0.
[[nodiscard]] std::int16_t RoundToInt16(double value);

/// numerator / denominator. RunTimeError "Division by zero" if the denominator is 0, or "Overflow" if both are.
[[nodiscard]] double Divide(double numerator, double denominator);

/// `value` / `base` * 100, rounded to `digits` decimals: (85, 169, 0) is 50. Fails as Divide does.
[[nodiscard]] double PercentOf(double value, double base, int digits);

}  // namespace quillon
