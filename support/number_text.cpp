#include "support/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "support/letter_case.h"
#include "support/run_time_error.h"
#include "support/utf8.h"

namespace quillon {
namespace {

constexpr int kDoubleDigits = 15;
constexpr int kFloatDigits = 7;

constexpr std::size_t kDigitGroup = sizeof(std::uint64_t);
constexpr auto kPowersOfTen = [] {
  std::array<std::int64_t, kDoubleDigits + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i)
    powers[i] = powers[i - 1] * 10;
  return powers;
}();

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

struct ScientificForm {
  bool negative;
  std::string digits;  // significant digits without trailing zeros; none for 0
  int exponent;  // power of ten of the first digit
};

ScientificForm ToScientific(double value, int significantDigits) {
  std::array<char, 32> buffer{};
  const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                        std::chars_format::scientific, significantDigits - 1)
                              .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = text.find('e');

  ScientificForm form{value < 0, std::string(1, text[0]), 0};
  form.digits += text.substr(2, mark - 2);
  form.digits.erase(form.digits.find_last_not_of('0') + 1);
  const std::size_t exponentStart = text[mark + 1] == '+' ? mark + 2 : mark + 1;
  std::from_chars(text.data() + exponentStart, text.data() + text.size(), form.exponent);
  return form;
}

std::string ExponentText(const ScientificForm& form) {
  std::string text(1, form.digits[0]);
  if (form.digits.size() > 1) text.append(".").append(form.digits, 1);
  const std::string power = std::to_string(std::abs(form.exponent));
  text += form.exponent < 0 ? "E-" : "E+";
  if (power.size() < 2) text += '0';
  return text + power;
}

std::string FixedText(const ScientificForm& form) {
  const int digitCount = static_cast<int>(form.digits.size());
  if (form.exponent < 0) return "0." + std::string(static_cast<std::size_t>(-form.exponent - 1), '0') + form.digits;
  if (form.exponent >= digitCount - 1) {
    return form.digits + std::string(static_cast<std::size_t>(form.exponent - digitCount + 1), '0');
  }
  std::string text = form.digits;
  text.insert(static_cast<std::size_t>(form.exponent) + 1, ".");
  return text;
}

// Whether a number outside the range of a double is too small rather than too large. The position of its first nonzero
// digit, shifted by its exponent, decides: many digits and a large exponent may offset each other.
bool IsTooSmall(std::string_view compact) {
  const std::size_t mark = std::min(compact.find_first_of("eE"), compact.size());
  const std::size_t point = std::min(compact.find('.'), mark);
  const std::size_t leading = compact.find_first_not_of("0.");
  const auto place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading);

  std::string_view power = compact.substr(std::min(mark + 1, compact.size()));
  const bool negative = power.starts_with('-');
  if (power.starts_with('+')) power.remove_prefix(1);
  std::int64_t exponent = 0;
  const auto result = std::from_chars(power.data(), power.data() + power.size(), exponent);
  if (result.ec == std::errc::result_out_of_range) return negative;
  return exponent < -place;
}

// The number at the start of a text without spaces, by the library's correctly rounding parser. An exponent counts only
// with at least one digit: "1e" and "1e+" are 1.
double ParseCompact(std::string_view compact) {
  const bool negative = compact.starts_with('-');
  if (negative || compact.starts_with('+')) compact.remove_prefix(1);
  if (compact.empty() || !(IsDigit(compact[0]) || compact[0] == '.')) return 0;  // a second sign, "inf", "nan"
  double value = 0;
  const auto [end, fault] = std::from_chars(compact.data(), compact.data() + compact.size(), value);
  if (fault == std::errc::invalid_argument) return 0;
  if (fault == std::errc::result_out_of_range) {
    const std::string_view number = compact.substr(0, static_cast<std::size_t>(end - compact.data()));
    value = IsTooSmall(number) ? 0.0 : std::numeric_limits<double>::max();
  }
  return negative ? -value : value;
}

// The digits at the start of eight characters.
struct DigitRun {
  std::int64_t value;
  std::size_t count;
};

// All eight at once: adjacent digits are combined into numbers of two digits, those into four, those into eight (D.
// Lemire, "Quickly parsing eight digits", 2018).
DigitRun ReadDigits(const char* eight) {
  std::uint64_t word = 0;
  std::memcpy(&word, eight, kDigitGroup);
  word ^= 0x3030303030303030;  // a digit becomes its value, any other character more than 9
  // Adding 0x76 carries 10 and more into a byte's high bit. A carry out of a byte only affects later bytes.
  const std::uint64_t others = (word | (word + 0x7676767676767676)) & 0x8080808080808080;
  const auto count = static_cast<std::size_t>(std::countr_zero(others)) / kDigitGroup;
  if (count == 0) return {0, 0};
  word <<= (kDigitGroup - count) * kDigitGroup;  // leading zeros replace the characters after the digits
  word = word * 10 + (word >> 8U);
  word = (((word & 0x000000FF000000FF) * 0x000F424000000064) +
          (((word >> 16U) & 0x000000FF000000FF) * 0x0000271000000001)) >>
         32U;
  return {static_cast<std::int64_t>(word), count};
}

