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
  StudySituation situation{.Asked = {.Mode = analysis.Mode}, .Hands = hands};
  StoreAsked(analysis, situation.Asked);
  situation.Range = RangeWeightsOf(situation.Asked.RangeText);
  if (ScenarioOf(analysis.Mode).HasCallingRange)
    situation.CallingRange = RangeWeightsOf(situation.Asked.CallingRangeText);
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
