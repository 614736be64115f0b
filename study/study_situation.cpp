#include "study/study_situation.h"

#include "analysis/scenarios.h"
#include "support/joined_text.h"
#include "support/number_text.h"

namespace quillon {

double StudySituation::OwnAmount() const {
  const Scenario& scenario = ScenarioOf(Asked.Mode);
  if (!scenario.HasExpectedValue()) return 0;
  return scenario.HasCallingRange ? Asked.ShoveAmount : Asked.CallAmount;
}

StudySituation StudySituationOf(const Analysis& analysis, const HandNumbers& hands) {
  const Scenario& scenario = ScenarioOf(analysis.Mode);
  StudySituation situation{.Asked = {.Mode = analysis.Mode}, .Hands = hands};
  Situation& asked = situation.Asked;
  if (scenario.AmountCount > 0) asked.PotSize = analysis.PotSize;
  if (scenario.AmountCount > 1) asked.CallAmount = analysis.CallAmount;
  if (scenario.AmountCount > 2) asked.ShoveAmount = analysis.ShoveAmount;
  asked.RangeName = analysis.RangeName;
  asked.RangeText = analysis.RangeText;
  situation.Range = RangeWeightsOf(asked.RangeText);
  if (!scenario.HasCallingRange) return situation;
  asked.CallingRangeName = analysis.CallingRangeName;
  asked.CallingRangeText = analysis.CallingRangeText;
  situation.CallingRange = RangeWeightsOf(asked.CallingRangeText);
  return situation;
}

std::string SituationWords(const Situation& situation) {
  const Scenario& scenario = ScenarioOf(situation.Mode);
  std::string words = std::string(scenario.Name) + ": ";
  if (!scenario.HasExpectedValue()) return words + "against " + Quoted(situation.RangeName);
  words += "pot " + NumberText(situation.PotSize) + ", " + NumberText(situation.CallAmount) + " to call";
  if (scenario.HasCallingRange) words += ", he must call " + NumberText(situation.ShoveAmount);
  words += "; he plays " + Quoted(situation.RangeName);
  if (scenario.HasCallingRange) words += " and calls with " + Quoted(situation.CallingRangeName);
  return words;
}

}  // namespace quillon
