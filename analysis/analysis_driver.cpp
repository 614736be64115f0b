#include "analysis/analysis_driver.h"

#include <string>
#include <utility>

#include "analysis/dealt_range.h"
#include "analysis/expected_value.h"
#include "analysis/input_checks.h"
#include "analysis/range_equity.h"
#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "support/number_text.h"
#include "support/rounding.h"

namespace quillon {
namespace {

constexpr std::string_view kProgressScreen = "Progress";
constexpr std::string_view kShoveMessage = "Please wait while we determine what hands you should go ALL IN with...";
// "determing" is how the program has always put it.
constexpr std::string_view kEquityMessage = "Quillon is determing your equity vs the following range: \r\n";
constexpr std::int16_t kGridNav = 3;
constexpr std::int16_t kLastHandClass = kHandClassCount - 1;

// The class at hand, played as its one sample hand.
struct Hero {
  std::int16_t Index;
  std::string_view Label;
  FixedText<5> Cards;

  [[nodiscard]] std::string_view Card1() const { return Cards.View().substr(0, 2); }
  [[nodiscard]] std::string_view Card2() const { return Cards.View().substr(3, 2); }
};

Hero HeroOf(std::int16_t index) {
  const std::string_view label = HandLabel(index);
  return {index, label, HandCards(label)};
}

// What a run knows of a class. The call share is carried from class to class and written by "Preflop Raise" alone.
struct ClassFigures {
  double Equity = 0;
  double EV = 0;
  double CallShare = 0;
};

// The range names and texts of a scenario, as they are when the run begins.
struct ChosenRanges {
  std::string Name;
  std::string Text;
  std::string CallingName;  // "Preflop Raise" alone
  std::string CallingText;
};

bool PassCheck(AnalysisMode mode, AnalysisWindow& window, const ProgramFolder& folder) {
  if (mode == AnalysisMode::kPreflopCall) return CheckCallInputs(window, folder);
  if (mode == AnalysisMode::kPreflopRaise) return CheckRaiseInputs(window);
  return CheckEquityInputs(window, folder);
}

std::int16_t RangeListOf(AnalysisMode mode) {
  if (mode == AnalysisMode::kPreflopCall) return kCallRangeList;
  if (mode == AnalysisMode::kPreflopRaise) return kRaiseRangeList;
  return kEquityRangeList;
}

ChosenRanges ReadRanges(AnalysisMode mode, const AnalysisWindow& window, const ProgramFolder& folder) {
  ChosenRanges ranges;
  ranges.Name = window.SelectedRange(RangeListOf(mode));
  if (mode == AnalysisMode::kPreflopRaise) ranges.CallingName = window.SelectedRange(kRaiseCallingRangeList);
  ranges.Text = LoadRangeText(folder, ranges.Name);
  if (mode == AnalysisMode::kPreflopRaise) ranges.CallingText = LoadRangeText(folder, ranges.CallingName);
  return ranges;
}

std::string ProgressMessage(AnalysisMode mode, std::string_view rangeName) {
  if (mode != AnalysisMode::kEquityOnly) return std::string(kShoveMessage);
  return std::string(kEquityMessage).append(rangeName);
}

void StoreSituation(AnalysisState& state, ChosenRanges ranges, const AmountBoxes& boxes) {
  state.RangeName = std::move(ranges.Name);
  state.RangeText = std::move(ranges.Text);
  if (state.Mode == AnalysisMode::kPreflopCall) {
    state.PotSize = GetBoxValue(boxes, kCallPotBox);
    state.CallAmount = GetBoxValue(boxes, kCallCallBox);
  }
  if (state.Mode == AnalysisMode::kPreflopRaise) {
    state.PotSize = GetBoxValue(boxes, kRaisePotBox);
    state.CallAmount = GetBoxValue(boxes, kRaiseCallBox);
    state.ShoveAmount = GetBoxValue(boxes, kRaiseShoveBox);
    state.CallingRangeName = std::move(ranges.CallingName);
    state.CallingRangeText = std::move(ranges.CallingText);
  }
}

// The range texts are the state's own: one that is empty is read again from its file, and what is found then stays.
HandList DealOpponent(AnalysisState& state, const Hero& hero, const ProgramFolder& folder) {
  return DealRange(folder, state.RangeName, hero.Card1(), hero.Card2(), state.RangeText);
}

HandList DealCallers(AnalysisState& state, const Hero& hero, const ProgramFolder& folder) {
  return DealRange(folder, state.CallingRangeName, hero.Card1(), hero.Card2(), state.CallingRangeText);
}

ClassFigures CallFigures(ClassFigures figures, const Hero& hero, AnalysisState& state, const AmountBoxes& boxes,
                         const ProgramFolder& folder) {
  figures.Equity = EquityVsRange(hero.Label, DealOpponent(state, hero, folder));
  figures.EV = CallExpectedValue(GetBoxValue(boxes, kCallPotBox), GetBoxValue(boxes, kCallCallBox), figures.Equity);
  return figures;
}

ClassFigures EquityFigures(ClassFigures figures, const Hero& hero, AnalysisState& state, const ProgramFolder& folder) {
  figures.Equity = EquityVsRange(hero.Label, DealOpponent(state, hero, folder));
  figures.EV = 0;
  return figures;
}

// How often the opponent calls, and the equity against the hands he calls with. An equity of -1 marks that he never
// does; neither division would have a result then.
ClassFigures AgainstCallers(ClassFigures figures, const Hero& hero, const HandList& current, const HandList& limited) {
  const double currentWeight = TotalWeight(current);
  const double callingWeight = TotalWeight(limited);
  const bool called = callingWeight != 0;
  figures.Equity = called ? EquityVsRange(hero.Label, limited) : -1;
  figures.CallShare = called ? Divide(callingWeight, currentWeight) : 0;
  return figures;
}

ClassFigures RaiseFigures(ClassFigures figures, const Hero& hero, AnalysisState& state, const AmountBoxes& boxes,
                          const ProgramFolder& folder) {
  const HandList current = DealOpponent(state, hero, folder);
  HandList calling = DealCallers(state, hero, folder);
  if (hero.Index == kLastHandClass) state.DroppedHands = ListDroppedHands(current, calling);
  figures = AgainstCallers(figures, hero, current, LimitToRange(current, std::move(calling)));
  figures.EV = ShoveExpectedValue(GetBoxValue(boxes, kRaisePotBox), GetBoxValue(boxes, kRaiseCallBox),
                                  GetBoxValue(boxes, kRaiseShoveBox), figures.Equity, figures.CallShare);
  return figures;
}

ClassFigures FiguresOf(AnalysisMode mode, ClassFigures previous, const Hero& hero, AnalysisState& state,
                       const AmountBoxes& boxes, const ProgramFolder& folder) {
  if (mode == AnalysisMode::kPreflopCall) return CallFigures(previous, hero, state, boxes, folder);
  if (mode == AnalysisMode::kPreflopRaise) return RaiseFigures(previous, hero, state, boxes, folder);
  return EquityFigures(previous, hero, state, folder);
}

std::string WithFigures(std::string table, std::string_view label, const ClassFigures& figures) {
  table = SetHandInfo(table, label, kExpectedValueColumn, figures.EV, kLastColumn);
  table = SetHandInfo(table, label, kEquityColumn, figures.Equity, kLastColumn);
  return SetHandInfo(table, label, kFoldShareColumn, 1 - figures.CallShare, kLastColumn);
}

void ShowProgress(std::int16_t classesDone, AnalysisWindow& window) {
  window.SetProgressPercent(NumberText(PercentOf(classesDone, kHandClassCount, 0)) + "%");
  const double share = static_cast<double>(classesDone) / kHandClassCount;
  window.SetProgressBarWidth(static_cast<float>(share * kProgressBarWidth));
}

// The results table of all classes, or what there is of it when the run is stopped.
std::string WalkClasses(AnalysisMode mode, AnalysisState& state, AnalysisWindow& window, const ProgramFolder& folder) {
  std::string table;
  ClassFigures figures;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Hero hero = HeroOf(index);
    window.RaiseCell(index);
    figures = FiguresOf(mode, figures, hero, state, window, folder);
    table = WithFigures(std::move(table), hero.Label, figures);
    ShowProgress(static_cast<std::int16_t>(index + 1), window);
    if (!state.Running) break;
    window.Yield();
  }
  return table;
}

void Finish(AnalysisMode mode, AnalysisState& state, std::string table, AnalysisWindow& window) {
  state.Mode = mode;  // a refused click may have changed it
  state.HandInfo = std::move(table);
  state.Running = false;
  window.PresentResults(state);
  window.SetResultsShown(true);
  window.ClickNav(kGridNav);
}

}  // namespace

