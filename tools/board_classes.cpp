#include "tools/board_classes.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace quillon {
namespace {

// The sets of ranks by size and, within a size, in ascending order.
using SetsBySize = std::array<std::vector<RankMask>, kBoardSize + 1>;

SetsBySize MakeSetsBySize() {
  SetsBySize sets;
  for (unsigned set = 0; set <= kAllRanks; ++set) {
    const auto size = static_cast<std::size_t>(std::popcount(set));
    if (size < sets.size()) sets[size].push_back(static_cast<RankMask>(set));
  }
  return sets;
}

// Counting the orders by enumeration handles equal sets without a formula.
int OrderCount(std::array<RankMask, kSuitCount> suits) {
  std::sort(suits.begin(), suits.end());
  int count = 1;
  while (std::next_permutation(suits.begin(), suits.end()))
    ++count;
  return count;
}

RankTally TallyOf(const std::array<RankMask, kSuitCount>& suits) {
  RankTally tally;
  for (const RankMask suit : suits)
    tally = WithRanks(tally, suit);
  return tally;
}

void FillSuits(std::size_t suit, std::size_t cardsLeft, const SetsBySize& sets, BoardClass& board,
               std::vector<BoardClass>& boards) {
  if (suit == kSuitCount) {
    board.ranks = TallyOf(board.suits);
    board.orbitSize = OrderCount(board.suits);
    boards.push_back(board);
    return;
  }
  const bool lastSuit = suit + 1 == kSuitCount;
  const unsigned greatest = suit == 0 ? kAllRanks : board.suits[suit - 1];
  for (std::size_t size = lastSuit ? cardsLeft : 0; size <= cardsLeft; ++size) {
    for (const RankMask set : sets[size]) {
      if (set > greatest) break;
      board.suits[suit] = set;
      FillSuits(suit + 1, cardsLeft - size, sets, board, boards);
    }
  }
}

}  // namespace

std::vector<BoardClass> AllBoardClasses() {
  std::vector<BoardClass> boards;
  boards.reserve(kBoardClassCount);
  BoardClass board;
  FillSuits(0, kBoardSize, MakeSetsBySize(), board, boards);
  std::sort(boards.begin(), boards.end(), [](const BoardClass& a, const BoardClass& b) { return a.ranks < b.ranks; });
  return boards;
}

}  // namespace quillon
