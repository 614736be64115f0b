#pragma once

// The fonts of the layouts, which name fonts of another platform. The program uses free, metrically compatible fonts,
// compiled in, so that the window looks the same on every machine. Sizes are in points at 96 dots to the inch and are
// converted to pixels here, by the program's scale ("toolkit/twip_geometry.h"), whatever the screen reports.

#include <QFont>
#include <QStringList>
#include <string_view>

#include "toolkit/control_row.h"

namespace quillon {

/// Registers the compiled-in fonts with Qt. Called once, before the first font is made.
void LoadFonts();

/// The substitute for a family: Liberation Sans for Arial and MS Sans Serif, DejaVu Sans Condensed for Tahoma, DejaVu
/// Sans for Verdana, Liberation Mono for Courier New. Any other name is kept.
[[nodiscard]] QStringList FontFamilies(std::string_view family);

/// The font of everything outside the layouts: message boxes, menus, tool tips.
inline constexpr FontSpec kDialogFont = {.Family = "Arial", .Points = 9};

/// The font of a row, or `inherited` if it has none: 8.25 points are 11 pixels, 20.25 points are 27, at a scale of 1.
[[nodiscard]] QFont FormFont(const FontSpec& font, const FontSpec& inherited);

inline constexpr double kPointsPerPixel = 72.0 / 96;

/// Points at 96 dots to the inch as design pixels, rounded.
[[nodiscard]] int FontPixels(float points);

/// Sets a font's size at the program's scale. At a scale of 1 glyphs are snapped to whole pixels if the desktop wants
/// that; otherwise widths scale exactly, so that a text always takes the same share of its place.
void SizeFont(QFont& font, float points);

}  // namespace quillon
