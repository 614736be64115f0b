#include "analysis/expressions.h"

#include "support/number_text.h"

namespace quillon {
namespace {

bool IsSign(char c) {
  return c == '+' || c == '-';
}

}  // namespace

std::string GetNumber(std::string_view text) {
  return std::string(text.substr(0, text.find_first_not_of("0123456789.")));
}

std::string EvalExpression(std::string_view text) {
  std::string_view rest = text.substr(text.empty() ? 0 : 1);
  char sign = '+';
  if (!rest.empty() && IsSign(rest.front())) {
    sign = rest.front();
    rest.remove_prefix(1);
  }

  double total = 0;
  while (true) {
    const std::string number = GetNumber(rest);
    const double value = LeadingNumber(number);
    total += sign == '+' ? value : -value;
    rest.remove_prefix(number.size());
    if (rest.empty()) return NumberText(total);

    sign = rest.front();
    if (!IsSign(sign)) return std::string(kExpressionErrorText);
    rest.remove_prefix(1);
  }
}

std::string EvalTextBox(std::string text, MessageBoxes& messages) {
  if (!text.starts_with('=')) return text;

  std::string value = EvalExpression(text);
  if (IsNumericText(value)) return value;

  messages.Show({.title = "Problem", .text = "There was a problem processing your expression: \r\n\r\n" + value});
  return text;
}

}  // namespace quillon
