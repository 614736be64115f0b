#include "analysis/dealt_range.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "ranges/range_text.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr std::string_view kSeparator = ", ";

constexpr HandRecord RecordOf(std::string_view card1, std::string_view card2) {
  HandRecord hand{.Card1Rank = card1[0],
                  .Card2Rank = card2[0],
                  .Card1Suit = card1[1],
                  .Card2Suit = card2[1],
                  .Card1 = card1,
                  .Card2 = card2,
                  .Cards = card1,
                  .Label = card1.substr(0, 1),
                  .Weight = 1,
                  .WeightText = "1"};
  for (const char c : {' ', card2[0], card2[1]})
    hand.Cards.Append(c);
  hand.Label.Append(card2[0]);
  if (card1[0] != card2[0]) hand.Label.Append(card1[1] == card2[1] ? 's' : 'o');
  return hand;
}

// The position of a hand of two cards in a list; the first card is the earlier one in the deck.
constexpr std::size_t PlaceOf(std::size_t first, std::size_t second) {
  return first * (2 * kDeckSize - first - 1) / 2 + second - first - 1;
}

// A deal only changes weights, so the hands are laid out at compile time and a deal starts from a copy: an analysis
// makes hundreds of thousands.
constexpr auto kUnblockedHands = [] {
  std::array<HandRecord, kConcreteHandCount> hands;
  for (std::size_t i = 0; i < kDeckSize; ++i) {
    for (std::size_t j = i + 1; j < kDeckSize; ++j)
      hands[PlaceOf(i, j)] = RecordOf(DeckCard(i), DeckCard(j));
  }
  return hands;
}();

void Block(HandRecord& hand) {
  hand.Weight = 0;
  hand.WeightText = "0";
}

// If `dead` is not a card, block every hand whose text contains it.
void BlockHandsThatHold(std::string_view dead, HandList& hands) {
  std::size_t card = 0;
  while (card < kDeckSize && DeckCard(card) != dead)
    ++card;
  if (card < kDeckSize) {
    for (std::size_t other = 0; other < card; ++other)
      Block(hands[PlaceOf(other, card)]);
    for (std::size_t other = card + 1; other < kDeckSize; ++other)
      Block(hands[PlaceOf(card, other)]);
    return;
  }
  for (HandRecord& hand : hands) {
    if (hand.Cards.View().find(dead) != std::string_view::npos) Block(hand);
  }
}

// Throws if the list has fewer than `count` records.
void DemandRecords(const HandList& list, std::size_t count) {
  if (list.empty() || list.size() < count) throw RunTimeError(RunTimeFault::kSubscriptOutOfRange);
}

}  // namespace

HandList BuildCombos(std::string_view dead1, std::string_view dead2) {
  HandList hands(kUnblockedHands.begin(), kUnblockedHands.end());
  BlockHandsThatHold(dead1, hands);
  BlockHandsThatHold(dead2, hands);
  return hands;
}

HandList DealText(std::string_view rangeName, std::string_view card1, std::string_view card2,
                  std::string_view rangeText) {
  if (rangeText.empty() && rangeName.empty()) return {};
  const std::string fileName = rangeName.empty() ? "" : RangeFileName(rangeName);
  if (rangeText.empty()) {
    throw RunTimeError(RunTimeFault::kSubscriptOutOfRange, "the range file \"" + fileName + "\" is missing or empty");
  }

  HandList hands = BuildCombos(card1, card2);
  for (HandRecord& hand : hands) {
    // Read for blocked hands too: an unreadable text must fail whichever hands are blocked.
    const double weight = RangeWeightOf(rangeText, hand.Label, fileName);
    if (hand.Weight != 0) hand.Weight = weight;
  }
  return hands;
}

double TotalWeight(const HandList& list) {
  DemandRecords(list, 1);
  double total = 0;
  for (const HandRecord& hand : list)
    total += hand.Weight;
  return total;
}

HandList LimitToRange(const HandList& current, HandList calling) {
  DemandRecords(current, 1);
  DemandRecords(calling, current.size());
  for (std::size_t i = 0; i < current.size(); ++i)
    calling[i].Weight = std::min(calling[i].Weight, current[i].Weight);
  return calling;
}

std::string ListDroppedHands(const HandList& current, const HandList& calling) {
  DemandRecords(current, 1);
  DemandRecords(calling, current.size());
  std::string dropped;
  for (std::size_t i = 0; i < current.size(); ++i) {
    const std::string_view label = current[i].Label;
    const double held = current[i].Weight;
    const bool cut = calling[i].Weight == 1 && calling[i].Weight > held;
    if (!cut || (held != 0 && held != 0.5) || dropped.find(label) != std::string::npos) continue;
    dropped.append(label).append(held == 0 ? "" : " (½'d)").append(kSeparator);
  }
  if (!dropped.empty()) dropped.resize(dropped.size() - kSeparator.size());
  return dropped;
}

}  // namespace quillon
