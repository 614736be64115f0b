#include "shell/screens/results_view.h"

#include <QPlainTextEdit>
#include <QStringList>

#include "analysis/analysis_driver.h"
#include "results/hover_panel.h"
#include "shell/navigation.h"
#include "toolkit/colors.h"
#include "toolkit/text.h"

namespace quillon {

namespace {

// The hover panel in words, including its titles.
QString SpokenFigures(const HoverTexts& texts, const MainControls& controls) {
  QStringList said;
  const auto say = [&said](const QString& title, const std::string& figure) {
    said << title + QLatin1Char(' ') + ToQt(figure);
  };
  say(ToQt(texts.EquityTitle), texts.Equity);
  if (texts.Value) say(controls.LabelAt("lblHovDesc_EV").Text(), *texts.Value);
  if (texts.Return) say(controls.LabelAt("lblHovDesc_ROI").Text(), *texts.Return);
  if (texts.FoldShare) say(controls.LabelAt("lblHovDesc_FoldPerc").Text(), *texts.FoldShare);
  said << ToQt(texts.Advice);
  return said.join(QStringLiteral(", "));
}

}  // namespace

void ResultsView::Present(const Analysis& analysis) {
  const CellColors colors = GridColors(analysis);
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    grid_.SetFill(index, colors.at(static_cast<std::size_t>(index)));
    if (const auto texts = MakeHoverTexts(index, analysis)) grid_.Describe(index, SpokenFigures(*texts, controls_));
  }

  const GridTexts texts = MakeGridTexts(analysis);
  controls_.Get<QPlainTextEdit>("txtHandInfo").setPlainText(ToQt(texts.HandInfo));
  controls_.LabelAt("lblResults").SetText(ToQt(texts.Results));
  controls_.LabelAt("lblGridTitle").SetText(ToQt(texts.Title));
  controls_.FrameAt("frameLegend").setVisible(texts.LegendVisible);
}

void ResultsView::SetResultsShown(bool shown) {
  for (std::int16_t link = kGridNav; link < controls_.CountOf("lblNav"); ++link) {
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
