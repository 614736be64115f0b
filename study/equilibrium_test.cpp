#include "study/equilibrium.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "analysis/analysis.h"
#include "hand/equity_table.h"
#include "testing/study_hands.h"

namespace quillon {
namespace {

std::size_t Index(std::string_view label) {
  return static_cast<std::size_t>(HandIndex(label));
}

std::string_view Label(std::size_t index) {
  return HandLabel(static_cast<std::int16_t>(index));
}

ClassWeights Only(std::string_view label) {
  ClassWeights weights{};
  weights.at(Index(label)) = 1;
  return weights;
}

// Blinds of 0.5 and 1, and an effective stack in big blinds.
BalanceQuestion HeadsUp(double stack) {
  return {.Pot = 1.5, .Call = 0.5, .Shove = stack - 1};
}

Equilibrium Find(const BalanceQuestion& question) {
  const std::optional<Equilibrium> found = FindEquilibrium(Hands(), question);
  EXPECT_TRUE(found);
  return found.value_or(Equilibrium{});
}

TEST(PairCounts, CountHandsThatShareNoCard) {
  struct Case {
    const char* hero;
    const char* other;
    double count;
  };
  for (const Case& c : {Case{"AA", "KK", 36}, Case{"AA", "AA", 6}, Case{"AKs", "AKs", 12}, Case{"AKs", "AKo", 24},
                        Case{"AKo", "AKs", 24}, Case{"AKo", "AKo", 84}, Case{"AA", "AKs", 12}, Case{"AKo", "QJo", 144}})
    EXPECT_EQ(CountPairs(Hands(), HandIndex(c.hero)).at(Index(c.other)), c.count) << c.hero << " and " << c.other;
  double all = 0;
  for (std::int16_t i = 0; i < kHandClassCount; ++i) {
    const PairCounts counts = CountPairs(Hands(), i);
    all += std::accumulate(counts.begin(), counts.end(), 0.0);
    for (std::int16_t j = 0; j < i; ++j) {
      ASSERT_EQ(counts[static_cast<std::size_t>(j)], CountPairs(Hands(), j)[static_cast<std::size_t>(i)])
          << HandLabel(i) << " and " << HandLabel(j);
    }
  }
  EXPECT_EQ(all, 1326 * 1225);
}

TEST(Equilibrium, AgreesWithWhatIsPublishedOfHeadsUpPlay) {
  for (const double stack : {5.5, 5.7}) {
    const double weight = Find(HeadsUp(stack)).Call.at(Index("Q2o"));
    EXPECT_TRUE(stack == 5.5 ? weight > 0.5 : weight < 0.5) << "Q2o is called at " << stack << " with " << weight;
  }
  for (const double stack : {7.0, 5.2, 2.2})
    EXPECT_GT(Find(HeadsUp(stack)).Shove.at(Index("63s")), 0.5) << "63s is shoved at " << stack;
  for (const double stack : {7.2, 5.0, 4.0, 2.4})
    EXPECT_LT(Find(HeadsUp(stack)).Shove.at(Index("63s")), 0.05) << "63s is not shoved at " << stack;
}

TEST(Equilibrium, OfOneHandEachIsWorkedOutByHand) {
  struct Case {
    const char* rule;
    const char* own;
    const char* his;
    BalanceQuestion question;
    double shove;
    double call;
    double value;
  };
  for (const Case& c : {
           Case{"even hands: he calls, and the hero wins half of pot less call",
                "AA",
                "AA",
                {.Pot = 10, .Call = 4, .Shove = 100},
                1,
                1,
                3},
           Case{"a call that costs more than the pot is not worth it",
                "AA",
                "AA",
                {.Pot = 10, .Call = 14, .Shove = 100},
                0,
                1,
                0},
           Case{"he folds the worse hand", "AA", "KK", {.Pot = 10, .Call = 0, .Shove = 100}, 1, 0, 10},
           Case{"he calls at a price", "AA", "KK", {.Pot = 10, .Call = 0, .Shove = 1}, 1, 1, 12 * 0.819461 - 1},
       }) {
    BalanceQuestion question = c.question;
    question.OwnHands = Only(c.own);
    question.HisHands = Only(c.his);
    const Equilibrium found = Find(question);
    EXPECT_EQ(found.Shove.at(Index(c.own)), c.shove) << c.rule;
    EXPECT_EQ(found.Call.at(Index(c.his)), c.call) << c.rule;
    EXPECT_NEAR(found.Value, c.value, 1e-9) << c.rule;
    EXPECT_LE(found.Exploitability, 1e-6 * question.Pot) << c.rule;
  }
}

TEST(Equilibrium, WithoutAHandThereIsNone) {
  BalanceQuestion question = HeadsUp(10);
  question.OwnHands = ClassWeights{};
  EXPECT_FALSE(FindEquilibrium(Hands(), question));
  question = HeadsUp(10);
  question.HisHands = ClassWeights{};
  EXPECT_FALSE(FindEquilibrium(Hands(), question));
}

// What a player could gain by best responses over the weights found, each class counted by how often it is dealt;
// computed by ordinary analyses.
class OrdinaryAnalysis {
 public:
  OrdinaryAnalysis(const BalanceQuestion& question, const Equilibrium& found) : question_(question), found_(found) {}

