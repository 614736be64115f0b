#include "support/letter_case.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace quillon {
namespace {

TEST(WithoutCase, CapitalsAndSmallLettersAreOne) {
  using Pair = std::pair<const char*, const char*>;
  constexpr std::array kSame = {Pair{"", ""},
                                Pair{"AZ", "az"},
                                Pair{"ÄÉØ", "äéø"},
                                Pair{"ŠŽŸ", "šžÿ"},
                                Pair{"БЕТА", "бета"},
                                Pair{"ΣΑΣ", "σας"},
                                Pair{"Ǆ", "ǆ"},
                                Pair{"Ａ", "ａ"},
                                Pair{"𐐀", "𐐨"},
                                Pair{"_9 €", "_9 €"},
                                Pair{"big blind", "Big Blind"}};
  for (const auto& [a, b] : kSame)
    EXPECT_EQ(WithoutCase(a), WithoutCase(b)) << a;
}

TEST(WithoutCase, KeysSortByTheSmallLetters) {
  const std::vector<std::string> sorted = {"10", "9",  "_a", "AA",    "alpha", "z", "×",   "ß",
                                           "Ä",  "ša", "ŠZ", "альфа", "Бета",  "𐐨", "\xE4"};
  for (std::size_t i = 1; i < sorted.size(); ++i)
    EXPECT_LT(WithoutCase(sorted[i - 1]), WithoutCase(sorted[i])) << sorted[i];
}

TEST(IsLetter, OfAnyScript) {
  for (const char32_t letter : std::u32string(U"aZłčßлвك한"))
    EXPECT_TRUE(IsLetter(letter)) << static_cast<unsigned>(letter);
  for (const char32_t other : std::u32string(U"€$£¥₺₹ .,'9\u00A0\u202F"))
    EXPECT_FALSE(IsLetter(other)) << static_cast<unsigned>(other);
}

}  // namespace
}  // namespace quillon
