#pragma once

// Letters of every script, whatever the user's locale is and whether it is installed: the tables of Unicode as the
// system keeps them.

#include <string>
#include <string_view>

namespace quillon {

/// A text as a key for sorting without regard to case: its characters, each as the small letter of its capital, so that
/// both forms of a Greek sigma are one letter. Other characters, and letters without another case, are as they are. A
/// byte that is not UTF-8 sorts after every character.
///
///     "ŠZ" -> "šz"      "Бета" -> "бета"      "ς" -> "σ"      "ß" -> "ß"      "_a" -> "_a"
[[nodiscard]] std::u32string WithoutCase(std::string_view text);

/// The other case of a letter; a character that has none is as it is.
[[nodiscard]] char32_t CapitalLetter(char32_t character);
[[nodiscard]] char32_t SmallLetter(char32_t character);

/// Whether a character is a letter of any script.
[[nodiscard]] bool IsLetter(char32_t character);

}  // namespace quillon
