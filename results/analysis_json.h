#pragma once

// A finished analysis as a JSON object, for other programs. Keys have a fixed order; a value that the scenario does not
// have, such as the fold share of a call, is null. "hands" is an array of 169 objects in class index order.
//
//     {"mode": "call", "pot": 150, ..., "hands": [{"hand": "AA", "combos": 6, "ev": 120, ...}, ...]}

#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis.h"

namespace quillon {

/// The keys that an analysis shares with the question that asks for it ("study/batch_line.h").
inline constexpr std::string_view kModeField = "mode";
inline constexpr std::string_view kPotField = "pot";
inline constexpr std::string_view kCallField = "call";
inline constexpr std::string_view kShoveField = "shove";
inline constexpr std::string_view kRangeField = "range";
inline constexpr std::string_view kCallingRangeField = "calling_range";

/// The names of all fields: those of the object first, then those of each hand.
[[nodiscard]] std::vector<std::string> AnalysisFieldNames();

/// The object, with only the named fields if any are named. A hand always has its label; naming some of its fields
/// keeps just these, and naming only "hands" keeps them all. Numbers read back as in the results table, and an equity
/// of -1 means that the opponent never calls. A text may contain bytes that are not UTF-8 if a name does. Fails as
/// MakeGridTexts does if its texts are among the fields.
[[nodiscard]] nlohmann::ordered_json AnalysisJson(const Analysis& analysis, std::span<const std::string> fields = {});

}  // namespace quillon
