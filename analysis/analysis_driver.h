#pragma once

// The click on an Analyze button: the checks, the screens and captions, and a run of the engine on the window's own
// thread. After each class the window system runs once, so that the progress bar moves and the stop label can be
// clicked.
//
// Every control stays live during a run, the start buttons too, and all runs work on the same state. A run started from
// within another ends before the other goes on; the other then finds itself stopped at its next class. A click within a
// run that its check refuses changes the state's scenario; the run goes on by its own and puts it back when it
// finishes. Amounts are read from the boxes anew for each class, so an edit affects the classes still to come, while
// the state keeps the amounts that the run began with.

#include <cstdint>
#include <string_view>

#include "analysis/analysis_state.h"
#include "analysis/analysis_window.h"
#include "analysis/entered_situation.h"
#include "analysis/input_screens.h"
#include "ranges/range_files.h"

namespace quillon {

/// The caption of `lblNoResults` from the click until the run ends, when the label is a link to the Progress screen.
inline constexpr std::string_view kWaitCaption = "Please wait...";

/// Its caption at all other times.
inline constexpr std::string_view kNoResultsCaption = "There are no results to display at this time.";

/// The width of the full progress bar, in twips.
inline constexpr double kProgressBarWidth = 7815;

/// What is entered on an input screen at this moment; nothing where it has no such box or list.
[[nodiscard]] EnteredSituation EnteredOn(const InputScreen& screen, const AnalysisWindow& window);

/// The click on `cmdPreflopEV(buttonIndex)`. Earlier results are hidden at once. If the scenario's check has a
/// complaint, the click ends with it. Intentional: the label goes on saying "Please wait..." although nothing runs, and
/// the next run corrects it. Otherwise the situation is stored in the state, the Progress screen comes up and the run
/// goes through the classes.
///
/// A finished run stores its table in `HandInfo`, has it presented, shows the results entries and clicks the third
/// navigation entry, the grid. A stop, noticed at the end of the class after the yield in which it came, throws the
/// table away: the scenario's input screen returns, and `HandInfo` is as it was.
///
/// Nothing is caught: it fails as the checks and Analyze do, as over a range file that vanishes after the check, or
/// that does not exist in "Preflop Raise". `Running` is then left true, for the program ends.
void RunAnalysis(AnalysisState& state, std::int16_t buttonIndex, AnalysisWindow& window, const ProgramFolder& folder);

/// The click on the stop label `lblStopCalc`: clears `Running` and does nothing else.
void StopAnalysis(AnalysisState& state);

/// The click on `lblNoResults`: brings up the Progress screen if the label's caption is exactly "Please wait...", so
/// that a user who has wandered off during a run can return.
void ClickNoResults(std::string_view caption, AnalysisWindow& window);

}  // namespace quillon
