#include "study/equilibrium.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <numeric>
#include <vector>

#include "support/rounding.h"

namespace quillon {
namespace {

using PerClass = ClassWeights;
using Table = std::vector<PerClass>;

constexpr std::size_t kClasses = kHandClassCount;
// In pots. After many rounds half of the promise is good enough.
constexpr double kPromised = 1e-6;
constexpr double kWanted = 1e-9;
constexpr double kGoodEnough = 5e-7;
constexpr int kPatience = 4096;
// Six decimals are enough except for shoves of many pots, where a millionth of a range exceeds the promised error.
constexpr int kShareDecimals = 6;
constexpr int kFineShareDecimals = 12;
constexpr int kRoundsBetweenLooks = 64;
constexpr int kMostRounds = 1 << 17;  // so that no question takes longer than about five analyses of a raise

double Dot(const PerClass& a, const PerClass& b) {
  return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

void AddScaled(PerClass& sum, double factor, const PerClass& row) {
  for (std::size_t i = 0; i < kClasses; ++i)
    sum[i] += factor * row[i];
}

// Scaled so that the largest weight is 1: only the ratios matter.
ClassWeights ToOne(ClassWeights weights) {
  const double largest = std::ranges::max(weights);
  if (largest == 0) return weights;
  std::ranges::transform(weights, weights.begin(), [largest](double weight) { return weight / largest; });
  return weights;
}

// The gain from playing each class only if that gains something.
double BestGain(const PerClass& gains) {
  return std::accumulate(gains.begin(), gains.end(), 0.0,
                         [](double sum, double gain) { return sum + std::max(gain, 0.0); });
}

// The gains in pots of each pair of classes, weighted by how often it is dealt.
class Game {
 public:
  Game(const HandNumbers& hands, const BalanceQuestion& question) : called_(kClasses), mirrored_(kClasses) {
    const double call = question.Call / question.Pot;
    const double shove = question.Shove / question.Pot;
    const double afterCall = 1 + call + 2 * shove;
    const double lost = call + shove + 1;  // includes the pot that a fold would have won
    const ClassWeights own = ToOne(question.OwnHands);
    const ClassWeights his = ToOne(question.HisHands);
    for (std::size_t i = 0; i < kClasses; ++i) {
      const PairCounts counts = CountPairs(hands, static_cast<std::int16_t>(i));
      const HandNumbers::EquityRow& equities = hands.Equities(static_cast<std::int16_t>(i));
      for (std::size_t j = 0; j < kClasses; ++j) {
        const double dealt = counts[j] * own[i] * his[j];
        folded_[i] += dealt;
        called_[i][j] = dealt * (equities[j] * afterCall - lost);
      }
    }
    dealt_ = std::accumulate(folded_.begin(), folded_.end(), 0.0);
    if (dealt_ == 0) return;
    for (std::size_t i = 0; i < kClasses; ++i) {
      folded_[i] /= dealt_;
      for (std::size_t j = 0; j < kClasses; ++j) {
        called_[i][j] /= dealt_;
        mirrored_[j][i] = called_[i][j];
      }
    }
  }

  [[nodiscard]] bool HasDeals() const { return dealt_ > 0; }

  // The gain of each of the hero's classes from shoving against the calling frequencies `call`.
  [[nodiscard]] PerClass ShoveGains(const PerClass& call) const {
    PerClass gains = folded_;
    for (std::size_t j = 0; j < kClasses; ++j)
      AddScaled(gains, call[j], mirrored_[j]);
    return gains;
  }

  // The gain of each of the opponent's classes from calling the shoving frequencies `shove`.
  [[nodiscard]] PerClass CallGains(const PerClass& shove) const {
    PerClass gains{};
    for (std::size_t i = 0; i < kClasses; ++i)
      AddScaled(gains, -shove[i], called_[i]);
    return gains;
  }

  // Updates these gains after a change of one class.
  void ChangeShove(std::size_t hand, double change, PerClass& callGains) const {
    AddScaled(callGains, -change, called_[hand]);
  }
  void ChangeCall(std::size_t hand, double change, PerClass& shoveGains) const {
    AddScaled(shoveGains, change, mirrored_[hand]);
  }

  [[nodiscard]] double Value(const PerClass& shove, const PerClass& call) const { return Dot(shove, ShoveGains(call)); }

  // The sum over both players of best gain minus gain; the pot cancels out.
  [[nodiscard]] double Exploitability(const PerClass& shove, const PerClass& call) const {
    const double both = BestGain(ShoveGains(call)) - Dot(shove, folded_) + BestGain(CallGains(shove));
    return std::max(both, 0.0);  // rounding may leave slightly less than 0
  }

 private:
  PerClass folded_{};  // how often each of the hero's classes is dealt: it wins a pot whenever nobody calls
  Table called_;  // the hero's extra gain or loss when he is called
  Table mirrored_;
  double dealt_ = 0;
};

// How often one player plays each class, learnt from the gains.
class Learner {
 public:
  // Calls `moved` for each class whose frequency changes, with the change.
  template <typename Moved>
  void Learn(const PerClass& gains, Moved moved) {
    for (std::size_t i = 0; i < kClasses; ++i) {
      const double played = gains[i] * (1 - plays_[i]);  // regret of not having played more
      const double passed = -gains[i] * plays_[i];
      regretPlay_[i] = std::max(0.0, regretPlay_[i] + played);
      regretPass_[i] = std::max(0.0, regretPass_[i] + passed);
      // The prediction: the next round will be like this one.
      const double play = std::max(0.0, regretPlay_[i] + played);
      const double pass = std::max(0.0, regretPass_[i] + passed);
      if (play + pass == 0) continue;
      const double next = play / (play + pass);
      if (next != plays_[i]) moved(i, next - plays_[i]);
      plays_[i] = next;
    }
  }

  // Adds the round to the mean.
  void Count() {
    AddScaled(sum_, 1, plays_);
    ++rounds_;
  }

  // Restarts the mean.
  void Forget() {
    sum_ = {};
    rounds_ = 0;
  }

  // The current frequencies, and the mean of the rounds counted; both rounded.
  [[nodiscard]] PerClass Last(int decimals) const { return Rounded(plays_, 1, decimals); }
  [[nodiscard]] PerClass Mean(int decimals) const { return Rounded(sum_, rounds_, decimals); }

  [[nodiscard]] const PerClass& Plays() const { return plays_; }

 private:
  static constexpr PerClass Even() {
    PerClass plays{};
    plays.fill(0.5);
    return plays;
  }

  static PerClass Rounded(const PerClass& sums, int rounds, int decimals) {
    PerClass rounded{};
    std::ranges::transform(sums, rounded.begin(), [&](double sum) { return RoundTo(sum / rounds, decimals); });
    return rounded;
  }

  PerClass regretPlay_{};
  PerClass regretPass_{};
  PerClass plays_ = Even();
  PerClass sum_{};
  int rounds_ = 0;
};

struct Answer {
  PerClass shove{};
  PerClass call{};
  double exploitability = 0;
};

Answer AnswerOf(const Game& game, const PerClass& shove, const PerClass& call) {
  return {shove, call, game.Exploitability(shove, call)};
}

// A range with each class played this often.
ClassWeights Played(const ClassWeights& held, const PerClass& plays) {
  ClassWeights played{};
  std::ranges::transform(held, plays, played.begin(), [](double weight, double share) { return weight * share; });
  return played;
}

}  // namespace

PairCounts CountPairs(const HandNumbers& hands, std::int16_t index) {
  // Each hand of a class leaves as many hands of another class as its sample hand does.
  const double combos = ComboCount(HandLabel(index));
  PairCounts counts{};
  for (const std::uint8_t other : hands.Dealt(index))
    counts[other] += combos;
  return counts;
}

struct BalanceSearch::State {
  BalanceQuestion Question;
  Game Dealt;
  Learner Hero;
  Learner Opponent;
  Answer Best;
  int Round = 0;
  bool Ended = false;

