#pragma once

// The commands of the companion.

#include <algorithm>
#include <array>

#include "analysis/scenarios.h"
#include "ranges/range_notation.h"
#include "ranges/range_summary.h"
#include "tools/command_inputs.h"

namespace quillon {

/// Adds the options of a scenario's command, which prints one analysis, and returns what runs it.
[[nodiscard]] RunCommand OfferAnalysis(AnalysisMode mode, CLI::App& options);

[[nodiscard]] RunCommand OfferRanges(CLI::App& options);
[[nodiscard]] RunCommand OfferSave(CLI::App& options);
[[nodiscard]] RunCommand OfferMatrix(CLI::App& options);
[[nodiscard]] RunCommand OfferLimits(CLI::App& options);
[[nodiscard]] RunCommand OfferSweep(CLI::App& options);
[[nodiscard]] RunCommand OfferBalance(CLI::App& options);
[[nodiscard]] RunCommand OfferBatch(CLI::App& options);
[[nodiscard]] RunCommand OfferChart(CLI::App& options);
[[nodiscard]] RunCommand OfferFolderPath(CLI::App& options);

inline constexpr std::array<Command, 14> kCommands = {{
    {"call", "What each hand wins or loses by calling an all-in",
     "He is all in. For each of the 169 starting hands: its equity against his range, and what calling is\n"
     "worth against folding, in the unit of the amounts.",
     R"(--pot 150 --call 50 --range "Button Shove")",
     [](CLI::App& options) { return OfferAnalysis(AnalysisMode::kPreflopCall, options); }},
    {"raise", "What each hand wins or loses by going all in",
     "You may go all in over him; he calls with some of his hands and folds the others. For each of the 169\n"
     "starting hands: its equity when he calls, how often he folds, and what the shove is worth against\n"
     "folding, in the unit of the amounts.",
     R"(--pot 1.5 --call 0.5 --shove 9 --hands any --calling-hands "top 30%" --format html)",
     [](CLI::App& options) { return OfferAnalysis(AnalysisMode::kPreflopRaise, options); }},
    {"equity", "The equity of each hand against a range",
     "How often each of the 169 starting hands wins against his range, a split pot counted as half.",
     R"(--range "Tight Open" --format csv)",
     [](CLI::App& options) { return OfferAnalysis(AnalysisMode::kEquityOnly, options); }},
    {"summary", "The short notation of a range",
     "A summary is for reading. It leaves out some hands at half weight, and all weights other than 1 and a\n"
     "half; the command notation prints all of it.",
     R"(--range "Tight Open")", [](CLI::App& options) { return OfferRangeText(options, RangeSummary); }},
    {"notation", "The exact notation of a range, with every weight",
     "What it prints reads as the same range after --hands. A weight above 1 or below 0, which a file may hold, is\n"
     "printed like any other, but typed weights are from 0 to 1.",
     R"(--hands "top 15%, 76s-54s:0.5")", [](CLI::App& options) { return OfferRangeText(options, RangeNotation); }},
    {"ranges", "Lists the saved ranges: name, percent selected, short notation",
     "A file that is no range is left out, told on standard error, and makes the exit status 1.", "", OfferRanges},
    {"save", "Saves a range under a name",
     "A range that exists is replaced with --replace alone, and then as a whole or not at all. \"Temp Range1\",\n"
     "the scratch range, is always replaced.",
     R"("Small Blind" --hands "22+,A2s+,KT+,QJ:0.5")", OfferSave},
    {"limits", "The largest amount that each hand can call or shove",
     "\"always\" does not lose, whatever the amount; \"never\" always does. A few hands win only \"from\" an\n"
     "amount on: they gain so little where he folds that they need a large pot where he calls.",
     R"(raise --pot 1.5 --call 0.5 --hands any --calling-hands "top 30%")", OfferLimits},
    {"sweep", "How the answer changes with an amount, or with the width of his range",
     "One amount, or --width, is given as FROM:TO:STEP. A line for each step tells how many of all hands are\n"
     "profitable, in percent, and what each --hand is worth.",
     R"(raise --pot 1.5 --call 0.5 --shove 5:20:5 --hands any --calling-hands "top 30%" --hand K9o 22)", OfferSweep},
    {"balance", "The ranges to shove and to call with in which neither player gains by changing",
     "A weight below 1 is how often to play a hand that is worth the same either way.",
     "--pot 1.5 --call 0.5 --shove 9", OfferBalance},
    {"chart", "Up to which stack each hand is shoved, and called with, in balanced ranges",
     "For blinds of 0.5 and 1 and two players with the same stack, in big blinds. A hand that is played half of\n"
     "the time or more counts as played. A star marks gaps: stacks below the largest at which it is not played.",
     "--from 5 --to 10 --step 0.5", OfferChart},
    {"batch", "Answers a file of situations, one a line",
     "A line is a JSON object with what a command line of call, raise or equity says: mode, pot, call, shove,\n"
     "range or hands, calling_range or calling_hands, and an id of yours. For each line one is printed, in the\n"
     "same order: the object that --format json prints, after the id. A line that is refused gives its id, its\n"
     "number and the error instead, and makes the exit status 1. Ctrl+C ends between two lines, with status 130.",
     "situations.jsonl --fields best,ev,equity", OfferBatch},
    {"matrix", "The equity of every class against every other", "A row for each of the 169 classes, a column for each.",
     "--format csv", OfferMatrix},
    {"folder", "Prints the folder that holds the ranges, the settings and the saved grids",
     "A portable copy keeps them beside the program; an installed one keeps each user's in his home, and makes the\n"
     "folder with a few example ranges if it is missing.",
     "", OfferFolderPath},
}};

static_assert(std::ranges::all_of(kScenarios, [](const Scenario& scenario) {
  return std::ranges::any_of(kCommands, [&](const Command& command) { return command.Name == scenario.Command; });
}));

}  // namespace quillon
