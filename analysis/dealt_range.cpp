#include "analysis/dealt_range.h"

#include <algorithm>
#include <cstddef>

#include "ranges/range_text.h"
#include "support/run_time_error.h"

namespace quillon {
namespace {

constexpr std::string_view kSeparator = ", ";

// The length is known while compiling, so that a text of single characters is built with plain stores.
template <class... Characters>
FixedText<sizeof...(Characters)> TextOf(Characters... characters) {
  FixedText<sizeof...(Characters)> text;
  (text.Append(characters), ...);
  return text;
}

FixedText<3> LabelOf(char rank1, char suit1, char rank2, char suit2) {
  FixedText<3> label;
  label.Append(rank1);
  label.Append(rank2);
  if (rank1 != rank2) label.Append(suit1 == suit2 ? 's' : 'o');
  return label;
}

// A text that blocks the hands in whose cards it occurs.
class DeadText {
 public:
  explicit DeadText(std::string_view text)
      : text_(text), isCard_(text.size() == 2 && text.find(' ') == std::string_view::npos) {
    if (!isCard_) return;
    rank_ = text[0];
    suit_ = text[1];
  }

  [[nodiscard]] bool Blocks(const HandRecord& hand) const {
    // Two characters without the blank can only be one of the two cards, and every analysis asks for such.
    if (isCard_) return Is(hand.Card1Rank, hand.Card1Suit) || Is(hand.Card2Rank, hand.Card2Suit);
    return OccursIn(hand);
  }

 private:
  [[nodiscard]] bool Is(char rank, char suit) const { return rank_ == rank && suit_ == suit; }

  // Out of the way of the loop over all hands, whose registers the library's search would take.
  [[nodiscard]] [[gnu::noinline]] bool OccursIn(const HandRecord& hand) const {
    return hand.Cards.View().find(text_) != std::string_view::npos;
  }

  std::string_view text_;
  bool isCard_;
  char rank_ = '\0';
  char suit_ = '\0';
};

// Fills a record where it stands in its list: one that is made elsewhere and copied takes twice as long, and an
// analysis makes hundreds of thousands.
void FillRecord(HandRecord& hand, std::string_view card1, std::string_view card2) {
  const char rank1 = card1[0];
  const char suit1 = card1[1];
  const char rank2 = card2[0];
  const char suit2 = card2[1];
  hand.Card1Rank = rank1;
  hand.Card2Rank = rank2;
  hand.Card1Suit = suit1;
  hand.Card2Suit = suit2;
  hand.Card1 = TextOf(rank1, suit1);
  hand.Card2 = TextOf(rank2, suit2);
  hand.Cards = TextOf(rank1, suit1, ' ', rank2, suit2);
  hand.Label = LabelOf(rank1, suit1, rank2, suit2);
}

void SetWeight(HandRecord& hand, bool blocked) {
  hand.Weight = blocked ? 0 : 1;
  hand.WeightText = TextOf(blocked ? '0' : '1');
}

// What lies beyond a list's end cannot be looked at, and no list ends before its first record.
void DemandRecords(const HandList& list, std::size_t count) {
  if (list.empty() || list.size() < count) throw RunTimeError(RunTimeFault::kSubscriptOutOfRange);
}

}  // namespace

HandList BuildCombos(std::string_view dead1, std::string_view dead2) {
  const DeadText deadText1(dead1);
  const DeadText deadText2(dead2);
  HandList hands;
  hands.reserve(kConcreteHandCount);
  for (std::size_t i = 0; i < kDeckSize; ++i) {
    for (std::size_t j = i + 1; j < kDeckSize; ++j) {
      HandRecord& hand = hands.emplace_back();
      FillRecord(hand, DeckCard(i), DeckCard(j));
      SetWeight(hand, deadText1.Blocks(hand) || deadText2.Blocks(hand));
    }
  }
  return hands;
}

HandList DealRange(const ProgramFolder& folder, std::string_view rangeName, std::string_view card1,
                   std::string_view card2, std::string& rangeText) {
  if (rangeText.empty()) rangeText = LoadRangeText(folder, rangeName);
  if (rangeText.empty()) return {};

  HandList hands = BuildCombos(card1, card2);
  for (HandRecord& hand : hands) {
    // Read for blocked hands too: a text that cannot be read fails whichever hands are blocked.
    const double weight = RangeWeightOf(rangeText, hand.Label);
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
