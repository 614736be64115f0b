// Sums from any text, against the rule taken one character at a time.

#include <cmath>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "shell/expressions.h"
#include "support/number_text.h"
#include "support/recorded_messages.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

std::string Overflow() {
  return RunTimeError(RunTimeFault::kOverflow).what();
}

std::string PlainValue(std::string_view text) {
  std::string rest(text.substr(text.empty() ? 0 : 1));
  for (const char c : rest) {
    if (std::string_view("0123456789.+-").find(c) == std::string_view::npos) return std::string(kExpressionErrorText);
  }
  if (rest.empty() || (rest[0] != '+' && rest[0] != '-')) rest.insert(0, 1, '+');

  double total = 0;
  std::size_t place = 0;
  while (place < rest.size()) {
    const std::size_t next = std::min(rest.find_first_of("+-", place + 1), rest.size());
    const double number = LeadingNumber(rest.substr(place + 1, next - place - 1));
    total = total + (rest[place] == '+' ? 1 : -1) * number;
    place = next;
  }
  return std::isfinite(total) ? NumberText(total) : Overflow();
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
  Require(messages.Shown.size() == (sum && bad ? 1U : 0U), "only a sum that is none has a message");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  const std::string text(FuzzInput(data, size).Rest());
  const std::string value = OrFailure([&] { return EvalExpression(text); });
  Require(value == PlainValue(text), "a value equals the plain one");
  Require(value == kExpressionErrorText || value == Overflow() || IsNumericText(value),
          "a value is a number or the error");
  CheckBox(text, value);
  CheckBox("=" + text, OrFailure([&] { return EvalExpression("=" + text); }));
  return 0;
}
