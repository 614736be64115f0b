#include "support/windows_1252.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "testing/oracle/settings.h"

namespace quillon {
namespace {

TEST(Windows1252, EveryByteIsTheCharacterOfTheOracleAndSurvives) {
  std::string all;
  for (int i = 0; i < 256; ++i)
    all += static_cast<char>(i);
  EXPECT_EQ(Utf8FromWindows1252(all), plain::Utf8(all));
  EXPECT_EQ(Windows1252FromUtf8(Utf8FromWindows1252(all)), all);
}

struct TextCase {
  const char* rule;
  std::string utf8;
  std::string bytes;
};

TEST(Windows1252FromUtf8, WhatThePageLacksIsAQuestionMark) {
  const std::vector<TextCase> cases = {
      {"a word of the page", "B\u00FCtton \u20AC5",
       "B\xFCtton \x80"
       "5"},
      {"a letter beyond the page", "\u0100", "?"},
      {"a control character of the page's own gaps that another place has taken", "\xC2\x80", "?"},
      {"one beyond the last character there is", "\xF4\x90\x80\x80", "????"},
      {"a byte of the page that is not UTF-8", "B\xFCtton", "B?tton"},
      {"a character cut short at the end", "a\xE2\x82", "a??"},
      {"a lead byte before a whole character", "\xC3\u00E9", "?\xE9"},
      {"a zero byte is a character", std::string("a\0b", 3), std::string("a\0b", 3)},
  };
  for (const TextCase& c : cases)
    EXPECT_EQ(Windows1252FromUtf8(c.utf8), c.bytes) << c.rule;
}

TEST(TextOfFileName, IsUtf8OrTheCodePage) {
  struct Case {
    const char* rule;
    std::string name;
    std::string text;
  };
  const std::vector<Case> cases = {
      {"ASCII", "Button.txt", "Button.txt"},
      {"UTF-8", "Käse ♠.txt", "Käse ♠.txt"},
      {"a byte of the code page", "K\xE4se.txt", "Käse.txt"},
      {"a byte that the code page does not assign", "\x81.txt", "\xC2\x81.txt"},
      {"both are the code page", "ä\xE4", "Ã¤ä"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(TextOfFileName(c.name), c.text) << c.rule;
    EXPECT_EQ(c.text == c.name ? c.name : Windows1252FromUtf8(c.text), c.name) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
