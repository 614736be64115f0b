#pragma once

// The characters of UTF-8, the encoding of every text in memory.

#include <cstddef>
#include <string_view>

namespace quillon {

/// Stands in for bytes that are not UTF-8; no character has this number.
inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

/// The byte-order mark that some programs put before a text. It is invisible.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

struct Utf8Character {
  char32_t Character = kNoCharacter;
  std::size_t Length = 1;  // in bytes
};

/// Whether a byte starts a character: every byte except 10xxxxxx.
[[nodiscard]] constexpr bool StartsUtf8Character(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The first character of a non-empty text. An overlong form, a surrogate, a value beyond 10FFFF or an incomplete
/// character is kNoCharacter, of one byte.
[[nodiscard]] Utf8Character FirstCharacter(std::string_view text);

/// The first `bytes` bytes of a text, or slightly fewer so as not to split a character.
[[nodiscard]] std::string_view WholeCharacters(std::string_view text, std::size_t bytes);

/// Whether a whole text is UTF-8. The empty text is.
[[nodiscard]] bool IsUtf8(std::string_view text);

}  // namespace quillon
