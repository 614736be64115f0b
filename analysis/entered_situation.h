#pragma once

// A situation as the user enters it, amounts as typed and ranges by name, and its conversion for the analysis.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/analysis.h"
#include "analysis/dealt_range.h"
#include "ranges/range_files.h"
#include "support/number_text.h"

namespace quillon {

/// Whatever a scenario does not ask for may be empty. A range is read from its file unless its text is given.
struct EnteredSituation {
  std::string Pot;
  std::string Call;
  std::string Shove;
  std::string Range;
  std::string CallingRange;
  NumberMarks Marks{};  // the user's marks in amounts, accepted besides the plain ones
  std::string RangeText{};
  std::string CallingRangeText{};
};

/// Where the amounts are, in the order of kAmounts.
inline constexpr std::array<std::string EnteredSituation::*, kAmounts.size()> kEnteredAmounts = {
    &EnteredSituation::Pot, &EnteredSituation::Call, &EnteredSituation::Shove};

/// The value of a typed amount: its leading number, once every "$" is removed. Never fails.
///
///     "150" -> 150      "$12.50" -> 12.5      "1,000" -> 1      "12abc" -> 12      "abc" -> 0      "" -> 0
[[nodiscard]] double BoxValue(std::string_view text);

/// The warning for an amount, called `name`, that a comma cuts short; nothing if the whole text counts, or if it is not
/// a number, which is refused anyway.
///
///     ("pot", "1,000") -> "Warning: pot 1,000 counts as 1; a comma ends a number."
[[nodiscard]] std::optional<std::string> CommaWarning(std::string_view name, const std::string& amount);

/// The values of the three amounts.
[[nodiscard]] Amounts AmountsOf(const EnteredSituation& entered);

/// DealText of a range by name: an empty `rangeText` is filled from the range's file first.
[[nodiscard]] HandList DealRange(const ProgramFolder& folder, std::string_view rangeName, std::string_view card1,
                                 std::string_view card2, std::string& rangeText);

/// The situation of a scenario, with range texts read from their files; the empty text for a range without a readable
/// file. Whatever the scenario does not ask for keeps its default.
[[nodiscard]] Situation SituationOf(AnalysisMode mode, const EnteredSituation& entered, const ProgramFolder& folder);

}  // namespace quillon
