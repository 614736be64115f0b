#include "study/study_situation.h"

#include <array>
#include <string_view>
#include <utility>

#include "analysis/scenarios.h"
#include "support/joined_text.h"
#include "support/number_text.h"

namespace quillon {

double StudySituation::OwnAmount() const {
  const auto amounts = ScenarioOf(Asked.Mode).AskedAmounts();
  return amounts.empty() ? 0 : Asked.Amounts.*amounts.back().Value;
}

StudySituation StudySituationOf(const Analysis& analysis, const HandNumbers& hands) {
  StudySituation situation{.Asked = {.Mode = analysis.Mode}, .Hands = hands};
  StoreAsked(analysis, situation.Asked);
  situation.Range = RangeWeightsOf(situation.Asked.RangeText);
  if (ScenarioOf(analysis.Mode).HasCallingRange)
    situation.CallingRange = RangeWeightsOf(situation.Asked.CallingRangeText);
  return situation;
}

std::string AmountWords(const Situation& situation, std::size_t count) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, kAmounts.size()> kAround = {
      {{"pot ", ""}, {"", " to call"}, {"he must call ", ""}}};
  std::string words;
  for (std::size_t i = 0; i < count; ++i) {
    const auto& [before, after] = kAround.at(i);
    words += Joined({i == 0 ? "" : ", ", before, NumberText(situation.Amounts.*kAmounts.at(i).Value), after});
  }
  return words;
}

std::string RangeWords(const Situation& situation) {
  std::string words = "plays " + Quoted(situation.RangeName);
  if (ScenarioOf(situation.Mode).HasCallingRange) words += " and calls with " + Quoted(situation.CallingRangeName);
  return words;
}

std::string SituationWords(const Situation& situation) {
  const Scenario& scenario = ScenarioOf(situation.Mode);
  if (scenario.AmountCount == 0) return Joined({scenario.Name, ": against ", Quoted(situation.RangeName)});
  return Joined({scenario.Name, ": ", AmountWords(situation, scenario.AmountCount), "; he ", RangeWords(situation)});
}

}  // namespace quillon
