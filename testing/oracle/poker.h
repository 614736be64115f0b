#pragma once

// The strength of hands in the plainest way: cards from text, and every five of them tried.

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "testing/oracle/hands.h"

namespace quillon::plain {

/// Positions in the deck, 0 for "As" to 51 for "2c".
using Cards = std::vector<int>;

/// Cards from text such as "As Kh 7d".
inline Cards CardsOf(std::string_view text) {
  Cards cards;
  for (std::size_t i = 0; i + 1 < text.size(); i += 3) {
    cards.push_back(static_cast<int>(std::find(Deck().begin(), Deck().end(), text.substr(i, 2)) - Deck().begin()));
  }
  return cards;
}

/// 14 for an ace down to 2.
inline int RankOf(int card) {
  return 14 - card / 4;
}

inline int SuitOf(int card) {
  return card % 4;
}

/// The value of five cards: first the category, 0 for a high card to 8 for a straight flush, then the ranks that decide
/// between hands of the category, most important first. Compares as the hands do.
using Worth = std::vector<int>;

inline int CategoryOfFive(const std::vector<int>& countsOfRanks, bool straight, bool flush) {
  if (straight && flush) return 8;
  if (countsOfRanks == std::vector{4, 1}) return 7;
  if (countsOfRanks == std::vector{3, 2}) return 6;
  if (flush) return 5;
  if (straight) return 4;
  if (countsOfRanks == std::vector{3, 1, 1}) return 3;
  if (countsOfRanks == std::vector{2, 2, 1}) return 2;
  return countsOfRanks.size() == 4 ? 1 : 0;
}

inline Worth WorthOfFive(const Cards& five) {
  std::map<int, int> countOfRank;
  for (const int card : five)
    ++countOfRank[RankOf(card)];
  std::vector<std::array<int, 2>> groups;
  groups.reserve(countOfRank.size());
  for (const auto& [rank, count] : countOfRank)
    groups.push_back({count, rank});
  std::sort(groups.rbegin(), groups.rend());
  std::vector<int> counts;
  std::vector<int> ranks;
  for (const auto& [count, rank] : groups) {
    counts.push_back(count);
    ranks.push_back(rank);
  }
  if (ranks == std::vector{14, 5, 4, 3, 2}) ranks = {5, 4, 3, 2, 1};
  const bool straight = ranks.size() == 5 && ranks.front() - ranks.back() == 4;
  const bool flush = std::all_of(five.begin(), five.end(), [&](int card) { return SuitOf(card) == SuitOf(five[0]); });

  Worth worth = {CategoryOfFive(counts, straight, flush)};
  for (const int rank : ranks)
    worth.push_back(rank);
  return worth;
}

/// The value of seven cards: the best of any five.
inline Worth WorthOfSeven(const Cards& seven) {
  Worth best;
  for (std::size_t left = 0; left < seven.size(); ++left) {
    for (std::size_t out = left + 1; out < seven.size(); ++out) {
      Cards five;
      for (std::size_t i = 0; i < seven.size(); ++i) {
        if (i != left && i != out) five.push_back(seven[i]);
      }
      best = std::max(best, WorthOfFive(five));
    }
  }
  return best;
}

/// The index of the class of two different cards.
inline std::size_t ClassOf(int one, int other) {
  const auto& [first, second] = std::minmax(one, other);
  return IndexOf(LabelOf(Deck().at(static_cast<std::size_t>(first)), Deck().at(static_cast<std::size_t>(second))));
}

}  // namespace quillon::plain
