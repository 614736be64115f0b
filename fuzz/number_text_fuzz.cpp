// Numbers from any text and texts of any number, against the C library's own parser and its exact decimals.

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "fuzz/fuzz_target.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string Without(std::string_view text, std::string_view unwanted) {
  std::string rest;
  for (const char c : text) {
    if (unwanted.find(c) == std::string_view::npos) rest += c;
  }
  return rest;
}

std::size_t SkipDigits(std::string_view text, std::size_t place) {
  while (place < text.size() && IsDigit(text[place]))
    ++place;
  return place;
}

std::size_t SkipOne(std::string_view text, std::size_t place, std::string_view wanted) {
  return place < text.size() && wanted.find(text[place]) != std::string_view::npos ? place + 1 : place;
}

// The longest start that is a number; the text has no blanks.
std::string NumberPart(std::string_view text) {
  const std::size_t first = SkipOne(text, 0, "+-");
  const std::size_t point = SkipDigits(text, first);
  const std::size_t fraction = SkipOne(text, point, ".");
  const std::size_t end = SkipDigits(text, fraction);
  if (point == first && end == fraction) return {};

  const std::size_t sign = SkipOne(text, end, "eE");
  const std::size_t power = SkipOne(text, sign, "+-");
  const std::size_t powerEnd = SkipDigits(text, power);
  return std::string(text.substr(0, sign > end && powerEnd > power ? powerEnd : end));
}

// The C library's parser; nothing here sets a locale, so its decimal mark is the point.
double PlainNumber(const std::string& number) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  return std::clamp(std::strtod(number.c_str(), nullptr), -kLargest, kLargest);
}

// A number without its sign, with all its decimals. A double has 1074 at most.
std::string ExactText(double value) {
  std::array<char, 1500> text{};
  const int length = std::snprintf(text.data(), text.size(), "%.1074f", std::abs(value));  // NOLINT: exact as can be
  return {text.data(), static_cast<std::size_t>(length)};
}

// A number to 15 significant digits, with an exponent.
std::string ShortText(double value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.14e", value);  // NOLINT: the rules' own wording, 15 digits
  return text.data();
}

// Likewise, without its sign and its exponent, and with more decimals than anyone asks for.
std::string GeneralText(double value) {
  const std::string text = ShortText(std::abs(value));
  const std::string digits = text.substr(0, 1) + text.substr(2, 14);
  const int power = std::atoi(text.c_str() + text.find('e') + 1);  // NOLINT: an exponent as printed
  const std::string zeros(400, '0');
  if (power < 0) return "0." + zeros.substr(0, static_cast<std::size_t>(-power - 1)) + digits + zeros;
  std::string fixed = digits + zeros + zeros;
  return fixed.insert(static_cast<std::size_t>(power) + 1, ".");
}

// Text to so many decimals; a look at the digits after the last one wanted decides.
std::string PlainFixed(std::string text, bool negative, std::size_t digits, bool tiesAwayFromZero) {
  const std::size_t point = text.find('.');
  const std::string behind = text.substr(point + 1 + digits);
  text.resize(point + 1 + digits);
  const char last = digits == 0 ? text[point - 1] : text.back();
  if (digits == 0) text.pop_back();

  const bool tie = behind[0] == '5' && behind.find_first_not_of('0', 1) == std::string::npos;
  const bool up = tie ? tiesAwayFromZero || (last - '0') % 2 == 1 : behind[0] >= '5';
  for (std::size_t i = text.size(); up && i > 0; --i) {
    char& c = text[i - 1];
    if (c == '.') continue;
    c = c == '9' ? '0' : static_cast<char>(c + 1);
    if (c != '0') break;
    if (i == 1) text.insert(0, 1, '1');
  }
  return (negative ? "-" : "") + text;
}

void CheckText(std::string_view text) {
  const double value = LeadingNumber(text);
  Require(std::isfinite(value), "the leading number is finite");
  Require(value == PlainNumber(NumberPart(Without(text, " "))), "the leading number equals the plain one");

  const char end = text.empty() ? ' ' : text[text.size() / 2];
  for (const char c : {end, ' ', ')'}) {
    const std::string_view before = text.substr(0, text.find(c));
    Require(LeadingNumberBefore(text, c) == LeadingNumber(before), "an end cuts a text");
  }

  const std::string written = NumberText(value);
  Require(NumberText(LeadingNumber(written)) == written, "a number text reads back as itself");
  Require(IsNumericText(written), "a number text is numeric");

  if (!IsNumericText(text)) return;
  for (const char c : text)
    Require(!IsLetter(c) || c == 'e' || c == 'E', "a numeric text has no letter but e");
  const std::string plain = Without(text, "$, ");
  Require(!plain.empty() && NumberPart(plain) == plain, "a numeric text is a number but for signs of money");
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
  Require(LeadingNumber(NumberText(value)) == PlainNumber(ShortText(value)), "a number keeps 15 digits");

  const auto count = static_cast<int>(digits);
  const bool negative = value < 0;
  Require(PatternText(value, count) == PlainFixed(GeneralText(value), negative, digits, true),
          "a pattern rounds the general form half away from zero");
  Require(RoundTo(value, count) == PlainNumber(PlainFixed(ExactText(value), negative, digits, false)),
          "rounding takes ties of the binary value to even");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  CheckText(input.Rest());
  const std::size_t digits = input.TakeBelow(16);
  CheckNumber(input.TakeDouble(), digits);
  return 0;
}
