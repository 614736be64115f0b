#pragma once

// The equity table as text: what each of the 169 starting-hand classes takes of the pot against each other one when
// both are all in before the flop. No equity is computed while the program runs; every figure comes from here.
//
// Row i, column j (class index order, "AA" first, "22" last) is the mean of class i's result over all pairs of concrete
// hands of the two classes that share no card and all 1,712,304 boards for each pair, a tie counting one half, rounded
// to six decimals above the diagonal. Below it is 1 minus the mirror entry in 64-bit floating point, and "0.5" on
// it. The numbers are in the general number form, so that seven of them below the diagonal have an exponent
// ("5.37339999999999E-02").

#include <array>
#include <string_view>

namespace quillon {

/// The rows in class index order, each as two pieces: entries 0 to 85 and entries 86 to 168. Every number is followed
/// by one space, the last of a piece too, so the pieces put together are the row.
extern const std::array<std::array<std::string_view, 2>, 169> kEquityPieces;

}  // namespace quillon
