#pragma once

// What the companion's commands are given, read and checked in one place: amounts as an amount box takes them, and
// ranges by name or by notation. What is wrong is told on standard error, and the command then ends with the status for
// it.

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
#include "ranges/range_text.h"
#include "study/given_range.h"
#include "support/message_boxes.h"
#include "tools/companion.h"
#include "tools/formats.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the library's own
class App;
}  // namespace CLI

namespace quillon {

/// Does what a command was asked for, and returns the exit status.
using RunCommand = std::function<int(const Surroundings& surroundings)>;

/// A command of the companion and what its help says. `Offer` adds its options to its part of the command line; what it
/// returns is called when they have been read.
struct Command {
  const char* Name;
  const char* Description;  // one line
  const char* About;  // what the line leaves out
  const char* Example;  // a command line after the program's name
  RunCommand (*Offer)(CLI::App& options);
};

/// Message boxes on standard error. A message has one button there, and nobody to press it.
class PrintedMessages final : public MessageBoxes {
 public:
  explicit PrintedMessages(std::ostream& errors) : errors_(errors) {}

  MessageAnswer Show(const Message& message) override;

  [[nodiscard]] bool Shown() const { return shown_; }

 private:
  std::ostream& errors_;
  bool shown_ = false;
};

/// A range as it is asked for: by its name, or by its notation ("ranges/range_notation.h"), "-" for that on standard
/// input.
struct RangeOption {
  std::optional<std::string> Name;
  std::optional<std::string> Hands;
  std::string Options;  // what they are called

  [[nodiscard]] bool Given() const { return Name || Hands; }
};

/// Adds a pair of options for one range, such as "--range" and "--hands", of which one may be used.
void OfferRange(CLI::App& command, const std::string& nameOption, const std::string& handsOption, RangeOption& range,
                const std::string& description);

/// The options of pot, call and shove.
inline constexpr std::array<const char*, 3> kAmountOptions = {"--pot", "--call", "--shove"};

/// What is asked for of a situation: amounts as typed, in the order of kAmountOptions, and ranges.
struct SituationOptions {
  std::array<std::string, 3> Amounts;
  RangeOption Range;
  RangeOption CallingRange;
};

/// Adds the first `count` amounts, each required, with what they mean in a scenario.
void OfferAmounts(CLI::App& command, AnalysisMode mode, std::size_t count, SituationOptions& situation);

/// Adds the ranges that a scenario asks for.
void OfferRanges(CLI::App& command, AnalysisMode mode, SituationOptions& situation);

/// Adds the options of a command that writes one range as text, and returns what writes it; `write` makes the text from
/// the range's.
[[nodiscard]] RunCommand OfferRangeText(CLI::App& command, std::string (*write)(std::string_view rangeText));

/// Adds "--folder".
void OfferFolder(CLI::App& command, std::string& folder);

/// Adds "--format" with formats, the first of which is the default, and tells their meanings in the command's help.
void OfferFormat(CLI::App& command, std::string& format, std::vector<FormatName> formats);

template <typename Row, std::size_t count>
void OfferFormat(CLI::App& command, std::string& format, const std::array<Row, count>& formats) {
  OfferFormat(command, format, std::vector<FormatName>(formats.begin(), formats.end()));
}

/// Nothing for the label of a class, and otherwise why it is none.
[[nodiscard]] std::string CheckLabel(const std::string& label);

enum class LeastAmount { kAboveZero, kZero };

/// The inputs of one run of a command.
class CommandInputs {
 public:
  /// Ranges are looked for in `folder`, or where it is empty in the program's own.
  CommandInputs(const Surroundings& surroundings, const std::string& folder);

  /// An amount, or nothing after it was told what is wrong with it: a number above 0, or not below it, or a sum such as
  /// "=735+220-178", and at most 1E+300, so that what is made of several is still a number. Where 0 is allowed, an
  /// empty text is 0, as in an amount box. A comma that cuts it short gives a warning.
  [[nodiscard]] std::optional<double> Amount(std::string_view option, std::string text, LeastAmount least);

  /// The first half of that: whether the text is not a sum or was replaced by the value of its sum.
  [[nodiscard]] bool EvaluateAmount(std::string_view option, std::string& text);

  /// A range, or nothing after it was told what is wrong with it: no file, a file that is none of a range, a notation
  /// that cannot be read, with its place. A text without weights fails as RangeWeightOf does, and standard input that
  /// cannot be read as DescriptorInput does. Wrong usage, which ends the command, if neither option is there or
  /// standard input is asked for twice.
  [[nodiscard]] std::optional<GivenRange> Range(const RangeOption& option);

  /// A range by its notation alone.
  [[nodiscard]] std::optional<GivenRange> TypedRange(const std::string& notation);

  /// As Range; a range that has no hands is refused, too.
  [[nodiscard]] std::optional<GivenRange> RangeWithHands(const RangeOption& option);

  /// Tells why an input is refused.
  void Refuse(std::string_view reason);

  /// The exit status after something was wrong with an input.
  [[nodiscard]] int Status() const { return status_; }

  /// Fails as Surroundings::ProgramFolder does.
  [[nodiscard]] const ProgramFolder& Folder();
  [[nodiscard]] const HandNumbers& Hands() const { return hands_; }

 private:
  [[nodiscard]] std::optional<GivenRange> NamedRange(const std::string& name);
  [[nodiscard]] std::optional<std::string> StandardInput();

  const Surroundings& surroundings_;
  ProgramFolder folder_;  // with an empty path until it is asked for
  HandNumbers hands_;
  bool inputTaken_ = false;
  int status_ = kRefused;
};

}  // namespace quillon
