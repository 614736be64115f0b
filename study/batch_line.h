#pragma once

// One situation as one JSON object on one line: the form of a batch ("study/batch.h") and of a saved situation
// ("study/situation_file.h"). Here is what the line says; what that means is for those who asked.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "analysis/scenarios.h"

namespace quillon {

/// A longer line is refused: no situation needs it, and whoever reads lines need not keep more of one.
inline constexpr std::size_t kLongestBatchLine = 1 << 20;

/// The keys of a line.
enum BatchKey : std::size_t {
  kIdKey,
  kModeKey,
  kPotKey,
  kCallKey,
  kShoveKey,
  kRangeKey,
  kHandsKey,
  kCallingRangeKey,
  kCallingHandsKey,
};

/// How a line writes each of them.
inline constexpr std::array<std::string_view, 9> kBatchKeys = {
    "id", "mode", "pot", "call", "shove", "range", "hands", "calling_range", "calling_hands"};

/// The keys of the amounts, in the order in which a scenario asks for them.
inline constexpr std::array<BatchKey, 3> kAmountKeys = {kPotKey, kCallKey, kShoveKey};

/// The values of a line, and what is wrong with it.
struct BatchLine {
  [[nodiscard]] const std::optional<std::string>& operator[](BatchKey key) const { return Values.at(key); }

  std::array<std::optional<std::string>, kBatchKeys.size()> Values;  // a number as it is written
  std::string Id = "null";  // as JSON, as far as the line could be read
  std::vector<std::string> Faults;  // in their order, and no more than a handful
  std::string Broken;  // the first fault that leaves it no JSON object on one line, as a rule the last of all
};

/// Reads a line. A key whose value is null is one that is not there. At fault is any other key, and one that is there
/// twice, and a value of another form; all else is read all the same. A byte-order mark before the line is skipped.
/// Never fails.
[[nodiscard]] BatchLine ReadBatchLine(std::string_view line);

/// A key in double quotes.
[[nodiscard]] std::string QuotedKey(BatchKey key);

/// The scenario that a line names, or why it names none.
[[nodiscard]] std::variant<const Scenario*, std::string> ScenarioOfLine(const BatchLine& line);

/// What is wrong with each key of the line that does not go with its scenario: "\"shove\" does not go with mode
/// \"call\"".
[[nodiscard]] std::vector<std::string> ForeignKeys(const BatchLine& line, const Scenario& scenario);

/// An amount of a line.
struct LineAmount {
  std::string Text;  // as an amount box has it once its user has left it: of a sum, the value
  std::string Fault;  // empty where there is an amount; otherwise the text is as it is written
};

/// The amount of that key. At fault is one that is missing, and a sum that cannot be worked out.
[[nodiscard]] LineAmount AmountOfLine(const BatchLine& line, BatchKey key);

/// What is wrong where a line has neither of two keys: "\"range\" or \"hands\" is missing".
[[nodiscard]] std::string Missing(BatchKey nameKey, BatchKey handsKey);

}  // namespace quillon
