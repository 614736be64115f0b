#include "tools/companion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/input_checks.h"
#include "hand/equity_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_files.h"
#include "ranges/range_lists.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "results/results_grid.h"
#include "shell/expressions.h"
#include "shell/version.h"
#include "support/message_boxes.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "support/run_time_error.h"
#include "tools/analysis_output.h"
#include "tools/nearest_names.h"

namespace quillon {
namespace {

// How an analysis is asked for on the command line: what its help says of the command, of each amount, and of each
// range.
struct AnalysisCommand {
  AnalysisMode Mode = AnalysisMode::kNone;
  const char* Description = nullptr;
  std::array<const char*, 3> Amounts{};  // pot, call, shove
  std::array<const char*, 2> Ranges{};  // his range, the one he calls with
};

constexpr ScenarioTable<AnalysisCommand> kAnalysisCommands = {{
    {AnalysisMode::kPreflopCall,
     "What each hand wins or loses by calling an all-in",
     {"Everything in the pot, his bet included", "What you must put in to call"},
     {"His range"}},
    {AnalysisMode::kPreflopRaise,
     "What each hand wins or loses by going all in",
     {"Everything in the pot", "What you must put in to call, 0 if you are first to act",
      "What he must put in to call your shove"},
     {"His range now", "The range he calls your shove with"}},
    {AnalysisMode::kEquityOnly, "The equity of each hand against a range", {}, {"His range"}},
}};
static_assert(CoversEveryScenario(kAnalysisCommands));

// Message boxes on standard error. A message has one button there, and nobody to press it.
class PrintedMessages final : public MessageBoxes {
 public:
  explicit PrintedMessages(std::ostream& errors) : errors_(errors) {}

  MessageAnswer Show(const Message& message) override {
    errors_ << message.title << ": " << UnixLineEnds(message.text) << '\n';
    shown_ = true;
    return message.buttons == MessageButtons::kOk ? MessageAnswer::kOk : MessageAnswer::kCancel;
  }

  [[nodiscard]] bool Shown() const { return shown_; }

