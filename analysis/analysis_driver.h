#pragma once

// The click on an Analyze button: the checks, the screens and captions, and a run of the engine on the window's thread.
// After each class pending events are processed, so that the progress bar moves and the stop label works.
//
// Every control stays live during a run, including the start buttons, and all runs share one state. A run started
// within another ends first; the outer one then stops at its next class. A click within a run that its check refuses
// changes the state's scenario; the run keeps its own and restores it at the end. Amounts are read from the boxes again
// for each class, so an edit affects the remaining classes, while the state keeps the amounts that the run began with.

#include <cstdint>
#include <string_view>

#include "analysis/analysis_state.h"
#include "analysis/analysis_window.h"
#include "analysis/entered_situation.h"
#include "analysis/input_screens.h"
#include "ranges/range_files.h"

namespace quillon {

/// The caption of `lblNoResults` during a run, when the label is a link to the Progress screen.
inline constexpr std::string_view kWaitCaption = "Please wait...";

/// Its caption at all other times.
inline constexpr std::string_view kNoResultsCaption = "There are no results to display at this time.";

/// The screen that shows during a run.
inline constexpr std::string_view kProgressScreen = "Progress";

/// The width of the full progress bar, in twips.
inline constexpr double kProgressBarWidth = 7815;

/// The current entries of an input screen; empty where it has no such box or list.
[[nodiscard]] EnteredSituation EnteredOn(const InputScreen& screen, const AnalysisWindow& window);

/// The click on `cmdPreflopEV(buttonIndex)`. Earlier results are hidden at once. If the scenario's check has a
/// complaint, the click ends. Intentional: the label keeps saying "Please wait..." although nothing is running, and the
/// next run corrects it. Otherwise the situation is stored in the state, the Progress screen is shown and the run
/// starts.
///
/// A finished run stores its table in `HandInfo`, presents it, shows the results entries and clicks the third
/// navigation entry, the grid. A stop takes effect after the class during whose yield it came and discards the table:
/// the scenario's input screen is shown again, and `HandInfo` is unchanged.
///
/// Nothing is caught: it fails as the checks and Analyze do, for example over a range file that vanishes after the
/// check, or is missing in "Preflop Raise". `Running` then stays true, as the program ends.
void RunAnalysis(AnalysisState& state, std::int16_t buttonIndex, AnalysisWindow& window, const ProgramFolder& folder);

/// The click on the stop label `lblStopCalc`: just clears `Running`.
void StopAnalysis(AnalysisState& state);

/// The click on `lblNoResults`: shows the Progress screen if the caption is exactly "Please wait...", so that a user
/// who has navigated elsewhere during a run can return.
void ClickNoResults(std::string_view caption, AnalysisWindow& window);

}  // namespace quillon