  // In "Preflop Raise", against the calling range found.
  [[nodiscard]] double HeroCouldGain() const {
    const Analysis analysis = Finished({.Mode = AnalysisMode::kPreflopRaise,
                                        .Amounts = {question_.Pot, question_.Call, question_.Shove},
                                        .RangeText = SearchableRangeText(question_.HisHands),
                                        .CallingRangeText = SearchableRangeText(found_.Call)});
    return CouldGain(analysis, question_.OwnHands, found_.Shove, question_.HisHands);
  }

  // In "Preflop Call", facing the range found; the pot then includes the hero's call and shove.
  [[nodiscard]] double OpponentCouldGain() const {
    const Analysis analysis =
        Finished({.Mode = AnalysisMode::kPreflopCall,
                  .Amounts = {question_.Pot + question_.Call + question_.Shove, question_.Shove, 0},
                  .RangeText = SearchableRangeText(found_.Shove)});
    return CouldGain(analysis, question_.HisHands, found_.Call, found_.Shove);
  }

 private:
  static Analysis Finished(const Situation& situation) {
    LoadEquityTable();
    return Analyze(situation).value_or(Analysis{});
  }

  // How often the two classes are dealt together, in pairs of concrete hands.
  static double Dealt(std::int16_t index, const ClassWeights& others) {
    const PairCounts counts = CountPairs(Hands(), index);
    return std::inner_product(counts.begin(), counts.end(), others.begin(), 0.0);
  }

  [[nodiscard]] double CouldGain(const Analysis& analysis, const ClassWeights& held, const ClassWeights& played,
                                 const ClassWeights& against) const {
    double gain = 0;
    double dealt = 0;
    for (std::int16_t index = 0; index < kHandClassCount; ++index) {
      const auto i = static_cast<std::size_t>(index);
      const double ev = GetHandResult(analysis.HandInfo, HandLabel(index)).ExpectedValue;
      const double share = held[i] > 0 ? played[i] / held[i] : 0;
      gain += held[i] * Dealt(index, against) * (std::max(ev, 0.0) - share * ev);
      dealt += question_.OwnHands[i] * Dealt(index, question_.HisHands);
    }
    return gain / dealt;
  }

