#include "support/markup_text.h"

#include "support/utf8.h"

namespace quillon {
namespace {

bool MayStand(char32_t character) {
  if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
  const bool control = character >= 0x7F && character <= 0x9F;
  const bool nonCharacter = (character & 0xFFFEU) == 0xFFFE || (character >= 0xFDD0 && character <= 0xFDEF);
  return !control && !nonCharacter;  // kNoCharacter is one of the latter
}

}  // namespace

std::string MarkupText(std::string_view text) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD
  std::string markup;
  markup.reserve(text.size());
  while (!text.empty()) {
    const Utf8Character first = FirstCharacter(text);
    switch (first.Character) {
      case '&':
        markup += "&amp;";
        break;
      case '<':
        markup += "&lt;";
        break;
      case '>':
        markup += "&gt;";
        break;
      case '"':
        markup += "&quot;";
        break;
      case '\'':
        markup += "&#39;";
        break;
      default:
        markup += MayStand(first.Character) ? text.substr(0, first.Length) : kReplacement;
    }
    text.remove_prefix(first.Length);
  }
  return markup;
}

}  // namespace quillon
