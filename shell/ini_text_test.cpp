#include "shell/ini_text.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace quillon {
namespace {

struct ReadCase {
  const char* rule;
  std::string text;
  std::string value;  // of Left in Main
};

TEST(IniValue, IsFoundAsPeopleWriteIt) {
  const std::vector<ReadCase> cases = {
      {"as the program writes it", "[Main]\r\nLeft=5\r\n", "5"},
      {"with line feeds alone", "[Main]\nLeft=5\n", "5"},
      {"on a last line without an end", "[Main]\nLeft=5", "5"},
      {"whatever the case of the section", "[mAIN]\nLeft=5\n", "5"},
      {"with blanks round key and value", "[Main]\n \tLeft \t=\t 5 \t\n", "5"},
      {"with blanks round the heading", " [Main] \nLeft=5\n", "5"},
      {"with something after the heading", "[Main] ; the window\nLeft=5\n", "5"},
      {"after a stray carriage return", "[Main]\r\r\nLeft=5\r\r\n", "5"},
      {"with carriage returns alone", "[Main]\rLeft=5\rTop=6\r", "5"},
      {"after a mark of UTF-8", "\xEF\xBB\xBF[Main]\nLeft=5\n", "5"},
      {"after comments, empty lines and what is no key", "; x\n\n[Main]\n\n; y\nhello\nLeft=5\n", "5"},
      {"among other sections", "[Manager]\nLeft=1\n[Main]\nLeft=5\n[New]\nLeft=2\n", "5"},
      {"with equals signs in the value", "[Main]\nLeft==1=2\n", "=1=2"},
      {"with a heading in the value", "[Main]\nLeft=[New]\n", "[New]"},
      {"with letters of the code page", "[Main]\nLeft=\x80 5\xA0\n", "\x80 5\xA0"},
      {"the first of two keys", "[Main]\nLeft=5\nLeft=6\n", "5"},
      {"of the first of two sections", "[Main]\nLeft=5\n[New]\n[Main]\nLeft=6\n", "5"},
      {"of the first of two sections alone", "[Main]\n[New]\n[Main]\nLeft=6\n", ""},
  };
  for (const ReadCase& c : cases)
    EXPECT_EQ(IniValue(c.text, "Main", "Left"), c.value) << c.rule;
}

TEST(IniValue, IsEmptyWhereThereIsNone) {
  const std::vector<ReadCase> cases = {
      {"no text", "", ""},
      {"no section", "[Manager]\nLeft=5\n", ""},
      {"an empty value", "[Main]\nLeft=\n", ""},
      {"no equals sign", "[Main]\nLeft 5\n", ""},
      {"a key before any section", "Left=5\n[Main]\n", ""},
      {"a key in the next section", "[Main]\n[New]\nLeft=5\n", ""},
      {"a comment after spaces", "[Main]\n \t; Left=5\n", ""},
      {"a heading in a comment", ";[Main]\nLeft=5\n", ""},
      {"a heading that is not closed", "[Main\nLeft=5\n", ""},
      {"a heading that starts late", "x[Main]\nLeft=5\n", ""},
      {"a section whose name starts so", "[Mains]\nLeft=5\n", ""},
      {"a key that starts so", "[Main]\nLefts=5\n", ""},
  };
  for (const ReadCase& c : cases)
    EXPECT_EQ(IniValue(c.text, "Main", "Left"), c.value) << c.rule;
}

TEST(IniValue, LosesOnePairOfQuotes) {
  const std::vector<ReadCase> cases = {
      {"double quotes", "\"5\"", "5"},
      {"single quotes", "'5'", "5"},
      {"their content is kept as written", "\" 5\t\"", " 5\t"},
      {"nothing in them", "\"\"", ""},
      {"spaces before and after them", " \" 5\" ", " 5"},
      {"only one pair", R"(""5"")", R"("5")"},
      {"the inner ones stay", "\"'5'\"", "'5'"},
      {"quotes within", "'it's'", "it's"},
      {"one quote", "\"", "\""},
      {"one quote in front", "\"5", "\"5"},
      {"one quote after", "5'", "5'"},
      {"quotes that do not match", "\"5'", "\"5'"},
      {"two words in quotes are one text", R"("a" "b")", R"(a" "b)"},
  };
  for (const ReadCase& c : cases)
    EXPECT_EQ(IniValue("[Main]\nLeft=" + c.text + "\n", "Main", "Left"), c.value) << c.rule;
}

struct WriteCase {
  const char* rule;
  std::string before;
  std::string after;  // with 7 written to Left in Main
};

TEST(WithIniValue, ChangesTheValueAlone) {
  const std::vector<WriteCase> cases = {
      {"with line feeds alone", "[Main]\nLeft=5\nTop=1\n", "[Main]\nLeft=7\nTop=1\n"},
      {"on a last line without an end", "[Main]\nLeft=5", "[Main]\nLeft=7"},
      {"an empty value at the end of all", "[Main]\r\nLeft=", "[Main]\r\nLeft=7"},
      {"quotes go with the value", "[Main]\r\nLeft=\" 5 \"\r\n", "[Main]\r\nLeft=7\r\n"},
      {"key and heading as they were spelt", "[ MAIN ]x\n\tleft = 5 \n", "[ MAIN ]x\n\tleft = 7 \n"},
      {"in the first of two sections", "[Main]\nLeft=5\n[Main]\nLeft=6\n", "[Main]\nLeft=7\n[Main]\nLeft=6\n"},
      {"all else stays, byte for byte", "x\n\n;c\r\n[Main]\n\n;d\r\r\ny\nLeft=5\r\n\xFF z\n[New]\nLeft=6",
       "x\n\n;c\r\n[Main]\n\n;d\r\r\ny\nLeft=7\r\n\xFF z\n[New]\nLeft=6"},
  };
  for (const WriteCase& c : cases)
    EXPECT_EQ(WithIniValue(c.before, "Main", "Left", "7"), c.after) << c.rule;
}

TEST(WithIniValue, AddsWhatIsMissing) {
  const std::vector<WriteCase> cases = {
      {"to no text", "", "[Main]\r\nLeft=7\r\n"},
      {"to a mark of UTF-8", "\xEF\xBB\xBF", "\xEF\xBB\xBF[Main]\r\nLeft=7\r\n"},
      {"a section at the end", "[New]\r\nLeft=5\r\n", "[New]\r\nLeft=5\r\n[Main]\r\nLeft=7\r\n"},
      {"after a line without an end", "[New]\nLeft=5", "[New]\nLeft=5\n[Main]\nLeft=7\n"},
      {"after the only line, which has no end", "[New]", "[New]\r\n[Main]\r\nLeft=7\r\n"},
      {"a key after a heading without an end", "[Main]", "[Main]\r\nLeft=7\r\n"},
      {"a key after the others", "[Main]\nTop=1\nx=2\n[New]\nLeft=5\n", "[Main]\nTop=1\nx=2\nLeft=7\n[New]\nLeft=5\n"},
      {"a key before a blank line", "[Main]\nTop=1\n\n[New]\n", "[Main]\nTop=1\nLeft=7\n\n[New]\n"},
      {"a key before the comment of the next section", "[Main]\nTop=1\n; new\n[New]\n",
       "[Main]\nTop=1\nLeft=7\n; new\n[New]\n"},
      {"a key to the first of two sections", "[Main]\n[New]\n[Main]\nLeft=5\n",
       "[Main]\nLeft=7\n[New]\n[Main]\nLeft=5\n"},
      {"a section, where the key stood before any", "Left=5\n", "Left=5\n[Main]\nLeft=7\n"},
      {"a key, where there is a comment of that name", "[Main]\n;Left=5\n", "[Main]\nLeft=7\n;Left=5\n"},
      {"the line end is that of the first line", "\n[New]\r\n", "\n[New]\r\n[Main]\nLeft=7\n"},
  };
  for (const WriteCase& c : cases)
    EXPECT_EQ(WithIniValue(c.before, "Main", "Left", "7"), c.after) << c.rule;
}

struct StoredCase {
  const char* rule;
  std::string value;
  std::string stored;
};

const std::vector<StoredCase> kValues = {
    {"nothing", "", ""},
    {"blanks within", "35 dollars", "35 dollars"},
    {"a blank in front", " 5", "\" 5\""},
    {"a tab after", "5\t", "\"5\t\""},
    {"blanks alone", "  ", "\"  \""},
    {"double quotes", R"("5")", R"(""5"")"},
    {"single quotes", "'5'", "\"'5'\""},
    {"one quote", "\"", "\""},
    {"quotes and a blank", R"("5" )", R"(""5" ")"},
    {"what looks like a heading", "[New]", "[New]"},
    {"what looks like a key", "Left=6", "Left=6"},
    {"letters of the code page", "\x80\xFC", "\x80\xFC"},
};

TEST(WithIniValue, QuotesWhatWouldNotComeBackAndIsReadBackExactly) {
  for (const StoredCase& c : kValues) {
    EXPECT_EQ(WithIniValue("", "Main", "Left", c.value), "[Main]\r\nLeft=" + c.stored + "\r\n") << c.rule;
    for (const char* before : {"", "[Main]\nLeft=\" x \"\n[New]\n", "[Main]\r\nLeft=\r\nTop=1", "[New]\nLeft=1"}) {
      EXPECT_EQ(IniValue(WithIniValue(before, "Main", "Left", c.value), "Main", "Left"), c.value)
          << c.rule << " into " << before;
    }
  }
}

TEST(WithIniValue, AValueEndsAtItsFirstLineEnd) {
  for (const char* value : {"7\n[New]\nTop=1", "7\r\nTop=1", "7\rTop=1", "7\n"})
    EXPECT_EQ(WithIniValue("", "Main", "Left", value), "[Main]\r\nLeft=7\r\n") << value;
}

using Key = std::pair<std::string, std::string>;  // section, key

// The program's settings, read from a text.
std::map<Key, std::string> AllValues(const std::string& text) {
  std::map<Key, std::string> values;
  for (const char* section : {"A", "B", "Values"}) {
    for (const char* key : {"0", "1", "Left"})
      values[{section, key}] = IniValue(text, section, key);
  }
  return values;
}

TEST(WithIniValue, LeavesTheOtherValuesOfAnyTextAlone) {
  const std::vector<std::string> pieces = {"[A]", "[b]", "[Values]", "[",  "]",  "0",  "1",  "Left", "=", "=", "\"",
                                           "'",   ";",   " ",        "\t", "\n", "\n", "\n", "\r\n", "x", "\r"};
  std::mt19937 random(1);
  for (int round = 0; round < 3000; ++round) {
    std::string text;
    for (std::size_t count = random() % 40; count > 0; --count)
      text += pieces[random() % pieces.size()];
    const std::string& value = kValues[random() % kValues.size()].value;
    const Key key{random() % 2 == 0 ? "A" : "Values", random() % 2 == 0 ? "0" : "Left"};

    std::map<Key, std::string> expected = AllValues(text);
    expected[key] = value;
    const std::string written = WithIniValue(text, key.first, key.second, value);
    ASSERT_EQ(AllValues(written), expected) << text << "\n----\n" << written;

    ASSERT_EQ(WithIniValue(written, key.first, key.second, value), written) << "the same value changes nothing";
  }
}

}  // namespace
}  // namespace quillon
