#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "study/limit_cells.h"
#include "study/study_pages.h"
#include "support/number_text.h"
#include "tools/class_grid.h"
#include "tools/commands.h"

namespace quillon {
namespace {

struct Request {
  SituationOptions situation;
  std::string format;
  std::string folder;
};

struct Answer {
  LimitsQuestion question;
  Limits limits;
};

std::string GridText(const Limit& limit) {
  if (!HasAmount(limit)) return LimitText(limit);
  return (limit.Kind == LimitKind::kFrom ? "from " : "") + ShortAmount(limit);
}

std::string GridOutput(const Answer& answer) {
  std::array<std::string, kHandClassCount> texts;
  std::ranges::transform(answer.limits, texts.begin(), GridText);
  return ClassGrid(texts);
}

std::string JsonOutput(const Answer& answer) {
  nlohmann::ordered_json hands = nlohmann::ordered_json::array();
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Limit& limit = answer.limits[static_cast<std::size_t>(index)];
    nlohmann::ordered_json hand = {
        {"hand", HandLabel(index)}, {"limit", LimitKindName(limit.Kind)}, {"amount", nullptr}};
    if (HasAmount(limit)) hand["amount"] = limit.Amount;
    hands.push_back(hand);
  }
  return nlohmann::ordered_json{{"hands", hands}}.dump(2) + "\n";
}

constexpr std::array<Format<Answer>, 5> kFormats = {{
    {{"grid", "a grid to read, amounts rounded to the side on which the hand does not lose"}, GridOutput},
    {{"csv", "hand, limit, amount; always and never have no amount"},
     [](const Answer& answer) { return LimitTable(answer.limits, ','); }},
    {{"json", "the same as one object"}, JsonOutput},
    {{"html", "a web page of one file: the situation, the grid, a table"},
     [](const Answer& answer) { return LimitsPage(answer.question, answer.limits); }},
    {{"svg", "the grid as a picture"},
     [](const Answer& answer) { return LimitsPicture(answer.question, answer.limits); }},
}};

int Print(const Answer& answer, const std::string& format, const Surroundings& surroundings) {
  surroundings.Output << InFormat(kFormats, format, answer);
  return kDone;
}

int PrintCallLimits(const Request& request, const Surroundings& surroundings) {
  CommandInputs inputs(surroundings, request.folder);
  const auto pot = inputs.Amount("--pot", request.situation.Amounts[0], LeastAmount::kAboveZero);
  const auto range = inputs.RangeWithHands(request.situation.Range);
  if (!pot || !range) return inputs.Status();
  const LimitsQuestion question = {"Largest Call", {{"Pot Size", NumberText(*pot)}, {"His Range", range->Name}}};
  return Print({question, CallLimits(RangeNumbers(inputs.Hands(), range->Weights), *pot)}, request.format,
               surroundings);
}

int PrintShoveLimits(const Request& request, const Surroundings& surroundings) {
  CommandInputs inputs(surroundings, request.folder);
  const auto pot = inputs.Amount("--pot", request.situation.Amounts[0], LeastAmount::kAboveZero);
  const auto call = inputs.Amount("--call", request.situation.Amounts[1], LeastAmount::kZero);
  const auto range = inputs.Range(request.situation.Range);
  const auto callingRange = inputs.Range(request.situation.CallingRange);
  if (!pot || !call || !range || !callingRange) return inputs.Status();
  const LimitsQuestion question = {"Largest Shove",
                                   {{"Pot Size", NumberText(*pot)},
                                    {"Call Amount", NumberText(*call)},
                                    {"His Range", range->Name},
                                    {"His Calling Range", callingRange->Name}}};
  const RangeNumbers ranges(inputs.Hands(), range->Weights, callingRange->Weights);
  return Print({question, ShoveLimits(ranges, *pot, *call)}, request.format, surroundings);
}

// The amounts of a scenario except its last one, whose limit is the question.
CLI::App* OfferLimitsOf(AnalysisMode mode, CLI::App& options, const std::string& description, Request& request) {
  const Scenario& scenario = ScenarioOf(mode);
  CLI::App* const command = options.add_subcommand(std::string(scenario.Command), description);
  OfferAmounts(*command, mode, static_cast<std::size_t>(scenario.AmountCount) - 1, request.situation);
  OfferRanges(*command, mode, request.situation);
  OfferFormat(*command, request.format, kFormats);
  OfferFolder(*command, request.folder);
  return command;
}

}  // namespace

RunCommand OfferLimits(CLI::App& options) {
  const auto request = std::make_shared<Request>();
  const CLI::App* const call =
      OfferLimitsOf(AnalysisMode::kPreflopCall, options, "The largest all-in that each hand can call", *request);
  OfferLimitsOf(AnalysisMode::kPreflopRaise, options, "The largest shove that is good with each hand", *request);
  options.require_subcommand(1);
  options.footer(call->get_footer());
  return [request, call](const Surroundings& surroundings) {
    return call->parsed() ? PrintCallLimits(*request, surroundings) : PrintShoveLimits(*request, surroundings);
  };
}

}  // namespace quillon
