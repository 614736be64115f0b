#include "analysis/range_sources.h"

#include <algorithm>

#include "analysis/dealt_range.h"
#include "analysis/range_equity.h"
#include "hand/equity_table.h"

namespace quillon {
namespace {

// A class, represented by its sample hand.
struct Hero {
  explicit Hero(std::int16_t index) : Label(HandLabel(index)), Cards(HandCards(Label)) {}

  [[nodiscard]] std::string_view Card1() const { return Cards.View().substr(0, 2); }
  [[nodiscard]] std::string_view Card2() const { return Cards.View().substr(3, 2); }

  std::string_view Label;
  FixedText<5> Cards;
};

HandList DealAround(const Hero& hero, const RangeTexts::Range& range) {
  return DealText(range.Name, hero.Card1(), hero.Card2(), range.Text);
}

// An equity of -1 means that the opponent never calls; neither division would have a result then.
ClassFigures CallersFigures(const RangeSums& sums) {
  if (sums.Played() == 0) return {.Equity = -1, .CallShare = 0};
  return {.Equity = sums.Equity(), .CallShare = Divide(sums.Played(), sums.Held())};
}

}  // namespace

ClassFigures RangeTexts::FiguresOf(const Scenario& scenario, std::int16_t index) const {
  const Hero hero(index);
  const HandList held = DealAround(hero, range_);
  if (!scenario.HasCallingRange) return {.Equity = EquityVsRange(hero.Label, held)};

  const HandList called = LimitToRange(held, DealAround(hero, callingRange_));
  RangeSums sums;
  for (std::size_t i = 0; i < held.size(); ++i) {
    const double weight = called[i].Weight;
    sums.Add(held[i].Weight, weight, weight > 0 ? HandEquity(hero.Label, called[i].Label) : 0);
  }
  return CallersFigures(sums);
}

std::string RangeTexts::DroppedHands() const {
  const Hero last(kLastClass);
  return ListDroppedHands(DealAround(last, range_), DealAround(last, callingRange_));
}

HandNumbers::HandNumbers() : dealt_(kHandClassCount), equities_(kHandClassCount) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Hero hero(index);
    auto& dealt = dealt_[static_cast<std::size_t>(index)];
    std::size_t count = 0;
    for (const HandRecord& hand : BuildCombos(hero.Card1(), hero.Card2())) {
      if (hand.Weight != 0) dealt[count++] = static_cast<std::uint8_t>(HandIndex(hand.Label));
    }
    auto& equities = equities_[static_cast<std::size_t>(index)];
    for (std::int16_t other = 0; other < kHandClassCount; ++other)
      equities[static_cast<std::size_t>(other)] = HandEquity(hero.Label, HandLabel(other));
  }
}

RangeNumbers::RangeNumbers(const HandNumbers& hands, const ClassWeights& range, const ClassWeights& callingRange)
    : hands_(&hands), range_(range), callingRange_(callingRange) {
  std::transform(range.begin(), range.end(), callingRange.begin(), limited_.begin(),
                 [](double held, double calling) { return std::min(calling, held); });
}

ClassFigures RangeNumbers::FiguresOf(const Scenario& scenario, std::int16_t index) const {
  const HandNumbers::EquityRow& equities = hands_->Equities(index);
  const ClassWeights& played = scenario.HasCallingRange ? limited_ : range_;
  RangeSums sums;
  for (const std::uint8_t other : hands_->Dealt(index))
    sums.Add(range_[other], played[other], equities[other]);
  if (!scenario.HasCallingRange) return {.Equity = sums.Equity()};
  return CallersFigures(sums);
}

std::string RangeNumbers::DroppedHands() const {
  const Hero last(kLastClass);
  const auto deal = [&](const ClassWeights& weights) {
    HandList hands = BuildCombos(last.Card1(), last.Card2());
    for (HandRecord& hand : hands) {
      if (hand.Weight != 0) hand.Weight = weights[static_cast<std::size_t>(HandIndex(hand.Label))];
    }
    return hands;
  };
  return ListDroppedHands(deal(range_), deal(callingRange_));
}

}  // namespace quillon
