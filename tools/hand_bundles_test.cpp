#include "tools/hand_bundles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "testing/hand_strength.h"
#include "testing/oracle/poker.h"

namespace quillon {
namespace {

plain::Cards CardsOf(const BoardClass& board) {
  plain::Cards cards;
  for (int card = 0; card < static_cast<int>(kDeckSize); ++card) {
    if ((board.suits[static_cast<std::size_t>(card % kSuitCount)] & RankBit(card)) != 0) cards.push_back(card);
  }
  return cards;
}

BoardClass BoardOf(std::string_view text) {
  BoardClass board;
  for (const int card : plain::CardsOf(text)) {
    board.suits[static_cast<std::size_t>(card % kSuitCount)] ^= RankBit(card);
    board.ranks = WithRanks(board.ranks, RankBit(card));
  }
  return board;
}

// By strength and class: how many hands, and how many with each card.
struct Use {
  int hands = 0;
  std::map<int, int> handsWithCard;

  bool operator==(const Use&) const = default;
};
using Uses = std::map<std::pair<HandStrength, std::size_t>, Use>;

Uses PlainUses(const BoardClass& board) {
  const plain::Cards cards = CardsOf(board);
  const auto isLive = [&](int card) { return std::find(cards.begin(), cards.end(), card) == cards.end(); };
  Uses uses;
  for (int one = 0; one < static_cast<int>(kDeckSize); ++one) {
    for (int other = one + 1; other < static_cast<int>(kDeckSize); ++other) {
      if (!isLive(one) || !isLive(other)) continue;
      plain::Cards seven = cards;
      seven.insert(seven.end(), {one, other});
      Use& use = uses[{StrengthOfCards(seven), plain::ClassOf(one, other)}];
      ++use.hands;
      ++use.handsWithCard[one];
      ++use.handsWithCard[other];
    }
  }
  return uses;
}

Uses BundledUses(const std::vector<HandBundle>& bundles) {
  Uses uses;
  for (const HandBundle& bundle : bundles) {
    const ClassShape& shape = kClassShapes[bundle.handClass];
    Use& use = uses[{bundle.strength, bundle.handClass}];
    use.hands += bundle.use.hands;
    for (int suit = 0; suit < kSuitCount; ++suit) {
      const auto index = static_cast<std::size_t>(suit);
      if (bundle.use.high[index] != 0) use.handsWithCard[kSuitCount * shape.high + suit] += bundle.use.high[index];
      if (bundle.use.low[index] != 0) use.handsWithCard[kSuitCount * shape.low + suit] += bundle.use.low[index];
    }
  }
  return uses;
}

std::vector<HandBundle> Bundle(const BoardClass& board) {
  std::vector<HandBundle> bundles;
  BundleHands(board, RankClasses(board.ranks), bundles);
  return bundles;
}

TEST(HandBundles, HoldEveryLiveHandInAscendingOrder) {
  for (const char* cards : {
           "As Kh 9d 6c 2s",
           "As Ks 9d 6d 2c",
           "As 9s 4s Kh 7d",
           "Ac 9c 4c Kh 7d",
           "As 9s 4s Ah 9d",
           "As 9s 4s 2s Ah",
           "9h 8h 7h 6h 2d",
           "Qd Jd 8d 5d 3d",
           "As Ks Qs Js Ts",
           "7s 7h 7d 7c 2s",
           "7s 7h 7d 2c 2s",
           "9s 8h 7d 6c 5s",
       }) {
    const BoardClass board = BoardOf(cards);
    const std::vector<HandBundle> bundles = Bundle(board);
    EXPECT_EQ(BundledUses(bundles), PlainUses(board)) << cards;
    EXPECT_TRUE(std::is_sorted(bundles.begin(), bundles.end(), [](const HandBundle& a, const HandBundle& b) {
      return a.strength < b.strength;
    })) << cards;
  }
}

TEST(HandBundles, HoldEveryLiveHandOnASampleOfAllBoards) {
  constexpr std::size_t kStep = 1009;
  const std::vector<BoardClass> boards = AllBoardClasses();
  for (std::size_t i = 0; i < boards.size(); i += kStep) {
    ASSERT_EQ(BundledUses(Bundle(boards[i])), PlainUses(boards[i])) << "board " << i;
  }
}

TEST(HandBundles, ShapesAreThoseOfTheLabels) {
  for (std::size_t i = 0; i < kClassCount; ++i) {
    const ClassShape& shape = kClassShapes[i];
    const std::string_view label = HandLabel(static_cast<std::int16_t>(i));
    EXPECT_EQ(kRankLetters[shape.high], label[0]);
    EXPECT_EQ(kRankLetters[shape.low], label[1]);
    EXPECT_EQ(shape.IsPair(), label.size() == 2);
    EXPECT_EQ(shape.suited, label.ends_with('s'));
  }
}

TEST(HandBundles, AnotherBoardLeavesNothingBehind) {
  const BoardClass first = BoardOf("Qd Jd 8d 5d 3d");
  const BoardClass second = BoardOf("As Kh 9d 6c 2s");
  std::vector<HandBundle> bundles;
  BundleHands(first, RankClasses(first.ranks), bundles);
  BundleHands(second, RankClasses(second.ranks), bundles);
  EXPECT_EQ(BundledUses(bundles), PlainUses(second));
}

}  // namespace
}  // namespace quillon
