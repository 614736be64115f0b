#pragma once

// How numbers become text and text becomes numbers, everywhere in the program. Routines pass numbers to each other as
// text (range files, the results table, amount boxes), so these few define what a number is. None of them uses the
// locale: the decimal mark is always a point.

#include <string>
#include <string_view>

namespace quillon {

/// A number in the general form: at most 15 significant digits, no trailing zeros, no trailing point, a 0 before the
/// point, no thousands separators, a minus sign where negative and never a plus sign. A value whose fixed form would
/// need more than 15 decimals, or more than 15 digits before the point, takes the exponent form.
///
///     150 -> "150"      0.1 + 0.2 -> "0.3"      -0.5 -> "-0.5"      -0.0 -> "0"
///     1.0 - 0.920788 -> "7.92119999999999E-02"  1e15 -> "1E+15"
///
/// A value that is not finite has no text: RunTimeError "Overflow".
[[nodiscard]] std::string NumberText(double value);

/// The same form for a 32-bit float, which holds 7 digits: a value whose fixed form would need more than 7 decimals, or
/// more than 7 digits before the point, takes the exponent form. Fails as NumberText does.
///
///     150 -> "150"      0.1f -> "0.1"      857.142857f -> "857.1429"      1e7f -> "1E+07"
[[nodiscard]] std::string FloatNumberText(float value);

/// The number at the start of a text: the longest prefix that is an optional sign, digits, an optional fraction after a
/// point and an optional exponent. Spaces are skipped anywhere; anything else ends the number, and a text without such
/// a prefix gives 0. Never fails: a number beyond a double's range gives the largest one with its sign, one too small
/// 0.
///
///     "12abc" -> 12      "1,000" -> 1      " 1 000" -> 1000      "1.5.2" -> 1.5
///     "1e3" -> 1000      "1e" -> 1         "-.5" -> -0.5         "$5" -> 0      "" -> 0
[[nodiscard]] double LeadingNumber(std::string_view text);

/// LeadingNumber of the text before the first `end`, or of the whole text if it has none: ("0.5 0.7 ", ' ') is 0.5.
[[nodiscard]] double LeadingNumberBefore(std::string_view text, char end);

/// The user's marks in amounts, each as UTF-8 text: (€)(,)(.) in Germany. An empty text means no such mark.
struct NumberMarks {
  std::string Currency;
  std::string Decimal;
  std::string Group;
};

/// Whether the whole of a text is a number as people write amounts: spaces at both ends, one sign, one "$" before or
/// after the sign, digits with single commas between them as thousands separators, a fraction after a point, and an
/// exponent. It must hold a digit before any exponent.
///
/// The user's marks count as well. The currency may also follow the digits, with a space or without; one that holds a
/// letter does not count, since letters after a number must be noticed. The other two take the places of point and
/// comma, both or none; where digits are grouped by a space, any kind of space does it.
///
///     true:  "150"  "$1,000.50"  "-5"  "+5"  "-$5"  "$-5"  ".5"  "5."  "1e3"  " 7 "
///     false: ""  "12abc"  "$"  "."  "1 000"  "--5"  "1.5.2"  "1.5,0"  ",5"  "5,"  "5-"  "(5)"  "=5"
///     in Germany also true:  "100 €"  "100€"  "-€5"  "1.000,50"      false:  "1.000,5.5"  "€5€"  "100 EUR"
[[nodiscard]] bool IsNumericText(std::string_view text, const NumberMarks& marks = {});

/// A number with exactly `digits` decimals (0 to 15) and at least one digit before the point: the number patterns
/// "0.000" (digits 3) and, once the caller removes the leading 0, ".00". It rounds the decimal digits of the general
/// form, half away from zero: 0.4135 is a tie here, although its double is slightly less.
///
///     (0.4135, 3) -> "0.414"      (-1, 3) -> "-1.000"      (1234.5, 2) -> "1234.50"
///
/// A loss too small to show keeps its sign, (-0.001, 2) -> "-0.00", but a negative zero has none.
///
/// A value that is not finite has no text: RunTimeError "Overflow".
[[nodiscard]] std::string PatternText(double value, int digits);

}  // namespace quillon
