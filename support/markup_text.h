#pragma once

// Texts within web pages and SVG pictures.

#include <string>
#include <string_view>

namespace quillon {

/// A text as it has to be written between tags, or in the quotes of an attribute, so that a reader of HTML or XML sees
/// just that text: &, <, >, " and ' become character references. What neither may hold, bytes that are not UTF-8 and
/// control characters other than tab and line ends, becomes U+FFFD.
///
///     "<script>" -> "&lt;script&gt;"      "88+ & \"AK\"" -> "88+ &amp; &quot;AK&quot;"
[[nodiscard]] std::string MarkupText(std::string_view text);

}  // namespace quillon
