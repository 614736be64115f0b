#include "analysis/analysis_driver.h"

#include <optional>
#include <string>
#include <utility>

#include "analysis/input_checks.h"
#include "hand/hand_classes.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

std::string BoxTextIn(std::int16_t box, const AnalysisWindow& window) {
  return box == kNoControl ? std::string() : window.BoxText(box);
}

std::string RangeIn(std::int16_t list, const AnalysisWindow& window) {
  return list == kNoControl ? std::string() : window.SelectedRange(list);
}

void ShowComplaint(const Complaint& complaint, AnalysisWindow& window) {
  window.Messages().Show({std::string(complaint.Title), std::string(complaint.Text), MessageIcon::kExclamation});
}

std::string ProgressMessage(const InputScreen& screen, std::string_view rangeName) {
  return std::string(screen.ProgressMessage).append(screen.MessageNamesRange ? rangeName : "");
}

// A range without a file is read again when it is dealt.
void ReadMissingRanges(Situation& situation, const ProgramFolder& folder) {
  if (situation.RangeText.empty()) situation.RangeText = LoadRangeText(folder, situation.RangeName);
  if (!situation.CallingRangeText.empty() || !ScenarioOf(situation.Mode).HasCallingRange) return;
  situation.CallingRangeText = LoadRangeText(folder, situation.CallingRangeName);
}

void ShowProgress(std::int16_t classesDone, AnalysisWindow& window) {
  window.SetProgressPercent(NumberText(PercentOf(classesDone, kHandClassCount, 0)) + "%");
  const double share = static_cast<double>(classesDone) / kHandClassCount;
  window.SetProgressBarWidth(static_cast<float>(share * kProgressBarWidth));
}

// The window as the listener of a run. A stop takes effect after the current class.
AnalysisListener ListenerOf(AnalysisState& state, const InputScreen& screen, AnalysisWindow& window) {
  const int run = state.RunsBegun;
  return {.Begins = [&window](std::int16_t index) { window.RaiseCell(index); },
          .AmountsNow = [&] { return AmountsOf(EnteredOn(screen, window)); },
          .GoesOn =
              [&state, &window, run](std::int16_t index, const Analysis& soFar) {
                const bool dropped = index == kLastClass && ScenarioOf(soFar.Mode).HasCallingRange;
                if (dropped && run == state.RunsBegun) state.DroppedHands = soFar.DroppedHands;
                ShowProgress(static_cast<std::int16_t>(index + 1), window);
                if (!state.Running) return false;
                window.Yield();
                return true;
              }};
}

void Finish(AnalysisState& state, const Analysis& analysis, AnalysisWindow& window) {
  state.Mode = analysis.Mode;  // a refused click may have changed it
  state.HandInfo = analysis.HandInfo;
  state.Running = false;
  window.PresentResults(state);
  window.SetResultsShown(true);
  window.ShowGrid(state);
}

}  // namespace

EnteredSituation EnteredOn(const InputScreen& screen, const AnalysisWindow& window) {
  return {.Pot = BoxTextIn(screen.AmountBoxes[0], window),
          .Call = BoxTextIn(screen.AmountBoxes[1], window),
          .Shove = BoxTextIn(screen.AmountBoxes[2], window),
          .Range = RangeIn(screen.RangeLists[0], window),
          .CallingRange = RangeIn(screen.RangeLists[1], window),
          .Marks = window.Marks()};
}

void RunAnalysis(AnalysisState& state, std::int16_t buttonIndex, AnalysisWindow& window, const ProgramFolder& folder) {
  const InputScreen& screen = ScreenOfButton(buttonIndex);
  window.SetResultsShown(false);
  window.SetNoResultsCaption(kWaitCaption);
  state.Mode = screen.Mode;
  const auto complaint = CheckInputs(screen.Mode, EnteredOn(screen, window), folder);
  if (complaint) return ShowComplaint(*complaint, window);

  Situation situation = SituationOf(screen.Mode, EnteredOn(screen, window), folder);
  window.SetProgressMessage(ProgressMessage(screen, situation.RangeName));
  StoreAsked(situation, state);  // the rest keeps its value from an earlier run
  window.ShowFrame(kProgressScreen);
  state.Running = true;
  ++state.RunsBegun;
  window.SetNoResultsUnderline(true);
  window.HideGridBack();

  ReadMissingRanges(situation, folder);
  StoreAsked(situation, state);
  const std::optional<Analysis> analysis = Analyze(std::move(situation), ListenerOf(state, screen, window));

  window.SetNoResultsUnderline(false);
  window.SetNoResultsCaption(kNoResultsCaption);
  if (state.Running) return Finish(state, *analysis, window);
  window.ShowFrame(ScenarioOf(state.Mode).Name);
}

void StopAnalysis(AnalysisState& state) {
  state.Running = false;
}

void ClickNoResults(std::string_view caption, AnalysisWindow& window) {
  if (caption == kWaitCaption) window.ShowFrame(kProgressScreen);
}

}  // namespace quillon
