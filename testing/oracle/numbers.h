#pragma once

// Numbers as text, written again in the plainest way: shapes and the C library instead of a scanner.

#include <cstddef>
#include <string>
#include <string_view>

namespace quillon::plain {

/// The number at the start of a text, skipping spaces anywhere; 0 if there is none. A number too large for a double is
/// the largest double.
[[nodiscard]] double LeadingNumber(std::string_view text);

/// Whether the whole text is a number as people write amounts.
[[nodiscard]] bool IsNumeric(std::string_view text);

/// A finite number in the general form: 15 significant digits, an exponent only if needed.
[[nodiscard]] std::string NumberText(double value);

/// A finite number with exactly `digits` decimals, the general form rounded half away from zero.
[[nodiscard]] std::string PatternText(double value, std::size_t digits);

/// A number rounded to `digits` decimals on its binary value, ties to even. Unchanged if not finite.
[[nodiscard]] double RoundTo(double value, std::size_t digits);

/// The value of a sum such as "735+220-178" in the general form; "error" if the text has any character other than
/// digits, points and signs, and the empty text if the total is not finite.
[[nodiscard]] std::string SumText(std::string_view sum);

}  // namespace quillon::plain
