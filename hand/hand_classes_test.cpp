#include "hand/hand_classes.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

#include "testing/oracle/hands.h"

namespace quillon {
namespace {

TEST(HandLabel, IsWhereTheOracleHasIt) {
  EXPECT_EQ(HandLabel(0), "AA");
  EXPECT_EQ(HandLabel(12), "A2s");
  EXPECT_EQ(HandLabel(13), "AKo");
  for (std::int16_t i = 0; i < kHandClassCount; ++i)
    EXPECT_EQ(HandLabel(i), plain::Labels()[static_cast<std::size_t>(i)]) << "index " << i;
}

TEST(HandLabel, OutsideTheGridThereIsNone) {
  for (const int index : {169, 170, -1, -14, 32767, -32768})
    EXPECT_EQ(HandLabel(static_cast<std::int16_t>(index)), "") << "index " << index;
}

TEST(HandIndex, TakesWhatIsNoLabelForAces) {
  for (const std::string_view text :
       {"AA",  "",    "A",   "s",    "aa",   "Aa",   "aks",  "AKS", "AKO", "AK", "KAs", "KAo", "AAs",
        "AAo", "22o", "AKx", "AKs ", " AKs", "AKss", "AKos", "1Ks", "10s", "XX", "AXs", "AXo", "\xC3\x84Ks"})
    EXPECT_EQ(HandIndex(text), 0) << '"' << text << '"';
  EXPECT_EQ(HandIndex(std::string_view("\0\0", 2)), 0);
}

TEST(HandIndex, EveryRankPairWithEveryEndEqualsASearch) {
  for (const char high : kRankLetters) {
    for (const char low : kRankLetters) {
      for (const std::string_view end : {"", "s", "o", "x", "ss"}) {
        const std::string text = std::string{high, low}.append(end);
        const std::size_t found = plain::IndexOf(text);
        ASSERT_EQ(HandIndex(text), found == plain::kClasses ? 0 : static_cast<std::int16_t>(found)) << text;
      }
    }
  }
}

TEST(RankText, IsTheLetterOfTheValue) {
  constexpr std::array<std::string_view, 13> kTexts = {"A", "K", "Q", "J", "T", "9", "8", "7", "6", "5", "4", "3", "2"};
  for (std::size_t i = 0; i < kTexts.size(); ++i) {
    EXPECT_EQ(RankText(static_cast<std::int16_t>(14 - i)), kTexts[i]);
    EXPECT_EQ(kRankLetters.substr(i, 1), kTexts[i]);
  }
  for (const int other : {-1, 0, 1, 15})
    EXPECT_EQ(RankText(static_cast<std::int16_t>(other)), std::to_string(other));
}

TEST(ComboCount, LooksAtNothingButLengthAndLastCharacter) {
  for (const std::string_view pair : {"AA", "XX", "Ks"})
    EXPECT_EQ(ComboCount(pair), 6) << pair;
  for (const std::string_view suited : {"AKs", "xxs", "s", "suited hands"})
    EXPECT_EQ(ComboCount(suited), 4) << suited;
  for (const std::string_view offsuit : {"AKo", "AKx", "AKS", "", "A"})
    EXPECT_EQ(ComboCount(offsuit), 12) << offsuit;
}

TEST(ComboCount, AndCardsAreThoseOfTheOracle) {
  int sum = 0;
  for (const std::string& label : plain::Labels()) {
    EXPECT_EQ(ComboCount(label), plain::ComboCount(label)) << label;
    EXPECT_EQ(HandCards(label), plain::SampleCards(label)) << label;
    sum += ComboCount(label);
  }
  EXPECT_EQ(sum, kConcreteHandCount);
  EXPECT_EQ(HandCards("AKs"), "Ac Kc");
  EXPECT_EQ(HandCards(std::string_view("AK").substr(0, 1)), "Ac s") << "no letter after the label is read";
}

TEST(DeckCard, RunsRankByRankAndInSuitOrder) {
  for (std::size_t position = 0; position < kDeckSize; ++position)
    EXPECT_EQ(DeckCard(position), plain::Deck()[position]);
}

}  // namespace
}  // namespace quillon
