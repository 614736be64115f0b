#pragma once

// Equity of one starting-hand class against another, read from the constant table of text. It is the share of the pot
// that the class wins when both hands are all in before the flop; see "hand/equity_rows.h" for its precision. There is
// no numeric form of the table: a lookup counts spaces along a row and reads one number, and nothing is cached.

#include <array>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"

namespace quillon {

/// Joins the two pieces of each row and stores the 169 rows. Called once at start, before anything asks for an equity;
/// further calls have no effect.
void LoadEquityTable();

/// The 169 rows in class index order, each of 169 numbers followed by one space each; empty texts before
/// LoadEquityTable, constant afterwards.
[[nodiscard]] const std::array<std::string, kHandClassCount>& EquityRows();

/// The equity, 0 to 1, of the class labelled `hand` against the class labelled `opponentHand`. The order matters: the
/// first picks the row, the second the column. A text that is not a label counts as "AA".
///
///     ("AA", "KK") -> 0.819461      ("KK", "AA") -> 0.180539      ("K2o", "KK") -> 0.0537339999999999
///
/// RunTimeError "Subscript out of range" if the table has not been loaded.
[[nodiscard]] double HandEquity(std::string_view hand, std::string_view opponentHand);

}  // namespace quillon
