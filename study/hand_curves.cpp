#include "study/hand_curves.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "analysis/scenarios.h"
#include "study/balance_texts.h"
#include "study/limits.h"
#include "study/sweep_figure.h"
#include "support/joined_text.h"
#include "support/number_text.h"

namespace quillon {
namespace {

constexpr std::string_view kValuesTitle = "Expected value, in chips";
constexpr std::string_view kNow = "now";

bool IsBelowPot(const StudySituation& situation) {
  return RowOf(kMoves, situation.Asked.Mode).StaysBelowPot;
}

// Whether the width is that of his calling range, which may be empty.
bool MayFold(const StudySituation& situation) {
  return ScenarioOf(situation.Asked.Mode).HasCallingRange;
}

const AmountKind& OwnAmountKind(const Situation& asked) {
  return ScenarioOf(asked.Mode).AskedAmounts().back();
}

SweepQuestion QuestionOf(const StudySituation& situation, std::span<const std::int16_t> hands) {
  return {situation.Asked.Mode, situation.Asked.Amounts, {hands.begin(), hands.end()}};
}

std::vector<std::string> LabelsOf(std::span<const std::int16_t> hands) {
  std::vector<std::string> labels;
  for (const std::int16_t hand : hands)
    labels.emplace_back(HandLabel(hand));
  return labels;
}

Limit LimitOf(const StudySituation& situation, const RangeNumbers& ranges, std::int16_t hand) {
  const Situation& asked = situation.Asked;
  const ClassFigures figures = ranges.FiguresOf(ScenarioOf(asked.Mode), hand);
  return RowOf(kMoves, asked.Mode).LimitOf(asked.Amounts, figures);
}

std::string NoteOf(const Limit& limit) {
  const std::string kind(LimitKindName(limit.Kind));
  return HasAmount(limit) ? kind + " " + ShortAmount(limit) : kind;
}

// 1, 2 and 5 times powers of ten, each as the nearest double.
double RoundStep(int power, int leading) {
  const double scale = std::pow(10.0, std::abs(power));
  return power < 0 ? leading / scale : leading * scale;
}

bool IsMultiple(double amount, double step) {
  constexpr double kNear = 1e-9;
  const double count = amount / step;
  return std::abs(count - std::round(count)) < kNear * std::max(1.0, count);
}

// The widest round step with a hundred to a thousand steps up to `reach` that hits `amount`, or else the widest.
double StepFor(double reach, double amount) {
  constexpr double kLeastCount = 100;
  constexpr double kMostCount = 1000;
  std::optional<double> widest;
  for (int power = static_cast<int>(std::floor(std::log10(reach / kLeastCount))); true; --power) {
    for (const int leading : {5, 2, 1}) {
      const double step = RoundStep(power, leading);
      if (reach / step < kLeastCount) continue;
      if (!widest) widest = step;
      if (reach / step > kMostCount) return *widest;
      if (IsMultiple(amount, step)) return step;
    }
  }
}

std::string TitleOf(const Situation& asked, std::size_t amountCount) {
  return Joined({ScenarioOf(asked.Mode).Name, ": ", AmountWords(asked, amountCount)});
}

void CountInPots(FigureScale& scale, const StudySituation& situation) {
  scale.Pot = situation.Asked.Amounts.PotSize;
}

void AddLimits(Figure& figure, const StudySituation& situation, std::span<const std::int16_t> hands) {
  const RangeNumbers ranges = situation.Numbers();
  for (std::size_t i = 0; i < hands.size(); ++i) {
    const Limit limit = LimitOf(situation, ranges, hands[i]);
    figure.Lines[i].Note = NoteOf(limit);
    if (HasAmount(limit)) figure.Lines[i].Limit = limit.Amount;
  }
}

std::variant<Steps, std::string> ReadSteps(const StepTexts& texts) {
  auto read = Steps::Between(texts.From, texts.To, texts.Step);
  const auto* const steps = std::get_if<Steps>(&read);
  if (steps == nullptr || steps->Count() <= kMostCurveSteps) return read;
  return std::to_string(steps->Count()) + " steps are too many to be seen: at most " + std::to_string(kMostCurveSteps);
}

// The best `width` percent of all hands, up to 100.
ClassWeights TopHands(const std::string& width, const HandOrder& bestFirst) {
  return std::get<ClassWeights>(ReadRangeNotation(width + "%", bestFirst));
}

}  // namespace

std::variant<std::vector<std::int16_t>, std::string> ReadCurveHands(std::string_view notation,
                                                                    const HandOrder& bestFirst) {
  const NotationReading reading = ReadRangeNotation(notation, bestFirst);
  if (const auto* const error = std::get_if<NotationError>(&reading)) return error->Reason;
  const auto& weights = std::get<ClassWeights>(reading);
  std::vector<std::int16_t> hands;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (weights.at(static_cast<std::size_t>(index)) > 0) hands.push_back(index);
  }
  if (hands.empty()) return "name at least one hand";
  if (hands.size() > kMostCurves) {
    return std::to_string(hands.size()) + " hands are too many to tell their lines apart: name up to " +
           std::to_string(kMostCurves);
  }
  return hands;
}

