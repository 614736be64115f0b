#include "hand/hand_classes.h"

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace quillon {
namespace {

// The grid as it is on the screen, row by row.
constexpr std::array<std::string_view, 13> kGrid = {
    "AA AKs AQs AJs ATs A9s A8s A7s A6s A5s A4s A3s A2s", "AKo KK KQs KJs KTs K9s K8s K7s K6s K5s K4s K3s K2s",
    "AQo KQo QQ QJs QTs Q9s Q8s Q7s Q6s Q5s Q4s Q3s Q2s", "AJo KJo QJo JJ JTs J9s J8s J7s J6s J5s J4s J3s J2s",
    "ATo KTo QTo JTo TT T9s T8s T7s T6s T5s T4s T3s T2s", "A9o K9o Q9o J9o T9o 99 98s 97s 96s 95s 94s 93s 92s",
    "A8o K8o Q8o J8o T8o 98o 88 87s 86s 85s 84s 83s 82s", "A7o K7o Q7o J7o T7o 97o 87o 77 76s 75s 74s 73s 72s",
    "A6o K6o Q6o J6o T6o 96o 86o 76o 66 65s 64s 63s 62s", "A5o K5o Q5o J5o T5o 95o 85o 75o 65o 55 54s 53s 52s",
    "A4o K4o Q4o J4o T4o 94o 84o 74o 64o 54o 44 43s 42s", "A3o K3o Q3o J3o T3o 93o 83o 73o 63o 53o 43o 33 32s",
    "A2o K2o Q2o J2o T2o 92o 82o 72o 62o 52o 42o 32o 22",
};

std::vector<std::string> GridLabels() {
  std::vector<std::string> labels;
  for (const std::string_view row : kGrid) {
    std::istringstream words{std::string(row)};
    for (std::string label; words >> label;)
      labels.push_back(label);
  }
  return labels;
}

// The rule of the lookup at its plainest: the first label that equals the text, else the aces.
std::int16_t PlainHandIndex(const std::vector<std::string>& labels, std::string_view text) {
  for (std::size_t i = 0; i < labels.size(); ++i) {
    if (labels[i] == text) return static_cast<std::int16_t>(i);
  }
  return 0;
}

// The class of two cards, the one of the higher rank first.
std::string ClassOfCards(std::string_view first, std::string_view second) {
  std::string label = {first[0], second[0]};
  if (first[0] != second[0]) label += first[1] == second[1] ? 's' : 'o';
  return label;
}

TEST(HandLabel, StandsWhereTheGridHasIt) {
  const std::vector<std::string> labels = GridLabels();
  ASSERT_EQ(labels.size(), 169U);
  for (std::size_t i = 0; i < labels.size(); ++i)
    EXPECT_EQ(HandLabel(static_cast<std::int16_t>(i)), labels[i]) << "index " << i;
}

TEST(HandLabel, PairsAreTheMultiplesOf14) {
  for (std::int16_t i = 0; i < kHandClassCount; ++i)
    EXPECT_EQ(HandLabel(i).size() == 2, i % 14 == 0) << "index " << i;
}

TEST(HandLabel, OutsideTheGridThereIsNone) {
  EXPECT_EQ(HandLabel(168), "22");
  for (const int index : {169, 170, -1, -14, 32767, -32768})
    EXPECT_EQ(HandLabel(static_cast<std::int16_t>(index)), "") << "index " << index;
}

TEST(HandIndex, TakesWhatIsNoLabelForAces) {
  for (const std::string_view text :
       {"AA",  "",    "A",   "s",   "aa",   "Aa",   "aks",  "AKS",  "AKO", "AK",  "KAs", "KAo",
        "AAs", "AAo", "22o", "AKx", "AKs ", " AKs", "AKss", "AKos", "1Ks", "10s", "XX",  "\xC3\x84Ks"})
    EXPECT_EQ(HandIndex(text), 0) << '"' << text << '"';
  EXPECT_EQ(HandIndex(std::string_view("\0\0", 2)), 0);
}

TEST(HandIndex, EqualsAPlainSearchForAnyText) {
  const std::vector<std::string> labels = GridLabels();
  constexpr std::string_view kLetters = "AKQJT98765432soAKQJT98765432so kqX1\xFF";
  std::mt19937 source(52);
  const auto pick = [&source](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(source);
  };
  for (int i = 0; i < 200000; ++i) {
    std::string text;
    for (std::size_t k = pick(10) == 0 ? pick(6) : 2 + pick(2); k > 0; --k)
      text += kLetters[pick(kLetters.size())];
    ASSERT_EQ(HandIndex(text), PlainHandIndex(labels, text)) << '"' << text << '"';
  }
}

TEST(HandIndex, EveryRankPairWithEveryEndEqualsAPlainSearch) {
  const std::vector<std::string> labels = GridLabels();
  for (const char high : kRankLetters) {
    for (const char low : kRankLetters) {
      for (const std::string_view end : {"", "s", "o", "x", "ss"}) {
        const std::string text = std::string{high, low}.append(end);
        ASSERT_EQ(HandIndex(text), PlainHandIndex(labels, text)) << text;
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
}

TEST(RankText, AnyOtherValueIsItsNumber) {
  EXPECT_EQ(RankText(1), "1");
  EXPECT_EQ(RankText(0), "0");
  EXPECT_EQ(RankText(15), "15");
  EXPECT_EQ(RankText(-1), "-1");
  EXPECT_EQ(RankText(32767), "32767");
}

TEST(ComboCount, LooksAtNothingButLengthAndLastCharacter) {
  for (const std::string_view pair : {"AA", "XX", "Ks"})
    EXPECT_EQ(ComboCount(pair), 6) << pair;
  for (const std::string_view suited : {"AKs", "xxs", "s", "suited hands"})
    EXPECT_EQ(ComboCount(suited), 4) << suited;
  for (const std::string_view offsuit : {"AKo", "AKx", "AKS", "", "A"})
    EXPECT_EQ(ComboCount(offsuit), 12) << offsuit;
}

TEST(ComboCount, AddsUpToAllConcreteHands) {
  int sum = 0;
  for (const std::string& label : GridLabels())
    sum += ComboCount(label);
  EXPECT_EQ(sum, 1326);
  EXPECT_EQ(sum, kConcreteHandCount);
}

TEST(ComboCount, IsTheNumberOfPairsInTheDeck) {
  std::map<std::string, int> counts;
  for (std::size_t i = 0; i < kDeckSize; ++i) {
    for (std::size_t j = i + 1; j < kDeckSize; ++j)
      ++counts[ClassOfCards(DeckCard(i), DeckCard(j))];
  }
  EXPECT_EQ(counts.size(), 169U);
  for (const std::string& label : GridLabels())
    EXPECT_EQ(ComboCount(label), counts[label]) << label;
}

TEST(DeckCard, RunsRankByRankAndInSuitOrder) {
  std::set<std::string_view> cards;
  std::size_t position = 0;
  for (const char rank : std::string_view("AKQJT98765432")) {
    for (const char suit : std::string_view("shdc")) {
      EXPECT_EQ(DeckCard(position), (std::string{rank, suit})) << "position " << position;
      cards.insert(DeckCard(position++));
    }
  }
  EXPECT_EQ(position, kDeckSize);
  EXPECT_EQ(cards.size(), 52U);
  EXPECT_EQ(kDeckText.size(), 52U * 3 - 1);
}

TEST(HandCards, TakesFixedSuitsForEachKindOfHand) {
  EXPECT_EQ(HandCards("AA"), "As Ac");
  EXPECT_EQ(HandCards("AKs"), "Ac Kc");
  EXPECT_EQ(HandCards("AKo"), "Ac Ks");
  EXPECT_EQ(HandCards("22"), "2s 2c");
  EXPECT_EQ(HandCards("T9s"), "Tc 9c");
  EXPECT_EQ(HandCards("72o"), "7c 2s");
  EXPECT_EQ(HandCards(std::string_view("AK").substr(0, 1)), "Ac s") << "no letter after the label is read";
}

TEST(HandCards, AreTwoCardsOfTheDeckAndOfTheClass) {
  std::set<std::string_view> deck;
  for (std::size_t i = 0; i < kDeckSize; ++i)
    deck.insert(DeckCard(i));
  for (const std::string& label : GridLabels()) {
    const std::string cards(HandCards(label).View());
    ASSERT_EQ(cards.size(), 5U) << label;
    const std::string first = cards.substr(0, 2);
    const std::string second = cards.substr(3);
    EXPECT_EQ(cards[2], ' ') << label;
    EXPECT_TRUE(deck.contains(first) && deck.contains(second)) << label;
    EXPECT_NE(first, second) << label;
    EXPECT_EQ(ClassOfCards(first, second), label);
  }
}

}  // namespace
}  // namespace quillon
