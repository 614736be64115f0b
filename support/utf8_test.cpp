#include "support/utf8.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillon {
namespace {

struct CharacterCase {
  const char* rule;
  std::string text;
  char32_t character;
  std::size_t length;
};

TEST(FirstCharacter, IsReadWholeOrNotAtAll) {
  const std::vector<CharacterCase> cases = {
      {"a NUL character", std::string(1, '\0'), U'\0', 1},
      {"the smallest of two bytes", "\xC2\x80", 0x80, 2},
      {"the smallest of three bytes", "\xE0\xA0\x80", 0x800, 3},
      {"the smallest of four bytes", "\xF0\x90\x80\x80", 0x10000, 4},
      {"the largest", "\xF4\x8F\xBF\xBF", 0x10FFFF, 4},
      {"beyond the largest", "\xF4\x90\x80\x80", kNoCharacter, 1},
      {"an overlong form", "\xC1\xBF", kNoCharacter, 1},
      {"an overlong form of three bytes", "\xE0\x9F\xBF", kNoCharacter, 1},
      {"before the surrogates", "\xED\x9F\xBF", 0xD7FF, 3},
      {"a surrogate", "\xED\xA0\x80", kNoCharacter, 1},
      {"the last surrogate", "\xED\xBF\xBF", kNoCharacter, 1},
      {"after the surrogates", "\xEE\x80\x80", 0xE000, 3},
      {"a byte that only continues", "\x84", kNoCharacter, 1},
      {"a character that is cut", "\xE2\x82", kNoCharacter, 1},
      {"a byte of another code page", "\xE4z", kNoCharacter, 1},
  };
  for (const CharacterCase& c : cases) {
    const Utf8Character first = FirstCharacter(c.text);
    EXPECT_EQ(first.Character, c.character) << c.rule;
    EXPECT_EQ(first.Length, c.length) << c.rule;
    EXPECT_EQ(IsUtf8("x" + c.text), c.character != kNoCharacter) << c.rule;
  }
  EXPECT_TRUE(IsUtf8(""));
}

TEST(WholeCharacters, EndBetweenTwo) {
  EXPECT_EQ(WholeCharacters("a€b", 5), "a€b");
  EXPECT_EQ(WholeCharacters("a€b", 4), "a€");
  EXPECT_EQ(WholeCharacters("a€b", 3), "a");
  EXPECT_EQ(WholeCharacters("€", 1), "");
  EXPECT_EQ(WholeCharacters("", 3), "");
}

}  // namespace
}  // namespace quillon
