#pragma once

// The commands of the companion, one file each.

#include <array>

#include "tools/command_inputs.h"

namespace quillon {

[[nodiscard]] RunCommand OfferCall(CLI::App& options);
[[nodiscard]] RunCommand OfferRaise(CLI::App& options);
[[nodiscard]] RunCommand OfferEquity(CLI::App& options);
[[nodiscard]] RunCommand OfferSummary(CLI::App& options);
[[nodiscard]] RunCommand OfferRanges(CLI::App& options);
[[nodiscard]] RunCommand OfferNotation(CLI::App& options);
[[nodiscard]] RunCommand OfferSave(CLI::App& options);
[[nodiscard]] RunCommand OfferMatrix(CLI::App& options);
[[nodiscard]] RunCommand OfferLimits(CLI::App& options);
[[nodiscard]] RunCommand OfferSweep(CLI::App& options);
[[nodiscard]] RunCommand OfferBalance(CLI::App& options);

inline constexpr std::array<Command, 11> kCommands = {{
    {"call", "What each hand wins or loses by calling an all-in", OfferCall},
    {"raise", "What each hand wins or loses by going all in", OfferRaise},
    {"equity", "The equity of each hand against a range", OfferEquity},
    {"summary", "The short notation of one range", OfferSummary},
    {"notation", "The same, exact and with every weight: what --hands reads", OfferNotation},
    {"ranges", "Every range: name, percent selected, short notation", OfferRanges},
    {"save", "Saves a range under a name", OfferSave},
    {"limits", "Up to which amount each hand can call or shove", OfferLimits},
    {"sweep", "How the answer moves with an amount, or with the width of his range", OfferSweep},
    {"balance", "The ranges to shove and to call with in which neither player gains by changing", OfferBalance},
    {"matrix", "The equity of every class against every other", OfferMatrix},
}};

}  // namespace quillon
