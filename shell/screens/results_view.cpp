#include "shell/screens/results_view.h"

#include <QPlainTextEdit>

#include "analysis/analysis_driver.h"
#include "toolkit/colors.h"
#include "toolkit/text.h"

namespace quillon {

void ResultsView::SetCellColor(std::int16_t index, Rgb color) {
  grid_.SetFill(index, color);
}

void ResultsView::SetHandInfoText(std::string_view text) {
  controls_.Get<QPlainTextEdit>("txtHandInfo").setPlainText(ToQt(text));
}

void ResultsView::SetResultsCaption(std::string_view caption) {
  controls_.LabelAt("lblResults").SetText(ToQt(caption));
}

void ResultsView::SetGridTitle(std::string_view caption) {
  controls_.LabelAt("lblGridTitle").SetText(ToQt(caption));
}

void ResultsView::SetLegendVisible(bool visible) {
  controls_.FrameAt("frameLegend").setVisible(visible);
}

std::int16_t ResultsView::NavCount() const {
  return controls_.CountOf("lblNav");
}

void ResultsView::SetNavColor(std::int16_t index, Rgb color) {
  controls_.LabelAt("lblNav", index).SetTextColor(ToColor(color));
}

void ResultsView::SetNavVisible(std::int16_t index, bool visible) {
  controls_.LabelAt("lblNav", index).setVisible(visible);
}

void ResultsView::SetNoResultsVisible(bool visible) {
  controls_.LabelAt("lblNoResults").setVisible(visible);
}

void ResultsView::SetNoResultsCaption(std::string_view caption) {
  ShowNoResultsCaption(controls_, caption);
}

void ShowNoResultsCaption(FormControls& controls, std::string_view caption) {
  Label& label = controls.LabelAt("lblNoResults");
  label.SetText(ToQt(caption));
  label.SetUse(caption == kWaitCaption ? ControlUse::kLink : ControlUse::kPassive);
}

}  // namespace quillon