  const BalanceQuestion& question_;
  const Equilibrium& found_;
};

ClassWeights SomeHands(std::mt19937& random) {
  ClassWeights weights{};
  for (double& weight : weights)
    weight = std::vector<double>{0, 0.5, 1, 0.99, static_cast<double>(random() % 1000) / 1000}.at(random() % 5);
  return weights;
}

TEST(Equilibrium, NeitherGainsByChangingAsTheAnalysisSeesIt) {
  std::mt19937 random(7);
  std::vector<BalanceQuestion> questions = {
      HeadsUp(2.4), HeadsUp(10), HeadsUp(20), {.Pot = 150, .Call = 50, .Shove = 400}};
  for (int i = 0; i < 3; ++i) {
    questions.push_back({.Pot = 100,
                         .Call = static_cast<double>(random() % 100),
                         .Shove = static_cast<double>(20 + random() % 2000),
                         .OwnHands = SomeHands(random),
                         .HisHands = SomeHands(random)});
  }
  for (const BalanceQuestion& question : questions) {
    const Equilibrium found = Find(question);
    const OrdinaryAnalysis analysis(question, found);
    const double hero = analysis.HeroCouldGain();
    const double opponent = analysis.OpponentCouldGain();
    EXPECT_LE(found.Exploitability, 1e-6 * question.Pot) << question.Shove;
    EXPECT_NEAR(hero + opponent, found.Exploitability, 1e-9 * question.Pot) << question.Shove;
    EXPECT_LE(std::max(hero, opponent), found.Exploitability + 1e-12 * question.Pot) << question.Shove;
  }
}

TEST(Equilibrium, NobodyPlaysWhatHeCannotHold) {
  std::mt19937 random(8);
  for (int i = 0; i < 20; ++i) {
    const BalanceQuestion question = {.Pot = 10,
                                      .Call = 2,
                                      .Shove = static_cast<double>(1 + random() % 1000),
                                      .OwnHands = SomeHands(random),
                                      .HisHands = SomeHands(random)};
    const Equilibrium found = Find(question);
    EXPECT_LE(found.Exploitability, 1e-6 * question.Pot) << question.Shove;
    for (std::size_t hand = 0; hand < kHandClassCount; ++hand) {
      EXPECT_LE(found.Shove[hand], question.OwnHands[hand]) << Label(hand);
      EXPECT_LE(found.Call[hand], question.HisHands[hand]) << Label(hand);
    }
  }
}

// He calls so seldom that a millionth of his range is worth more than a millionth of the pot. Ranges that miss the
// promise are not an answer.
TEST(Equilibrium, IsFoundWhereASmallShareDecidesUnlessItIsTooSmall) {
  BalanceQuestion question = {.Pot = 1.5, .Call = 0.5, .OwnHands = Only("AA"), .HisHands = Only("KK")};
  question.OwnHands.at(Index("72o")) = 1;
  for (const double shove : {49.0, 99.0, 1000.0}) {
    question.Shove = shove;
    EXPECT_LE(Find(question).Exploitability, 1e-6 * question.Pot) << shove;
  }
  question.Shove = 1300;
  EXPECT_FALSE(FindEquilibrium(Hands(), question));
}

TEST(Equilibrium, IsThatOfHandsHeldAsOftenHoweverSeldom) {
  const Equilibrium usual = Find(HeadsUp(10));
  for (const double weight : {0.25, 1e-160, 1e-300}) {
    BalanceQuestion question = HeadsUp(10);
    question.OwnHands.fill(weight);
    question.HisHands.fill(weight);
    const Equilibrium seldom = Find(question);
    EXPECT_NEAR(seldom.Value, usual.Value, 1e-9) << weight;
    for (std::size_t hand = 0; hand < kHandClassCount; ++hand) {
      EXPECT_NEAR(seldom.Shove[hand] / weight, usual.Shove[hand], 1e-6) << Label(hand);
      EXPECT_NEAR(seldom.Call[hand] / weight, usual.Call[hand], 1e-6) << Label(hand);
    }
  }
}

TEST(Equilibrium, TheUnitOfTheAmountsDoesNotMatter) {
  const Equilibrium usual = Find(HeadsUp(12));
  for (const double unit : {100.0, 1e-300, 1e300}) {
    const Equilibrium found = Find({.Pot = 1.5 * unit, .Call = 0.5 * unit, .Shove = 11 * unit});
    EXPECT_NEAR(found.Value / unit, usual.Value, 1e-6) << unit;
    for (std::size_t hand = 0; hand < kHandClassCount; ++hand)
      EXPECT_NEAR(found.Shove[hand], usual.Shove[hand], 1e-3) << Label(hand) << " in " << unit;
  }
}

TEST(BalanceSearch, FindsTheSameStepByStep) {
  const BalanceQuestion question = HeadsUp(12);
  BalanceSearch search(Hands(), question);
  EXPECT_EQ(search.ShareDone(), 0);
  int steps = 1;
  for (double done = 0; search.GoOn(); ++steps) {
    ASSERT_GT(search.ShareDone(), done);
    done = search.ShareDone();
  }
  EXPECT_GT(steps, 1);
  EXPECT_LE(search.ShareDone(), 1);
  EXPECT_FALSE(search.GoOn()) << "it has ended";
  const Equilibrium found = Find(question);
  ASSERT_TRUE(search.Found());
  EXPECT_EQ(search.Found()->Shove, found.Shove);
  EXPECT_EQ(search.Found()->Call, found.Call);
  EXPECT_EQ(search.Found()->Value, found.Value);
}

TEST(BalanceSearch, EndsAtOnceWhereNothingCanBeDealt) {
  BalanceSearch search(Hands(), {.Pot = 1.5, .Call = 0.5, .Shove = 9, .OwnHands = {}});
  EXPECT_FALSE(search.GoOn());
  EXPECT_FALSE(search.Found());
}

}  // namespace
}  // namespace quillon
