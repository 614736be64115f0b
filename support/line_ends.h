#pragma once

// Line ends. The window's texts end lines as its boxes do; a terminal and other programs expect a line feed alone.

#include <string>
#include <string_view>

namespace quillon {

/// The text with every line end (CR, CR LF) as LF.
///
///     "Situation\r" -> "Situation\n"      "Hand\r\n\r" -> "Hand\n\n"
[[nodiscard]] std::string UnixLineEnds(std::string_view text);

}  // namespace quillon
