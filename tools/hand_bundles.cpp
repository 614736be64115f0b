#include "tools/hand_bundles.h"

#include <algorithm>
#include <bit>

namespace quillon {
namespace {

// A set of suits, bit s for suit s.
using SuitMask = unsigned;
constexpr SuitMask kAllSuits = (1U << kSuitCount) - 1;
constexpr std::size_t kSuitMaskCount = kAllSuits + 1;

constexpr int kCardsInFlush = 5;
constexpr int kCardsInHand = 2;

constexpr bool Has(SuitMask suits, std::size_t suit) {
  return (suits >> suit & 1U) != 0;
}

enum class ClassKind : std::size_t { kPair, kSuited, kOffsuit };

// A pair's hand is the same whichever card is named first; with equal sets it must not count twice.
constexpr bool IsHand(ClassKind kind, std::size_t high, std::size_t low, SuitMask highSuits, SuitMask lowSuits) {
  if (kind == ClassKind::kSuited) return high == low;
  if (kind == ClassKind::kOffsuit) return high != low;
  const bool alsoOtherWay = Has(highSuits, low) && Has(lowSuits, high);
  return high < low || (high > low && !alsoOtherWay);
}

constexpr CardUse CountUse(ClassKind kind, SuitMask highSuits, SuitMask lowSuits) {
  CardUse use;
  for (std::size_t high = 0; high < kSuitCount; ++high) {
    for (std::size_t low = 0; low < kSuitCount; ++low) {
      if (!Has(highSuits, high) || !Has(lowSuits, low) || !IsHand(kind, high, low, highSuits, lowSuits)) continue;
      ++use.hands;
      ++use.high[high];
      ++(kind == ClassKind::kPair ? use.high : use.low)[low];
    }
  }
  return use;
}

using UseTable = std::array<std::array<CardUse, kSuitMaskCount>, kSuitMaskCount>;

constexpr UseTable MakeUseTable(ClassKind kind) {
  UseTable table{};
  for (SuitMask high = 0; high < kSuitMaskCount; ++high) {
    for (SuitMask low = 0; low < kSuitMaskCount; ++low) {
      table[high][low] = CountUse(kind, high, low);
    }
  }
  return table;
}

constexpr std::array<UseTable, 3> kUse = {MakeUseTable(ClassKind::kPair), MakeUseTable(ClassKind::kSuited),
                                          MakeUseTable(ClassKind::kOffsuit)};

// The hands of a class whose higher card has one of `highSuits` and whose lower card has one of `lowSuits`.
const CardUse& UseOf(const ClassShape& shape, SuitMask highSuits, SuitMask lowSuits) {
  const ClassKind kind = shape.IsPair() ? ClassKind::kPair : shape.suited ? ClassKind::kSuited : ClassKind::kOffsuit;
  return kUse[static_cast<std::size_t>(kind)][highSuits][lowSuits];
}

// A board as it matters for the hands.
struct BoardView {
  // For each rank, from the ace down, the suits whose card is not on the board.
  std::array<SuitMask, kRankCount> liveSuits{};
  // The suit in which a hand can make a flush, as a set; empty if there is none.
  SuitMask flushSuit = 0;
  RankMask flushRanks = 0;
  // How many of a hand's cards must be of that suit.
  int cardsNeeded = kCardsInHand + 1;
};

BoardView ViewOf(const BoardClass& board) {
  BoardView view;
  for (std::size_t place = 0; place < kRankCount; ++place) {
    for (std::size_t suit = 0; suit < kSuitCount; ++suit) {
      const bool onBoard = (board.suits[suit] & RankAt(place)) != 0;
      view.liveSuits[place] |= (onBoard ? 0U : 1U) << suit;
    }
  }
  for (std::size_t suit = 0; suit < kSuitCount; ++suit) {
    const int needed = kCardsInFlush - std::popcount(board.suits[suit]);
    if (needed > kCardsInHand) continue;
    view.flushSuit = 1U << suit;
    view.flushRanks = board.suits[suit];
    view.cardsNeeded = needed;
  }
  return view;
}

void AddFlush(const BoardView& view, std::uint8_t handClass, const CardUse& use, unsigned handRanks,
              std::vector<HandBundle>& bundles) {
  if (use.hands == 0) return;
  bundles.push_back({StrengthOfFlush(static_cast<RankMask>(view.flushRanks | handRanks)), handClass, use});
}

// The hands of a class with two cards of the suit, then with one, then with none, as long as they make a flush.
void AddFlushes(const BoardView& view, std::uint8_t handClass, std::vector<HandBundle>& bundles) {
  const ClassShape& shape = kClassShapes[handClass];
  const SuitMask highIn = view.liveSuits[shape.high] & view.flushSuit;
  const SuitMask lowIn = view.liveSuits[shape.low] & view.flushSuit;
  const SuitMask highOut = view.liveSuits[shape.high] & ~view.flushSuit;
  const SuitMask lowOut = view.liveSuits[shape.low] & ~view.flushSuit;
  const RankMask high = RankAt(shape.high);
  const RankMask low = RankAt(shape.low);

  AddFlush(view, handClass, UseOf(shape, highIn, lowIn), high | low, bundles);
  if (view.cardsNeeded == 2) return;
  AddFlush(view, handClass, UseOf(shape, highIn, lowOut), high, bundles);
  if (!shape.IsPair()) AddFlush(view, handClass, UseOf(shape, highOut, lowIn), low, bundles);
  if (view.cardsNeeded == 1) return;
  AddFlush(view, handClass, UseOf(shape, highOut, lowOut), 0, bundles);
}

// The hands without a flush, in the order of their classes.
void AddOthers(const BoardView& view, const RankedClasses& ranked, std::vector<HandBundle>& bundles) {
  if (view.cardsNeeded == 0) return;
  for (const RankedClass& entry : ranked) {
    const ClassShape& shape = kClassShapes[entry.handClass];
    // If a flush needs two cards of the suit, an offsuit hand with one of them stays with its class.
    const bool someMakeFlush = view.cardsNeeded == 1 || (view.cardsNeeded == 2 && shape.suited);
    const SuitMask suits = someMakeFlush ? kAllSuits & ~view.flushSuit : kAllSuits;
    const CardUse& use = UseOf(shape, view.liveSuits[shape.high] & suits, view.liveSuits[shape.low] & suits);
    if (use.hands != 0) bundles.push_back({entry.strength, entry.handClass, use});
  }
}

bool IsWeaker(const HandBundle& a, const HandBundle& b) {
  return a.strength < b.strength;
}

}  // namespace

RankedClasses RankClasses(const RankTally& boardRanks) {
  RankedClasses ranked{};
  for (std::size_t i = 0; i < kClassCount; ++i) {
    const ClassShape& shape = kClassShapes[i];
    const RankTally seven = WithRanks(WithRanks(boardRanks, RankAt(shape.high)), RankAt(shape.low));
    ranked[i] = {StrengthOfRanks(seven), static_cast<std::uint8_t>(i)};
  }
  std::sort(ranked.begin(), ranked.end(),
            [](const RankedClass& a, const RankedClass& b) { return a.strength < b.strength; });
  return ranked;
}

void BundleHands(const BoardClass& board, const RankedClasses& ranked, std::vector<HandBundle>& bundles) {
  const BoardView view = ViewOf(board);
  bundles.clear();
  AddOthers(view, ranked, bundles);
  if (view.cardsNeeded > kCardsInHand) return;
  const auto others = static_cast<std::ptrdiff_t>(bundles.size());
  for (std::size_t i = 0; i < kClassCount; ++i)
    AddFlushes(view, static_cast<std::uint8_t>(i), bundles);
  std::sort(bundles.begin() + others, bundles.end(), IsWeaker);
  std::inplace_merge(bundles.begin(), bundles.begin() + others, bundles.end(), IsWeaker);
}

}  // namespace quillon
