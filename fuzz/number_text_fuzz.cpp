// Numbers from any text and texts of any number, against the oracle.

#include <cmath>
#include <string>

#include "fuzz/fuzz_target.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "support/run_time_error.h"
#include "testing/oracle/numbers.h"

namespace quillon {
namespace {

void CheckText(std::string_view text) {
  const double value = LeadingNumber(text);
  Require(std::isfinite(value), "the leading number is finite");
  Require(value == plain::LeadingNumber(text), "the leading number equals the plain one");

  const char end = text.empty() ? ' ' : text[text.size() / 2];
  for (const char c : {end, ' ', ')'}) {
    const std::string_view before = text.substr(0, text.find(c));
    Require(LeadingNumberBefore(text, c) == LeadingNumber(before), "an end cuts a text");
  }

  const std::string written = NumberText(value);
  Require(NumberText(LeadingNumber(written)) == written, "a number text reads back as itself");
  Require(IsNumericText(written), "a number text is numeric");

  Require(IsNumericText(text) == plain::IsNumeric(text), "a text is numeric if it has the shape of an amount");
}

void EraseOnce(std::string& text, std::string_view unwanted) {
  if (const std::size_t place = text.find(unwanted); place != std::string::npos) text.erase(place, unwanted.size());
}

// With a German user's marks: what is numeric without them stays so, and what they add is a number once they are
// removed.
void CheckMarks(std::string_view text) {
  const bool numeric = IsNumericText(text, {"€", ",", "."});
  Require(numeric || !plain::IsNumeric(text), "marks only add numeric texts");
  if (!numeric) return;

  std::string rest(text);
  for (const char* const unwanted : {"€", "\u00A0", "\u202F"})
    EraseOnce(rest, unwanted);
  std::erase(rest, ' ');
  std::string swapped = rest;
  for (char& c : swapped)
    c = c == '.' ? ',' : c == ',' ? '.' : c;
  Require(plain::IsNumeric(rest) || plain::IsNumeric(swapped), "a numeric text without its marks is a number");
}

void CheckNumber(double value, std::size_t digits) {
  if (!std::isfinite(value)) {
    try {
      Require(NumberText(value).empty(), "what is not finite has no text");
    } catch (const RunTimeError& error) {
      Require(error.Fault() == RunTimeFault::kOverflow, "what is not finite overflows");
    }
    return;
  }
  Require(NumberText(value) == plain::NumberText(value), "a number has its general form");

  const auto count = static_cast<int>(digits);
  Require(PatternText(value, count) == plain::PatternText(value, digits),
          "a pattern rounds the general form half away from zero");
  Require(RoundTo(value, count) == plain::RoundTo(value, digits), "rounding takes ties of the binary value to even");
}

}  // namespace

void CheckInput(FuzzInput input) {
  CheckText(input.Rest());
  CheckMarks(input.Rest());
  const std::size_t digits = input.TakeBelow(16);
  CheckNumber(input.TakeDouble(), digits);
}

}  // namespace quillon
