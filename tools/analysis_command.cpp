#include <CLI/CLI.hpp>
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

struct Request {
  SituationOptions situation;
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

// A range given by notation goes in as text; one given by name is read by the checks and the run.
bool TakeRange(const RangeOption& option, CommandInputs& inputs, std::string& name, std::string& text) {
  if (option.Hands) {
    const std::optional<GivenRange> range = inputs.TypedRange(*option.Hands);
    if (range) name = range->Name;
    if (range) text = range->Text;
    return range.has_value();
  }
  if (!option.Name) throw CLI::RequiredError(option.Options);
  name = *option.Name;
  if (name.empty()) return true;  // the input checks report this in their own words
  if (const auto unknown = WhyUnknown(name, inputs.Folder())) {
    inputs.Refuse(*unknown);
    return false;
  }
  if (const auto unreadable = WhyUnreadable(name, inputs.Folder()))
    inputs.Refuse(*unreadable);  // the run will fail on it
  return true;
}

int PrintAnalysis(AnalysisMode mode, const Request& request, const Surroundings& surroundings) {
  if (!request.hands.empty() && request.format != kForumFormat) {
    throw CLI::ValidationError("--hand goes with --format 2+2 only");
  }
  const auto& [amounts, range, callingRange] = request.situation;
  EnteredSituation situation;
  CommandInputs inputs(surroundings, request.folder);
  for (std::size_t i = 0; i < kEnteredAmounts.size(); ++i) {
    std::string& text = situation.*kEnteredAmounts.at(i) = amounts.at(i);
    if (!inputs.EvaluateAmount(kAmountOptions[i], text)) return kRefused;
  }
  bool rangesTaken = TakeRange(range, inputs, situation.Range, situation.RangeText);
  if (ScenarioOf(mode).HasCallingRange) {
    rangesTaken &= TakeRange(callingRange, inputs, situation.CallingRange, situation.CallingRangeText);
  }
  if (!rangesTaken) return kRefused;
  const bool namesRanges = range.Name || callingRange.Name;
  const ProgramFolder folder = namesRanges ? inputs.Folder() : ProgramFolder{};
  if (const auto complaint = CheckInputs(mode, situation, folder)) {
    surroundings.Errors << complaint->Title << ": " << complaint->Text << '\n';
    return kRefused;
  }

  const Analysis analysis = AnalyzeWithProgress(SituationOf(mode, situation, folder), surroundings);
  const std::string text = InFormat(kAnalysisFormats, request.format, {analysis, request.hands});
  if (request.format == kPlainFormat && surroundings.Terminal.ShowColors) {
    surroundings.Output << TerminalGrid(GridColors(analysis)) << '\n';
  }
  surroundings.Output << text;
  return kDone;
}

}  // namespace

RunCommand OfferAnalysis(AnalysisMode mode, CLI::App& options) {
  const auto request = std::make_shared<Request>();
  OfferAmounts(options, mode, ScenarioOf(mode).AmountCount, request->situation);
  OfferRanges(options, mode, request->situation);
  OfferFormat(options, request->format, kAnalysisFormats);
  OfferHands(options, request->hands, "With 2+2: adds the working of these hands");
  OfferFolder(options, request->folder);
  return [mode, request](const Surroundings& surroundings) { return PrintAnalysis(mode, *request, surroundings); };
}

}  // namespace quillon