// The digits of number * 10^decimals, rounded half away from zero to an integer.
std::string WholeDigits(const ScientificForm& form, int decimals) {
  const int digitCount = static_cast<int>(form.digits.size());
  const int dropped = digitCount - (form.exponent + 1 + decimals);
  if (dropped <= 0) return form.digits + std::string(static_cast<std::size_t>(-dropped), '0');
  if (dropped > digitCount) return "0";  // less than 0.1

  std::int64_t mantissa = 0;
  std::from_chars(form.digits.data(), form.digits.data() + form.digits.size(), mantissa);
  const std::int64_t unit = kPowersOfTen[static_cast<std::size_t>(dropped)];
  return std::to_string((mantissa + unit / 2) / unit);
}

// A space, a no-break space, and the narrow no-break space, the French thousands separator.
constexpr std::array<std::string_view, 3> kBlanks = {" ", "\u00A0", "\u202F"};

bool HasLetter(std::string_view text) {
  while (!text.empty()) {
    const Utf8Character first = FirstCharacter(text);
    if (IsLetter(first.Character)) return true;
    text.remove_prefix(first.Length);
  }
  return false;
}

// Consumes an amount from its start. An empty mark never matches.
class AmountScanner {
 public:
  AmountScanner(std::string_view text, std::string_view currency, std::string_view decimal, std::string_view group)
      : rest_(text), currency_(currency), decimal_(decimal), group_(group) {}

  bool IsAmount() {
    bool currency = TakeCurrency();
    const bool sign = Take("+") || Take("-");
    if (sign && !currency) currency = TakeCurrency();
    const bool whole = TakeDigits(true);
    const bool fraction = Take(decimal_) && TakeDigits(false);
    if (!whole && !fraction) return false;
    if (Take("e") || Take("E")) {
      if (!Take("+")) Take("-");
      if (!TakeDigits(false)) return false;
    }
    if (rest_.empty()) return true;
    TakeBlank();
    return !currency && Take(currency_) && rest_.empty();
  }

 private:
  bool Take(std::string_view wanted) {
    if (wanted.empty() || !rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(wanted.size());
    return true;
  }

  bool TakeBlank() {
    return std::ranges::any_of(kBlanks, [this](std::string_view blank) { return Take(blank); });
  }

  bool TakeCurrency() {
    if (!Take(currency_)) return Take("$");
    TakeBlank();
    return true;
  }

  bool TakeGroup() { return std::ranges::find(kBlanks, group_) != kBlanks.end() ? TakeBlank() : Take(group_); }

  // A thousands separator counts only between two digits.
  bool TakeDigits(bool grouped) {
    bool taken = false;
    for (;;) {
      const std::string_view before = rest_;
      if (grouped && taken) TakeGroup();
      if (rest_.empty() || !IsDigit(rest_[0])) {
        rest_ = before;
        return taken;
      }
      rest_.remove_prefix(1);
      taken = true;
    }
  }

  std::string_view rest_;
  std::string_view currency_;
  std::string_view decimal_;
  std::string_view group_;
};

std::string GeneralForm(double value, int significantDigits) {
  if (!std::isfinite(value)) throw RunTimeError(RunTimeFault::kOverflow);
  if (value == 0) return "0";

  const ScientificForm form = ToScientific(value, significantDigits);
  const int decimals = static_cast<int>(form.digits.size()) - 1 - form.exponent;
  const bool needsExponent = decimals > significantDigits || form.exponent >= significantDigits;
  return (form.negative ? "-" : "") + (needsExponent ? ExponentText(form) : FixedText(form));
}

}  // namespace

std::string NumberText(double value) {
  return GeneralForm(value, kDoubleDigits);
}

std::string FloatNumberText(float value) {
  return GeneralForm(static_cast<double>(value), kFloatDigits);
}

double LeadingNumber(std::string_view text) {
  if (text.find(' ') == std::string_view::npos) return ParseCompact(text);
  std::string compact(text.substr(0, text.find_first_not_of("0123456789.eE+- ")));
  std::erase(compact, ' ');
  return ParseCompact(compact);
}

double LeadingNumberBefore(std::string_view text, char end) {
  // One digit, a point and at most seven digits: nearly every equity table entry has this form, and reading one is the
  // program's innermost step.
  if (text.size() >= 2 + kDigitGroup && IsDigit(text[0]) && text[1] == '.' && end != '.') {
    const DigitRun run = ReadDigits(text.data() + 2);
    if (run.count < kDigitGroup && text[2 + run.count] == end) {
      // Both are exact, so the division gives the correctly rounded number (W. D. Clinger, "How to read floating point
      // numbers accurately", 1990).
      const std::int64_t mantissa = (text[0] - '0') * kPowersOfTen[run.count] + run.value;
      return static_cast<double>(mantissa) / static_cast<double>(kPowersOfTen[run.count]);
    }
  }
  return LeadingNumber(text.substr(0, text.find(end)));
}

bool IsNumericText(std::string_view text, const NumberMarks& marks) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return false;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);

  const std::string_view currency = HasLetter(marks.Currency) ? std::string_view() : marks.Currency;
  return AmountScanner(text, currency, ".", ",").IsAmount() ||
         AmountScanner(text, currency, marks.Decimal, marks.Group).IsAmount();
}

std::string PatternText(double value, int digits) {
  if (!std::isfinite(value)) throw RunTimeError(RunTimeFault::kOverflow);
  const ScientificForm form = ToScientific(value, kDoubleDigits);
  std::string text = WholeDigits(form, digits);
  const auto decimals = static_cast<std::size_t>(digits);
  if (text.size() <= decimals) text.insert(0, decimals + 1 - text.size(), '0');
  if (decimals > 0) text.insert(text.size() - decimals, ".");
  return (form.negative ? "-" : "") + text;
}

}  // namespace quillon
