#pragma once

// The equity of a hand against a range: the mean of its equities against the concrete hands that the opponent may hold,
// each counted by its weight. The table of equities is one of class against class, so which suits survive decides how
// much a class counts and nothing else.

#include <string_view>

#include "analysis/dealt_range.h"

namespace quillon {

/// The equity, 0 to 1, of the class `heroLabel` against a dealt range:
///
///     sum of weight * equity / sum of weight,      over the records with a weight above 0, in the list's order
///
/// A range of aces alone, dealt around "As" and "Ac", leaves AA one opponent, "Ah Ad", and gives 0.5. A list without
/// any weight has no mean: RunTimeError "Overflow"; so callers ask for the weight first. A list without records is a
/// RunTimeError "Subscript out of range".
[[nodiscard]] double EquityVsRange(std::string_view heroLabel, const HandList& list);

}  // namespace quillon
