#pragma once

// A situation as the user states it: amounts as typed, ranges by name. This is how it becomes what an analysis asks.

#include <optional>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "ranges/range_files.h"
#include "support/number_text.h"

namespace quillon {

/// What a scenario does not ask for may be left empty. A range is read from the file of its name, unless its text is
/// there.
struct EnteredSituation {
  std::string Pot;
  std::string Call;
  std::string Shove;
  std::string Range;
  std::string CallingRange;
  NumberMarks Marks{};  // how the user writes amounts, besides the plain way
  std::string RangeText{};
  std::string CallingRangeText{};
};

/// The value of a typed amount: every "$" is taken out, and the leading number of the rest counts. It never fails.
///
///     "150" -> 150      "$12.50" -> 12.5      "1,000" -> 1      "12abc" -> 12      "abc" -> 0      "" -> 0
[[nodiscard]] double BoxValue(std::string_view text);

/// The warning for an amount, called `name`, that a comma cuts short; nothing where the whole text counts, and for
/// what is not a number at all and so will be refused.
///
///     ("pot", "1,000") -> "Warning: pot 1,000 counts as 1; a comma ends a number."
[[nodiscard]] std::optional<std::string> CommaWarning(std::string_view name, const std::string& amount);

/// The values of the three amounts.
[[nodiscard]] Amounts AmountsOf(const EnteredSituation& entered);

/// The situation of a scenario, with range texts read from their files; a range without a readable file has the empty
/// text. What the scenario does not ask for stays as it is in a new Situation.
[[nodiscard]] Situation SituationOf(AnalysisMode mode, const EnteredSituation& entered, const ProgramFolder& folder);

}  // namespace quillon
