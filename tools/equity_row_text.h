#pragma once

// The equity table as text: counted points become entries of six decimals, entries become rows, and rows become the
// program's source file ("hand/equity_rows.cpp").
//
// A row is the equities of one class against the 169 classes in class order, 169 numbers in the general number form
// with one space after each, including the last. Above the diagonal is the counted equity, rounded to six decimals; on
// it "0.5"; below it 1 minus the mirror entry, in 64-bit floating point, so that a few of these show the rounding error
// in their fifteenth digit and need an exponent ("5.37339999999999E-02").

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/equity_enumeration.h"

namespace quillon {

/// `points` / `atStake` in millionths, rounded half to even, exactly: (1, 3) is 333333, (1, 400000) is 2. `points` must
/// not be negative and at most `atStake`, which must lie between 1 and 2^62 / 10^6.
[[nodiscard]] std::int64_t Millionths(std::int64_t points, std::int64_t atStake);

/// The row of class `row`, from the points that it wins from each class and the pairs of hands played:
///
///     row 0 -> "0.5 0.878595 0.874609 ... 0.822167 "      row 168 -> "0.177833 0.501067 ... 0.5 "
[[nodiscard]] std::string EquityRowText(std::size_t row, const std::array<std::int64_t, kClassCount>& points,
                                        const std::array<std::int64_t, kClassCount>& pairs);

/// The rows, one per line.
[[nodiscard]] std::string LinesOf(std::span<const std::string> rows);

/// The source file of these 169 rows, each as two literals: entries 0 to 85 and entries 86 to 168.
[[nodiscard]] std::string SourceTextOf(std::span<const std::string> rows);

/// A file of rows, with its name for errors.
struct RowFile {
  std::string name;
  std::string text;
};

/// The 169 rows in class order; or none, and the error.
struct JoinedRows {
  std::vector<std::string> rows;
  std::string problem;
};

/// Joins rows that were counted separately, one per line and in any order: the position of its "0.5" identifies a row's
/// class. Only a whole table is accepted: every line must be a row, no row may occur twice or be missing, and each
/// entry below the diagonal must match its mirror.
///
///     problem: "part3.txt, line 2: not a row of the table"      "part3.txt, line 2: a second row of AKs"
///              "no row of AKs"                                  "the rows of AA and AKs do not add up to 1"
[[nodiscard]] JoinedRows JoinRows(std::span<const RowFile> files);

}  // namespace quillon
