#pragma once

// The inputs of the companion's commands, read and checked in one place: amounts as in an amount box, and ranges by
// name or by notation. Errors go to standard error, and the command then ends with the status for them.

#include <array>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/range_sources.h"
#include "analysis/scenarios.h"
#include "ranges/range_files.h"
#include "study/given_range.h"
#include "support/message_boxes.h"
#include "tools/companion.h"
#include "tools/formats.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the library's own
class App;
}  // namespace CLI

namespace quillon {

/// Runs a command and returns the exit status.
using RunCommand = std::function<int(const Surroundings& surroundings)>;

/// A command of the companion with its help. `Offer` adds its options to its part of the command line; the function
/// that it returns is called once they have been parsed.
struct Command {
  const char* Name;
  const char* Description;  // one line
  const char* About;  // the details
  const char* Example;  // a command line after the program's name
  RunCommand (*Offer)(CLI::App& options);
};

/// Message boxes printed to standard error. Every message there has a single button.
class PrintedMessages final : public MessageBoxes {
 public:
  explicit PrintedMessages(std::ostream& errors) : errors_(errors) {}

  MessageAnswer Show(const Message& message) override;

  [[nodiscard]] bool Shown() const { return shown_; }

 private:
  std::ostream& errors_;
  bool shown_ = false;
};

/// A range option: by name, or by notation ("ranges/range_notation.h"), with "-" for one from standard input.
struct RangeOption {
  std::optional<std::string> Name;
  std::optional<std::string> Hands;
  std::string Options;  // the names of its options

  [[nodiscard]] bool Given() const { return Name || Hands; }
};

/// Adds a pair of options for one range, such as "--range" and "--hands", which exclude each other.
void OfferRange(CLI::App& command, const std::string& nameOption, const std::string& handsOption, RangeOption& range,
                const std::string& description);

/// The options of pot, call and shove.
inline constexpr std::array<const char*, kAmounts.size()> kAmountOptions = {"--pot", "--call", "--shove"};

/// A situation as given: amounts as typed, in the order of kAmountOptions, and ranges.
struct SituationOptions {
  std::array<std::string, kAmounts.size()> Amounts;
  RangeOption Range;
  RangeOption CallingRange;
};

/// The help's texts for a scenario: its amounts and ranges, and the commands about its move.
struct SituationTexts {
  AnalysisMode Mode = AnalysisMode::kNone;
  std::array<const char*, kAmounts.size()> Amounts{};
  const char* Range = nullptr;
  const char* CallingRange = nullptr;
  const char* Limits = nullptr;
  const char* Sweep = nullptr;
};

inline constexpr ScenarioTable<SituationTexts> kSituationTexts = {{
    {AnalysisMode::kPreflopCall,
     {"Everything in the pot, his bet included", "What you must put in to call"},
     "His range",
     nullptr,
     "The largest all-in that each hand can call",
     "Calling an all-in; one amount is FROM:TO:STEP"},
    {AnalysisMode::kPreflopRaise,
     {"Everything in the pot", "What you must put in to call, 0 if you are first to act",
      "What he must put in to call your shove"},
     "His range now",
     "The range he calls your shove with",
     "The largest shove that is good with each hand",
     "Going all in; one amount is FROM:TO:STEP"},
    {AnalysisMode::kEquityOnly, {}, "His range", nullptr, nullptr, nullptr},
}};
static_assert(CoversEveryScenario(kSituationTexts));

/// Adds a subcommand for each scenario with an expected value, and returns what runs the one that is given. `offer`
/// adds the options, and all have the same formats.
[[nodiscard]] RunCommand OfferMoves(CLI::App& options, const char* SituationTexts::*description,
                                    const std::function<void(const Scenario& scenario, CLI::App& command)>& offer,
                                    std::function<int(AnalysisMode mode, const Surroundings& surroundings)> run);

/// Adds the first `count` amounts, each required, with their meanings in a scenario.
void OfferAmounts(CLI::App& command, AnalysisMode mode, std::size_t count, SituationOptions& situation);

/// Adds the ranges that a scenario asks for.
void OfferRanges(CLI::App& command, AnalysisMode mode, SituationOptions& situation);

/// Adds the options of a command that prints one range in some form, and returns the function that runs it; `write`
/// makes the output from the range's text.
[[nodiscard]] RunCommand OfferRangeText(CLI::App& command, std::string (*write)(std::string_view rangeText));

/// Adds "--folder".
void OfferFolder(CLI::App& command, std::string& folder);

/// Adds "--format" with formats, the first of which is the default, and lists them in the command's help.
void OfferFormat(CLI::App& command, std::string& format, std::vector<FormatName> formats);

template <typename Row, std::size_t count>
void OfferFormat(CLI::App& command, std::string& format, const std::array<Row, count>& formats) {
  OfferFormat(command, format, std::vector<FormatName>(formats.begin(), formats.end()));
}

/// Adds "--hand" for labels of classes.
void OfferHands(CLI::App& command, std::vector<std::string>& hands, const std::string& description);

/// The ranges of a situation. The second is empty in a scenario without a calling range.
struct GivenRanges {
  GivenRange Range;
  GivenRange CallingRange;
};

enum class LeastAmount { kAboveZero, kZero };

/// The inputs of one run of a command.
class CommandInputs {
 public:
  /// Ranges are in `folder`, or in the program's own if it is empty.
  CommandInputs(const Surroundings& surroundings, const std::string& folder);

  /// An amount, or nothing after an error message: a number above 0, or not below it, or a sum such as "=735+220-178",
  /// and at most 1E+300, so that computing with several does not overflow. Where 0 is allowed, an empty text is 0, as
  /// in an amount box. A comma that cuts it short gives a warning.
  [[nodiscard]] std::optional<double> Amount(std::string_view option, std::string text, LeastAmount least);

  /// The first half of that: replaces a sum by its value; false if it cannot be evaluated.
  [[nodiscard]] bool EvaluateAmount(std::string_view option, std::string& text);

  /// A range, or nothing after an error message: no file, a file that is not a range, an invalid notation, with its
  /// place. A text without weights fails as RangeWeightOf does, and unreadable standard input as DescriptorInput does.
  /// Wrong usage, which ends the command, if neither option is given or standard input is used twice.
  [[nodiscard]] std::optional<GivenRange> Range(const RangeOption& option);

  /// A range by notation only.
  [[nodiscard]] std::optional<GivenRange> TypedRange(const std::string& notation);

  /// As Range; a range without hands is refused too.
  [[nodiscard]] std::optional<GivenRange> RangeWithHands(const RangeOption& option);

  /// The ranges that a scenario asks for, each as by Range; one that never folds must have hands.
  [[nodiscard]] std::optional<GivenRanges> Ranges(const Scenario& scenario, const SituationOptions& situation);

  /// Reports why an input is refused. Always nothing, so that a failure can be returned.
  std::nullopt_t Refuse(std::string_view reason);

  /// The exit status after an input error.
  [[nodiscard]] int Status() const { return status_; }

  /// The folder of the ranges. Fails as Surroundings::ProgramFolder does.
  [[nodiscard]] const ProgramFolder& Folder();
  [[nodiscard]] const HandNumbers& Hands() const { return hands_; }

 private:
  [[nodiscard]] std::optional<GivenRange> NamedRange(const std::string& name);
  [[nodiscard]] std::optional<std::string> StandardInput();

  const Surroundings& surroundings_;
  ProgramFolder folder_;  // with an empty path until first used
  HandNumbers hands_;
  bool inputTaken_ = false;
  int status_ = kRefused;
};

}  // namespace quillon