std::string CurveHandsText(std::span<const std::int16_t> hands) {
  std::string text;
  for (const std::int16_t hand : hands)
    text.append(text.empty() ? "" : " ").append(HandLabel(hand));
  return text;
}

std::int16_t MarginalHand(const StudySituation& situation) {
  const Scenario& scenario = ScenarioOf(situation.Asked.Mode);
  const RangeNumbers ranges = situation.Numbers();
  std::optional<std::pair<double, std::int16_t>> gaining;
  std::optional<std::pair<double, std::int16_t>> best;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const ClassFigures figures = ranges.FiguresOf(scenario, index);
    const double value = ResultOf(scenario, index, figures, situation.Asked.Amounts).ExpectedValue;
    if (value >= 0 && (!gaining || value < gaining->first)) gaining = {value, index};
    if (!best || value > best->first) best = {value, index};
  }
  return gaining ? gaining->second : best->second;
}

StepTexts AmountStepsFor(const StudySituation& situation, std::span<const std::int16_t> hands) {
  constexpr double kFarLimit = 10;
  constexpr double kBeyondLimit = 1.25;
  const double now = situation.OwnAmount();
  const RangeNumbers ranges = situation.Numbers();
  double reach = 2 * now;
  for (const std::int16_t hand : hands) {
    const Limit limit = LimitOf(situation, ranges, hand);
    if (HasAmount(limit) && limit.Amount < kFarLimit * now) reach = std::max(reach, kBeyondLimit * limit.Amount);
  }
  reach = std::min(reach, IsBelowPot(situation) ? situation.Asked.Amounts.PotSize : kMostLimit);
  const double step = StepFor(reach, now);
  double count = std::ceil(reach / step);
  if (IsBelowPot(situation) && count * step >= situation.Asked.Amounts.PotSize) --count;
  return {.From = NumberText(step), .To = NumberText(count * step), .Step = NumberText(step)};
}

std::variant<Steps, std::string> ReadAmountSteps(const StudySituation& situation, const StepTexts& texts) {
  auto read = ReadSteps(texts);
  const auto* const steps = std::get_if<Steps>(&read);
  if (steps == nullptr) return read;
  const double pot = situation.Asked.Amounts.PotSize;
  if (LeadingNumber(steps->Text(0)) == 0) return "the first amount must be above 0";
  if (IsBelowPot(situation) && LeadingNumber(steps->Text(steps->Count() - 1)) >= pot) {
    return "a call is smaller than the pot, which is " + NumberText(pot);
  }
  return read;
}

