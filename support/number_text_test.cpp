#include "support/number_text.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "testing/fault_of.h"
#include "testing/oracle/numbers.h"

namespace quillon {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();

struct NumberCase {
  const char* rule;
  double value;
  const char* text;
};

TEST(NumberText, IsTheGeneralForm) {
  const std::vector<NumberCase> cases = {
      {"an integer has no point", 150, "150"},
      {"what floats add wrongly is gone after 15 digits", 0.1 + 0.2, "0.3"},
      {"nothing", 0, "0"},
      {"a negative nothing has no sign", -0.0, "0"},
      {"a 16th digit rounds the 15th", 0.1234567890123456, "0.123456789012346"},
      {"a 16th digit before the point goes into the exponent form", 1234567890123456, "1.23456789012346E+15"},
      {"the equity complement that has too many decimals", 1.0 - 0.920788, "7.92119999999999E-02"},
      {"15 decimals are fixed", 1e-15, "0.000000000000001"},
      {"16 decimals are not", 1e-16, "1E-16"},
      {"16 digits before the point are not", 1e15, "1E+15"},
      {"two digits in the exponent form", 1.5e15, "1.5E+15"},
      {"rounding to 15 digits makes a 16th place", 999999999999999.9, "1E+15"},
      {"the largest number", kLargest, "1.79769313486232E+308"},
      {"the smallest number", kSmallest, "4.94065645841247E-324"},
  };
  for (const NumberCase& c : cases)
    EXPECT_EQ(NumberText(c.value), c.text) << c.rule;
}

struct FloatCase {
  const char* rule;
  float value;
  const char* text;
};

TEST(FloatNumberText, IsTheGeneralFormOfSevenDigits) {
  const std::vector<FloatCase> cases = {
      {"an integer has no point", 15300, "15300"},
      {"nothing", 0, "0"},
      {"a negative nothing has no sign", -0.0F, "0"},
      {"what a float adds to a decimal does not show", 0.1F, "0.1"},
      {"seven digits before the point are fixed", 9999999, "9999999"},
      {"eight are not", 10000000, "1E+07"},
      {"an eighth digit rounds the seventh", 12345678, "1.234568E+07"},
      {"7 decimals are fixed", 1e-7F, "0.0000001"},
      {"8 decimals are not", 1e-8F, "1E-08"},
      {"the largest number", std::numeric_limits<float>::max(), "3.402823E+38"},
  };
  for (const FloatCase& c : cases)
    EXPECT_EQ(FloatNumberText(c.value), c.text) << c.rule;
}

struct ParseCase {
  const char* rule;
  std::string text;
  double value;
};

TEST(LeadingNumber, ReadsTheLongestStartThatIsANumber) {
  const std::vector<ParseCase> cases = {
      {"a comma ends a number", "1,000", 1},
      {"blanks are skipped before and within", " 1 000", 1000},
      {"blanks are skipped in the exponent", "1 e - 2", 0.01},
      {"a second point ends a number", "1.5.2", 1.5},
      {"a negative exponent", "5.37339999999999E-02", 0.0537339999999999},
      {"an exponent without digits does not count", "1e", 1},
      {"nor with a blank and a letter", "1e x", 1},
      {"an exponent ends at its point", "1e2.5", 100},
      {"an exponent needs a number before it", "e5", 0},
      {"nor does a point make one", ".e5", 0},
      {"no digit after the point", "5.", 5},
      {"a point after a point's number", "5.e1", 50},
      {"a point alone", ".", 0},
      {"a sign and a point", "+.", 0},
      {"one sign only", "--5", 0},
      {"a currency sign is no start", "$5", 0},
      {"a tab is no blank", "\t5", 0},
      {"a zero byte ends a number", std::string("5\0006", 3), 5},
      {"nothing", "", 0},
      {"no hexadecimal digits", "0x10", 0},
      {"no infinity", "inf", 0},
      {"no not-a-number", "nan", 0},
      {"bytes above 127", "\xB2", 0},
      {"an integer beyond what a double holds exactly", "9007199254740993", 9007199254740992},
      {"many decimals, the last one above a tie", "0.1000000000000000055511151231257828", 0.1},
  };
  for (const ParseCase& c : cases)
    EXPECT_EQ(LeadingNumber(c.text), c.value) << c.rule << ": " << c.text;
}

TEST(LeadingNumber, BeyondTheRangeGivesTheLargestNumberAndBelowItNothing) {
  const std::string zeros(400, '0');
  const std::vector<ParseCase> cases = {
      {"too large by its exponent", "1e400", kLargest},
      {"too large by its digits", "1" + zeros, kLargest},
      {"too large by its digits, before other text", "1" + zeros + "xe-999", kLargest},
      {"too large by its digits after zeros", zeros + "1" + zeros, kLargest},
      {"too large in spite of a negative exponent", "1" + zeros + "e-50", kLargest},
      {"too large after a point", "0.0001e400", kLargest},
      {"the exponent itself is beyond an integer", "1e99999999999999999999", kLargest},
      {"the next decimal above the largest number", "1.7976931348623159e308", kLargest},
      {"the largest number itself", "1.7976931348623157e308", kLargest},
      {"too small by its exponent", "1e-400", 0},
      {"too small by its decimals", "0." + zeros + "1", 0},
      {"too small in spite of an exponent", "0." + zeros + "1e50", 0},
      {"the negative exponent itself is beyond an integer", "1e-99999999999999999999", 0},
      {"nothing stays nothing whatever its exponent", "0e999", 0},
      {"digits and exponent make up for each other", "1" + zeros + "e-400", 1},
      {"decimals and exponent make up for each other", "0." + zeros + "1e401", 1},
      {"the smallest number", "4.94065645841247E-324", kSmallest},
      {"less than half the smallest number", "2e-324", 0},
      {"zeros before a number", zeros + "1", 1},
  };
  for (const ParseCase& c : cases)
    EXPECT_EQ(LeadingNumber(c.text), c.value) << c.rule;
}

// The table's own form, with every byte as the end and as a character that does not occur.
TEST(LeadingNumberBefore, TellsEveryByteFromADigit) {
  constexpr std::string_view kDigits = "8785953902";
  for (std::size_t count = 0; count <= kDigits.size(); ++count) {
    for (int i = 0; i < 256; ++i) {
      const char byte = static_cast<char>(i);
      const std::string text = "0." + std::string(kDigits.substr(0, count)) + byte + "7 0.5 0.25 ";
      for (const char end : {byte, ' '}) {
        const std::string cut = text.substr(0, text.find(end));
        ASSERT_EQ(LeadingNumberBefore(text, end), LeadingNumber(cut)) << count << " digits, byte " << i;
      }
    }
  }
}

struct NumericCase {
  const char* rule;
  std::string text;
  bool numeric;
};

TEST(IsNumericText, TakesAmountsAsPeopleWriteThem) {
  const std::vector<NumericCase> cases = {
      {"currency, thousands and cents", "$1,000.50", true},
      {"a minus sign", "-5", true},
      {"a plus sign", "+5", true},
      {"a sign before the currency", "-$5", true},
      {"a sign after the currency", "$-5", true},
      {"no digit before the point", ".5", true},
      {"no digit after the point", "5.", true},
      {"an exponent", "1e3", true},
      {"blanks at both ends", " 7 ", true},
      {"thousands separators anywhere between digits", "1,0", true},
      {"many digits", std::string(400, '9'), true},
      {"nothing", "", false},
      {"blanks alone", "   ", false},
      {"trailing letters", "12abc", false},
      {"a point alone", ".", false},
      {"a blank within", "1 000", false},
      {"a space after the currency sign", "$ 5", false},
      {"a line end", "5\r\n", false},
      {"two signs around the currency", "-$-5", false},
      {"two currency signs", "$$5", false},
      {"two currency signs around the sign", "$-$5", false},
      {"a comma in the fraction", "1.5,0", false},
      {"a comma first", ",5", false},
      {"a comma last", "5,", false},
      {"a comma before the point", "5,.5", false},
      {"two commas side by side", "1,,000", false},
      {"a trailing sign", "5-", false},
      {"a trailing currency sign", "5$", false},
      {"brackets", "(5)", false},
      {"an exponent without digits", "1e", false},
      {"an exponent with a comma", "1e1,000", false},
      {"infinity", "inf", false},
      {"another currency",
       "\xC2\xA3"
       "5",
       false},
      {"a zero byte", std::string("5\0", 2), false},
  };
  for (const NumericCase& c : cases)
    EXPECT_EQ(IsNumericText(c.text), c.numeric) << c.rule << ": " << c.text;
}

TEST(IsNumericText, HeedsTheUsersMarks) {
  const NumberMarks german = {"€", ",", "."};
  const NumberMarks french = {"€", ",", "\u202F"};
  const NumberMarks swiss = {"CHF", ".", "’"};
  const NumberMarks american = {"$", ".", ","};
  const NumberMarks brazilian = {"R$", ",", "."};
  struct Case {
    const char* rule;
    NumberMarks marks;
    const char* text;
    bool numeric;
  };
  const std::vector<Case> cases = {
      {"the currency after a blank", german, "100 €", true},
      {"the currency right after the digits", german, "100€", true},
      {"the currency after a no-break blank", german, "100\u00A0€", true},
      {"the currency before the digits", german, "€100", true},
      {"the currency between sign and digits", german, "-€100", true},
      {"both marks", german, "1.000.000,50", true},
      {"the marks of everywhere", german, "1,000.50", true},
      {"the marks of everywhere and the currency", german, "1,000.50 €", true},
      {"the dollar", german, "$100", true},
      {"marks of two kinds", german, "1.000,50.5", false},
      {"a group after the fraction", german, "1,000,000.5.5", false},
      {"a letter after the currency", german, "100€x", false},
      {"two currencies", german, "€100€", false},
      {"two blanks before the currency", german, "100  €", false},
      {"the currency alone", german, "€", false},
      {"the name of the currency", german, "100 EUR", false},
      {"a blank that is no mark", german, "1 000", false},
      {"blanks between groups, of any kind", french, "1 000\u00A0000\u202F000,5 €", true},
      {"two blanks between groups", french, "1  000", false},
      {"an apostrophe between groups", swiss, "1’000.50", true},
      {"a currency of letters", swiss, "100 CHF", false},
      {"a currency with a letter", brazilian, "100 R$", false},
      {"the dollar after the digits where it is the currency", american, "100 $", true},
      {"the dollar twice", american, "$100$", false},
      {"no marks", {}, "100 €", false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(IsNumericText(c.text, c.marks), c.numeric) << c.rule << ": " << c.text;
}

struct PatternCase {
  const char* rule;
  double value;
  int digits;
  const char* text;
};

TEST(PatternText, RoundsTheGeneralFormHalfAwayFromZero) {
  const std::vector<PatternCase> cases = {
      {"a tie rises, even digit before it", 0.125, 2, "0.13"},
      {"what has more than 15 digits is no tie", 1337058081636377.25, 1, "1337058081636380.0"},
      {"a tie that becomes longer", 99.5, 0, "100"},
      {"a tie in the last of 15 digits", 99999999999999.5, 0, "100000000000000"},
      {"a tie stored below itself", 2.675, 2, "2.68"},
      {"a tie stored below itself, an equity", 0.4135, 3, "0.414"},
      {"a tie stored above itself", 2.665, 2, "2.67"},
      {"a tie but for the sixteenth digit", 0.1249999999999999, 2, "0.13"},
      {"just below a tie by the fifteenth digit", 0.124999999999999, 2, "0.12"},
      {"less than half of it", 0.00499, 2, "0.00"},
  };
  for (const PatternCase& c : cases)
    EXPECT_EQ(PatternText(c.value, c.digits), c.text) << c.rule;
}

TEST(PatternText, HasAllItsDecimalsAndADigitBeforeThePoint) {
  const std::vector<PatternCase> cases = {
      {"an equity that is none", -1, 3, "-1.000"},
      {"cents", 1234.5, 2, "1234.50"},
      {"nothing", 0, 2, "0.00"},
      {"a negative nothing has no sign", -0.0, 3, "0.000"},
      {"no thousands separators", 1234567.891, 2, "1234567.89"},
      {"no exponent", 1e20, 2, "100000000000000000000.00"},
      {"no exponent for a small one", 1e-20, 3, "0.000"},
  };
  for (const PatternCase& c : cases)
    EXPECT_EQ(PatternText(c.value, c.digits), c.text) << c.rule;
  EXPECT_EQ(PatternText(kLargest, 2).size(), 309U + 3U);
  EXPECT_EQ(PatternText(-kLargest, 3).size(), 1U + 309U + 4U);
}

TEST(Numbers, ThatAreNotFiniteHaveNoText) {
  for (const float value : {HUGE_VALF, -HUGE_VALF, std::nanf("")}) {
    const auto number = static_cast<double>(value);
    EXPECT_EQ(FaultOf([&] { return NumberText(number); }), RunTimeFault::kOverflow) << value;
    EXPECT_EQ(FaultOf([&] { return FloatNumberText(value); }), RunTimeFault::kOverflow) << value;
    EXPECT_EQ(FaultOf([&] { return PatternText(number, 2); }), RunTimeFault::kOverflow) << value;
  }
}

// Random bits, fractions, and ties at every number of decimals.
TEST(Numbers, HaveTheTextsOfTheOracle) {
  std::mt19937_64 source(169);
  for (int i = 0; i < 30000; ++i) {
    const std::uint64_t bits = source();
    const auto whole = static_cast<double>(bits % 10000001);
    for (const double value : {std::bit_cast<double>(bits), whole / 1000003, whole / 1024, whole / 200000 - 25}) {
      if (!std::isfinite(value)) continue;
      ASSERT_EQ(NumberText(value), plain::NumberText(value));
      ASSERT_EQ(NumberText(LeadingNumber(NumberText(value))), NumberText(value));
      ASSERT_EQ(PatternText(value, i % 16), plain::PatternText(value, static_cast<std::size_t>(i % 16))) << value;
    }
  }
}

TEST(Numbers, AreReadAsByTheOracle) {
  constexpr std::string_view kLetters = "0123456789012345....  eE+-)x,$";
  std::mt19937 source(14196);
  const auto pick = [&source](std::size_t count) { return source() % count; };
  for (int i = 0; i < 100000; ++i) {
    std::string text = i % 2 == 0 ? "" : std::to_string(pick(1000)) + "." + std::to_string(pick(1000000000));
    for (std::size_t k = pick(20); k > 0; --k)
      text += kLetters[pick(kLetters.size())];
    const char end = pick(2) == 0 ? ')' : kLetters[pick(kLetters.size())];
    const std::string cut = text.substr(0, text.find(end));
    ASSERT_EQ(LeadingNumber(text), plain::LeadingNumber(text)) << text;
    ASSERT_EQ(LeadingNumberBefore(text, end), plain::LeadingNumber(cut)) << text << " / " << end;
    ASSERT_EQ(IsNumericText(text), plain::IsNumeric(text)) << text;
  }
}

}  // namespace
}  // namespace quillon
