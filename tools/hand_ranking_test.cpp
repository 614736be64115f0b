#include "tools/hand_ranking.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <set>

#include "testing/hand_strength.h"
#include "testing/oracle/poker.h"

namespace quillon {
namespace {

using plain::CardsOf;

HandStrength StrengthOf(std::string_view cards) {
  return StrengthOfCards(CardsOf(cards));
}

struct CategoryCase {
  const char* rule;
  const char* cards;
  HandCategory category;
};

constexpr auto kCategoryCases = std::to_array<CategoryCase>({
    {"ARunDoesNotGoRoundTheAce", "3s 2h Ad Kc Qs 8h 7d", HandCategory::kHighCard},
    {"ThreePairsAreTwo", "As Ah Td Tc 6s 6h 2d", HandCategory::kTwoPair},
    {"TheLowestStraightHasTheAceBelow", "As 2h 3d 4c 5s 9h Kd", HandCategory::kStraight},
    {"TheHighestStraightHasTheAceAbove", "As Kh Qd Jc Ts 4h 2d", HandCategory::kStraight},
    {"TwoTripletsAreAFullHouse", "As Ah Ad Tc Ts Th 2d", HandCategory::kFullHouse},
    {"ATripletAndTwoPairsAreAFullHouse", "As Ah Ad Tc Ts 4h 4d", HandCategory::kFullHouse},
    {"FourOfAKindBeatsItsFullHouse", "As Ah Ad Ac 6s 6h 6d", HandCategory::kFourOfAKind},
    {"TheLowestStraightFlush", "As 2s 3s 4s 5s Kh Kd", HandCategory::kStraightFlush},
    {"AFlushOverAnotherSuitsStraightIsAFlush", "9s 8s 7s 6s 5h 2s Ad", HandCategory::kFlush},
});

TEST(EachCategory, IsFound) {
  for (const CategoryCase& c : kCategoryCases) {
    EXPECT_EQ(CategoryOf(StrengthOf(c.cards)), c.category) << c.rule;
  }
}

struct ShowdownCase {
  const char* rule;
  const char* winner;
  const char* loser;
};

constexpr auto kShowdowns = std::to_array<ShowdownCase>({
    {"TheFifthCardDecides", "As Qh Td 8c 6s 4h 2d", "As Qh Td 8c 5s 4h 2d"},
    {"AKickerDecidesBetweenPairs", "Ts Th Ad 8c 6s 4h 2d", "Ts Th Kd Qc Js 4h 2d"},
    {"TheHigherPairBeatsAnyKicker", "Js Jh 8d 7c 5s 4h 2d", "Ts Th Ad Kc Qs 4h 2d"},
    {"TheLowerOfTwoPairsDecides", "As Ah 3d 3c 6s 5h 7d", "As Ah 2d 2c Ks Qh Jd"},
    {"TheThirdPairIsOnlyAKicker", "As Ah Td Tc 6s 6h 8d", "As Ah Td Tc 6s 6h 7d"},
    {"TheWheelIsTheLeastStraight", "6s 2h 3d 4c 5s 9h Kd", "As 2h 3d 4c 5s 9h Kd"},
    {"TheTripletDecidesBetweenFullHouses", "3s 3h 3d 2c 2s 9h 7d", "2s 2h 2d Ac As 9h 7d"},
    {"TheFifthCardOfAFlushDecides", "As Ks 9s 7s 5s 4h 4d", "As Ks 9s 7s 4s Ah Ad"},
    {"TheQuadrupletsKickerDecides", "5s 5h 5d 5c As 2h 2d", "5s 5h 5d 5c Ks Kh Kd"},
    {"TheWheelIsTheLeastStraightFlush", "2s 3s 4s 5s 6s Kh Kd", "As 2s 3s 4s 5s Kh Kd"},
});

TEST(EachShowdown, IsWon) {
  for (const ShowdownCase& c : kShowdowns) {
    EXPECT_GT(StrengthOf(c.winner), StrengthOf(c.loser)) << c.rule;
  }
}

TEST(HandRanking, CardsThatDoNotPlayDecideNothing) {
  EXPECT_EQ(StrengthOf("As Qh Td 8c 6s 4h 2d"), StrengthOf("Ac Qs Th 8d 6c 5h 3d"));
  EXPECT_EQ(StrengthOf("Ts Th Ad 8c 6s 4h 2d"), StrengthOf("Td Tc As 8h 6d 5c 3s"));
  EXPECT_EQ(StrengthOf("As Ks 9s 7s 5s 4s 4d"), StrengthOf("As Ks 9s 7s 5s Kd Kh"));
}

TEST(HandRanking, TheRoyalFlushIsTheGreatestStrength) {
  EXPECT_EQ(StrengthOf("As Ks Qs Js Ts Ah Ad") + 1, kCategoryStart.back());
}

// The counts follow from combinatorics; 7462 is the number of five-card hands that differ in worth.
TEST(HandRanking, FiveCardHandsFallIntoTheKnownCounts) {
  constexpr int kEnd = static_cast<int>(kDeckSize);
  std::array<int, kHandCategoryCount> counts{};
  std::set<HandStrength> strengths;
  HandStrength last = 0;
  std::array<int, 5> hand{};
  for (hand[0] = 0; hand[0] < kEnd; ++hand[0]) {
    for (hand[1] = hand[0] + 1; hand[1] < kEnd; ++hand[1]) {
      for (hand[2] = hand[1] + 1; hand[2] < kEnd; ++hand[2]) {
        for (hand[3] = hand[2] + 1; hand[3] < kEnd; ++hand[3]) {
          for (hand[4] = hand[3] + 1; hand[4] < kEnd; ++hand[4]) {
            const HandStrength strength = StrengthOfCards(hand);
            ++counts[static_cast<std::size_t>(CategoryOf(strength))];
            if (strength != last) strengths.insert(strength);
            last = strength;
          }
        }
      }
    }
  }
  const std::array<int, kHandCategoryCount> known = {1302540, 1098240, 123552, 54912, 10200, 5108, 3744, 624, 40};
  EXPECT_EQ(counts, known);
  EXPECT_EQ(strengths.size(), 7462U);
}

// Cards to deal from; with fewer suits or ranks the rare hands come often.
plain::Cards Deck(int ranks, int suits) {
  plain::Cards deck;
  for (int card = 0; card < static_cast<int>(kDeckSize); ++card) {
    if (card / kSuitCount < ranks && card % kSuitCount < suits) deck.push_back(card);
  }
  return deck;
}

TEST(HandRanking, OrdersRandomSevensAsTheBestOfAllTheirFives) {
  constexpr int kDeals = 1500;
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): a test deals the same cards every time
  std::mt19937 random(20);
  std::vector<std::pair<plain::Worth, HandStrength>> hands;
  for (plain::Cards deck : {Deck(13, 4), Deck(13, 2), Deck(10, 1), Deck(4, 4), Deck(6, 4)}) {
    for (int deal = 0; deal < kDeals; ++deal) {
      std::shuffle(deck.begin(), deck.end(), random);
      const plain::Cards seven(deck.begin(), deck.begin() + 7);
      hands.emplace_back(plain::WorthOfSeven(seven), StrengthOfCards(seven));
    }
  }
  std::sort(hands.begin(), hands.end());
  for (std::size_t i = 0; i < hands.size(); ++i) {
    const auto& [worth, strength] = hands[i];
    ASSERT_EQ(static_cast<int>(CategoryOf(strength)), worth[0]);
    if (i == 0) continue;
    ASSERT_EQ(strength == hands[i - 1].second, worth == hands[i - 1].first);
    ASSERT_GE(strength, hands[i - 1].second);
  }
}

}  // namespace
}  // namespace quillon
