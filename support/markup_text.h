#pragma once

// Text in web pages and SVG pictures.

#include <string>
#include <string_view>

namespace quillon {

/// A text escaped for use between tags or in a quoted attribute of HTML or XML: &, <, >, " and ' become character
/// references. Bytes that are not UTF-8, and control characters other than tab and line ends, become U+FFFD.
///
///     "<script>" -> "&lt;script&gt;"      "88+ & \"AK\"" -> "88+ &amp; &quot;AK&quot;"
[[nodiscard]] std::string MarkupText(std::string_view text);

}  // namespace quillon
