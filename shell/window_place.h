#pragma once

// Where a window is on the screen, kept from one start to the next. Each of the three windows has a section of the
// settings file with the keys `Left` and `Top`: the window's upper left corner in twips, as number texts of 32-bit
// floats.

#include <string_view>
#include <vector>

#include "ranges/range_files.h"
#include "shell/settings_file.h"
#include "support/twips.h"

namespace quillon {

/// The sections of the three windows.
inline constexpr std::string_view kMainSection = "Main";
inline constexpr std::string_view kManagerSection = "Manager";
inline constexpr std::string_view kNewRangeSection = "New";

/// A window on the screen; all lengths are twips.
class PlacedWindow {
 public:
  virtual ~PlacedWindow() = default;

  [[nodiscard]] virtual TwipSize WindowSize() const = 0;
  [[nodiscard]] virtual TwipSize ScreenSize() const = 0;

  [[nodiscard]] virtual float WindowLeft() const = 0;
  [[nodiscard]] virtual float WindowTop() const = 0;
  virtual void MoveWindow(float left, float top) = 0;
};

/// Puts the window into the middle of the screen. The corner of one that is larger than the screen lies outside.
void CenterWindow(PlacedWindow& window);

/// Puts the window where it stood, or into the middle of the screen if either of the two texts is missing. The leading
/// number of each counts, so what is no number is 0. A number below 0, or above the screen's width or height, becomes
/// 0, each on its own. Only the corner is looked at: at just the screen's width the window lies outside, and stays
/// there.
void RestoreWindowPosition(PlacedWindow& window, std::string_view section, const ProgramFolder& folder);

/// Where the window is, as settings of that section.
[[nodiscard]] std::vector<IniSetting> PlaceSettings(const PlacedWindow& window, std::string_view section);

/// Stores where the window is. It never fails ("shell/settings_file.h").
void SaveWindowPosition(const PlacedWindow& window, std::string_view section, const ProgramFolder& folder);

}  // namespace quillon
