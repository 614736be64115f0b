#pragma once

// A whole run from box texts and range files to its columns, written again in the plainest way.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::plain {

/// The equity of one class against another: splits the row at its spaces and reads one number.
[[nodiscard]] double HandEquity(const std::string& hand, const std::string& opponentHand);

/// The weight of each of the 1326 hands of a range text, 0 for those with one of the two cards. A card may be any text:
/// it is searched for in the text of each hand. Each weight is read from the text.
[[nodiscard]] std::vector<double> Deal(std::string_view rangeText, std::string_view card1, std::string_view card2);

/// The outcome of an input: accepted, refused with a message, or a run-time error.
struct Outcome {
  std::string Title;  // of the message
  std::string Text;  // of the message, its lines separated by LF
  int Fault = 0;  // the number of the run-time error

  [[nodiscard]] bool GoesThrough() const { return Title.empty() && Fault == 0; }
  [[nodiscard]] bool IsRefused() const { return !Title.empty(); }

  /// A program's exit status for it, and its standard error: a message as "title: text", a run-time error without the
  /// detail in brackets.
  [[nodiscard]] int Status() const;
  [[nodiscard]] std::string Told() const;

  /// The outcome in words: "through", "with a run-time error", or "refused".
  [[nodiscard]] std::string Fate() const;
};

/// What a one-line box accepts of a UTF-8 text.
[[nodiscard]] std::string Line(std::string text);

/// What happens to the text of an amount box when the user leaves it; `text` becomes the new text.
[[nodiscard]] Outcome LeaveBox(std::string& text);

/// The value of a box.
[[nodiscard]] double BoxValue(std::string_view text);

/// The labels of the opponent's odds, such as "3 : 1, 25%", from the texts of the boxes for pot, call and shove; empty
/// for a run-time error.
struct Odds {
  std::string Labels;
  int Fault = 0;
};
[[nodiscard]] Odds OddsOf(std::string_view pot, std::string_view call, std::string_view shove);

enum class Mode { kCall, kRaise, kEquity };

/// A run, from boxes that have been left and existing range files.
struct Run {
  Mode Scenario = Mode::kEquity;
  std::string Pot = {};
  std::string Call = {};
  std::string Shove = {};
  std::string RangeFile = {};
  std::string CallingRangeFile = {};
};

/// The outcome of a run, and its columns in class index order if it succeeds.
struct Result {
  plain::Outcome Outcome = {};
  std::vector<double> ExpectedValues = {};
  std::vector<double> Equities = {};
  std::vector<double> FoldShares = {};

  /// The columns as a results table.
  [[nodiscard]] std::string Table() const;
};

/// Whether weights and equities are read from their texts once, or each time they are needed. The figures are the same;
/// benchmarks use the latter, which is the plain way to do what the program does.
enum class Reading { kOnce, kEachTime };

[[nodiscard]] Result ResultOf(const Run& run, Reading reading = Reading::kOnce);

}  // namespace quillon::plain
