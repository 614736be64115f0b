#include "support/line_ends.h"

#include <cstddef>

namespace quillon {

std::string UnixLineEnds(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      result += text[i];
      continue;
    }
    result += '\n';
    if (text.substr(i + 1).starts_with('\n')) ++i;
  }
  return result;
}

}  // namespace quillon
