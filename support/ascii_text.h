#pragma once

// Texts of the ASCII world, such as names of settings and of protocol fields, which are compared without regard to case
// in every locale. Other bytes are left alone.

#include <algorithm>
#include <string>
#include <string_view>

namespace quillon {

/// A to Z as a to z; any other character unchanged.
[[nodiscard]] constexpr char AsciiLower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// The text with A to Z as a to z.
[[nodiscard]] inline std::string AsciiLower(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](char character) { return AsciiLower(character); });
  return lower;
}

/// Whether two texts are equal apart from the case of the letters A to Z.
[[nodiscard]] constexpr bool EqualButForCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char x, char y) { return AsciiLower(x) == AsciiLower(y); });
}

inline constexpr std::string_view kSpaceAndTab = " \t";

/// The text without the characters of `blanks` at its ends; a view into it, even if it is empty.
[[nodiscard]] constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return text.substr(0, 0);
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace quillon
