#pragma once

// From the start of the program until its main window can be used, and the end when that window closes. Start-up is one
// fixed sequence: folders, the About screen, what the last run left, the window on the screen, the look for upgrades,
// and last the equity table, so nothing may start an analysis before StartUp has come back. All lengths are twips.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "ranges/range_files.h"
#include "shell/navigation.h"
#include "shell/window_place.h"
#include "support/twips.h"

namespace quillon {

/// The main window's size is made of the panel's width, 3300, and the width that the first screen is designed with,
/// 12000; its height is this.
inline constexpr float kMainWindowHeight = 9045;

/// Where the content of the About screen begins below the screen's upper edge.
inline constexpr float kAboutContentTop = 300;

/// The section of the settings file in which the amount boxes are kept, under their indexes.
inline constexpr std::string_view kValuesSection = "Values";

/// The folder that grid images are offered to be saved in: "Saved Grids" in the program's folder.
[[nodiscard]] std::filesystem::path SavedGridsFolderPath(const ProgramFolder& folder);

/// The main window at its start and its end.
class StartWindow : public NavigationWindow, public PlacedWindow {
 public:
  virtual void SetTitle(std::string_view title) = 0;
  virtual void ResizeWindow(TwipSize size) = 0;

  [[nodiscard]] virtual int RangeEntryCount() const = 0;  // the entries of cmboRanges(0)
  virtual void SetRangeCountCaption(std::string_view caption) = 0;  // lblNumRanges

  virtual void SetAboutContentRect(TwipRect rect) = 0;  // frameAboutContent
  virtual void ShowAboutContent() = 0;

  /// The amount boxes, txtNumber.
  [[nodiscard]] virtual std::int16_t BoxCount() const = 0;
  [[nodiscard]] virtual std::string BoxText(std::int16_t index) const = 0;

  /// Sets a box's text to what the last run left, and has RestoredNumberBox ("shell/number_boxes.h") run.
  virtual void RestoreBoxText(std::int16_t index, std::string_view text) = 0;

  /// Shows or hides the links that lead to results ("results/results_grid.h").
  virtual void SetResultsShown(bool shown) = 0;

  [[nodiscard]] virtual TwipSize HoverBorderSize() const = 0;  // rectHov
  virtual void SetHoverPanelSize(TwipSize size) = 0;  // frameHover

  virtual void AddOutputType(std::string_view text) = 0;  // cmboOutputType
  virtual void AddHandEntry(std::string_view text) = 0;  // cmbo169

  virtual void ShowWindow() = 0;
  virtual void HideWindow() = 0;

  /// Looks for a newer version where the user wishes it; comes back when the request has ended.
  virtual void CheckForUpgrade() = 0;

  /// Fills the equity table ("hand/equity_table.h").
  virtual void LoadEquityTable() = 0;

  /// Ends the process at once, whatever else is open or running. Only a test's comes back.
  virtual void EndProcess() = 0;
};

/// Everything from the start of the program until its window can be used. What a killed process left of a save is
/// cleared away, before the lists show it. A folder that cannot be made is a
/// RunTimeError, before anything shows; so is a range folder that cannot be listed ("ranges/range_lists.h").
void StartUp(NavigationState& state, StartWindow& window, const ProgramFolder& folder);

/// The About screen and the window's title with the version. The number of ranges is that of a list not filled yet,
/// always 0, and is never set again; this is meant.
void SetAboutView(StartWindow& window);

/// What was left by the last run, and what the controls hold at first: the box texts that are not empty, the range
/// lists, the window's size and place, the lists of the Details screen, the About screen again, now as wide as the
/// window.
void LoadStartupState(const NavigationState& state, StartWindow& window, const ProgramFolder& folder);

/// The closing of the main window, for whatever reason: it is hidden, its place and all box texts are stored as they
/// stand, sums unevaluated and empty boxes too, and the process ends. No other window is asked, and an analysis that
/// runs just stops.
void CloseMainWindow(StartWindow& window, const ProgramFolder& folder);

}  // namespace quillon
