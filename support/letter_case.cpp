#include "support/letter_case.h"

#include "support/utf8.h"

namespace quillon {

std::u32string WithoutCase(std::string_view text) {
  std::u32string key;
  while (!text.empty()) {
    const Utf8Character first = FirstCharacter(text);
    key += first.Character == kNoCharacter ? kNoCharacter : SmallLetter(CapitalLetter(first.Character));
    text.remove_prefix(first.Length);
  }
  return key;
}

}  // namespace quillon
