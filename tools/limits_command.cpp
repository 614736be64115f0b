#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "study/limits.h"
#include "study/study_pages.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "tools/class_grid.h"
#include "tools/commands.h"

namespace quillon {
namespace {

struct Request {
  std::string pot;
  std::string call;
  RangeOption range;
  RangeOption callingRange;
  std::string format;
  std::string folder;
};

struct Answer {
  LimitsQuestion question;
  Limits limits;
};

bool HasAmount(const Limit& limit) {
  return limit.Kind == LimitKind::kUpTo || limit.Kind == LimitKind::kFrom;
}

// In a grid two decimals are enough, rounded to the side on which the hand does not lose.
std::string GridText(Limit limit) {
  constexpr double kStep = 0.01;
  const double nearest = RoundTo(limit.Amount, 2);
  double safe = nearest;
  if (limit.Kind == LimitKind::kUpTo && nearest > limit.Amount) safe = RoundTo(nearest - kStep, 2);
  if (limit.Kind == LimitKind::kFrom && nearest < limit.Amount) safe = RoundTo(nearest + kStep, 2);
  limit.Amount = safe;
  return LimitText(limit);
}

std::string_view KindName(LimitKind kind) {
  switch (kind) {
    case LimitKind::kUpTo:
      return "up to";
    case LimitKind::kFrom:
      return "from";
    case LimitKind::kAlways:
      return "always";
    case LimitKind::kNever:
      break;
  }
  return "never";
}

std::string GridOutput(const Answer& answer) {
  std::array<std::string, kHandClassCount> texts;
  std::ranges::transform(answer.limits, texts.begin(), GridText);
  return ClassGrid(texts);
}

std::string CsvOutput(const Answer& answer) {
  std::string text = "hand,limit,amount\n";
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Limit& limit = answer.limits[static_cast<std::size_t>(index)];
    text.append(HandLabel(index)).append(",").append(KindName(limit.Kind)).append(",");
    text.append(HasAmount(limit) ? NumberText(limit.Amount) : "").append("\n");
  }
  return text;
}

std::string JsonOutput(const Answer& answer) {
  nlohmann::ordered_json hands = nlohmann::ordered_json::array();
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Limit& limit = answer.limits[static_cast<std::size_t>(index)];
    nlohmann::ordered_json hand = {{"hand", HandLabel(index)}, {"limit", KindName(limit.Kind)}, {"amount", nullptr}};
    if (HasAmount(limit)) hand["amount"] = limit.Amount;
    hands.push_back(hand);
  }
  return nlohmann::ordered_json{{"hands", hands}}.dump(2) + "\n";
}

std::string HtmlOutput(const Answer& answer) {
  return LimitsPage(answer.question, answer.limits);
}

std::string SvgOutput(const Answer& answer) {
  return LimitsPicture(answer.question, answer.limits);
}

constexpr std::array<Format<Answer>, 5> kFormats = {{
    {{"plain", "a grid to read, amounts rounded to two decimals"}, GridOutput},
    {{"csv", "hand, limit, amount; always and never have no amount"}, CsvOutput},
    {{"json", "the same as one object"}, JsonOutput},
    {{"html", "a web page of one file: the situation, the grid, a table"}, HtmlOutput},
    {{"svg", "the grid as a picture"}, SvgOutput},
}};

int Print(const Answer& answer, const std::string& format, const Surroundings& surroundings) {
  surroundings.Output << InFormat(kFormats, format, answer);
  return kDone;
}

int PrintCallLimits(const Request& request, const Surroundings& surroundings) {
  CommandInputs inputs(surroundings, request.folder);
  const auto pot = inputs.Amount("--pot", request.pot, LeastAmount::kAboveZero);
  const auto range = inputs.RangeWithHands(request.range);
  if (!pot || !range) return inputs.Status();
  const LimitsQuestion question = {"Largest Call", {{"Pot Size", NumberText(*pot)}, {"His Range", range->Name}}};
  return Print({question, CallLimits(RangeNumbers(inputs.Hands(), range->Weights), *pot)}, request.format,
               surroundings);
}

int PrintShoveLimits(const Request& request, const Surroundings& surroundings) {
  CommandInputs inputs(surroundings, request.folder);
  const auto pot = inputs.Amount("--pot", request.pot, LeastAmount::kAboveZero);
  const auto call = inputs.Amount("--call", request.call, LeastAmount::kZero);
  const auto range = inputs.Range(request.range);
  const auto callingRange = inputs.Range(request.callingRange);
  if (!pot || !call || !range || !callingRange) return inputs.Status();
  const LimitsQuestion question = {"Largest Shove",
                                   {{"Pot Size", NumberText(*pot)},
                                    {"Call Amount", NumberText(*call)},
                                    {"His Range", range->Name},
                                    {"His Calling Range", callingRange->Name}}};
  const RangeNumbers ranges(inputs.Hands(), range->Weights, callingRange->Weights);
  return Print({question, ShoveLimits(ranges, *pot, *call)}, request.format, surroundings);
}

void OfferOutput(CLI::App& options, Request& request) {
  OfferFormat(options, request.format, kFormats);
  OfferFolder(options, request.folder);
}

}  // namespace

RunCommand OfferLimits(CLI::App& options) {
  const auto request = std::make_shared<Request>();
  CLI::App* const call = options.add_subcommand("call", "The largest all-in that each hand can call");
  OfferAmount(*call, "--pot", request->pot, "Everything in the pot, his bet included");
  OfferRange(*call, "--range", "--hands", request->range, "His range");
  OfferOutput(*call, *request);
  CLI::App* const raise = options.add_subcommand("raise", "The largest shove that is good with each hand");
  OfferAmount(*raise, "--pot", request->pot, "Everything in the pot");
  OfferAmount(*raise, "--call", request->call, "What you must put in to call, 0 if you are first to act");
  OfferRange(*raise, "--range", "--hands", request->range, "His range now");
  OfferRange(*raise, "--calling-range", "--calling-hands", request->callingRange, "The range he calls your shove with");
  OfferOutput(*raise, *request);
  options.require_subcommand(1);
  options.footer(call->get_footer());
  return [request, call](const Surroundings& surroundings) {
    return call->parsed() ? PrintCallLimits(*request, surroundings) : PrintShoveLimits(*request, surroundings);
  };
}

}  // namespace quillon
