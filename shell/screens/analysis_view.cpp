#include "shell/screens/analysis_view.h"

#include <QCoreApplication>

#include "analysis/analysis_driver.h"
#include "toolkit/accessible_control.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"

namespace quillon {

std::string AnalysisView::BoxText(std::int16_t index) const {
  return parts_.Amounts.Text(index);
}

std::string AnalysisView::SelectedRange(std::int16_t index) const {
  return parts_.Choosers.List(index).CurrentText();
}

void AnalysisView::Stop(AnalysisState& state) {
  isStopping_ = state.Running;
  stop_ = AnsweredAct();
  StopAnalysis(state);
}

void AnalysisView::ShowFrame(std::string_view name) {
  const Answering answering(std::exchange(isStopping_, false) ? stop_ : AnsweredAct());
  parts_.Screens.ShowFrame(name);
}

void AnalysisView::SetResultsShown(bool shown) {
  parts_.Results.SetResultsShown(shown);
}

void AnalysisView::SetNoResultsCaption(std::string_view caption) {
  parts_.Results.ShowNoResultsCaption(caption);
}

void AnalysisView::SetNoResultsUnderline(bool underline) {
  parts_.Controls.LabelAt("lblNoResults").SetUnderline(underline);
}

void AnalysisView::SetProgressMessage(std::string_view caption) {
  parts_.Controls.LabelAt("lblProgressMsg").SetText(ToQt(caption));
}

void AnalysisView::SetProgressPercent(std::string_view caption) {
  parts_.Controls.LabelAt("lblProgressPerc").SetText(ToQt(caption));
}

void AnalysisView::SetProgressBarWidth(float twips) {
  Shape& bar = parts_.Controls.ShapeAt("picProgBar");
  TwipRect place = PlaceOf(bar);
  place.Width = twips;
  SetPlace(bar, place);
}

void AnalysisView::RaiseCell(std::int16_t index) {
  parts_.Grid.Raise(index);
}

void AnalysisView::HideGridBack() {
  parts_.Controls.PictureAt("imgGridBack").hide();
}

void AnalysisView::Yield() {
  QCoreApplication::processEvents();
}

void AnalysisView::PresentResults(const Analysis& analysis) {
  parts_.Results.Present(analysis);
}

void AnalysisView::ShowGrid(const Analysis& analysis) {
  parts_.ClickNav(kGridNav);
  Label& results = parts_.Controls.LabelAt("lblResults");
  Announce(results, results.Text());
  parts_.Finished(analysis);
}

}  // namespace quillon
