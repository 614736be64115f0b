#include <clocale>
#include <cwctype>

#include "support/letter_case.h"

namespace quillon {
namespace {

static_assert(sizeof(wchar_t) == sizeof(char32_t), "a wide character of the C library is one of Unicode");

// A bare C library without the locale still knows the ASCII letters.
locale_t Letters() {
  static const locale_t letters = [] {
    const locale_t unicode = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return unicode != nullptr ? unicode : ::newlocale(LC_CTYPE_MASK, "C", nullptr);
  }();
  return letters;
}

}  // namespace

char32_t CapitalLetter(char32_t character) {
  return ::towupper_l(character, Letters());
}

char32_t SmallLetter(char32_t character) {
  return ::towlower_l(character, Letters());
}

bool IsLetter(char32_t character) {
  return ::iswalpha_l(character, Letters()) != 0;
}

}  // namespace quillon
