// Tables from any text, against the oracle.

#include <cmath>
#include <optional>
#include <string>

#include "analysis/results_table.h"
#include "fuzz/fuzz_target.h"
#include "support/run_time_error.h"
#include "testing/oracle/results_tables.h"
#include "testing/split_text.h"

namespace quillon {
namespace {

// The changed table; nothing if its number has no text.
std::optional<std::string> Changed(std::string_view table, std::string_view label, std::int16_t column, double value,
                                   std::int16_t lastColumn) {
  try {
    return SetHandInfo(table, label, column, value, lastColumn);
  } catch (const RunTimeError& error) {
    Require(error.Fault() == RunTimeFault::kOverflow, "a number without a text overflows");
    return std::nullopt;
  }
}

}  // namespace

void CheckInput(FuzzInput input) {
  constexpr std::size_t kMostColumns = 8;
  constexpr std::size_t kLongestLabel = 5;
  const std::size_t lastColumn = input.TakeBelow(kMostColumns);
  const std::size_t column = input.TakeBelow(lastColumn + 1);
  const double value = input.TakeDouble();
  const std::string anyLabel(input.TakeText(input.TakeBelow(kLongestLabel + 1)));
  const std::string_view table = input.Rest();
  const std::string ownLabel = Split(table.substr(table.size() / 2), "\t")[0];

  const auto number = static_cast<std::int16_t>(column);
  const auto last = static_cast<std::int16_t>(lastColumn);
  const plain::ResultsTable plainTable(table);
  for (const std::string& label : {anyLabel, ownLabel, std::string("AA")}) {
    Require(Changed(table, label, number, value, last) == plainTable.WithValue(label, column, value, lastColumn),
            "a changed table equals the plain one");
    Require(GetHandInfo(table, label, number) == plainTable.Cell(label, column), "a cell equals the plain one");
  }
  Require(BestHand(table, number) == plainTable.Best(column), "the best hand is the plain one");
  Require(WorstHand(table, number) == plainTable.Worst(column), "the worst hand is the plain one");
}

}  // namespace quillon
