#include "testing/oracle/numbers.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <locale>
#include <set>
#include <sstream>

namespace quillon::plain {
namespace {

constexpr std::string_view kDigits = "0123456789";

using Form = std::ios_base::fmtflags;

std::string Printed(double value, Form form, std::size_t digits) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream.flags(form);
  stream.precision(static_cast<std::streamsize>(digits));
  stream << value;
  return stream.str();
}

// The value of a text that is a number, clamped to the largest double. Uses the library's parser, whatever locale a
// window has set.
double ValueOf(const std::string& number) {
  std::istringstream stream(number);
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  return value;
}

std::string WithoutTrailingZeros(std::string number) {
  if (number.find('.') == std::string::npos) return number;
  number.erase(number.find_last_not_of('0') + 1);
  if (number.back() == '.') number.pop_back();
  return number;
}

// The text with each run of digits as a single 9.
std::string ShapeOf(std::string_view text) {
  std::string shape;
  for (const char c : text) {
    const bool digit = kDigits.find(c) != std::string_view::npos;
    if (!digit || !shape.ends_with('9')) shape += digit ? '9' : c;
  }
  return shape;
}

std::set<std::string> NumericShapes() {
  std::set<std::string> shapes;
  for (const char* start : {"", "$", "+", "-", "$+", "$-", "+$", "-$"}) {
    for (const char* middle : {"9", "9.", "9.9", ".9"}) {
      for (const char* power : {"", "e9", "e+9", "e-9", "E9", "E+9", "E-9"})
        shapes.insert(std::string(start) + middle + power);
    }
  }
  return shapes;
}

// A number with 15 significant digits, without sign and with more decimals than any test needs.
std::string WrittenOut(double value) {
  const std::string text = Printed(std::abs(value), std::ios::scientific, 14);
  const std::string digits = text.substr(0, 1) + text.substr(2, 14);
  const int power = std::stoi(text.substr(text.find('e') + 1));
  const std::string zeros(400, '0');
  if (power < 0) return "0." + zeros.substr(0, static_cast<std::size_t>(-power - 1)) + digits + zeros;
  return (digits + zeros + zeros).insert(static_cast<std::size_t>(power) + 1, ".");
}

}  // namespace

double LeadingNumber(std::string_view text) {
  std::string rest;
  std::copy_if(text.begin(), text.end(), std::back_inserter(rest), [](char c) { return c != ' '; });
  const auto past = [&rest](std::string_view characters, std::size_t from) {
    return std::min(rest.find_first_not_of(characters, from), rest.size());
  };
  const auto at = [&rest](std::string_view characters, std::size_t place) {
    return place < rest.size() && characters.find(rest[place]) != std::string_view::npos;
  };
  const std::size_t start = at("+-", 0) ? 1 : 0;
  std::size_t end = past(kDigits, start);
  std::size_t digits = end - start;
  if (at(".", end)) {
    const std::size_t point = end;
    end = past(kDigits, point + 1);
    digits += end - point - 1;
  }
  if (digits == 0) return 0;
  if (at("eE", end)) {
    const std::size_t power = end + (at("+-", end + 1) ? 2 : 1);
    if (at(kDigits, power)) end = past(kDigits, power);
  }
  return ValueOf(rest.substr(0, end));
}

bool IsNumeric(std::string_view text) {
  static const std::set<std::string> shapes = NumericShapes();
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  std::string shape = ShapeOf(text.substr(first, text.find_last_not_of(' ') + 1 - first));
  const std::string_view separator = "9,9";
  std::size_t place = 0;
  while ((place = shape.find(separator)) < shape.find_first_of(".eE"))
    shape.replace(place, separator.size(), "9");
  return shapes.count(shape) != 0;
}

std::string NumberText(double value) {
  if (value == 0) return "0";
  constexpr std::size_t kDigitCount = 15;
  std::string shortest = Printed(value, Form(), kDigitCount);
  const std::size_t point = shortest.find('.');
  if (shortest.find('e') == std::string::npos) {
    if (point == std::string::npos || shortest.size() - point - 1 <= kDigitCount) return shortest;
  } else if (std::abs(value) < 1) {
    std::string fixed = WithoutTrailingZeros(Printed(value, std::ios::fixed, kDigitCount));
    if (ValueOf(fixed) == ValueOf(shortest)) return fixed;
  }
  const std::string form = Printed(value, std::ios::scientific | std::ios::uppercase, kDigitCount - 1);
  const std::size_t mark = form.find('E');
  return WithoutTrailingZeros(form.substr(0, mark)) + form.substr(mark);
}

std::string PatternText(double value, std::size_t digits) {
  std::string text = WrittenOut(value);
  const std::size_t point = text.find('.');
  const bool up = text[point + 1 + digits] >= '5';
  text.resize(digits == 0 ? point : point + 1 + digits);
  for (std::size_t i = text.size(); up && i > 0; --i) {
    char& c = text[i - 1];
    if (c == '.') continue;
    c = c == '9' ? '0' : static_cast<char>(c + 1);
    if (c != '0') break;
    if (i == 1) text.insert(0, 1, '1');
  }
  return (value < 0 ? "-" : "") + text;
}

double RoundTo(double value, std::size_t digits) {
  return std::isfinite(value) ? ValueOf(Printed(value, std::ios::fixed, digits)) : value;
}

std::string SumText(std::string_view sum) {
  if (sum.find_first_not_of("0123456789.+-") != std::string_view::npos) return "error";
  double total = 0;
  double sign = 1;
  std::string number;
  // An extra sign ends the last number.
  for (const char c : std::string(sum) + "+") {
    if (c != '+' && c != '-') {
      number += c;
      continue;
    }
    total += sign * LeadingNumber(number);
    sign = c == '-' ? -1 : 1;
    number.clear();
  }
  return std::isfinite(total) ? NumberText(total) : "";
}

}  // namespace quillon::plain
