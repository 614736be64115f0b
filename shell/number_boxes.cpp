#include "shell/number_boxes.h"

#include "shell/expressions.h"

namespace quillon {
namespace {

struct Amounts {
  double Pot;
  double Call;
  double Shove;
};

Amounts ShoveAmounts(const NumberBoxWindow& window) {
  return {BoxValue(window.BoxText(kRaisePotBox)), BoxValue(window.BoxText(kRaiseCallBox)),
          BoxValue(window.BoxText(kRaiseShoveBox))};
}

OpponentOdds OddsOf(const Amounts& amounts) {
  return OpponentOddsTexts(amounts.Pot, amounts.Call, amounts.Shove);
}

}  // namespace

void ChangeNumberBox(std::int16_t index, NumberBoxWindow& window) {
  window.SetResultsShown(false);
  if (index == kRaiseShoveBox) window.ShowOpponentOdds(OddsOf(ShoveAmounts(window)));
}

void RestoredNumberBox(std::int16_t index, NumberBoxWindow& window) {
  window.SetResultsShown(false);
  if (index != kRaiseShoveBox) return;
  const Amounts amounts = ShoveAmounts(window);
  const bool told = HasOpponentOdds(amounts.Pot, amounts.Call, amounts.Shove);
  window.ShowOpponentOdds(told ? OddsOf(amounts) : OpponentOdds{"N/A", "N/A"});
}

void EvalNumberBox(std::int16_t index, NumberBoxWindow& window) {
  const std::string before = window.BoxText(index);
  const std::string after = EvalTextBox(before, window.Messages());
  // A text that stays is not set: that would count as a change and take the results away from whoever only looks in.
  if (after != before) window.SetBoxText(index, after);
}

void EnterNumberBox(std::int16_t index, NumberBoxWindow& window) {
  window.SetBoxBorderWidth(index, kFocusedBorderWidth);
}

void LeaveNumberBox(std::int16_t index, NumberBoxWindow& window) {
  window.SetBoxBorderWidth(index, kRestingBorderWidth);
  EvalNumberBox(index, window);
}

void PressKeyInNumberBox(std::int16_t index, int keyCode, NumberBoxWindow& window) {
  if (keyCode != kEnterKey) return;
  EvalNumberBox(index, window);
  window.MoveCaretToEnd(index);
}

}  // namespace quillon
