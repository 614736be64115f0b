#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ranges/range_notation.h"
#include "study/figure_svg.h"
#include "study/hand_order.h"
#include "study/limits.h"
#include "study/sweep.h"
#include "study/sweep_figure.h"
#include "support/joined_text.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "tools/commands.h"

namespace quillon {
namespace {

struct Request {
  SituationOptions situation;
  std::string width;
  std::vector<std::string> hands;
  std::string format;
  std::string folder;
};

constexpr std::string_view kWidthOption = "--width";

using Rows = std::vector<SweepRow>;

struct Answer {
  std::string title;
  std::string what;  // the amount or width that the steps are of
  std::vector<std::string> hands;
  Rows rows;
};

std::vector<std::string> RoundedCells(const SweepRow& row) {
  constexpr int kShareDecimals = 2;
  constexpr int kValueDecimals = 4;
  std::vector<std::string> cells = {row.At, NumberText(RoundTo(ProfitablePercent(row), kShareDecimals))};
  for (const double value : row.ExpectedValues)
    cells.push_back(NumberText(RoundTo(value, kValueDecimals)));
  return cells;
}

std::vector<std::string> Headings(const Answer& answer) {
  std::vector<std::string> headings = {answer.what, "profitable"};
  headings.insert(headings.end(), answer.hands.begin(), answer.hands.end());
  return headings;
}

// Right-aligned columns, for numbers.
std::string TableOutput(const Answer& answer) {
  std::vector<std::vector<std::string>> lines = {Headings(answer)};
  for (const SweepRow& row : answer.rows)
    lines.push_back(RoundedCells(row));
  std::vector<std::size_t> widths(lines.front().size());
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i)
      widths[i] = std::max(widths[i], line[i].size());
  }
  std::string text;
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i)
      text.append(i == 0 ? "" : "  ").append(widths[i] - line[i].size(), ' ').append(line[i]);
    text += '\n';
  }
  return text;
}

std::string JsonOutput(const Answer& answer) {
  nlohmann::ordered_json steps = nlohmann::ordered_json::array();
  for (const SweepRow& row : answer.rows) {
    nlohmann::ordered_json values = nlohmann::ordered_json::object();
    for (std::size_t i = 0; i < answer.hands.size(); ++i)
      values[answer.hands[i]] = row.ExpectedValues[i];
    steps.push_back(
        {{answer.what, LeadingNumber(row.At)}, {"profitable_percent", ProfitablePercent(row)}, {"ev", values}});
  }
  return nlohmann::ordered_json{{"steps", steps}}.dump(2) + "\n";
}

std::string SvgOutput(const Answer& answer) {
  const auto* const amount = std::ranges::find(kAmounts, answer.what, &AmountKind::Key);
  const std::string across = amount == kAmounts.end() ? "Width of his range, in percent of all hands"
                                                      : Joined({amount->Meaning, ", in the unit of the amounts"});
  return FigureSvg(SweepFigure({answer.title, across, answer.hands}, answer.rows));
}

constexpr std::array<Format<Answer>, 4> kFormats = {{
    {{"table", "columns to read, values rounded to four decimals"}, TableOutput},
    {{"csv", "the same with every digit"},
     [](const Answer& answer) { return SweepCsv(answer.what, answer.hands, answer.rows); }},
    {{"json", "the same as one object"}, JsonOutput},
    {{"svg", "a picture: a line for each --hand, or the profitable hands without one"}, SvgOutput},
}};

int Print(AnalysisMode mode, std::string what, const Request& request, Rows rows, const Surroundings& surroundings) {
  const Answer answer = {std::string(ScenarioOf(mode).Name), std::move(what), request.hands, std::move(rows)};
  surroundings.Output << InFormat(kFormats, request.format, answer);
  return kDone;
}

std::optional<Steps> ReadSteps(std::string_view option, const std::string& text, CommandInputs& inputs) {
  auto read = Steps::Read(text);
  if (auto* const steps = std::get_if<Steps>(&read)) return *steps;
  return inputs.Refuse(std::string(option) + ": " + std::get<std::string>(read));
}

// The index of the one amount that has steps.
std::optional<std::size_t> SweptPlace(const Request& request, std::size_t count) {
  std::optional<std::size_t> swept;
  int found = request.width.empty() ? 0 : 1;
  for (std::size_t i = 0; i < count; ++i) {
    if (request.situation.Amounts[i].find(':') == std::string::npos) continue;
    swept = i;
    ++found;
  }
  if (found != 1) throw CLI::ValidationError("One amount, or --width, is given as FROM:TO:STEP");
  return swept;
}

// The amounts read are not below 0.
bool AreAccepted(AnalysisMode mode, const Amounts& amounts, CommandInputs& inputs) {
  const AmountKind& own = ScenarioOf(mode).AskedAmounts().back();
  const double value = amounts.*own.Value;
  if (amounts.PotSize == 0)
    inputs.Refuse("--pot must be above 0");
  else if (value == 0)
    inputs.Refuse(Joined({"--", own.Key, " must be above 0"}));
  else if (RowOf(kMoves, mode).StaysBelowPot && value >= amounts.PotSize)
    inputs.Refuse(Joined({"--pot must be greater than --", own.Key}));
  else
    return true;
  return false;
}

