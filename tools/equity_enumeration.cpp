#include "tools/equity_enumeration.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <memory>
#include <thread>

namespace quillon {
namespace {

// Rounded up to whole vector registers; the extra lanes stay 0.
constexpr std::size_t kVectorBytes = 64;
constexpr std::size_t kClassLanes = 176;
constexpr std::size_t kPartnerLanes = 32;

// What can accompany a card in a hand, suits aside: a rank, suited or not.
constexpr std::size_t kPartnerCount = std::size_t{2} * kRankCount;

constexpr std::size_t PartnerIndex(std::size_t place, bool suited) {
  return suited ? kRankCount + place : place;
}

// Every weight is a multiple of the least orbit; in that unit more boards fit into 16 bits.
constexpr int kGreatestWeight = 24 / kLeastOrbitSize;
constexpr int kGreatestPointsPerBoard = 2 * 12 * 12;
constexpr int kBoardsPerBatch = std::numeric_limits<std::uint16_t>::max() / (kGreatestPointsPerBoard * kGreatestWeight);
static_assert(std::int64_t{kBoardCount} / kLeastOrbitSize * kGreatestPointsPerBoard <
              std::numeric_limits<std::uint32_t>::max());

template <typename Number>
using ClassRow = std::array<Number, kClassLanes>;
template <typename Number>
using PartnerRow = std::array<Number, kPartnerLanes>;

template <typename Number>
struct Points {
  // By class, from each class, including pairs that share a card.
  alignas(kVectorBytes) std::array<ClassRow<Number>, kClassCount> all{};
  // Of those, from hands that share a card: by the rank of the shared card and its partner, from each partner of the
  // other hand.
  alignas(kVectorBytes) std::array<std::array<PartnerRow<Number>, kPartnerCount>, kRankCount> shared{};
};

using BatchPoints = Points<std::uint16_t>;

struct TotalPoints : Points<std::uint32_t> {
  // By class, the points that its hands win from themselves.
  std::array<std::uint32_t, kClassCount> self{};
};

// What a hand of the current strength wins.
struct Takings {
  alignas(kVectorBytes) ClassRow<std::uint16_t> fromClass{};
  // For each card, from the hands that hold it.
  alignas(kVectorBytes) std::array<std::array<PartnerRow<std::uint16_t>, kSuitCount>, kRankCount> fromPartner{};
};

struct PartnersOfShape {
  std::size_t ofHigh;
  std::size_t ofLow;
};

PartnersOfShape PartnersOf(const ClassShape& shape) {
  return {PartnerIndex(shape.low, shape.suited), PartnerIndex(shape.high, shape.suited)};
}

void Raise(Takings& takings, const HandBundle& bundle, unsigned weight) {
  const ClassShape& shape = kClassShapes[bundle.handClass];
  const PartnersOfShape partners = PartnersOf(shape);
  const auto add = [weight](std::uint16_t& sum, unsigned hands) {
    sum = static_cast<std::uint16_t>(sum + weight * hands);
  };
  add(takings.fromClass[bundle.handClass], bundle.use.hands);
  for (std::size_t suit = 0; suit < kSuitCount; ++suit) {
    add(takings.fromPartner[shape.high][suit][partners.ofHigh], bundle.use.high[suit]);
    add(takings.fromPartner[shape.low][suit][partners.ofLow], bundle.use.low[suit]);
  }
}

void AddAll(const HandBundle& bundle, const Takings& takings, BatchPoints& points) {
  const unsigned hands = bundle.use.hands;
  ClassRow<std::uint16_t>& row = points.all[bundle.handClass];
  for (std::size_t lane = 0; lane < kClassLanes; ++lane) {
    row[lane] = static_cast<std::uint16_t>(row[lane] + hands * takings.fromClass[lane]);
  }
}

void AddSharing(const std::array<std::uint8_t, kSuitCount>& hands,
                const std::array<PartnerRow<std::uint16_t>, kSuitCount>& takings, PartnerRow<std::uint16_t>& row) {
  const std::array<unsigned, kSuitCount> times = {hands[0], hands[1], hands[2], hands[3]};
  for (std::size_t lane = 0; lane < kPartnerLanes; ++lane) {
    row[lane] = static_cast<std::uint16_t>(row[lane] + times[0] * takings[0][lane] + times[1] * takings[1][lane] +
                                           times[2] * takings[2][lane] + times[3] * takings[3][lane]);
  }
}

void AddShared(const HandBundle& bundle, const Takings& takings, BatchPoints& points) {
  const ClassShape& shape = kClassShapes[bundle.handClass];
  const PartnersOfShape partners = PartnersOf(shape);
  AddSharing(bundle.use.high, takings.fromPartner[shape.high], points.shared[shape.high][partners.ofHigh]);
  if (shape.IsPair()) return;
  AddSharing(bundle.use.low, takings.fromPartner[shape.low], points.shared[shape.low][partners.ofLow]);
}

std::size_t EqualAtFront(std::span<const HandBundle> bundles) {
  std::size_t count = 1;
  while (count < bundles.size() && bundles[count].strength == bundles[0].strength)
    ++count;
  return count;
}

void Sweep(std::span<const HandBundle> bundles, ClassRange rows, unsigned weight, BatchPoints& points) {
  Takings takings;
  while (!bundles.empty()) {
    const std::span<const HandBundle> equals = bundles.first(EqualAtFront(bundles));
    bundles = bundles.subspan(equals.size());
    // After the first increment an equal hand gives the one point of a tie; after the second, the two of a loss to all
    // later hands.
    for (const HandBundle& bundle : equals)
      Raise(takings, bundle, weight);
    for (const HandBundle& bundle : equals) {
      if (!rows.Holds(bundle.handClass)) continue;
      AddAll(bundle, takings, points);
      AddShared(bundle, takings, points);
    }
    for (const HandBundle& bundle : equals)
      Raise(takings, bundle, weight);
  }
}

template <std::size_t kLanes>
void MoveRow(std::array<std::uint16_t, kLanes>& from, std::array<std::uint32_t, kLanes>& to) {
  for (std::size_t lane = 0; lane < kLanes; ++lane)
    to[lane] += from[lane];
  from.fill(0);
}

void MoveBatch(BatchPoints& batch, TotalPoints& total) {
  for (std::size_t i = 0; i < kClassCount; ++i)
    MoveRow(batch.all[i], total.all[i]);
  for (std::size_t place = 0; place < kRankCount; ++place) {
    for (std::size_t i = 0; i < kPartnerCount; ++i)
      MoveRow(batch.shared[place][i], total.shared[place][i]);
  }
}

// A hand ties with itself once per board.
void AddSelfTies(std::span<const HandBundle> bundles, ClassRange rows, unsigned weight, TotalPoints& total) {
  for (const HandBundle& bundle : bundles) {
    if (rows.Holds(bundle.handClass)) total.self[bundle.handClass] += weight * bundle.use.hands;
  }
}

using BoardSpan = std::span<const BoardClass>;

std::vector<BoardSpan> SplitByRanks(BoardSpan boards) {
  std::vector<BoardSpan> groups;
  while (!boards.empty()) {
    const auto sameRanks = [&](const BoardClass& board) { return board.ranks == boards.front().ranks; };
    const auto end = std::find_if_not(boards.begin(), boards.end(), sameRanks);
    groups.push_back(boards.first(static_cast<std::size_t>(end - boards.begin())));
    boards = boards.subspan(groups.back().size());
  }
  return groups;
}

// The groups of boards still to do, handed out to the threads.
struct WorkList {
  std::vector<BoardSpan> groups;
  std::atomic<std::size_t> next = 0;
};

void Work(WorkList& work, ClassRange rows, TotalPoints& total, const ProgressReport& report) {
  const auto batch = std::make_unique<BatchPoints>();
  std::vector<HandBundle> bundles;
  int boardsInBatch = 0;
  for (std::size_t i = work.next++; i < work.groups.size(); i = work.next++) {
    const RankedClasses ranked = RankClasses(work.groups[i].front().ranks);
    for (const BoardClass& board : work.groups[i]) {
      const auto weight = static_cast<unsigned>(board.orbitSize / kLeastOrbitSize);
      BundleHands(board, ranked, bundles);
      Sweep(bundles, rows, weight, *batch);
      AddSelfTies(bundles, rows, weight, total);
      if (++boardsInBatch < kBoardsPerBatch) continue;
      MoveBatch(*batch, total);
      boardsInBatch = 0;
    }
    if (report) report(i + 1, work.groups.size());
  }
  MoveBatch(*batch, total);
}

std::size_t ClassAt(std::size_t place, std::size_t partner) {
  const bool suited = partner >= kRankCount;
  const std::size_t partnerPlace = partner % kRankCount;
  const std::size_t high = std::min(place, partnerPlace);
  const std::size_t low = std::max(place, partnerPlace);
  return suited ? kRankCount * high + low : kRankCount * low + high;
}

bool IsHand(std::size_t place, std::size_t partner) {
  return partner != PartnerIndex(place, true);
}

// All points minus those between hands that share a card. A hand against itself was counted once in the former and
// twice in the latter, for it shares both its cards.
void AddTotal(const TotalPoints& total, PointTable& points) {
  const auto inFull = [](std::uint32_t sum) { return kLeastOrbitSize * std::int64_t{sum}; };
  for (std::size_t i = 0; i < kClassCount; ++i) {
    for (std::size_t j = 0; j < kClassCount; ++j)
      points[i][j] += inFull(total.all[i][j]);
    points[i][i] += inFull(total.self[i]);
  }
  for (std::size_t place = 0; place < kRankCount; ++place) {
    for (std::size_t i = 0; i < kPartnerCount; ++i) {
      for (std::size_t j = 0; j < kPartnerCount; ++j) {
        if (!IsHand(place, i) || !IsHand(place, j)) continue;
        points[ClassAt(place, i)][ClassAt(place, j)] -= inFull(total.shared[place][i][j]);
      }
    }
  }
}

struct Hand {
  std::size_t handClass;
  std::uint64_t cards;
};

std::vector<Hand> AllHands() {
  std::vector<Hand> hands;
  for (std::size_t first = 0; first < kDeckSize; ++first) {
    for (std::size_t second = first + 1; second < kDeckSize; ++second) {
      const bool suited = first % kSuitCount == second % kSuitCount;
      hands.push_back({ClassAt(first / kSuitCount, PartnerIndex(second / kSuitCount, suited)),
                       std::uint64_t{1} << first | std::uint64_t{1} << second});
    }
  }
  return hands;
}

}  // namespace

PointTable CountPairs() {
  PointTable pairs(kClassCount);
  const std::vector<Hand> hands = AllHands();
  for (const Hand& one : hands) {
    for (const Hand& other : hands) {
      if ((one.cards & other.cards) == 0) ++pairs[one.handClass][other.handClass];
    }
  }
  return pairs;
}

PointTable CountPoints(std::span<const BoardClass> boards, ClassRange rows, unsigned threads,
                       const ProgressReport& report) {
  WorkList work{.groups = SplitByRanks(boards)};
  std::vector<TotalPoints> totals(threads);
  {
    std::vector<std::jthread> others;  // joined when they go out of scope
    for (unsigned i = 1; i < threads; ++i) {
      others.emplace_back([&work, rows, &total = totals[i]] { Work(work, rows, total, {}); });
    }
    Work(work, rows, totals[0], report);
  }

  PointTable points(kClassCount);
  for (const TotalPoints& total : totals)
    AddTotal(total, points);
  return points;
}

bool PointsAddUp(ClassRange rows, const PointTable& points, const PointTable& pairs) {
  for (std::size_t i = rows.first; i <= rows.last; ++i) {
    for (std::size_t j = rows.first; j <= rows.last; ++j) {
      if (points[i][j] + points[j][i] != PointsAtStake(pairs[i][j])) return false;
    }
  }
  return true;
}

}  // namespace quillon
