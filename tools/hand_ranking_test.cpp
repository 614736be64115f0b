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

// The counts follow from combinatorics; 7462 is the number of distinct strengths of five-card hands.
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

// The cards to deal from; with fewer suits or ranks the rare hands are frequent.
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
