#pragma once

// Colours of the layouts and of the logic as Qt colours.

#include <QColor>
#include <cstdint>

#include "support/rgb.h"
#include "toolkit/control_row.h"

namespace quillon {

/// 0xRRGGBB or one of the window system's colours; kNoColor is transparent.
[[nodiscard]] QColor ToColor(std::int32_t rowColor);

[[nodiscard]] QColor ToColor(Rgb color);
[[nodiscard]] Rgb FromColor(const QColor& color);

}  // namespace quillon
