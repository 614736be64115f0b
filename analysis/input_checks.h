#pragma once

// The checks before a run, one for each scenario. Each goes through its table in order and returns the first complaint,
// or none. Nothing is shown and nothing changes: the caller tells the user.
//
// The value of an amount (BoxValue) is tested before the text is tested for being a number (IsNumericText of the raw
// text, with the plain marks and the user's). So the complaint about "abc" is an amount of 0, that about "12abc" is not
// being numeric, and "1,000" passes as an amount of 1.

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

/// "Preflop Call": a range is chosen and has weight, the pot is larger than the call and both are above 0, and both are
/// numbers. The range is read from its file. A missing or empty file is not a complaint but a RunTimeError "Subscript
/// out of range", and a file that cannot be read as a range fails as DealRange does.
[[nodiscard]] std::optional<Complaint> CheckCallInputs(const EnteredSituation& entered, const ProgramFolder& folder);

/// "Preflop Raise": both ranges are chosen, pot and shove are above 0, the call is not below 0 (an empty text is 0),
/// and the texts are numbers. No range is opened: the run can handle an empty one.
[[nodiscard]] std::optional<Complaint> CheckRaiseInputs(const EnteredSituation& entered, const ProgramFolder& folder);

/// "Equity Only": a range is chosen and has weight. Fails as CheckCallInputs does.
[[nodiscard]] std::optional<Complaint> CheckEquityInputs(const EnteredSituation& entered, const ProgramFolder& folder);

}  // namespace quillon
