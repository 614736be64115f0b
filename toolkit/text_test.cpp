#include "toolkit/text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Text, LinesArePartedByOneCharacterInQt) {
  EXPECT_EQ(ToQt("a\r\nb\r\n\r\nc"), QStringLiteral("a\nb\n\nc"));
  EXPECT_EQ(ToQt("a\nb"), QStringLiteral("a\nb"));
  EXPECT_EQ(ToQt("a\rb"), QStringLiteral("a\rb"));
}

TEST(Text, LinesOfABoxArePartedByTwo) {
  EXPECT_EQ(LinesFromQt(QStringLiteral("a\nb\n")), "a\r\nb\r\n");
  EXPECT_EQ(FromQt(QStringLiteral("a\nb")), "a\nb");
}

TEST(Text, GoesThereAndBackWhateverItsCharacters) {
  for (const char* text : {"", "A\u2660 2\u00A2 \u20AC", "\U0001F0A1", " blanks  stay "}) {
    EXPECT_EQ(FromQt(ToQt(text)), text);
    EXPECT_EQ(LinesFromQt(ToQt(text)), text);
  }
}

TEST(MarksOf, AreThoseOfTheLocale) {
  const NumberMarks german = MarksOf(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(german.Currency + german.Decimal + german.Group, "€,.");
  const NumberMarks american = MarksOf(QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(american.Currency + american.Decimal + american.Group, "$.,");
  EXPECT_TRUE(IsNumericText("1\u202F000,50 €", MarksOf(QLocale(QLocale::French, QLocale::France))));
}

TEST(Text, BytesThatAreNoTextBecomeTheReplacementCharacter) {
  EXPECT_EQ(FromQt(ToQt("a\xFF"
                        "b")),
            "a\uFFFD"
            "b");
}

}  // namespace
}  // namespace quillon
