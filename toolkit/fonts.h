#pragma once

// The fonts of the layouts. They name fonts of another platform; where one is missing, a free font of the same measures
// replaces it. Sizes are in points of 96 dots to the inch, so they become pixels here and do not change with what the
// screen reports of itself.

#include <QFont>
#include <QString>
#include <QStringList>
#include <string_view>

#include "toolkit/control_row.h"

namespace quillon {

/// The family itself, then its replacement: Arial and MS Sans Serif have Liberation Sans, Tahoma has
/// DejaVu Sans Condensed, Verdana has DejaVu Sans, Courier New has Liberation Mono.
[[nodiscard]] QStringList FontFamilies(std::string_view family);

/// The font of a row, `inherited` where it names none: 8.25 points are 11 pixels, 20.25 points are 27.
[[nodiscard]] QFont FormFont(const FontSpec& font, const FontSpec& inherited);

/// Points of 96 dots to the inch as pixels, rounded.
[[nodiscard]] int FontPixels(float points);

}  // namespace quillon
