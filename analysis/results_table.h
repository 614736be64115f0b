#pragma once

// The results table: everything an analysis finds out, as one text. Nothing is kept as numbers. Each class has one row,
// each row ends in CR LF, and its cells are separated by tabs:
//
//     AKs <tab> -12.3456789012345 <tab> 0.67 <tab> 0.25 <tab> <CR LF>
//
//     cell 0   the class label, the row's key
//     cell 1   the expected value, in the unit of the amount boxes; 0 in "Equity Only"
//     cell 2   the equity, 0 to 1; -1 if the opponent never calls
//     cell 3   the share of the opponent's hands that fold, 0 to 1; 1 where he has no choice
//
// Rows are in class index order, 169 of them in a finished table. Numbers have the general form, cut to 15 significant
// digits. A foreign row may have any number of cells: a missing one is empty, and a row without a tab is its own key.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"

namespace quillon {

inline constexpr std::int16_t kExpectedValueColumn = 1;
inline constexpr std::int16_t kEquityColumn = 2;

/// The result for one class: a row of the table as values.
struct HandResult {
  std::string_view Label{};
  std::int16_t Combos = 0;  // concrete hands in the class
  double ExpectedValue = 0;
  double Equity = 0;
  double FoldShare = 0;

  bool operator==(const HandResult&) const = default;
};

/// The cells of a row after its key, from column 1 on.
inline constexpr std::array kResultCells = {&HandResult::ExpectedValue, &HandResult::Equity, &HandResult::FoldShare};
inline constexpr std::int16_t kLastColumn = kResultCells.size();
static_assert(kResultCells[kExpectedValueColumn - 1] == &HandResult::ExpectedValue);
static_assert(kResultCells[kEquityColumn - 1] == &HandResult::Equity);

/// The table with `value` added to cell `column` of the row with the key `label`; an empty cell counts as 0, so writing
/// twice adds up. The row then has the cells 0 to `lastColumn`, each followed by a tab, and cells beyond are dropped.
/// If there is no such row, one with only this cell is appended:
///
///     ("", "AA", 1, 1.5, 3)                              -> "AA\t1.5\t\t\r\n"
///     ("AA\t1.5\t\t\r\n", "AA", 2, 0.85, 3)              -> "AA\t1.5\t0.85\t\t\r\n"
///     ("AA\t1.5\t0.85\t\t\r\n", "AA", 3, 0.25, 3)        -> "AA\t1.5\t0.85\t0.25\t\r\n"
///
/// Text after the last line end is dropped. A value that is not finite has no text: RunTimeError "Overflow".
[[nodiscard]] std::string SetHandInfo(std::string_view table, std::string_view label, std::int16_t column, double value,
                                      std::int16_t lastColumn);

/// The leading number of cell `column` in the first row with the key `label`, which may be a last row without line end;
/// 0 if there is no such row.
[[nodiscard]] double GetHandInfo(std::string_view table, std::string_view label, std::int16_t column);

/// The row with the key `label` as values, each as by GetHandInfo. `label` must outlive the result.
[[nodiscard]] HandResult GetHandResult(std::string_view table, std::string_view label);

/// The rows of all classes, in class index order, each as by GetHandResult. A finished table takes one pass, a tenth of
/// the time of separate searches.
[[nodiscard]] std::array<HandResult, kHandClassCount> GetHandResults(std::string_view table);

/// The finished row of a class, as three calls of SetHandInfo would make it; a table is a concatenation of such rows.
/// Fails as SetHandInfo does.
///
///     {"AA", 6, 120, 0.85, 1} -> "AA\t120\t0.85\t1\t\r\n"
[[nodiscard]] std::string ResultRow(const HandResult& result);

/// The label of a row with a high value in `column`; the empty text if no value is above -10000. It is not always the
/// highest: the best value so far is rounded to an integer, ties to even, so a slightly better later row may fail to
/// replace it, and a worse one may succeed. Intentional: colours and captions depend on it.
///
///     12.3, 12.6, 12.1 -> the second      12.6, 12.4, 12.7 -> the first, as nothing later exceeds 13
///
/// In a column of fractions it is the first row above 0.5, or else the last above 0.
[[nodiscard]] std::string BestHand(std::string_view table, std::int16_t column);

/// The label of the first row with the lowest value in `column`; the empty text if no value is below 10000.
[[nodiscard]] std::string WorstHand(std::string_view table, std::int16_t column);

}  // namespace quillon
