#include <CLI/CLI.hpp>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "analysis/input_checks.h"
#include "hand/hand_classes.h"
#include "ranges/range_lookup.h"
#include "results/results_grid.h"
#include "tools/analysis_output.h"
#include "tools/commands.h"
#include "tools/progress_bar.h"

namespace quillon {
namespace {

// How an analysis is asked for on the command line: what its help says of each amount and of each range.
struct AnalysisCommand {
  AnalysisMode Mode = AnalysisMode::kNone;
  std::array<const char*, 3> Amounts{};  // pot, call, shove
  std::array<const char*, 2> Ranges{};  // his range, the one he calls with
};

constexpr ScenarioTable<AnalysisCommand> kAnalysisCommands = {{
    {AnalysisMode::kPreflopCall,
     {"Everything in the pot, his bet included", "What you must put in to call"},
     {"His range"}},
    {AnalysisMode::kPreflopRaise,
     {"Everything in the pot", "What you must put in to call, 0 if you are first to act",
      "What he must put in to call your shove"},
     {"His range now", "The range he calls your shove with"}},
    {AnalysisMode::kEquityOnly, {}, {"His range"}},
}};
static_assert(CoversEveryScenario(kAnalysisCommands));

struct Request {
  EnteredSituation situation;
  std::array<RangeOption, 2> ranges;
  std::string folder;
  std::string format;
  std::vector<std::string> hands;
};

Analysis AnalyzeWithProgress(Situation situation, const Surroundings& surroundings) {
  ProgressBar bar(surroundings);
  return *Analyze(std::move(situation), {.GoesOn = [&bar](std::int16_t index, const Analysis& /*soFar*/) {
                    bar.Show(static_cast<std::size_t>(index) + 1, kHandClassCount);
                    return true;
                  }});
}

// A range by its notation goes in as text, one by its name is for the checks and the run to read.
bool TakeRange(const RangeOption& option, CommandInputs& inputs, std::string& name, std::string& text) {
  if (option.Hands) {
    const std::optional<GivenRange> range = inputs.TypedRange(*option.Hands);
    if (range) name = range->Name;
    if (range) text = range->Text;
    return range.has_value();
  }
  if (!option.Name) throw CLI::RequiredError(option.Options);
  name = *option.Name;
  if (name.empty()) return true;  // the input checks have their own words for it
  if (const auto unknown = WhyUnknown(name, inputs.Folder())) {
    inputs.Refuse(*unknown);
    return false;
  }
  if (const auto unreadable = WhyUnreadable(name, inputs.Folder()))
    inputs.Refuse(*unreadable);  // the run fails over it
  return true;
}

int PrintAnalysis(AnalysisMode mode, const Request& request, const Surroundings& surroundings) {
  const OutputFormat format = OutputFormatOf(request.format);
  if (!request.hands.empty() && format != OutputFormat::kForum) {
    throw CLI::ValidationError("--hand goes with --format 2+2 only");
  }
  EnteredSituation situation = request.situation;
  CommandInputs inputs(surroundings, request.folder);
  const std::array<std::pair<const char*, std::string*>, 3> amounts = {
      {{"--pot", &situation.Pot}, {"--call", &situation.Call}, {"--shove", &situation.Shove}}};
  for (const auto& [option, text] : amounts) {
    if (!inputs.EvaluateAmount(option, *text)) return kRefused;
  }
  bool rangesTaken = TakeRange(request.ranges[0], inputs, situation.Range, situation.RangeText);
  if (ScenarioOf(mode).HasCallingRange) {
    rangesTaken &= TakeRange(request.ranges[1], inputs, situation.CallingRange, situation.CallingRangeText);
  }
  if (!rangesTaken) return kRefused;
  const bool namesRanges = request.ranges[0].Name || request.ranges[1].Name;
  const ProgramFolder folder = namesRanges ? inputs.Folder() : ProgramFolder{};
  if (const auto complaint = CheckInputs(mode, situation, folder)) {
    surroundings.Errors << complaint->Title << ": " << complaint->Text << '\n';
    return kRefused;
  }

  const Analysis analysis = AnalyzeWithProgress(SituationOf(mode, situation, folder), surroundings);
  const std::string text = AnalysisOutput(format, analysis, request.hands);
  if (format == OutputFormat::kPlain && surroundings.Terminal.ShowColors) {
    surroundings.Output << TerminalGrid(GridColors(analysis)) << '\n';
  }
  surroundings.Output << text;
  return kDone;
}

RunCommand OfferAnalysis(AnalysisMode mode, CLI::App& options) {
  const Scenario& scenario = ScenarioOf(mode);
  const AnalysisCommand& row = *FindRow(kAnalysisCommands, mode);
  const auto request = std::make_shared<Request>();
  EnteredSituation& situation = request->situation;
  if (scenario.AmountCount > 0) OfferAmount(options, "--pot", situation.Pot, row.Amounts[0]);
  if (scenario.AmountCount > 1) OfferAmount(options, "--call", situation.Call, row.Amounts[1]);
  if (scenario.AmountCount > 2) OfferAmount(options, "--shove", situation.Shove, row.Amounts[2]);
  OfferRange(options, "--range", "--hands", request->ranges[0], row.Ranges[0]);
  if (scenario.HasCallingRange) {
    OfferRange(options, "--calling-range", "--calling-hands", request->ranges[1], row.Ranges[1]);
  }
  OfferFormat(options, request->format, kAnalysisFormats);
  options.add_option("--hand", request->hands, "With 2+2: adds the working of these hands")
      ->type_name("LABEL")
      ->check(CLI::Validator(CheckLabel, ""));
  OfferFolder(options, request->folder);
  return [mode, request](const Surroundings& surroundings) { return PrintAnalysis(mode, *request, surroundings); };
}

}  // namespace

RunCommand OfferCall(CLI::App& options) {
  return OfferAnalysis(AnalysisMode::kPreflopCall, options);
}

RunCommand OfferRaise(CLI::App& options) {
  return OfferAnalysis(AnalysisMode::kPreflopRaise, options);
}

RunCommand OfferEquity(CLI::App& options) {
  return OfferAnalysis(AnalysisMode::kEquityOnly, options);
}

}  // namespace quillon
