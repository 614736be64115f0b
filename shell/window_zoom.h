#pragma once

// The zoom of the program's windows: how large the design is drawn, in percent of its size in the desktop's logical
// pixels. There are fixed steps. The one that the user has chosen is kept in the settings; as long as none is, the main
// window fits the screen that it comes up on.

#include <array>
#include <optional>

#include "ranges/range_files.h"
#include "support/twips.h"

namespace quillon {

inline constexpr std::array kZoomSteps = {75, 90, 100, 110, 125, 150, 175, 200, 250, 300};
inline constexpr int kDesignZoom = 100;

/// The next larger step, the next smaller one; the last and the first have none and are returned themselves.
[[nodiscard]] int LargerZoom(int percent);
[[nodiscard]] int SmallerZoom(int percent);

/// 100, or the largest smaller step at which a window of that size and what a window manager puts round it fit on the
/// screen, or the smallest where they fit at none. An exact fit counts as inside. `screen` is what panels leave of it,
/// in twips of the desktop's logical pixels.
[[nodiscard]] int FittingZoom(TwipSize window, TwipSize screen);

/// What was kept; nothing where there is no such setting or it is none of the steps.
[[nodiscard]] std::optional<int> StoredZoom(const ProgramFolder& folder);
void StoreZoom(int percent, const ProgramFolder& folder);

}  // namespace quillon
