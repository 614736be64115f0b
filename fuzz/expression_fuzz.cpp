// Sums from any text, against the oracle.

#include <string>

#include "analysis/expressions.h"
#include "fuzz/fuzz_target.h"
#include "support/number_text.h"
#include "support/run_time_error.h"
#include "testing/oracle/numbers.h"
#include "testing/recorded_messages.h"

namespace quillon {
namespace {

std::string Overflow() {
  return RunTimeError(RunTimeFault::kOverflow).what();
}

// What follows the first character, as a sum.
std::string PlainValue(std::string_view text) {
  const std::string value = plain::SumText(text.substr(text.empty() ? 0 : 1));
  if (value == "error") return std::string(kExpressionErrorText);
  return value.empty() ? Overflow() : value;
}

template <typename Evaluation>
std::string OrFailure(Evaluation evaluation) {
  try {
    return evaluation();
  } catch (const RunTimeError& error) {
    return error.what();
  }
}

void CheckBox(const std::string& text, const std::string& value) {
  RecordedMessages messages;
  const std::string after = OrFailure([&] { return EvalTextBox(text, messages); });
  const bool sum = text.starts_with('=');
  const bool bad = value == kExpressionErrorText;
  Require(after == (sum && !bad ? value : text), "a box takes the value of a sum and keeps any other text");
  Require(messages.Shown.size() == (sum && bad ? 1U : 0U), "only an invalid sum has a message");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const std::string text(input.Rest());
  const std::string value = OrFailure([&] { return EvalExpression(text); });
  Require(value == PlainValue(text), "a value equals the plain one");
  Require(value == kExpressionErrorText || value == Overflow() || IsNumericText(value),
          "a value is a number or the error");
  CheckBox(text, value);
  CheckBox("=" + text, OrFailure([&] { return EvalExpression("=" + text); }));
}

}  // namespace quillon
