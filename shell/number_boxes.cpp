#include "shell/number_boxes.h"

#include "shell/expressions.h"

namespace quillon {

void ChangeNumberBox(std::int16_t index, NumberBoxWindow& window) {
  window.SetResultsShown(false);
  if (index != kRaiseShoveBox) return;
  window.ShowOpponentOdds(OpponentOddsTexts(BoxValue(window.BoxText(kRaisePotBox)),
                                            BoxValue(window.BoxText(kRaiseCallBox)),
                                            BoxValue(window.BoxText(kRaiseShoveBox))));
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
