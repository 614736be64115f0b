#include "tools/command_inputs.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <istream>
#include <memory>
#include <ostream>
#include <utility>
#include <variant>

#include "analysis/entered_situation.h"
#include "analysis/expressions.h"
#include "hand/equity_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_lookup.h"
#include "ranges/range_notation.h"
#include "study/hand_order.h"
#include "support/joined_text.h"
#include "support/line_ends.h"
#include "support/number_text.h"

namespace quillon {
namespace {

// The width of names of formats and statuses in their lists.
constexpr std::size_t kHelpNameWidth = 6;

constexpr double kMostAmount = 1e300;

// Nothing for the label of a class, otherwise the error.
std::string WhyNoLabel(const std::string& label) {
  if (HandLabel(HandIndex(label)) == label) return {};
  return "\"" + label + "\" is no starting hand; hands are written as AA, AKs or AKo";
}

HandNumbers ReadHandNumbers() {
  LoadEquityTable();
  return {};
}

}  // namespace

MessageAnswer PrintedMessages::Show(const Message& message) {
  errors_ << message.title << ": " << UnixLineEnds(message.text) << '\n';
  shown_ = true;
  return message.buttons == MessageButtons::kOk ? MessageAnswer::kOk : MessageAnswer::kCancel;
}

void OfferRange(CLI::App& command, const std::string& nameOption, const std::string& handsOption, RangeOption& range,
                const std::string& description) {
  range.Options = nameOption + " or " + handsOption;
  CLI::Option* const name = command.add_option(nameOption, range.Name, description)->type_name("NAME");
  command
      .add_option(handsOption, range.Hands,
                  description + R"(, as "88+,ATs+,KQ:0.5" or "top 15%"; - reads it from standard input)")
      ->type_name("NOTATION")
      ->excludes(name);
}

RunCommand OfferRangeText(CLI::App& command, std::string (*write)(std::string_view rangeText)) {
  struct Request {
    RangeOption range;
    std::string folder;
  };
  const auto request = std::make_shared<Request>();
  OfferRange(command, "--range", "--hands", request->range, "The range");
  OfferFolder(command, request->folder);
  return [request, write](const Surroundings& surroundings) {
    CommandInputs inputs(surroundings, request->folder);
    const auto range = inputs.Range(request->range);
    if (!range) return inputs.Status();
    surroundings.Output << write(range->Text) << '\n';
    return kDone;
  };
}

void OfferFolder(CLI::App& command, std::string& folder) {
  command
      .add_option("--folder", folder,
                  "The program folder that holds \"Ranges\" (default: the one that the command folder prints)")
      ->type_name("DIR");
}

void OfferFormat(CLI::App& command, std::string& format, std::vector<FormatName> formats) {
  format = formats.front().Name;
  std::vector<std::string> names;
  std::string meanings = "Formats:\n";
  for (const FormatName& row : formats) {
    names.emplace_back(row.Name);
    std::string name = row.Name;
    name.resize(std::max(name.size(), kHelpNameWidth), ' ');
    meanings += "  " + name + " " + row.Meaning + "\n";
  }
  command.add_option("--format", format, "How the answer is written (default: " + format + ")")
      ->type_name("F")
      ->check(CLI::IsMember(names));
  command.footer(meanings + "\n" + command.get_footer());
}

RunCommand OfferMoves(CLI::App& options, const char* SituationTexts::*description,
                      const std::function<void(const Scenario& scenario, CLI::App& command)>& offer,
                      std::function<int(AnalysisMode mode, const Surroundings& surroundings)> run) {
  std::string formats;
  for (const Scenario& scenario : kScenarios) {
    if (!scenario.HasExpectedValue()) continue;
    CLI::App* const command =
        options.add_subcommand(std::string(scenario.Command), RowOf(kSituationTexts, scenario.Mode).*description);
    offer(scenario, *command);
    formats = command->get_footer();
  }
  options.footer(formats);  // not sooner, as a subcommand would inherit it
  options.require_subcommand(1);
  return [&options, run = std::move(run)](const Surroundings& surroundings) {
    const std::string name = options.get_subcommands().front()->get_name();
    return run(std::ranges::find(kScenarios, name, &Scenario::Command)->Mode, surroundings);
  };
}

void OfferAmounts(CLI::App& command, AnalysisMode mode, std::size_t count, SituationOptions& situation) {
  const SituationTexts& texts = RowOf(kSituationTexts, mode);
  for (std::size_t i = 0; i < count; ++i)
    command.add_option(kAmountOptions.at(i), situation.Amounts.at(i), texts.Amounts.at(i))
        ->required()
        ->type_name("TEXT");
}

void OfferRanges(CLI::App& command, AnalysisMode mode, SituationOptions& situation) {
  const SituationTexts& texts = RowOf(kSituationTexts, mode);
  OfferRange(command, "--range", "--hands", situation.Range, texts.Range);
  if (texts.CallingRange == nullptr) return;
  OfferRange(command, "--calling-range", "--calling-hands", situation.CallingRange, texts.CallingRange);
}

void OfferHands(CLI::App& command, std::vector<std::string>& hands, const std::string& description) {
  command.add_option("--hand", hands, description)->type_name("LABEL")->check(CLI::Validator(WhyNoLabel, ""));
}

CommandInputs::CommandInputs(const Surroundings& surroundings, const std::string& folder)
    : surroundings_(surroundings), folder_{PathOf(folder)}, hands_(ReadHandNumbers()) {}

const ProgramFolder& CommandInputs::Folder() {
  if (folder_.Path.empty()) folder_.Path = surroundings_.ProgramFolder();
  return folder_;
}

bool CommandInputs::EvaluateAmount(std::string_view option, std::string& text) {
  PrintedMessages messages(surroundings_.Errors);
  text = EvalTextBox(text, messages);
  if (messages.Shown()) return false;
  if (const auto comma = CommaWarning(option, text)) surroundings_.Errors << *comma << '\n';
  return true;
}

std::optional<double> CommandInputs::Amount(std::string_view option, std::string text, LeastAmount least) {
  const std::optional<bool> evaluated = Attempt([&] { return EvaluateAmount(option, text); });
  if (!evaluated) return Refuse(Joined({option, ": ", kSumTooLarge}));
  if (!*evaluated) return std::nullopt;
  const double value = BoxValue(text);
  if (!IsNumericText(text) && !(text.empty() && least == LeastAmount::kZero))
    return Refuse(std::string(option) + ": \"" + text + "\" is not an amount");
  if (value > kMostAmount) return Refuse(std::string(option) + " may be at most " + NumberText(kMostAmount));
  if (value > 0 || (value == 0 && least == LeastAmount::kZero)) return value;
  return Refuse(std::string(option) + (least == LeastAmount::kZero ? " must not be below 0" : " must be above 0"));
}

std::optional<GivenRange> CommandInputs::Range(const RangeOption& option) {
  if (option.Hands) return TypedRange(*option.Hands);
  if (!option.Name) throw CLI::RequiredError(option.Options);
  return NamedRange(*option.Name);
}

std::optional<GivenRange> CommandInputs::RangeWithHands(const RangeOption& option) {
  std::optional<GivenRange> range = Range(option);
  if (!range || std::ranges::any_of(range->Weights, [](double weight) { return weight > 0; })) return range;
  return Refuse("The range \"" + range->Name + "\" has no hands.");
}

std::nullopt_t CommandInputs::Refuse(std::string_view reason) {
  surroundings_.Errors << reason << '\n';
  return std::nullopt;
}

std::optional<GivenRanges> CommandInputs::Ranges(const Scenario& scenario, const SituationOptions& situation) {
  const bool mayFold = scenario.HasCallingRange;
  auto range = mayFold ? Range(situation.Range) : RangeWithHands(situation.Range);
  auto calling = mayFold ? Range(situation.CallingRange) : GivenRange{};
  if (!range || !calling) return std::nullopt;
  return GivenRanges{*std::move(range), *std::move(calling)};
}

std::optional<GivenRange> CommandInputs::NamedRange(const std::string& name) {
  if (const auto unknown = WhyUnknown(name, Folder())) return Refuse(*unknown);
  const auto unreadable = WhyUnreadable(name, Folder());
  if (unreadable) Refuse(*unreadable);
  GivenRange range{name, LoadRangeText(Folder(), name)};
  range.Weights = RangeWeightsOf(range.Text);
  if (!unreadable) return range;
  status_ = kFailed;
  return std::nullopt;
}

std::optional<GivenRange> CommandInputs::TypedRange(const std::string& notation) {
  constexpr std::string_view kStandardInput = "-";
  const std::optional<std::string> typed = notation == kStandardInput ? StandardInput() : notation;
  if (!typed) return std::nullopt;
  RangeFinding finding = quillon::TypedRange(*typed, HandsBestFirst(hands_));
  if (auto* const range = std::get_if<GivenRange>(&finding)) return std::move(*range);
  return Refuse(std::get<std::string>(finding));
}

std::optional<std::string> CommandInputs::StandardInput() {
  if (inputTaken_) throw CLI::ValidationError("Standard input can be read for one range only");
  inputTaken_ = true;
  // One byte more than a notation may have is enough to see that it is too long.
  std::string text(kLongestNotation + 1, '\0');
  if (surroundings_.Input == nullptr) return "";
  // Not through the stream, which would take an error as the end of the input.
  const std::streamsize size =
      surroundings_.Input->rdbuf()->sgetn(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(size));
  return text;
}

}  // namespace quillon
