#include <CLI/CLI.hpp>
#include <array>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <variant>

#include "study/stack_chart.h"
#include "study/study_pages.h"
#include "support/number_text.h"
#include "support/this_process.h"
#include "tools/class_grid.h"
#include "tools/commands.h"
#include "tools/progress_bar.h"

namespace quillon {
namespace {

struct Request {
  std::string from = "1.1";
  std::string to = "20";
  std::string step = "0.1";
  std::string format;
};

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): steps have no default, so both are always given.
struct Answer {
  Steps stacks;
  StackChart chart;
};

// The grid, and below it the gaps, which do not fit into cells.
std::string GridOutput(const char* title, const StackLimits& limits) {
  std::array<std::string, kHandClassCount> texts;
  std::string gaps;
  for (std::size_t i = 0; i < limits.size(); ++i) {
    texts[i] = StackText(limits[i]) + (limits[i].Gaps.empty() ? "" : "*");
    if (limits[i].Gaps.empty()) continue;
    gaps.append("* ").append(HandLabel(static_cast<std::int16_t>(i)));
    gaps.append(" but not at ").append(GapsText(limits[i])).append("\n");
  }
  return std::string(title) + "\n" + ClassGrid(texts) + gaps;
}

std::string PlainOutput(const Answer& answer) {
  return GridOutput("Shove up to so many big blinds", answer.chart.Shove) + "\n" +
         GridOutput("Call a shove up to so many big blinds", answer.chart.Call);
}

std::string CsvOutput(const Answer& answer) {
  std::string text = "hand,shove,shove_gaps,call,call_gaps\n";
  for (std::size_t i = 0; i < kHandClassCount; ++i) {
    text += HandLabel(static_cast<std::int16_t>(i));
    for (const StackLimit& limit : {answer.chart.Shove[i], answer.chart.Call[i]})
      text.append(",").append(limit.Largest).append(",").append(GapsText(limit));
    text += '\n';
  }
  return text;
}

nlohmann::ordered_json LimitJson(const StackLimit& limit) {
  if (limit.Largest.empty()) return nullptr;
  nlohmann::ordered_json gaps = nlohmann::ordered_json::array();
  for (const StackSpan& gap : limit.Gaps)
    gaps.push_back({{"from", LeadingNumber(gap.From)}, {"to", LeadingNumber(gap.To)}});
  return {{"up_to", LeadingNumber(limit.Largest)}, {"is_last", limit.IsLast}, {"but_not", gaps}};
}

std::string JsonOutput(const Answer& answer) {
  nlohmann::ordered_json hands = nlohmann::ordered_json::array();
  for (std::size_t i = 0; i < kHandClassCount; ++i) {
    hands.push_back({{"hand", HandLabel(static_cast<std::int16_t>(i))},
                     {"shove", LimitJson(answer.chart.Shove[i])},
                     {"call", LimitJson(answer.chart.Call[i])}});
  }
  const nlohmann::ordered_json object = {{"from", LeadingNumber(answer.stacks.Text(0))},
                                         {"to", LeadingNumber(answer.stacks.Text(answer.stacks.Count() - 1))},
                                         {"hands", hands}};
  return object.dump(2) + "\n";
}

constexpr std::array<Format<Answer>, 5> kFormats = {{
    {{"grid", "two grids to read, and the gaps; a plus is the largest stack of the chart"}, PlainOutput},
    {{"csv", "hand, shove, shove_gaps, call, call_gaps; empty means never, the last stack means at least that"},
     CsvOutput},
    {{"json", "the same as one object; what is never played is null"}, JsonOutput},
    {{"html", "a web page of one file: both grids and a table"},
     [](const Answer& answer) { return ChartPage(answer.chart, answer.stacks); }},
    {{"svg", "both grids as a picture, and the gaps"},
     [](const Answer& answer) { return ChartPicture(answer.chart, answer.stacks); }},
}};

std::optional<Steps> StacksOf(const Request& request, CommandInputs& inputs) {
  const auto read = Steps::Between(request.from, request.to, request.step);
  if (const auto* const reason = std::get_if<std::string>(&read))
    return inputs.Refuse("--from, --to, --step: " + *reason);
  const auto& stacks = std::get<Steps>(read);
  if (LeadingNumber(stacks.Text(0)) <= 1)
    return inputs.Refuse("--from must be above 1: the big blind is in the pot already");
  if (LeadingNumber(stacks.Text(stacks.Count() - 1)) > kMostStack)
    return inputs.Refuse("--to may be at most " + NumberText(kMostStack));
  return stacks;
}

int Print(const Request& request, const Surroundings& surroundings) {
  CommandInputs inputs(surroundings, {});
  const std::optional<Steps> stacks = StacksOf(request, inputs);
  if (!stacks) return inputs.Status();
  const auto all = static_cast<std::size_t>(stacks->Count());
  const auto chart = [&] {
    ProgressBar bar(surroundings);
    return MakeStackChart(inputs.Hands(), *stacks, UsableCores(),
                          [&bar, all](std::int64_t done) { bar.Show(static_cast<std::size_t>(done), all); });
  };
  surroundings.Output << InFormat(kFormats, request.format, Answer{*stacks, chart()});
  return kDone;
}

}  // namespace

RunCommand OfferChart(CLI::App& options) {
  const auto request = std::make_shared<Request>();
  const auto offer = [&options](const char* name, std::string& text, const std::string& description) {
    options.add_option(name, text, description + " (default: " + text + ")")->type_name("NUMBER");
  };
  offer("--from", request->from, "The smallest effective stack, in big blinds, above 1");
  offer("--to", request->to, "The largest");
  offer("--step", request->step, "From one to the next");
  OfferFormat(options, request->format, kFormats);
  return [request](const Surroundings& surroundings) { return Print(*request, surroundings); };
}

}  // namespace quillon
