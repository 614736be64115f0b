// The analysis against the oracle, digit for digit.

#include <algorithm>
#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/dealt_range.h"
#include "analysis/entered_situation.h"
#include "hand/equity_table.h"
#include "ranges/range_text.h"
#include "support/number_text.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/runs.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

constexpr std::array kWeights = {0.0, 0.5, 1.0};
// "0.3333" and "0.999999" contain the labels of the pairs 33 and 99, which are then found there. No grid shows weights
// below 0 or above 1.
constexpr std::array kOddWeights = {0.0, 0.5, 1.0, 0.25, 0.3333, 0.1, 0.999999, 2.0, -0.5};

// Random ranges, reproducible by seed.
class RangeMaker {
 public:
  explicit RangeMaker(std::uint32_t seed) : random_(seed) {}

  // All 169 classes, a third of them at a weight, as the Range Manager saves them.
  std::string Saved() { return Join(Entries(kWeights)); }

  // As someone might write a file by hand: odd weights, any order, remarks in between, classes left out.
  std::string ByHand() {
    std::vector<std::string> entries = Entries(kOddWeights);
    std::shuffle(entries.begin(), entries.end(), random_);
    entries.resize(entries.size() - Below(60));
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(Below(entries.size())), "(remark) ");
    return Join(entries);
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

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

  // The program's results table, through range files.
  [[nodiscard]] std::string TableOf(const plain::Run& run) const {
    ranges_.Save("Range", run.RangeFile);
    ranges_.Save("Calling Range", run.CallingRangeFile);
    const AnalysisMode mode = kScenarios.at(static_cast<std::size_t>(run.Scenario)).Mode;
    const Situation situation =
        SituationOf(mode, {run.Pot, run.Call, run.Shove, "Range", "Calling Range"}, ranges_.Folder());
    const std::string& calling = situation.CallingRangeText;
    static const HandNumbers hands;
    const RangeNumbers numbers(hands, RangeWeightsOf(situation.RangeText),
                               calling.empty() ? ClassWeights{} : RangeWeightsOf(calling));
    const auto analysis = Analyze(situation);
    EXPECT_EQ(Analyze(situation, numbers), analysis) << "both sources agree";
    return analysis->HandInfo;
  }

 private:
  TemporaryProgram ranges_;
};

void ExpectSameDeal(const std::string& text, std::string_view card1, std::string_view card2) {
  const HandList hands = DealText("", card1, card2, text);
  const std::vector<double> weights = plain::Deal(text, card1, card2);
  ASSERT_EQ(hands.size(), weights.size());
  for (std::size_t i = 0; i < hands.size(); ++i) {
    const plain::Hand& plainHand = plain::Hands()[i];
    ASSERT_EQ(hands[i].Cards, plainHand.Cards) << i;
    ASSERT_EQ(hands[i].Label, plain::Labels()[plainHand.Class]) << i;
    ASSERT_EQ(hands[i].Weight, weights[i]) << plainHand.Cards << " in " << text;
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
       {"Xx", "Ah", "2c", "A", "s", " ", "", "As Kh", "s K", "h ", " 9", "Kh As", "As Kh ", "Ahx"}) {
    ExpectSameDeal(text, dead, "Yy");
    ExpectSameDeal(text, "Yy", dead);
    ExpectSameDeal(text, dead, "Tc");
  }
}

TEST_F(Oracle, WholeRuns) {
  const std::string full = EveryHandAt(1);
  const std::string half = EveryHandAt(0.5);
  const std::string nothing = EveryHandAt(0);
  RangeMaker maker(5);
  const std::vector<std::pair<const char*, plain::Run>> runs = {
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
  for (const auto& [name, run] : runs) {
    const plain::Result result = plain::ResultOf(run);
    EXPECT_TRUE(result.Outcome.GoesThrough()) << name;
    EXPECT_EQ(TableOf(run), result.Table()) << name;
  }
}

}  // namespace
}  // namespace quillon
