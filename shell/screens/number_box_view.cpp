#include "shell/screens/number_box_view.h"

#include <QLineEdit>

#include "results/results_grid.h"
#include "toolkit/text.h"

namespace quillon {

std::string NumberBoxView::BoxText(std::int16_t index) const {
  return NumberBoxText(controls_, index);
}

void NumberBoxView::SetBoxText(std::int16_t index, std::string_view text) {
  SetNumberBoxText(controls_, index, text);
}

void NumberBoxView::MoveCaretToEnd(std::int16_t index) {
  controls_.Get<QLineEdit>("txtNumber", index).end(false);
}

void NumberBoxView::SetBoxBorderWidth(std::int16_t index, int width) {
  controls_.ShapeAt("ShapeBorder", index).SetLineWidth(width);
}

void NumberBoxView::SetResultsShown(bool shown) {
  quillon::SetResultsShown(results_, shown);
}

void NumberBoxView::ShowOpponentOdds(const OpponentOdds& texts) {
  controls_.LabelAt("lblHisOdds").SetText(ToQt(texts.HisOdds));
  controls_.LabelAt("lblHisBEP").SetText(ToQt(texts.HisBreakEven));
}

std::string NumberBoxText(const FormControls& controls, std::int16_t index) {
  return FromQt(controls.Get<QLineEdit>("txtNumber", index).text());
}

void SetNumberBoxText(FormControls& controls, std::int16_t index, std::string_view text) {
  controls.Get<QLineEdit>("txtNumber", index).setText(ToQt(text));
}

}  // namespace quillon