std::variant<Steps, std::string> ReadWidthSteps(const StudySituation& situation, const StepTexts& texts,
                                                const HandOrder& bestFirst) {
  auto read = ReadSteps(texts);
  const auto* const steps = std::get_if<Steps>(&read);
  if (steps == nullptr) return read;
  if (LeadingNumber(steps->Text(steps->Count() - 1)) > 100) return "a range is at most 100% wide";
  const bool isEmpty = TopHands(steps->Text(0), bestFirst) == ClassWeights{};
  if (isEmpty && !MayFold(situation)) return "the narrowest range has no hands";
  return read;
}

std::string HandCurves::Csv() const {
  return SweepCsv(What, LabelsOf(Hands), Rows);
}

HandCurves AmountCurves(const StudySituation& situation, std::vector<std::int16_t> hands, const Steps& steps) {
  const AmountKind& own = OwnAmountKind(situation.Asked);
  std::vector<SweepRow> rows = SweepAmount(QuestionOf(situation, hands), situation.Numbers(), own.Value, steps);
  return {std::string(own.Key), std::move(hands), std::move(rows)};
}

SweepRow WidthRow(const StudySituation& situation, std::span<const std::int16_t> hands, const HandOrder& bestFirst,
                  const std::string& width) {
  const ClassWeights range = TopHands(width, bestFirst);
  const RangeNumbers ranges =
      MayFold(situation) ? RangeNumbers(situation.Hands, situation.Range, range) : RangeNumbers(situation.Hands, range);
  return SweepRowAt(QuestionOf(situation, hands), ranges, width);
}

Figure AmountFigure(const StudySituation& situation, const HandCurves& curves) {
  const Situation& asked = situation.Asked;
  Figure figure = SweepFigure({.Title = TitleOf(asked, ScenarioOf(asked.Mode).AmountCount - 1),
                               .Across = Joined({OwnAmountKind(asked).Meaning, ", in chips"}),
                               .Hands = LabelsOf(curves.Hands)},
                              curves.Rows);
  figure.Subtitle = "He " + RangeWords(asked);
  figure.Up.Title = kValuesTitle;
  // A first step equal to the step width means that the sweep starts from 0.
  const std::vector<std::string>& places = figure.Places;
  if (places.size() > 1 && LeadingNumber(places[1]) == 2 * figure.Across.Low) figure.Across.Low = 0;
  CountInPots(figure.Across, situation);
  CountInPots(figure.Up, situation);
  figure.Marks = {{.At = situation.OwnAmount(), .Text = std::string(kNow)}};
  AddLimits(figure, situation, curves.Hands);
  return figure;
}

std::array<Figure, 2> WidthFigures(const StudySituation& situation, const HandCurves& curves) {
  const Situation& asked = situation.Asked;
  const bool mayFold = MayFold(situation);
  const std::string across =
      mayFold ? "Width of his calling range, in percent of all hands" : "Width of his range, in percent of all hands";
  std::array<Figure, 2> figures = {
      SweepFigure({.Title = {}, .Across = {}, .Hands = {}}, curves.Rows),
      SweepFigure({.Title = {}, .Across = across, .Hands = LabelsOf(curves.Hands)}, curves.Rows)};
  auto& [share, values] = figures;
  share.Title = TitleOf(asked, ScenarioOf(asked.Mode).AmountCount);
  if (mayFold) share.Subtitle = "He plays " + Quoted(asked.RangeName);
  share.Lines.front().Name = "Profitable";
  share.Up.Title = "Profitable hands, in %";  // short enough for a low plot
  share.Up.High = 105;  // a line at 100 is clear of the frame
  values.Up.Title = kValuesTitle;
  CountInPots(values.Up, situation);
  const double now = PercentOfHands(mayFold ? situation.CallingRange : situation.Range);
  for (Figure& figure : figures) {
    figure.Across.Low = 0;
    figure.Across.High = 100;
    figure.Across.Unit = "%";
    figure.Marks = {{.At = now, .Text = std::string(kNow)}};
  }
  AlignFigures(figures);
  return figures;
}

}  // namespace quillon
