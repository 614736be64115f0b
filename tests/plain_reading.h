#pragma once

// For tests of bad input: what a range file, a settings file or the text of an amount box is to be read as, and what is
// to be said of it, put down once more in the plainest way. Nothing here is shared with the program but the equity
// table, so that a fault would have to be made twice. Files are bytes, and a byte is a character of their code page.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

// ---- numbers

/// The number at the start of a text, blanks skipped wherever they stand; 0 where there is none.
[[nodiscard]] double PlainLeadingNumber(std::string_view text);

/// Whether the whole of a text is a number as people write amounts.
[[nodiscard]] bool PlainIsNumeric(std::string_view text);

/// A finite number in the general form.
[[nodiscard]] std::string PlainNumberText(double value);

// ---- what comes of an input

/// It goes through, or it is refused with a message, or it ends the program with a run-time error.
struct PlainOutcome {
  std::string Title;  // of the message
  std::string Text;  // of the message, its lines parted by LF
  int Fault = 0;  // the number of the run-time error

  [[nodiscard]] bool GoesThrough() const { return Title.empty() && Fault == 0; }
  [[nodiscard]] bool IsRefused() const { return !Title.empty(); }

  /// The exit status of a program that meets it, and what it writes to standard error: a message as "title: text", a
  /// run-time error without the detail in brackets.
  [[nodiscard]] int Status() const;
  [[nodiscard]] std::string Told() const;
};

/// In a word or three: "through", "with a run-time error", or "refused".
[[nodiscard]] std::string FateOf(const PlainOutcome& outcome);

/// What happens to the text of an amount box when the user is done with it; `text` becomes what it is left with.
[[nodiscard]] PlainOutcome LeaveBox(std::string& text);

/// The value of a box.
[[nodiscard]] double PlainBoxValue(std::string_view text);

/// The labels of the opponent's odds, as "3 : 1, 25%", from the texts of the boxes for pot, call and shove; nothing
/// where a run-time error stands in their place.
struct PlainOdds {
  std::string Labels;
  int Fault = 0;
};
[[nodiscard]] PlainOdds OddsOf(std::string_view pot, std::string_view call, std::string_view shove);

// ---- ranges

/// The 169 labels in class index order.
[[nodiscard]] const std::vector<std::string>& PlainLabels();

using PlainWeights = std::vector<double>;  // 169 of them

/// The weights in a range file; nothing where they cannot be read.
[[nodiscard]] std::optional<PlainWeights> WeightsIn(std::string_view file);

/// How a range file is listed behind its name, "0.5% selected", a tab, "AA"; nothing where it is no range.
[[nodiscard]] std::optional<std::string> ListingOf(std::string_view file);

// ---- runs

enum class PlainMode { kCall, kRaise, kEquity };

/// A run as the boxes and files state it, which are there.
struct PlainRun {
  PlainMode Mode = PlainMode::kEquity;
  std::string Pot;
  std::string Call;
  std::string Shove;
  std::string RangeFile;
  std::string CallingRangeFile;
};

/// What comes of a run, and its columns where it goes through.
struct PlainResult {
  PlainOutcome Outcome;
  std::vector<double> ExpectedValues;
  std::vector<double> Equities;
  std::vector<double> FoldShares;
};

/// The boxes have been left already.
[[nodiscard]] PlainResult ResultOf(const PlainRun& run);

// ---- settings

/// Whether a settings file has two bytes for a character, by the first two.
[[nodiscard]] bool PlainIsUtf16(std::string_view file);

/// The value of a key in a settings file, as bytes; empty where there is none, and in a file with two bytes for a
/// character.
[[nodiscard]] std::string SettingIn(std::string_view file, std::string_view section, std::string_view key);

/// Bytes of the code page as UTF-8.
[[nodiscard]] std::string PlainUtf8(std::string_view bytes);

}  // namespace quillon
