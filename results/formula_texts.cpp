#include "results/formula_texts.h"

#include "support/joined_text.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {

std::string RoundedText(double value, int digits) {
  return NumberText(RoundTo(value, digits));
}

std::string ShoveFormulaText(const AnalysisState& state, double foldShare, double equity) {
  const std::string fold = RoundedText(foldShare, 4);
  const std::string pot = RoundedText(state.PotSize, 2);
  const std::string call = RoundedText(state.CallAmount, 2);

  const std::string whenFolded = Joined({"(", fold, "*", RoundedText(state.PotSize, 4), ")"});
  const std::string everything = Joined({"(", pot, "+", call, "+2*", RoundedText(state.ShoveAmount, 0), ")"});
  const std::string invested = Joined({"(", call, "+", RoundedText(state.ShoveAmount, 2), ")"});
  return Joined({whenFolded, "+(1-", fold, ")*(", RoundedText(equity, 7), "*", everything, "-", invested, ")"});
}

}  // namespace quillon