void RunAnalysis(AnalysisState& state, std::int16_t buttonIndex, AnalysisWindow& window, const ProgramFolder& folder) {
  window.SetResultsShown(false);
  window.SetNoResultsCaption(kWaitCaption);
  const AnalysisMode mode = ModeOfButton(buttonIndex);
  state.Mode = mode;
  if (!PassCheck(mode, window, folder)) return;

  ChosenRanges ranges = ReadRanges(mode, window, folder);
  window.SetProgressMessage(ProgressMessage(mode, ranges.Name));
  StoreSituation(state, std::move(ranges), window);
  window.ShowFrame(kProgressScreen);
  state.Running = true;
  window.SetNoResultsUnderline(true);
  window.HideGridBack();

  std::string table = WalkClasses(mode, state, window, folder);

  window.SetNoResultsUnderline(false);
  window.SetNoResultsCaption(kNoResultsCaption);
  if (!state.Running) {
    window.ShowFrame(ScreenName(state.Mode));
    return;
  }
  Finish(mode, state, std::move(table), window);
}

void StopAnalysis(AnalysisState& state) {
  state.Running = false;
}

void ClickNoResults(std::string_view caption, AnalysisWindow& window) {
  if (caption == kWaitCaption) window.ShowFrame(kProgressScreen);
}

}  // namespace quillon
