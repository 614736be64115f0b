#pragma once

// The small sums that an amount box takes: "=735+220-178" becomes 777 when the user leaves the box. The grammar is "="
// and a run of signed numbers, the first sign optional; a number is digits and points, and an empty one counts as 0.
// Spaces, "$", thousands separators, brackets, products and quotients all give the error text.

#include <string>
#include <string_view>

#include "support/message_boxes.h"

namespace quillon {

/// The result of EvalExpression for a text that is not a sum.
inline constexpr std::string_view kExpressionErrorText = "Only addition (+) and subtract (-) are supported";

/// What is said of a sum for which EvalExpression fails.
inline constexpr std::string_view kSumTooLarge = "the sum is beyond all numbers";

/// The digits and points at the start of a text, unchanged: "12+3" gives "12", "1.5.2" all of it, "-5" nothing.
[[nodiscard]] std::string GetNumber(std::string_view text);

/// The value of a sum in the general number form, or kExpressionErrorText. The first character is skipped unchecked. A
/// number with two points ends before the second. RunTimeError "Overflow" for a sum beyond the range of a double.
///
///     "=735+220-178" -> "777"      "=.5+.5" -> "1"      "=5+" -> "5"      "=--3" -> "-3"
///     "=1.5.2" -> "1.5"            "=" -> "0"           "=1 + 2", "=$5", "=2*3" -> the error text
[[nodiscard]] std::string EvalExpression(std::string_view text);

/// The text of an amount box after the user leaves it: the value of a text that starts with "=", any other text
/// unchanged. A sum that cannot be evaluated stays too, after a message. Fails as EvalExpression does.
[[nodiscard]] std::string EvalTextBox(std::string text, MessageBoxes& messages);

}  // namespace quillon