int SweepTheAmount(AnalysisMode mode, const Request& request, std::size_t place, SweepQuestion& question,
                   CommandInputs& inputs, const Surroundings& surroundings) {
  const auto steps = ReadSteps(kAmountOptions[place], request.situation.Amounts[place], inputs);
  if (!steps) return inputs.Status();
  for (const std::int64_t end : {std::int64_t{0}, steps->Count() - 1}) {
    question.Fixed.*kAmounts.at(place).Value = LeadingNumber(steps->Text(end));
    if (!AreAccepted(mode, question.Fixed, inputs)) return inputs.Status();
  }
  const auto ranges = inputs.Ranges(ScenarioOf(mode), request.situation);
  if (!ranges) return inputs.Status();
  const RangeNumbers numbers(inputs.Hands(), ranges->Range.Weights, ranges->CallingRange.Weights);
  const AmountKind& amount = kAmounts.at(place);
  return Print(mode, std::string(amount.Key), request, SweepAmount(question, numbers, amount.Value, *steps),
               surroundings);
}

int SweepTheWidth(AnalysisMode mode, const Request& request, const SweepQuestion& question, CommandInputs& inputs,
                  const Surroundings& surroundings) {
  const auto steps = ReadSteps(kWidthOption, request.width, inputs);
  if (!steps || !AreAccepted(mode, question.Fixed, inputs)) return inputs.Status();
  const auto order = HandsBestFirst(inputs.Hands());
  const auto top = [&](std::string_view share) { return ReadRangeNotation(std::string(share) + "%", order); };
  const NotationReading widest = top(steps->Text(steps->Count() - 1));
  if (const auto* const error = std::get_if<NotationError>(&widest)) {
    inputs.Refuse(std::string(kWidthOption) + ": " + error->Reason);
    return inputs.Status();
  }
  const auto weightsAt = [&](std::string_view share) { return std::get<ClassWeights>(top(share)); };
  const bool mayFold = ScenarioOf(mode).HasCallingRange;
  if ((mayFold ? request.situation.CallingRange : request.situation.Range).Given()) {
    throw CLI::ValidationError(mayFold ? "--width is his calling range; leave --calling-range and --calling-hands out"
                                       : "--width is his range; leave --range and --hands out");
  }
  if (!mayFold && weightsAt(steps->Text(0)) == ClassWeights{}) {
    inputs.Refuse(std::string(kWidthOption) + ": the narrowest range has no hands");
    return inputs.Status();
  }
  const auto range = mayFold ? inputs.Range(request.situation.Range) : GivenRange{};
  if (!range) return inputs.Status();
  Rows rows;
  for (std::int64_t step = 0; step < steps->Count(); ++step) {
    const std::string share = steps->Text(step);
    const ClassWeights width = weightsAt(share);
    const RangeNumbers ranges =
        mayFold ? RangeNumbers(inputs.Hands(), range->Weights, width) : RangeNumbers(inputs.Hands(), width);
    rows.push_back(SweepRowAt(question, ranges, share));
  }
  return Print(mode, "width", request, std::move(rows), surroundings);
}

std::vector<std::string> EachOnce(std::vector<std::string> hands) {
  std::vector<std::string> once;
  for (std::string& hand : hands) {
    if (std::ranges::find(once, hand) == once.end()) once.push_back(std::move(hand));
  }
  return once;
}

int Sweep(AnalysisMode mode, Request request, const Surroundings& surroundings) {
  request.hands = EachOnce(std::move(request.hands));
  const auto count = ScenarioOf(mode).AmountCount;
  const std::optional<std::size_t> swept = SweptPlace(request, count);
  CommandInputs inputs(surroundings, request.folder);
  SweepQuestion question{mode, {}, {}};
  for (std::size_t i = 0; i < count; ++i) {
    if (i == swept) continue;
    const auto amount = inputs.Amount(kAmountOptions[i], request.situation.Amounts[i], LeastAmount::kZero);
    if (!amount) return inputs.Status();
    question.Fixed.*kAmounts.at(i).Value = *amount;
  }
  for (const std::string& hand : request.hands)
    question.Hands.push_back(HandIndex(hand));
  if (swept) return SweepTheAmount(mode, request, *swept, question, inputs, surroundings);
  return SweepTheWidth(mode, request, question, inputs, surroundings);
}

}  // namespace

RunCommand OfferSweep(CLI::App& options) {
  const auto request = std::make_shared<Request>();
  const auto offer = [&request = *request](const Scenario& scenario, CLI::App& command) {
    OfferAmounts(command, scenario.Mode, scenario.AmountCount, request.situation);
    OfferRanges(command, scenario.Mode, request.situation);
    command
        .add_option(std::string(kWidthOption), request.width,
                    Joined({scenario.HasCallingRange ? "His calling range" : "His range",
                            " instead, as the top percent of hands"}))
        ->type_name("FROM:TO:STEP");
    OfferHands(command, request.hands, "Adds the expected value of these hands");
    OfferFormat(command, request.format, kFormats);
    OfferFolder(command, request.folder);
  };
  return OfferMoves(
      options, &SituationTexts::Sweep, offer,
      [request](AnalysisMode mode, const Surroundings& surroundings) { return Sweep(mode, *request, surroundings); });
}

}  // namespace quillon
