// The analysis against the oracle, digit for digit.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/dealt_range.h"
#include "analysis/entered_situation.h"
#include "analysis/range_equity.h"
#include "hand/equity_table.h"
#include "ranges/range_text.h"
#include "support/number_text.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/ranges.h"
#include "testing/oracle/runs.h"
#include "testing/range_texts.h"
#include "testing/recording_window.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

constexpr std::array kWeights = {0.0, 0.5, 1.0};
// "0.3333" and "0.999999" spell the pairs 33 and 99, which are then found there.
constexpr std::array kOddWeights = {0.0, 0.5, 1.0, 0.25, 0.3333, 0.1, 0.999999, 2.0};

// Ranges that are always the same for the same seed.
class RangeMaker {
 public:
  explicit RangeMaker(std::uint32_t seed) : random_(seed) {}

  // One weight in three of all 169, as the Range Manager saves them.
  std::string Saved() { return Join(Entries(kWeights)); }

  // As someone might write a file by hand: odd weights, any order, remarks between, classes left out.
  std::string ByHand() {
    std::vector<std::string> entries = Entries(kOddWeights);
    std::shuffle(entries.begin(), entries.end(), random_);
    entries.resize(entries.size() - Below(60));
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(Below(entries.size())), "(remark) ");
    return Join(entries);
  }

  std::size_t Below(std::size_t limit) { return random_() % limit; }

 private:
  template <std::size_t Count>
  std::vector<std::string> Entries(const std::array<double, Count>& weights) {
    std::vector<std::string> entries;
    for (const std::string& label : plain::Labels())
      entries.push_back(label + " (" + NumberText(weights.at(Below(Count))) + "), ");
    return entries;
  }

  static std::string Join(const std::vector<std::string>& entries) {
    std::string text;
    for (const std::string& entry : entries)
      text += entry;
    return text;
  }

  std::mt19937 random_;
};

class Oracle : public testing::Test {
 public:
  void SetUp() override { LoadEquityTable(); }

  // The results table of the program, by way of range files.
  [[nodiscard]] std::string TableOf(const plain::Run& run) const {
    const Situation situation = SituationFor(run);
    const auto analysis = Analyze(situation);
    EXPECT_EQ(Analyze(situation, NumbersOf(situation)), analysis) << "both sources agree";
    return analysis->HandInfo;
  }

 private:
  [[nodiscard]] Situation SituationFor(const plain::Run& run) const {
    ranges_.Save("Range", run.RangeFile);
    ranges_.Save("Calling Range", run.CallingRangeFile);
    const AnalysisMode mode = kScenarios.at(static_cast<std::size_t>(run.Scenario)).Mode;
    return SituationOf(mode, {run.Pot, run.Call, run.Shove, "Range", "Calling Range"}, ranges_.Folder());
  }

  static RangeNumbers NumbersOf(const Situation& situation) {
    static const HandNumbers hands;
    const std::string& calling = situation.CallingRangeText;
    return {hands, RangeWeightsOf(situation.RangeText), calling.empty() ? ClassWeights{} : RangeWeightsOf(calling)};
  }

 protected:
  TemporaryProgram ranges_;
};

void ExpectSameDeal(const std::string& text, std::string_view card1, std::string_view card2) {
  std::string rangeText = text;
  const HandList hands = DealRange(ProgramFolder{}, "", card1, card2, rangeText);
  const std::vector<double> weights = plain::Deal(text, card1, card2);
  ASSERT_EQ(hands.size(), weights.size());
  for (std::size_t i = 0; i < hands.size(); ++i) {
    const plain::Hand& plainHand = plain::Hands()[i];
    ASSERT_EQ(hands[i].Cards, plainHand.Cards) << i;
    ASSERT_EQ(hands[i].Label, plain::Labels()[plainHand.Class]) << i;
    ASSERT_EQ(hands[i].Weight, weights[i]) << plainHand.Cards << " in " << text;
  }
}

TEST_F(Oracle, EveryEquityOfTheTable) {
  // Every seventh column will do: the plain lookup splits the row anew for each.
  for (const std::string& hand : plain::Labels()) {
    for (std::size_t column = 0; column < plain::Labels().size(); column += 7) {
      const std::string& opponent = plain::Labels()[column];
      ASSERT_EQ(HandEquity(hand, opponent), plain::HandEquity(hand, opponent)) << hand << " against " << opponent;
    }
  }
}

TEST_F(Oracle, DealsOfAllClasses) {
  RangeMaker maker(1);
  const std::string text = maker.ByHand();
  for (const std::string& label : plain::Labels()) {
    const FixedText<5> cards = HandCards(label);
    ExpectSameDeal(text, cards.View().substr(0, 2), cards.View().substr(3, 2));
  }
}

TEST_F(Oracle, DealsAroundAnyText) {
  RangeMaker maker(2);
  const std::string text = maker.Saved();
  for (const std::string_view dead :
       {"Xx", "Ah", "2c", "A", "s", " ", "", "As Kh", "s K", "h ", " 9", "Kh As", "As Kh "}) {
    ExpectSameDeal(text, dead, "Yy");
    ExpectSameDeal(text, "Yy", dead);
    ExpectSameDeal(text, dead, "Tc");
  }
}

