#pragma once

// One situation as one JSON object on one line: the form of a batch ("study/batch.h") and of a saved situation
// ("study/situation_file.h"). This only parses the line; its meaning is up to the caller.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "analysis/scenarios.h"
#include "results/analysis_json.h"

namespace quillon {

/// Longer lines are refused: no situation needs one, and readers can bound their memory.
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

/// The spelling of each key.
inline constexpr std::array<std::string_view, 9> kBatchKeys = {
    "id", kModeField, kPotField, kCallField, kShoveField, kRangeField, "hands", kCallingRangeField, "calling_hands"};

/// The keys of the amounts, in the order in which a scenario asks for them.
inline constexpr std::array<BatchKey, 3> kAmountKeys = {kPotKey, kCallKey, kShoveKey};

/// The values of a line, and its faults.
struct BatchLine {
  [[nodiscard]] const std::optional<std::string>& operator[](BatchKey key) const { return Values.at(key); }

  std::array<std::optional<std::string>, kBatchKeys.size()> Values;  // a number as written
  std::string Id = "null";  // as JSON, as far as the line could be read
  std::vector<std::string> Faults;  // in order, and only the first few
  std::string Broken;  // the fault because of which it is not one JSON object on one line, usually the last fault
};

/// Reads a line. A key whose value is null counts as missing. Unknown keys, repeated keys and values of the wrong form
/// are faults; the rest is read all the same. A byte-order mark before the line is skipped. Never fails.
[[nodiscard]] BatchLine ReadBatchLine(std::string_view line);

/// A key in double quotes.
[[nodiscard]] std::string QuotedKey(BatchKey key);

/// The scenario that a line names, or the error.
[[nodiscard]] std::variant<const Scenario*, std::string> ScenarioOfLine(const BatchLine& line);

/// A fault for each key of the line that its scenario does not ask for: "\"shove\" does not go with mode \"call\"".
[[nodiscard]] std::vector<std::string> ForeignKeys(const BatchLine& line, const Scenario& scenario);

/// An amount of a line.
struct LineAmount {
  std::string Text;  // as an amount box has it after editing: for a sum, its value
  std::string Fault;  // empty if there is an amount; otherwise the text is as written
};

/// The amount of a key. It is a fault if it is missing, or a sum that cannot be evaluated.
[[nodiscard]] LineAmount AmountOfLine(const BatchLine& line, BatchKey key);

/// The fault if a line has neither of two keys: "\"range\" or \"hands\" is missing".
[[nodiscard]] std::string Missing(BatchKey nameKey, BatchKey handsKey);

}  // namespace quillon
