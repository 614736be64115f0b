#include "shell/number_boxes.h"

#include "analysis/entered_situation.h"

namespace quillon {

OpponentOdds OddsOfBoxes(const ShoveBoxTexts& boxes) {
  return OpponentOddsTexts(BoxValue(boxes.Pot), BoxValue(boxes.Call), BoxValue(boxes.Shove));
}

OpponentOdds OddsOfRestoredBoxes(const ShoveBoxTexts& boxes) {
  const bool told = HasOpponentOdds(BoxValue(boxes.Pot), BoxValue(boxes.Call), BoxValue(boxes.Shove));
  return told ? OddsOfBoxes(boxes) : OpponentOdds{"N/A", "N/A"};
}

}  // namespace quillon
