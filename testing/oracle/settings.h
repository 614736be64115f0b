#pragma once

// Settings files and their code page, read in the plainest way.

#include <string>
#include <string_view>

namespace quillon::plain {

/// The value of a key in a settings file, as bytes; empty if there is none.
[[nodiscard]] std::string IniValue(std::string_view file, std::string_view section, std::string_view key);

/// Whether a settings file has two bytes per character, judged by the first two.
[[nodiscard]] bool IsUtf16(std::string_view file);

/// The same, cut at the program's limit; empty in a file with two bytes per character.
[[nodiscard]] std::string SettingIn(std::string_view file, std::string_view section, std::string_view key);

/// Bytes of the code page as UTF-8.
[[nodiscard]] std::string Utf8(std::string_view bytes);

/// UTF-8 as bytes of the code page, with a question mark for each character that it lacks and each invalid byte.
[[nodiscard]] std::string CodePage(std::string_view text);

/// Whether a text is UTF-8.
[[nodiscard]] bool IsUtf8(std::string_view text);

}  // namespace quillon::plain
