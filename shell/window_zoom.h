#pragma once

// The zoom of the program's windows: how large the design is drawn, in percent of its size in the desktop's logical
// pixels, in fixed steps. The user's choice is kept in the settings; without one, the main window fits its screen.

#include <array>
#include <optional>

#include "ranges/range_files.h"
#include "support/twips.h"

namespace quillon {

inline constexpr std::array kZoomSteps = {75, 90, 100, 110, 125, 150, 175, 200, 250, 300};
inline constexpr int kDesignZoom = 100;

/// The next larger step, and the next smaller one; the argument itself at either end.
[[nodiscard]] int LargerZoom(int percent);
[[nodiscard]] int SmallerZoom(int percent);

/// 100, or the largest smaller step at which a window of that size with its decoration fits on the screen, or else the
/// smallest. An exact fit counts as inside. `screen` is the area without panels, in twips of logical pixels.
[[nodiscard]] int FittingZoom(TwipSize window, TwipSize screen);

/// The stored zoom; nothing if it is missing or not one of the steps.
[[nodiscard]] std::optional<int> StoredZoom(const ProgramFolder& folder);
void StoreZoom(int percent, const ProgramFolder& folder);

}  // namespace quillon