 private:
  std::ostream& errors_;
  bool shown_ = false;
};

// The progress of a run, drawn over and over on one line. Most runs are over before anyone could read it, and show
// none.
class ProgressBar {
 public:
  explicit ProgressBar(const Surroundings& surroundings) : surroundings_(surroundings), start_(surroundings.Now()) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar(ProgressBar&&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ProgressBar& operator=(ProgressBar&&) = delete;
  // A run that fails half-way leaves its bar, and the failure's text must not follow it on the line.
  ~ProgressBar() {
    if (shows_) surroundings_.Errors << "\r\x1b[K" << std::flush;
  }

  void Show(std::size_t classesDone) {
    constexpr std::chrono::milliseconds kPatience(500);
    if (!surroundings_.Terminal.ShowProgress || surroundings_.Now() - start_ <= kPatience) return;
    constexpr std::size_t kCharacters = 40;
    const std::size_t filled = kCharacters * classesDone / kHandClassCount;
    const std::string bar = std::string(filled, '#') + std::string(kCharacters - filled, ' ');
    const double percent = PercentOf(static_cast<double>(classesDone), kHandClassCount, 0);
    surroundings_.Errors << "\r[" << bar << "] " << NumberText(percent) << '%' << std::flush;
    shows_ = true;
  }

 private:
  const Surroundings& surroundings_;
  std::chrono::steady_clock::time_point start_;
  bool shows_ = false;
};

struct Request {
  EnteredSituation situation;
  std::string folder;
  std::string format{kOutputFormatNames[0]};
  std::vector<std::string> hands;
};

ProgramFolder FolderOf(const Request& request, const Surroundings& surroundings) {
  if (request.folder.empty()) return {surroundings.ProgramFolder};
  return {request.folder};
}

// What `read` returns, nothing where it ends in a run-time error.
template <typename Read>
auto Attempt(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

// A text may be read as a range and still be none: a letter, a picture. A range has at least one class with a weight.
bool HoldsAnEntry(std::string_view text) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    if (text.find(std::string(HandLabel(index)) + " (") != std::string_view::npos) return true;
  }
  return false;
}

bool IsReadable(const std::string& name, const ProgramFolder& folder) {
  const std::string text = LoadRangeText(folder, name);
  return HoldsAnEntry(text) && Attempt([&] { return SelectedCombos(text); });
}

// The failure over such a range comes later, and does not know which file it is about.
void PointOutUnreadable(const std::string& name, const ProgramFolder& folder, std::ostream& errors) {
  if (IsReadable(name, folder)) return;
  errors << "The range \"" << name << "\" cannot be read: " << RangeFilePath(folder, name).string()
         << " is missing, empty or no range file.\n";
}

std::vector<std::string> RangeNames(const ProgramFolder& folder) {
  std::vector<std::string> names;
  for (const std::string& file : RangeFolderEntries(folder)) {
    if (auto name = Attempt([&] { return RangeNameOfFile(file); })) names.push_back(*std::move(name));
  }
  return names;
}

bool HasFile(const std::string& name, const ProgramFolder& folder) {
  std::error_code none;
  return std::filesystem::exists(std::filesystem::symlink_status(RangeFilePath(folder, name), none));
}

// Whether one of the names is no range's; each that is not is told.
bool RefuseUnknown(const std::vector<std::string>& names, const ProgramFolder& folder, std::ostream& errors) {
  constexpr std::size_t kSuggestions = 3;
  bool refused = false;
  for (const std::string& name : names) {
    if (HasFile(name, folder)) continue;
    refused = true;
    const std::vector<std::string> nearest = NearestNames(name, RangeNames(folder), kSuggestions);
    errors << "There is no range \"" << name << "\" in " << RangeFolderPath(folder).string() << ".";
    std::string_view separator = " The nearest names: ";
    for (const std::string& near : nearest) {
      errors << separator << '"' << near << '"';
      separator = ", ";
    }
    errors << '\n';
  }
  return refused;
}

// Thousands separators pass for a number, but the value ends at the first. What is no number at all is refused.
void WarnOfComma(std::string_view option, const std::string& amount, std::ostream& errors) {
  std::string whole = amount;
  std::erase(whole, ',');
  const double value = BoxValue(amount);
  if (!IsNumericText(amount) || value == BoxValue(whole)) return;
  errors << "Warning: " << option << ' ' << amount << " counts as " << NumberText(value)
         << "; a comma ends a number.\n";
}

Analysis AnalyzeWithProgress(Situation situation, const Surroundings& surroundings) {
  ProgressBar bar(surroundings);
  return *Analyze(std::move(situation), {.GoesOn = [&bar](std::int16_t index, const Analysis& /*soFar*/) {
                    bar.Show(static_cast<std::size_t>(index) + 1);
                    return true;
                  }});
}

int PrintAnalysis(AnalysisMode mode, Request request, const Surroundings& surroundings) {
  PrintedMessages messages(surroundings.Errors);
  EnteredSituation& situation = request.situation;
  for (std::string* const amount : {&situation.Pot, &situation.Call, &situation.Shove}) {
    *amount = EvalTextBox(*amount, messages);
    if (messages.Shown()) return kRefused;
  }
  const ProgramFolder folder = FolderOf(request, surroundings);
  std::vector<std::string> names = {situation.Range, situation.CallingRange};
  std::erase(names, "");  // the input checks have their own words for it
  if (RefuseUnknown(names, folder, surroundings.Errors)) return kRefused;
  for (const std::string& name : names)
    PointOutUnreadable(name, folder, surroundings.Errors);
  WarnOfComma("--pot", situation.Pot, surroundings.Errors);
  WarnOfComma("--call", situation.Call, surroundings.Errors);
  WarnOfComma("--shove", situation.Shove, surroundings.Errors);
  if (const auto complaint = CheckInputs(mode, situation, folder)) {
    surroundings.Errors << complaint->Title << ": " << complaint->Text << '\n';
    return kRefused;
  }

  LoadEquityTable();
  const Analysis analysis = AnalyzeWithProgress(SituationOf(mode, situation, folder), surroundings);
  const OutputFormat format = OutputFormatOf(request.format);
  const std::string text = AnalysisOutput(format, analysis, request.hands);
  if (format == OutputFormat::kPlain && surroundings.Terminal.ShowColors) {
    surroundings.Output << TerminalGrid(GridColors(analysis)) << '\n';
  }
  surroundings.Output << text;
  return kDone;
}

int Summarize(const Request& request, const Surroundings& surroundings) {
  const ProgramFolder folder = FolderOf(request, surroundings);
  const std::string& name = request.situation.Range;
  if (RefuseUnknown({name}, folder, surroundings.Errors)) return kRefused;
  PointOutUnreadable(name, folder, surroundings.Errors);
  const std::string summary = RangeSummary(LoadRangeText(folder, name));
  if (!IsReadable(name, folder)) return kFailed;
  surroundings.Output << summary << '\n';
  return kDone;
}

std::string ListingLine(const std::string& file, const ProgramFolder& folder) {
  const std::string name = RangeNameOfFile(file);
  const std::string text = LoadRangeText(folder, name);
  return name + '\t' + SelectionCaption(SelectedCombos(text)) + '\t' + RangeSummary(text) + '\n';
}

// One file that is no range must not hide the others.
int ListRanges(const Request& request, const Surroundings& surroundings) {
  const ProgramFolder folder = FolderOf(request, surroundings);
  int status = kDone;
  for (const std::string& file : RangeFolderEntries(folder)) {
    const auto line = Attempt([&] { return ListingLine(file, folder); });
    if (line && IsReadable(RangeNameOfFile(file), folder)) {
      surroundings.Output << *line;
      continue;
    }
    surroundings.Errors << (RangeFolderPath(folder) / file).string() << " cannot be read, is empty or no range file.\n";
    status = kFailed;
  }
  return status;
}

std::string CheckLabel(const std::string& label) {
  if (HandLabel(HandIndex(label)) == label) return {};
  return "\"" + label + "\" is no starting hand; hands are written as AA, AKs or AKo";
}

// The command line, with the request that it fills in.
class CommandLine {
 public:
  CommandLine() {
    app_.require_subcommand(0, 1);
    app_.set_version_flag("--version", "quillon-cli " + VersionText());
    AddText(summary_, "--range", request_.situation.Range, "The range");
    AddFolder(summary_);
    AddFolder(ranges_);
    app_.add_subcommand(kHelpCommand, "This text; the options of a command with its name after it");
  }

