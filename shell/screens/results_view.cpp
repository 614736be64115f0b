#include "shell/screens/results_view.h"

#include <QPlainTextEdit>

#include "analysis/analysis_driver.h"
#include "shell/navigation.h"
#include "toolkit/colors.h"
#include "toolkit/text.h"

namespace quillon {

void ResultsView::Present(const Analysis& analysis) {
  const CellColors colors = GridColors(analysis);
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    grid_.SetFill(index, colors.at(static_cast<std::size_t>(index)));

  const GridTexts texts = MakeGridTexts(analysis);
  controls_.Get<QPlainTextEdit>("txtHandInfo").setPlainText(ToQt(texts.HandInfo));
  controls_.LabelAt("lblResults").SetText(ToQt(texts.Results));
  controls_.LabelAt("lblGridTitle").SetText(ToQt(texts.Title));
  controls_.FrameAt("frameLegend").setVisible(texts.LegendVisible);
}

void ResultsView::SetResultsShown(bool shown) {
  for (std::int16_t link = kFirstResultsNav; link < controls_.CountOf("lblNav"); ++link) {
    Label& label = controls_.LabelAt("lblNav", link);
    label.SetTextColor(ToColor(RestingLink(link, false).Color));
    label.setVisible(shown);
  }
  controls_.LabelAt("lblNoResults").setVisible(!shown);
  ShowNoResultsCaption(kNoResultsCaption);
}

void ResultsView::ShowNoResultsCaption(std::string_view caption) {
  Label& label = controls_.LabelAt("lblNoResults");
  label.SetText(ToQt(caption));
  label.SetUse(caption == kWaitCaption ? ControlUse::kLink : ControlUse::kPassive);
}

}  // namespace quillon
