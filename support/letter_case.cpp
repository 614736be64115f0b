#include "support/letter_case.h"

#include <clocale>
#include <cwctype>

#include "support/utf8.h"

namespace quillon {
namespace {

static_assert(sizeof(wchar_t) == sizeof(char32_t), "a wide character of the C library is one of Unicode");

// A C library so bare that it lacks the locale still knows the letters of ASCII.
locale_t Letters() {
  static const locale_t letters = [] {
    const locale_t unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return unicode != nullptr ? unicode : ::newlocale(LC_CTYPE_MASK, "C", nullptr);
  }();
  return letters;
}

}  // namespace

std::u32string WithoutCase(std::string_view text) {
  std::u32string key;
  while (!text.empty()) {
    const Utf8Character first = FirstCharacter(text);
    const std::wint_t capital = ::towupper_l(first.Character, Letters());
    key += first.Character == kNoCharacter ? kNoCharacter : ::towlower_l(capital, Letters());
    text.remove_prefix(first.Length);
  }
  return key;
}

bool IsLetter(char32_t character) {
  return ::iswalpha_l(character, Letters()) != 0;
}

}  // namespace quillon
