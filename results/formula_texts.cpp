#include "results/formula_texts.h"

#include "support/joined_text.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {

std::string RoundedText(double value, int digits) {
  return NumberText(RoundTo(value, digits));
}

std::string ShoveFormulaText(const Analysis& analysis, const HandResult& hand) {
  const std::string fold = RoundedText(hand.FoldShare, 4);
  const std::string pot = RoundedText(analysis.Amounts.PotSize, 2);
  const std::string call = RoundedText(analysis.Amounts.CallAmount, 2);

  const std::string whenFolded = Joined({"(", fold, "*", RoundedText(analysis.Amounts.PotSize, 4), ")"});
  const std::string everything =
      Joined({"(", pot, "+", call, "+2*", RoundedText(analysis.Amounts.ShoveAmount, 0), ")"});
  const std::string invested = Joined({"(", call, "+", RoundedText(analysis.Amounts.ShoveAmount, 2), ")"});
  return Joined({whenFolded, "+(1-", fold, ")*(", RoundedText(hand.Equity, 7), "*", everything, "-", invested, ")"});
}

}  // namespace quillon
