#pragma once

// Letters of every script, by the system's Unicode tables, independent of the user's and the installed locales.

#include <string>
#include <string_view>

namespace quillon {

/// A sort key that ignores case: each character is replaced by the small letter of its capital, so that both forms of a
/// Greek sigma are equal. Other characters are unchanged. A byte that is not UTF-8 sorts after every character.
///
///     "ŠZ" -> "šz"      "Бета" -> "бета"      "ς" -> "σ"      "ß" -> "ß"      "_a" -> "_a"
[[nodiscard]] std::u32string WithoutCase(std::string_view text);

/// The character in the other case; unchanged if it has none.
[[nodiscard]] char32_t CapitalLetter(char32_t character);
[[nodiscard]] char32_t SmallLetter(char32_t character);

/// Whether a character is a letter of any script.
[[nodiscard]] bool IsLetter(char32_t character);

}  // namespace quillon