  /// Nothing, or the exit status with which the program is to end after what has been printed.
  std::optional<int> Parse(std::span<const std::string> arguments, const Surroundings& surroundings) {
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());  // as the library takes them
    if (!reversed.empty() && reversed.back() == kHelpCommand) {
      reversed.pop_back();
      reversed.insert(reversed.begin(), "--help");
    }
    try {
      app_.parse(std::move(reversed));
      CheckTogether();
    } catch (const CLI::ParseError& error) {
      const int status = app_.exit(error, surroundings.Output, surroundings.Errors);
      return status == 0 ? kDone : kWrongUsage;
    }
    return std::nullopt;
  }

  int Run(const Surroundings& surroundings) {
    for (std::size_t i = 0; i < analyses_.size(); ++i) {
      if (analyses_[i]->parsed()) return PrintAnalysis(kScenarios[i].Mode, request_, surroundings);
    }
    if (summary_->parsed()) return Summarize(request_, surroundings);
    return ListRanges(request_, surroundings);
  }

 private:
  static constexpr const char* kHelpCommand = "help";

  static void AddText(CLI::App* command, const char* option, std::string& text, const char* description) {
    const bool name = std::string_view(option).ends_with("range");
    command->add_option(option, text, description)->required()->type_name(name ? "NAME" : "TEXT");
  }

  std::array<CLI::App*, kScenarios.size()> AddAnalyses() {
    std::array<CLI::App*, kScenarios.size()> commands{};
    std::transform(kAnalysisCommands.begin(), kAnalysisCommands.end(), commands.begin(),
                   [this](const AnalysisCommand& row) { return AddAnalysis(ScenarioOf(row.Mode), row); });
    return commands;
  }

  CLI::App* AddAnalysis(const Scenario& scenario, const AnalysisCommand& row) {
    CLI::App* const command = app_.add_subcommand(std::string(scenario.Command), row.Description);
    EnteredSituation& situation = request_.situation;
    if (scenario.AmountCount > 0) AddText(command, "--pot", situation.Pot, row.Amounts[0]);
    if (scenario.AmountCount > 1) AddText(command, "--call", situation.Call, row.Amounts[1]);
    if (scenario.AmountCount > 2) AddText(command, "--shove", situation.Shove, row.Amounts[2]);
    AddText(command, "--range", situation.Range, row.Ranges[0]);
    if (scenario.HasCallingRange) AddText(command, "--calling-range", situation.CallingRange, row.Ranges[1]);
    AddOutputOptions(command);
    AddFolder(command);
    return command;
  }

  void AddFolder(CLI::App* command) {
    command
        ->add_option("--folder", request_.folder,
                     "The program folder that holds \"Ranges\" (default: the executable's own)")
        ->type_name("DIR");
  }

  void AddOutputOptions(CLI::App* command) {
    const std::vector<std::string> formats(kOutputFormatNames.begin(), kOutputFormatNames.end());
    command->add_option("--format", request_.format, "plain (default), 2+2, table, json or csv")
        ->type_name("F")
        ->check(CLI::IsMember(formats));
    command->add_option("--hand", request_.hands, "With 2+2: adds the working of these hands")
        ->type_name("LABEL")
        ->check(CLI::Validator(CheckLabel, ""));
  }

  void CheckTogether() const {
    if (app_.get_subcommands().empty()) {
      throw CLI::ValidationError("Say what to do: call, raise, equity, summary or ranges");
    }
    if (!request_.hands.empty() && OutputFormatOf(request_.format) != OutputFormat::kForum) {
      throw CLI::ValidationError("--hand goes with --format 2+2 only");
    }
  }

  Request request_;
  CLI::App app_{"Call the all-in, or shove yourself? The answer for all 169 starting hands.", "quillon-cli"};
  std::array<CLI::App*, kScenarios.size()> analyses_ = AddAnalyses();
  CLI::App* summary_ = app_.add_subcommand("summary", "The short notation of one range");
  CLI::App* ranges_ = app_.add_subcommand("ranges", "Every range: name, percent selected, short notation");
};

}  // namespace

int RunCompanion(std::span<const std::string> arguments, const Surroundings& surroundings) {
  CommandLine commandLine;
  if (const auto status = commandLine.Parse(arguments, surroundings)) return *status;
  return commandLine.Run(surroundings);
}

}  // namespace quillon
