#pragma once

// The formats of an answer as tables: --format names a row, and the help of a command lists them all.

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillon {

struct FormatName {
  const char* Name;
  const char* Meaning;
};

/// A format and the function that writes it.
template <typename Answer>
struct Format : FormatName {
  std::string (*Text)(const Answer& answer);
};

/// The answer in the format of that name, which must be in the table.
template <typename Answer, std::size_t count>
[[nodiscard]] std::string InFormat(const std::array<Format<Answer>, count>& formats, std::string_view name,
                                   const Answer& answer) {
  return std::find_if(formats.begin(), formats.end(), [name](const auto& row) { return row.Name == name; })
      ->Text(answer);
}

}  // namespace quillon
