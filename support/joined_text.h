#pragma once

// Long texts joined from many short ones.

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace quillon {

/// The parts concatenated, with one allocation. A chain of + allocates again and again as the text grows, and a report
/// joins hundreds of texts.
[[nodiscard]] inline std::string Joined(std::initializer_list<std::string_view> parts) {
  std::size_t size = 0;
  for (const std::string_view part : parts)
    size += part.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view part : parts)
    text.append(part);
  return text;
}

/// A text in double quotes.
[[nodiscard]] inline std::string Quoted(std::string_view text) {
  return Joined({"\"", text, "\""});
}

}  // namespace quillon
