#pragma once

// A short text of bounded length, stored inline. Cards and class labels are texts of one to five characters, and an
// analysis builds millions of them; this type saves each a heap allocation.

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <string_view>

namespace quillon {

/// At most `Capacity` characters. Converts to std::string_view wherever a text is read.
template <std::size_t Capacity>
class FixedText {
 public:
  constexpr FixedText() = default;

  /// Takes the first `Capacity` characters of `text`; the rest is dropped.
  constexpr FixedText(std::string_view text) {  // NOLINT(google-explicit-constructor): a text is a text
    for (const char c : text.substr(0, Capacity))
      Append(c);
  }
  constexpr FixedText(const char* text) : FixedText(std::string_view(text)) {}  // NOLINT(google-explicit-constructor)

  /// Appends one character; a full text is unchanged.
  constexpr void Append(char c) {
    if (size_ < Capacity) characters_[size_++] = c;
  }

  [[nodiscard]] constexpr std::string_view View() const { return {characters_.data(), size_}; }
  constexpr operator std::string_view() const { return View(); }  // NOLINT(google-explicit-constructor)

  friend constexpr bool operator==(const FixedText& left, const FixedText& right) {
    return left.View() == right.View();
  }
  friend constexpr bool operator==(const FixedText& left, std::string_view right) { return left.View() == right; }
  friend constexpr bool operator==(const FixedText& left, const char* right) { return left.View() == right; }
  friend std::ostream& operator<<(std::ostream& stream, const FixedText& text) { return stream << text.View(); }

 private:
  std::array<char, Capacity> characters_{};
  unsigned char size_ = 0;
};

}  // namespace quillon
