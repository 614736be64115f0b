#include "support/windows_1252.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillon {
namespace {

TEST(Windows1252, EveryByteSurvivesTheWayThereAndBack) {
  std::string all;
  for (int i = 0; i < 256; ++i) {
    const std::string one(1, static_cast<char>(i));
    EXPECT_EQ(Windows1252FromUtf8(Utf8FromWindows1252(one)), one) << "byte " << i;
    all += one;
  }
  EXPECT_EQ(Windows1252FromUtf8(Utf8FromWindows1252(all)), all);
}

TEST(Windows1252, AsciiIsTheSameOnBothSides) {
  std::string ascii;
  for (int i = 0; i < 128; ++i)
    ascii += static_cast<char>(i);
  EXPECT_EQ(Utf8FromWindows1252(ascii), ascii);
  EXPECT_EQ(Windows1252FromUtf8(ascii), ascii);
}

TEST(Windows1252, UpperHalfIsThatOfLatin1) {
  for (int i = 0xA0; i < 0x100; ++i) {
    const std::string utf8 = {static_cast<char>(0xC0 + i / 64), static_cast<char>(0x80 + i % 64)};
    EXPECT_EQ(Utf8FromWindows1252(std::string(1, static_cast<char>(i))), utf8) << "byte " << i;
  }
}

TEST(Windows1252, BytesBetweenAreThoseOfTheCodePage) {
  const std::vector<std::string> characters = {
      "\u20AC",   "\xC2\x81", "\u201A", "\u0192", "\u201E", "\u2026",   "\u2020", "\u2021",
      "\u02C6",   "\u2030",   "\u0160", "\u2039", "\u0152", "\xC2\x8D", "\u017D", "\xC2\x8F",
      "\xC2\x90", "\u2018",   "\u2019", "\u201C", "\u201D", "\u2022",   "\u2013", "\u2014",
      "\u02DC",   "\u2122",   "\u0161", "\u203A", "\u0153", "\xC2\x9D", "\u017E", "\u0178"};
  ASSERT_EQ(characters.size(), 32U);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const std::string byte(1, static_cast<char>(0x80 + i));
    EXPECT_EQ(Utf8FromWindows1252(byte), characters[i]) << "byte " << 0x80 + i;
    EXPECT_EQ(Windows1252FromUtf8(characters[i]), byte) << "byte " << 0x80 + i;
  }
}

struct TextCase {
  const char* rule;
  std::string utf8;
  std::string bytes;
};

TEST(Windows1252FromUtf8, WhatThePageLacksIsAQuestionMark) {
  const std::vector<TextCase> cases = {
      {"nothing stays nothing", "", ""},
      {"a word of the page", "B\u00FCtton \u20AC5",
       "B\xFCtton \x80"
       "5"},
      {"a letter beyond the page", "\u0100", "?"},
      {"a control character of the page's own gaps that another place has taken", "\xC2\x80", "?"},
      {"three bytes, one character", "a\u2660b", "a?b"},
      {"four bytes, one character", "a\U0001F0A1b", "a?b"},
      {"the last character there is", "\U0010FFFF", "?"},
      {"one beyond the last character there is", "\xF4\x90\x80\x80", "????"},
      {"a lead byte that no character has", "\xF8\x88\x80\x80\x80", "?????"},
      {"the bytes FE and FF", "\xFE\xFF", "??"},
      {"a byte of the page that is not UTF-8", "B\xFCtton", "B?tton"},
      {"a lone continuation byte", "a\x80z", "a?z"},
      {"a character cut short at the end", "a\xE2\x82", "a??"},
      {"a character cut short by another",
       "\xE2\x82"
       "A",
       "??A"},
      {"a lead byte before a whole character", "\xC3\u00E9", "?\xE9"},
      {"two bytes for a character of one", "\xC0\x80", "??"},
      {"two bytes for a character of one, the last such", "\xC1\xBF", "??"},
      {"three bytes for a character of two", "\xE0\x83\xA9", "???"},
      {"four bytes for a character of three", "\xF0\x82\x82\xAC", "????"},
      {"the first surrogate", "\xED\xA0\x80", "???"},
      {"the last surrogate", "\xED\xBF\xBF", "???"},
      {"the character before the surrogates", "\xED\x9F\xBF", "?"},
      {"the character after the surrogates", "\xEE\x80\x80", "?"},
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
      {"no name", "", ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(TextOfFileName(c.name), c.text) << c.rule;
    EXPECT_EQ(c.text == c.name ? c.name : Windows1252FromUtf8(c.text), c.name) << c.rule;
  }
}

}  // namespace
}  // namespace quillon
