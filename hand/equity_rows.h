#pragma once

// The equity table as text: the share of the pot that each of the 169 starting-hand classes wins against each class
// when both are all in before the flop. The program computes no equities; every figure comes from here.
//
// Row i, column j (in class index order, "AA" first, "22" last) is the mean of class i's result over all pairs of
// concrete hands of the two classes that share no card and all 1,712,304 boards for each pair, a tie counting one half,
// rounded to six decimals above the diagonal. Below it is 1 minus the mirror entry in 64-bit floating point, and "0.5"
// on it. The numbers are in the general number form, so seven of them below the diagonal have an exponent
// ("5.37339999999999E-02").

#include <array>
#include <string_view>

namespace quillon {

/// The rows in class index order, each as two pieces: entries 0 to 85 and entries 86 to 168. Every number is followed
/// by one space, also at the end of a piece, so the concatenated pieces are the row.
extern const std::array<std::array<std::string_view, 2>, 169> kEquityPieces;

}  // namespace quillon
