#include "support/rounding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "support/run_time_error.h"

namespace quillon {

double RoundTo(double value, int digits) {
  if (!std::isfinite(value)) return value;
  // Printing rounds the exact binary value; scaling by a power of ten would round twice.
  std::array<char, 400> buffer{};
  const char* const end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, digits).ptr;
  double rounded = 0;
  std::from_chars(buffer.data(), end, rounded);
  return rounded;
}

std::int16_t RoundToInt16(double value) {
  constexpr double kLow = std::numeric_limits<std::int16_t>::min();
  constexpr double kHigh = std::numeric_limits<std::int16_t>::max();
  if (std::isnan(value)) return 0;
  // nearbyint uses the default rounding mode, to nearest with ties to even; nothing here changes it.
  return static_cast<std::int16_t>(std::clamp(std::nearbyint(value), kLow, kHigh));
}

double Divide(double numerator, double denominator) {
  if (denominator != 0) return numerator / denominator;
  throw RunTimeError(numerator == 0 ? RunTimeFault::kOverflow : RunTimeFault::kDivisionByZero);
}

double PercentOf(double value, double base, int digits) {
  return RoundTo(Divide(value, base) * 100, digits);
}

}  // namespace quillon
