#pragma once

// Text for Windows, whose names are UTF-16. Only included by sources for that system.

#include <string>
#include <string_view>

namespace quillon {

/// UTF-8 as UTF-16; a byte that is not UTF-8 becomes U+FFFD, which is in no name.
[[nodiscard]] std::wstring WideText(std::string_view text);

/// UTF-16 as UTF-8; half a surrogate pair becomes U+FFFD.
[[nodiscard]] std::string NarrowText(std::wstring_view text);

}  // namespace quillon
