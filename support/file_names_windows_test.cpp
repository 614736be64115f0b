#include <array>
#include <gtest/gtest.h>
#include <string_view>

#include "support/file_names.h"

namespace quillon {
namespace {

constexpr std::string_view kDevice = "is one that Windows keeps for a device";
constexpr std::string_view kEnd = "ends with a dot or a space, which Windows drops";
constexpr std::string_view kCharacter = "holds a character that Windows has in no file's name";

struct Case {
  std::string_view name;
  std::string_view fault;
};

TEST(NameFault, IsThatOfTheFirstRuleBroken) {
  using namespace std::string_view_literals;
  constexpr auto kCases = std::to_array<Case>({
      {"Button Shove", {}},
      {"v1.5", {}},
      {" x", {}},
      {".x", {}},
      {"Größe 漢字", {}},
      {"CON", kDevice},
      {"con", kDevice},
      {"Prn", kDevice},
      {"aux", kDevice},
      {"NUL", kDevice},
      {"nul.txt", kDevice},
      {"Con.a.b", kDevice},
      {"con .txt", kDevice},
      {"CONIN$", kDevice},
      {"conout$", kDevice},
      {"com1", kDevice},
      {"COM9.x", kDevice},
      {"Lpt5", kDevice},
      {"LPT¹", kDevice},
      {"COM²", kDevice},
      {"com³.txt", kDevice},
      {"com0", {}},
      {"com10", {}},
      {"com", {}},
      {"lpt⁴", {}},
      {"console", {}},
      {"a.con", {}},
      {"icon", {}},
      {"conin", {}},
      {"conin$x", {}},
      {"a.", kEnd},
      {"a ", kEnd},
      {".", kEnd},
      {" ", kEnd},
      {"CON.", kEnd},
      {"a|b", kCharacter},
      {"a<", kCharacter},
      {">a", kCharacter},
      {"a\"b", kCharacter},
      {"a?", kCharacter},
      {"*", kCharacter},
      {"a:b", kCharacter},
      {"a/b", kCharacter},
      {"a\\b", kCharacter},
      {"a\tb", kCharacter},
      {"a\x1F", kCharacter},
      {"a\0b"sv, kCharacter},
      {"a|.", kCharacter},
      {"a\x7F", {}},
  });
  for (const Case& c : kCases)
    EXPECT_EQ(NameFault(c.name), c.fault) << c.name;
}

TEST(IsSameName, HeedsNoLetterCase) {
  EXPECT_TRUE(IsSameName("Button", "bUTTON"));
  EXPECT_TRUE(IsSameName("GRÖSSE Ж", "grösse ж"));
  EXPECT_FALSE(IsSameName("Größe", "GRÖSSE"));
  EXPECT_FALSE(IsSameName("Button", "Button 2"));
  EXPECT_FALSE(IsSameName("o", "ö"));
}

}  // namespace
}  // namespace quillon
