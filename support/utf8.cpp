#include "support/utf8.h"

#include <array>

namespace quillon {

Utf8Character FirstCharacter(std::string_view text) {
  const auto at = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = at(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
  if (length == 0 || length > text.size() || lead > 0xF4) return {};

  constexpr std::array<char32_t, 3> kSmallest = {0x80, 0x800, 0x10000};  // of two, three and four bytes
  char32_t character = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0U) != 0x80U) return {};
    character = (character << 6U) | (at(i) & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < kSmallest[length - 2] || character > 0x10FFFF || surrogate) return {};
  return {character, length};
}

std::string_view WholeCharacters(std::string_view text, std::size_t bytes) {
  while (bytes > 0 && bytes < text.size() && !StartsUtf8Character(text[bytes]))
    --bytes;
  return text.substr(0, bytes);
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const Utf8Character first = FirstCharacter(text);
    if (first.Character == kNoCharacter) return false;
    text.remove_prefix(first.Length);
  }
  return true;
}

}  // namespace quillon
