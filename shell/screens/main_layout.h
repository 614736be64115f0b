#pragma once

// The main window as tables: the side panel, the seven screens, the two frames on the grid screen, and a frame that is
// never shown and keeps things. The words are the product's own, odd ones too.

#include <cstdint>
#include <span>

#include "toolkit/control_row.h"

namespace quillon {

/// The screen "ALL IN Grid" among the frames frameContent.
inline constexpr std::int16_t kGridScreen = 1;

/// The tables of the main window, each behind the one that holds its container.
[[nodiscard]] std::span<const ControlTable> MainLayout();

}  // namespace quillon
