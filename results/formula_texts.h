#pragma once

// Numbers and formulas in the results. No amount has a currency sign.

#include <string>

#include "analysis/analysis.h"

namespace quillon {

/// `value` rounded to `digits` decimals, ties to even, in the general number form: (150, 2) is "150", (12.5, 2) is
/// "12.5", (62.5, 0) is "62". Fails as NumberText does.
[[nodiscard]] std::string RoundedText(double value, int digits);

/// The value of a shove as a formula: the pot when the opponent folds, otherwise the equity's share of everything minus
/// the money put in. Intentional: the number of decimals varies, as in the posts that players compare with: 4 for the
/// fold share and the first pot, 7 for the equity, 0 for the doubled shove, 2 for the other amounts.
///
///     pot 150, call 50, shove 100, fold share 0.4, equity 0.55 ->
///     "(0.4*150)+(1-0.4)*(0.55*(150+50+2*100)-(50+100))"
[[nodiscard]] std::string ShoveFormulaText(const Analysis& analysis, const HandResult& hand);

}  // namespace quillon
