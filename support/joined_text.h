#pragma once

// Long texts joined from many short ones.

#include <cstddef>
#include <functional>
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

/// The names of a table's rows as "a, b or c".
template <typename Rows, typename NameOf = std::identity>
[[nodiscard]] std::string Listed(const Rows& rows, NameOf nameOf = {}) {
  std::string list;
  for (std::size_t i = 0; i < rows.size(); ++i)
    list.append(i == 0 ? "" : i + 1 == rows.size() ? " or " : ", ").append(std::invoke(nameOf, rows[i]));
  return list;
}

}  // namespace quillon
