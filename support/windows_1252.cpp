#include "support/windows_1252.h"

#include <algorithm>
#include <array>

#include "support/utf8.h"

namespace quillon {
namespace {

constexpr unsigned kFirstMapped = 0x80;
constexpr std::array<char32_t, 32> kMapped = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                              0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& text, char32_t character) {
  const auto byte = [&text](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
  if (character < 0x80) {
    byte(character);
  } else if (character < 0x800) {
    byte(0xC0U | (character >> 6U));
    byte(0x80U | (character & 0x3FU));
  } else {
    byte(0xE0U | (character >> 12U));
    byte(0x80U | ((character >> 6U) & 0x3FU));
    byte(0x80U | (character & 0x3FU));
  }
}

char Windows1252Byte(char32_t character) {
  if (character < kFirstMapped || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(static_cast<unsigned char>(character));
  }
  const auto* const found = std::find(kMapped.begin(), kMapped.end(), character);
  if (found == kMapped.end()) return '?';
  return static_cast<char>(static_cast<unsigned char>(kFirstMapped + static_cast<unsigned>(found - kMapped.begin())));
}

}  // namespace

std::string Utf8FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool mapped = byte >= kFirstMapped && byte < kFirstMapped + kMapped.size();
    AppendUtf8(text, mapped ? kMapped[byte - kFirstMapped] : byte);
  }
  return text;
}

std::string Windows1252FromUtf8(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const Utf8Character first = FirstCharacter(text);
    bytes += Windows1252Byte(first.Character);
    text.remove_prefix(first.Length);
  }
  return bytes;
}

std::string TextOfFileName(std::string_view name) {
  return IsUtf8(name) ? std::string(name) : Utf8FromWindows1252(name);
}

}  // namespace quillon
