#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <utility>

#include "study/limit_cells.h"
#include "study/study_pages.h"
#include "support/joined_text.h"
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

int PrintLimits(AnalysisMode mode, const Request& request, const Surroundings& surroundings) {
  const Scenario& scenario = ScenarioOf(mode);
  CommandInputs inputs(surroundings, request.folder);
  LimitsQuestion question{Joined({"Largest ", RowOf(kMoves, mode).Title}), {}};
  const auto amountCount = scenario.AmountCount - 1;  // its last one has the limits
  Amounts amounts;
  for (std::size_t i = 0; i < amountCount; ++i) {
    const auto least = i == 0 ? LeastAmount::kAboveZero : LeastAmount::kZero;
    const auto amount = inputs.Amount(kAmountOptions[i], request.situation.Amounts[i], least);
    if (!amount) continue;
    amounts.*kAmounts.at(i).Value = *amount;
    question.Situation.push_back({std::string(kAmounts.at(i).Title), NumberText(*amount)});
  }
  const auto ranges = inputs.Ranges(scenario, request.situation);
  if (!ranges || question.Situation.size() < amountCount) return inputs.Status();
  question.Situation.push_back({"His Range", ranges->Range.Name});
  if (scenario.HasCallingRange) question.Situation.push_back({"His Calling Range", ranges->CallingRange.Name});
  const RangeNumbers numbers(inputs.Hands(), ranges->Range.Weights, ranges->CallingRange.Weights);
  const Answer answer = {std::move(question), LimitsOf(mode, numbers, amounts)};
  surroundings.Output << InFormat(kFormats, request.format, answer);
  return kDone;
}

}  // namespace

RunCommand OfferLimits(CLI::App& options) {
  const auto request = std::make_shared<Request>();
  const auto offer = [&request = *request](const Scenario& scenario, CLI::App& command) {
    OfferAmounts(command, scenario.Mode, scenario.AmountCount - 1, request.situation);
    OfferRanges(command, scenario.Mode, request.situation);
    OfferFormat(command, request.format, kFormats);
    OfferFolder(command, request.folder);
  };
  return OfferMoves(options, &SituationTexts::Limits, offer,
                    [request](AnalysisMode mode, const Surroundings& surroundings) {
                      return PrintLimits(mode, *request, surroundings);
                    });
}

}  // namespace quillon
