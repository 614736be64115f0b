#pragma once

// Searches in a text, one character at a time.

#include <cstddef>
#include <string_view>

namespace quillon::plain {

/// The position of the n-th occurrence of a byte, from 0; npos if there are fewer.
[[nodiscard]] inline std::size_t NthByte(std::string_view text, char byte, std::size_t n) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == byte && n-- == 0) return i;
  }
  return std::string_view::npos;
}

}  // namespace quillon::plain
