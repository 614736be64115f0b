#include "analysis/expected_value.h"

#include <cmath>

#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

double OpponentOddsOf(double pot, double call, double shove) {
  return Divide(pot + call + shove, shove);
}

}  // namespace

double CallExpectedValue(double pot, double call, double equity) {
  return (call + pot) * equity - call;
}

double ShoveExpectedValue(double pot, double call, double shove, double equity, double callShare) {
  const double afterCall = (pot + call) + (shove + shove);
  const double invested = call + shove;
  return (equity * afterCall - invested) * callShare + (1 - callShare) * pot;
}

double PotOdds(double potSize, double callAmount) {
  return Divide(potSize, callAmount);
}

double BreakEvenEquity(double odds) {
  return Divide(1, odds + 1);
}

OpponentOdds OpponentOddsTexts(double pot, double call, double shove) {
  if (shove == 0) return {"N/A", "N/A"};
  const double hisOdds = OpponentOddsOf(pot, call, shove);
  const double hisBreakEven = BreakEvenEquity(hisOdds);
  return {NumberText(RoundTo(hisOdds, 2)) + " : 1", NumberText(RoundTo(hisBreakEven * 100, 2)) + "%"};
}

bool HasOpponentOdds(double pot, double call, double shove) {
  if (shove == 0) return true;
  const double hisOdds = OpponentOddsOf(pot, call, shove);
  return std::isfinite(hisOdds) && hisOdds != -1;
}

}  // namespace quillon