  State(const HandNumbers& hands, const BalanceQuestion& question)
      : Question(question),
        Dealt(hands, question),
        Best(AnswerOf(Dealt, Hero.Last(kShareDecimals), Opponent.Last(kShareDecimals))),
        Ended(!Dealt.HasDeals()) {}

  // Recomputed after each look, so that rounding errors do not add up.
  void Learn() {
    PerClass shoveGains = Dealt.ShoveGains(Opponent.Plays());
    PerClass callGains = Dealt.CallGains(Hero.Plays());
    for (const int look = Round + kRoundsBetweenLooks; Round < look; ++Round) {
      Hero.Learn(shoveGains, [&](std::size_t hand, double change) { Dealt.ChangeShove(hand, change, callGains); });
      Opponent.Learn(callGains, [&](std::size_t hand, double change) { Dealt.ChangeCall(hand, change, shoveGains); });
      Hero.Count();
      Opponent.Count();
    }
  }

  // If every class is fully played or not at all, the current ranges are exact; otherwise a mean is needed. It covers
  // the second half of all rounds, since the first ones know nothing.
  void Look() {
    const int decimals = Round < kPatience ? kShareDecimals : kFineShareDecimals;
    for (const Answer& answer : {AnswerOf(Dealt, Hero.Last(decimals), Opponent.Last(decimals)),
                                 AnswerOf(Dealt, Hero.Mean(decimals), Opponent.Mean(decimals))}) {
      if (answer.exploitability < Best.exploitability) Best = answer;
    }
    Ended = Best.exploitability <= (Round < kPatience ? kWanted : kGoodEnough) || Round >= kMostRounds;
    if (!std::has_single_bit(static_cast<unsigned>(Round))) return;
    Hero.Forget();
    Opponent.Forget();
  }
};

BalanceSearch::BalanceSearch(const HandNumbers& hands, const BalanceQuestion& question)
    : state_(std::make_unique<State>(hands, question)) {}
BalanceSearch::~BalanceSearch() = default;

bool BalanceSearch::GoOn() {
  if (state_->Ended) return false;
  state_->Learn();
  state_->Look();
  return !state_->Ended;
}

double BalanceSearch::ShareDone() const {
  return static_cast<double>(state_->Round) / kMostRounds;
}

std::optional<Equilibrium> BalanceSearch::Found() const {
  const Game& game = state_->Dealt;
  const Answer& answer = state_->Best;
  const BalanceQuestion& question = state_->Question;
  if (!game.HasDeals() || answer.exploitability > kPromised) return std::nullopt;
  return Equilibrium{Played(question.OwnHands, answer.shove), Played(question.HisHands, answer.call),
                     game.Value(answer.shove, answer.call) * question.Pot, answer.exploitability * question.Pot};
}

std::optional<Equilibrium> FindEquilibrium(const HandNumbers& hands, const BalanceQuestion& question) {
  BalanceSearch search(hands, question);
  while (search.GoOn()) {
  }
  return search.Found();
}

}  // namespace quillon
