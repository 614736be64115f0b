#pragma once

// Where a window is on the screen, kept from one start to the next. Each of the windows has a section of the settings
// file with the keys `Left` and `Top`: the window's upper left corner in twips, as number texts of 32-bit floats. One
// that the user may resize has `Width` and `Height` besides, in the same form.

#include <string_view>
#include <vector>

#include "ranges/range_files.h"
#include "shell/settings_file.h"
#include "support/twips.h"

namespace quillon {

/// The sections of the windows.
inline constexpr std::string_view kMainSection = "Main";
inline constexpr std::string_view kManagerSection = "Manager";
inline constexpr std::string_view kNewRangeSection = "New";
inline constexpr std::string_view kStudySection = "Study";

/// The corner of a window in the middle of the screen. That of one that is larger than the screen lies outside.
[[nodiscard]] TwipPoint CenteredCorner(TwipSize window, TwipSize screen);

/// The corner that was stored, or that in the middle of the screen if either of the two texts is missing. The leading
/// number of each counts, so a text without one is 0. A number below 0, or above the screen's width or height, becomes
/// 0, each on its own. Only the corner counts: at just the screen's width the window is outside, and stays
/// there.
[[nodiscard]] TwipPoint StoredCorner(std::string_view section, TwipSize window, TwipSize screen,
                                     const ProgramFolder& folder);

/// The corner as settings of that section.
[[nodiscard]] std::vector<IniSetting> PlaceSettings(std::string_view section, TwipPoint corner);

/// The size that was stored, `otherwise` if either of the two texts is missing; each side no less than that of `least`
/// and no more than kMostWindowLength. The leading number of each text counts.
[[nodiscard]] TwipSize StoredSize(std::string_view section, TwipSize least, TwipSize otherwise,
                                  const ProgramFolder& folder);

/// No window is longer: 10,000 pixels of the design, so that at 300% they still fit a window system's 16 bits.
inline constexpr float kMostWindowLength = 10000 * kTwipsPerPixel;

/// The size as settings of that section.
[[nodiscard]] std::vector<IniSetting> SizeSettings(std::string_view section, TwipSize size);

}  // namespace quillon
