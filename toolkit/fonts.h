#pragma once

// The fonts of the layouts. They name fonts of another platform. The program draws with free fonts of the same measures
// instead, which are compiled in, so that the window looks the same on every machine. Sizes are in points of 96 dots to
// the inch, so they become pixels here, by the scale of the program ("toolkit/twip_geometry.h"), and do not change with
// what the screen reports of itself.

#include <QFont>
#include <QString>
#include <QStringList>
#include <string_view>

#include "toolkit/control_row.h"

namespace quillon {

/// Makes the fonts that are compiled in known to Qt. Called once, before the first font is made.
void LoadFonts();

/// The substitute for a family: Liberation Sans for Arial and MS Sans Serif, DejaVu Sans Condensed for Tahoma, DejaVu
/// Sans for Verdana, Liberation Mono for Courier New. Any other name is kept.
[[nodiscard]] QStringList FontFamilies(std::string_view family);

/// The font of what no layout has: message boxes, menus, tool tips.
inline constexpr FontSpec kDialogFont = {.Family = "Arial", .Points = 9};

/// The font of a row, `inherited` where it names none: 8.25 points are 11 pixels, 20.25 points are 27, at a scale of 1.
[[nodiscard]] QFont FormFont(const FontSpec& font, const FontSpec& inherited);

/// Points of 96 dots to the inch as pixels of the design, rounded.
[[nodiscard]] int FontPixels(float points);

/// Gives a font that size at the scale of the program. At a scale of 1 its letters keep to whole pixels, as far as the
/// desktop wants them to; at any other their widths grow with it exactly, so that a text takes up the same share of its
/// place.
void SizeFont(QFont& font, float points);

}  // namespace quillon