TEST_F(Oracle, WeightsOfManyRanges) {
  RangeMaker maker(3);
  for (int i = 0; i < 200; ++i) {
    const std::string text = i % 2 == 0 ? maker.Saved() : maker.ByHand();
    for (const std::string& label : plain::Labels())
      ASSERT_EQ(RangeWeightOf(text, label), plain::WeightOf(text, label)) << label << " in " << text;
  }
}

TEST_F(Oracle, EquitiesOfManyRanges) {
  RangeMaker maker(4);
  for (int i = 0; i < 30; ++i) {
    std::string text = i % 2 == 0 ? maker.Saved() : maker.ByHand();
    const plain::Result result = plain::ResultOf({.Scenario = plain::Mode::kEquity, .RangeFile = text});
    const std::size_t index = maker.Below(plain::Labels().size());
    const std::string& label = plain::Labels()[index];
    const FixedText<5> cards = HandCards(label);
    const HandList hands = DealRange(ProgramFolder{}, "", cards.View().substr(0, 2), cards.View().substr(3, 2), text);
    ASSERT_EQ(NumberText(EquityVsRange(label, hands)), NumberText(result.Equities.at(index)))
        << label << " against " << text;
  }
}

struct RunCase {
  const char* Name;
  plain::Run Run;
};

std::vector<RunCase> RunCases() {
  const std::string full = EveryHandAt(1);
  const std::string half = EveryHandAt(0.5);
  const std::string nothing = EveryHandAt(0);
  RangeMaker maker(5);
  return {
      {"PreflopCallAgainstTheFullRange", {plain::Mode::kCall, "150", "50", "", full, ""}},
      {"PreflopCallAgainstARangeWrittenByHand", {plain::Mode::kCall, "$737.35", "178.1", "", maker.ByHand(), ""}},
      {"PreflopRaiseAgainstFullRanges", {plain::Mode::kRaise, "15", "5", "100", full, full}},
      {"PreflopRaiseWithCallersThatAreNotASubset",
       {plain::Mode::kRaise, "12.3", "", "987.65", maker.Saved(), maker.Saved()}},
      {"PreflopRaiseWithRangesWrittenByHand",
       {plain::Mode::kRaise, "0.1", "0.2", "0.3", maker.ByHand(), maker.ByHand()}},
      {"PreflopRaiseWithoutCallers", {plain::Mode::kRaise, "15", "5", "100", half, nothing}},
      {"PreflopRaiseAgainstNoHands", {plain::Mode::kRaise, "15", "5", "100", nothing, half}},
      {"EquityOnlyAgainstTheHalfRange", {plain::Mode::kEquity, "", "", "", half, ""}},
      {"EquityOnlyAgainstARandomRange", {plain::Mode::kEquity, "", "", "", maker.Saved(), ""}},
  };
}

TEST_F(Oracle, WholeRuns) {
  for (const auto& [name, run] : RunCases()) {
    const plain::Result result = plain::ResultOf(run);
    EXPECT_TRUE(result.Outcome.GoesThrough()) << name;
    EXPECT_EQ(TableOf(run), result.Table()) << name;
  }
}

TEST_F(Oracle, NumbersAsText) {
  std::mt19937_64 random(9);
  for (int i = 0; i < 20000; ++i) {
    double value = 0;
    const std::uint64_t bits = random();
    std::memcpy(&value, &bits, sizeof value);
    if (value - value != 0) continue;  // not finite
    ASSERT_EQ(NumberText(value), plain::NumberText(value));
    const double fraction = static_cast<double>(bits % 1000003) / 1000003 * (i % 3 == 0 ? 1 : 737.35);
    ASSERT_EQ(NumberText(fraction), plain::NumberText(fraction));
  }
}

// From a weight for each class to the weight of the dealt range, by way of the text and the file: what comes out must
// be what the numbers of hands a class has say, without any list.
TEST_F(Oracle, ARangeWrittenReadAndDealtWeighsWhatItsClassesDo) {
  RangeMaker maker(10);
  for (int round = 0; round < 50; ++round) {
    std::array<double, kHandClassCount> weights{};
    double expected = 0;
    for (std::int16_t index = 0; index < kHandClassCount; ++index) {
      double& weight = weights.at(static_cast<std::size_t>(index));
      weight = kWeights.at(maker.Below(kWeights.size()));
      expected += weight * ComboCount(HandLabel(index));
    }
    ranges_.Save("Range", RangeTextOf(weights));
    std::string text;
    EXPECT_EQ(TotalWeight(DealRange(ranges_.Folder(), "Range", "Xx", "Yy", text)), expected);
    EXPECT_EQ(text, RangeTextOf(weights));

    // An ace is in three of six AA, one of four AXs and three of twelve AXo.
    double blocked = weights[0] * 3;
    for (std::size_t column = 1; column < kRankCount; ++column)
      blocked += weights.at(column) * 1 + weights.at(column * kRankCount) * 3;
    EXPECT_EQ(TotalWeight(DealRange(ranges_.Folder(), "Range", "As", "Yy", text)), expected - blocked);
  }
}

}  // namespace
}  // namespace quillon
