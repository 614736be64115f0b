#pragma once

// Window places, kept between runs. Each window has a section of the settings file with the keys `Left` and `Top`: its
// upper left corner in twips, as texts of 32-bit floats. A resizable window also has `Width` and `Height`.

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

/// The corner of a centred window. For one larger than the screen it lies outside.
[[nodiscard]] TwipPoint CenteredCorner(TwipSize window, TwipSize screen);

/// The stored corner, or that of a centred window if either text is missing. The leading number of each counts, so a
/// text without one is 0. A number below 0, or above the screen's width or height, becomes 0, separately for each. Only
/// the corner counts: at exactly the screen's width the window is outside, and stays there.
[[nodiscard]] TwipPoint StoredCorner(std::string_view section, TwipSize window, TwipSize screen,
                                     const ProgramFolder& folder);

/// The corner as settings of that section.
[[nodiscard]] std::vector<IniSetting> PlaceSettings(std::string_view section, TwipPoint corner);

/// The stored size, or `otherwise` if either text is missing; each side at least that of `least` and at most
/// kMostWindowLength. The leading number of each text counts.
[[nodiscard]] TwipSize StoredSize(std::string_view section, TwipSize least, TwipSize otherwise,
                                  const ProgramFolder& folder);

/// The longest side of a window: 10,000 design pixels, which at 300% still fit a window system's 16 bits.
inline constexpr float kMostWindowLength = 10000 * kTwipsPerPixel;

/// The size as settings of that section.
[[nodiscard]] std::vector<IniSetting> SizeSettings(std::string_view section, TwipSize size);

}  // namespace quillon
