#pragma once

// Simple text manipulation for expected values.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The pieces of a text between separators, including empty ones: one more than there are separators.
[[nodiscard]] inline std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  for (std::size_t at = 0; (at = text.find(separator)) != std::string_view::npos;) {
    pieces.emplace_back(text.substr(0, at));
    text.remove_prefix(at + separator.size());
  }
  pieces.emplace_back(text);
  return pieces;
}

/// The lines of a text, each without its end. What follows the last end is a line unless it is empty.
[[nodiscard]] inline std::vector<std::string> Lines(std::string_view text, std::string_view end = "\n") {
  std::vector<std::string> lines = Split(text, end);
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

/// The text with every `from` replaced.
[[nodiscard]] inline std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

}  // namespace quillon
