#pragma once

// Line ends. Texts of the window end their lines as its boxes do; a terminal and other programs take a line feed alone.

#include <string>
#include <string_view>

namespace quillon {

/// A text with each of its line ends (CR, CR LF) as one LF.
///
///     "Situation\r" -> "Situation\n"      "Hand\r\n\r" -> "Hand\n\n"
[[nodiscard]] std::string UnixLineEnds(std::string_view text);

}  // namespace quillon
