#pragma once

// The checks before a run, one for each scenario. Each looks at what the user has entered, in the order of its table,
// and answers with the first complaint, or with none. Nothing is shown and nothing changes: the caller tells the
// user.
//
// Amounts are tested for their value (BoxValue) before they are tested for being numbers at all (IsNumericText of
// the raw text, in the plain notation and the user's own). So "abc" is complained of as an amount of 0, "12abc" as not
// numeric, and "1,000" passes as an amount of 1.

#include <optional>
#include <string_view>

#include "analysis/entered_situation.h"

namespace quillon {

/// What to tell the user: one message under its title.
struct Complaint {
  std::string_view Title;
  std::string_view Text;

  bool operator==(const Complaint&) const = default;
};

/// The check of a scenario, one of the three below.
[[nodiscard]] std::optional<Complaint> CheckInputs(AnalysisMode mode, const EnteredSituation& entered,
                                                   const ProgramFolder& folder);

/// "Preflop Call": a range is chosen and has weight, the pot is above the call and both are above 0, and both are
/// numbers. The range is read from its file; if there is no such file, or nothing in it, that is not a complaint but a
/// RunTimeError "Subscript out of range", and a file that cannot be read as a range fails as DealRange does.
[[nodiscard]] std::optional<Complaint> CheckCallInputs(const EnteredSituation& entered, const ProgramFolder& folder);

/// "Preflop Raise": both ranges are chosen, pot and shove are above 0, the call is not below 0 (an empty text is 0),
/// and the texts are numbers. No range is opened: an empty one has its meaning in the run.
[[nodiscard]] std::optional<Complaint> CheckRaiseInputs(const EnteredSituation& entered, const ProgramFolder& folder);

/// "Equity Only": a range is chosen and has weight. Fails as CheckCallInputs does.
[[nodiscard]] std::optional<Complaint> CheckEquityInputs(const EnteredSituation& entered, const ProgramFolder& folder);

}  // namespace quillon
