#include <array>
#include <string>
#include <windows.h>

#include "support/letter_case.h"

namespace quillon {
namespace {

constexpr char32_t kFirstOfPairs = 0x10000;
constexpr char32_t kLastCharacter = 0x10FFFF;

// A character in UTF-16: one unit or a surrogate pair.
std::wstring Units(char32_t character) {
  if (character < kFirstOfPairs || character > kLastCharacter) return {static_cast<wchar_t>(character)};
  const char32_t rest = character - kFirstOfPairs;
  return {static_cast<wchar_t>(0xD800 + (rest >> 10U)), static_cast<wchar_t>(0xDC00 + (rest & 0x3FFU))};
}

char32_t Mapped(char32_t character, DWORD mapping) {
  const std::wstring from = Units(character);
  std::array<wchar_t, 2> to{};
  // By Unicode's tables, not by those for comparing file names.
  mapping |= LCMAP_LINGUISTIC_CASING;
  const int size = LCMapStringEx(LOCALE_NAME_INVARIANT, mapping, from.data(), static_cast<int>(from.size()), to.data(),
                                 static_cast<int>(to.size()), nullptr, nullptr, 0);
  if (size != static_cast<int>(from.size())) return character;
  return size == 1 ? to[0] : kFirstOfPairs + ((to[0] & 0x3FFU) << 10U) + (to[1] & 0x3FFU);
}

}  // namespace

char32_t CapitalLetter(char32_t character) {
  return Mapped(character, LCMAP_UPPERCASE);
}

char32_t SmallLetter(char32_t character) {
  return Mapped(character, LCMAP_LOWERCASE);
}

bool IsLetter(char32_t character) {
  const std::wstring units = Units(character);
  std::array<WORD, 2> kinds{};
  const bool known = GetStringTypeW(CT_CTYPE1, units.data(), static_cast<int>(units.size()), kinds.data()) != 0;
  return known && (kinds[0] & C1_ALPHA) != 0;
}

}  // namespace quillon
