#include "support/markup_text.h"

#include <algorithm>
#include <array>

#include "support/utf8.h"

namespace quillon {
namespace {

struct Reference {
  char32_t Character;
  std::string_view Markup;
};

constexpr auto kReferences =
    std::to_array<Reference>({{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&#39;"}});

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
    const auto* const reference = std::ranges::find(kReferences, first.Character, &Reference::Character);
    if (reference != kReferences.end())
      markup += reference->Markup;
    else
      markup += MayStand(first.Character) ? text.substr(0, first.Length) : kReplacement;
    text.remove_prefix(first.Length);
  }
  return markup;
}

}  // namespace quillon
