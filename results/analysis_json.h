#pragma once

// A finished analysis as a JSON object, for other programs. Keys have a fixed order; what the scenario does not have,
// such as the fold share of a call, is null. "hands" is an array of 169 objects in class index order.
//
//     {"mode": "call", "pot": 150, ..., "hands": [{"hand": "AA", "combos": 6, "ev": 120, ...}, ...]}

#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>
#include <vector>

#include "analysis/analysis.h"

namespace quillon {

/// The names of all fields: those of the object first, then those of each hand.
[[nodiscard]] std::vector<std::string> AnalysisFieldNames();

/// The object, with the fields of these names alone if there are any. A hand always has its label; naming some of its
/// fields leaves these, and naming "hands" alone leaves them all. Numbers read back as those of the results table, and
/// an equity of -1 says that the opponent never calls. A text may hold bytes that are not UTF-8, where a name does.
/// Fails as MakeGridTexts does, where its texts are among the fields.
[[nodiscard]] nlohmann::ordered_json AnalysisJson(const Analysis& analysis, std::span<const std::string> fields = {});

}  // namespace quillon
