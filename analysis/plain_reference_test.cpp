// The analysis against its plain second writing, digit for digit.

#include "analysis/plain_reference.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis_driver.h"
#include "analysis/dealt_range.h"
#include "analysis/range_equity.h"
#include "analysis/range_folder.h"
#include "analysis/recording_window.h"
#include "hand/equity_table.h"
#include "support/number_text.h"

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

class PlainReference : public testing::Test {
 public:
  void SetUp() override { LoadEquityTable(); }

  // The results table of the program, by way of range files.
  [[nodiscard]] std::string TableOf(std::int16_t button, Situation situation, std::string_view range,
                                    std::string_view callingRange) const {
    ranges_.Save("Range", range);
    ranges_.Save("Calling Range", callingRange);
    situation.Range = "Range";
    situation.CallingRange = "Calling Range";
    AnalysisState state;
    RecordedMessages messages;
    QuietWindow window(situation, messages);
    RunAnalysis(state, button, window, ranges_.Folder());
    EXPECT_TRUE(messages.Shown.empty());
    return state.HandInfo;
  }

  RangeFolder ranges_;
};

void ExpectSameDeal(const std::string& text, std::string_view card1, std::string_view card2) {
  std::string rangeText = text;
  const HandList hands = DealRange(ProgramFolder{}, "", card1, card2, rangeText);
  const std::vector<plain::Hand> plainHands = plain::DealRange(text, std::string(card1), std::string(card2));
  ASSERT_EQ(hands.size(), plainHands.size());
  for (std::size_t i = 0; i < hands.size(); ++i) {
    ASSERT_EQ(hands[i].Cards, plainHands[i].Cards) << i;
    ASSERT_EQ(hands[i].Label, plainHands[i].Label) << i;
    ASSERT_EQ(hands[i].Weight, plainHands[i].Weight) << plainHands[i].Cards << " in " << text;
  }
}

TEST_F(PlainReference, EveryEquityOfTheTable) {
  // Every seventh column will do: the plain lookup splits the row anew for each.
  for (const std::string& hand : plain::Labels()) {
    for (std::size_t column = 0; column < plain::Labels().size(); column += 7) {
      const std::string& opponent = plain::Labels()[column];
      ASSERT_EQ(HandEquity(hand, opponent), plain::HandEquity(hand, opponent)) << hand << " against " << opponent;
    }
  }
}

TEST_F(PlainReference, DealsOfAllClasses) {
  RangeMaker maker(1);
  const std::string text = maker.ByHand();
  for (const std::string& label : plain::Labels()) {
    const FixedText<5> cards = HandCards(label);
    ExpectSameDeal(text, cards.View().substr(0, 2), cards.View().substr(3, 2));
  }
}

TEST_F(PlainReference, DealsAroundAnyText) {
  RangeMaker maker(2);
  const std::string text = maker.Saved();
  for (const std::string_view dead :
       {"Xx", "Ah", "2c", "A", "s", " ", "", "As Kh", "s K", "h ", " 9", "Kh As", "As Kh "}) {
    ExpectSameDeal(text, dead, "Yy");
    ExpectSameDeal(text, "Yy", dead);
    ExpectSameDeal(text, dead, "Tc");
  }
}

TEST_F(PlainReference, WeightsOfManyRanges) {
  RangeMaker maker(3);
  for (int i = 0; i < 200; ++i) {
    const std::string text = i % 2 == 0 ? maker.Saved() : maker.ByHand();
    for (const std::string& label : plain::Labels())
      ASSERT_EQ(RangeWeightOf(text, label), plain::RangeWeightOf(text, label)) << label << " in " << text;
  }
}

TEST_F(PlainReference, EquitiesOfManyRanges) {
  RangeMaker maker(4);
  for (int i = 0; i < 30; ++i) {
    std::string text = i % 2 == 0 ? maker.Saved() : maker.ByHand();
    const std::string& label = plain::Labels()[maker.Below(plain::Labels().size())];
    const FixedText<5> cards = HandCards(label);
    const HandList hands = DealRange(ProgramFolder{}, "", cards.View().substr(0, 2), cards.View().substr(3, 2), text);
    const double equity =
        plain::EquityVsRange(label, plain::DealRange(text, cards.String().substr(0, 2), cards.String().substr(3, 2)));
    ASSERT_EQ(EquityVsRange(label, hands), equity) << label << " against " << text;
  }
}

TEST_F(PlainReference, PreflopCallAgainstTheFullRange) {
  const std::string full = EveryHandAt(1);
  EXPECT_EQ(TableOf(0, {"150", "50", "", "", ""}, full, full), plain::PreflopCallTable(150, 50, full));
}

TEST_F(PlainReference, PreflopCallAgainstARangeWrittenByHand) {
  const std::string range = RangeMaker(5).ByHand();
  EXPECT_EQ(TableOf(0, {"$737.35", "178.1", "", "", ""}, range, ""), plain::PreflopCallTable(737.35, 178.1, range));
}

TEST_F(PlainReference, PreflopRaiseAgainstFullRanges) {
  const std::string full = EveryHandAt(1);
  EXPECT_EQ(TableOf(1, {"15", "5", "100", "", ""}, full, full), plain::PreflopRaiseTable(15, 5, 100, full, full));
}

TEST_F(PlainReference, PreflopRaiseWithCallersThatAreNoSubset) {
  RangeMaker maker(6);
  const std::string range = maker.Saved();
  const std::string calling = maker.Saved();
  EXPECT_EQ(TableOf(1, {"12.3", "", "987.65", "", ""}, range, calling),
            plain::PreflopRaiseTable(12.3, 0, 987.65, range, calling));
}

TEST_F(PlainReference, PreflopRaiseWithRangesWrittenByHand) {
  RangeMaker maker(7);
  const std::string range = maker.ByHand();
  const std::string calling = maker.ByHand();
  EXPECT_EQ(TableOf(1, {"0.1", "0.2", "0.3", "", ""}, range, calling),
            plain::PreflopRaiseTable(0.1, 0.2, 0.3, range, calling));
}

TEST_F(PlainReference, PreflopRaiseWithoutCallers) {
  const std::string half = EveryHandAt(0.5);
  const std::string nothing = EveryHandAt(0);
  EXPECT_EQ(TableOf(1, {"15", "5", "100", "", ""}, half, nothing), plain::PreflopRaiseTable(15, 5, 100, half, nothing));
  EXPECT_EQ(TableOf(1, {"15", "5", "100", "", ""}, nothing, half), plain::PreflopRaiseTable(15, 5, 100, nothing, half));
}

TEST_F(PlainReference, EquityOnlyAgainstTheHalfRange) {
  const std::string half = EveryHandAt(0.5);
  EXPECT_EQ(TableOf(2, {}, half, ""), plain::EquityOnlyTable(half));
}

TEST_F(PlainReference, EquityOnlyAgainstARandomRange) {
  const std::string range = RangeMaker(8).Saved();
  EXPECT_EQ(TableOf(2, {}, range, ""), plain::EquityOnlyTable(range));
}

TEST_F(PlainReference, NumbersAsText) {
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
TEST_F(PlainReference, ARangeWrittenReadAndDealtWeighsWhatItsClassesDo) {
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
