#pragma once

// A control keeps its place in twips and the size of its font, so that it can take both anew when the scale of the
// program changes ("toolkit/twip_geometry.h"). No place is ever worked out from pixels.

#include <QWidget>

#include "support/twips.h"
#include "toolkit/control_row.h"

namespace quillon {

/// Puts a control into its place; of a window only the size counts, which is fixed. A place without a height or a width
/// is that of a line, which is as thick as a line is.
void SetPlace(QWidget& control, const TwipRect& place);

/// Where SetPlace has put it; all zero where it never has.
[[nodiscard]] TwipRect PlaceOf(const QWidget& control);

/// Makes a window one that the user may resize, down to `least`, and gives it `size`, which is no less. Both grow with
/// the scale, and so does what the user makes of it.
void SetResizable(QWidget& window, const TwipSize& least, const TwipSize& size);

/// The size that such a window has, exactly what SetResizable gave it as long as the user has not changed it. Of one
/// that is maximised, the size before.
[[nodiscard]] TwipSize SizeOf(const QWidget& window);

/// Gives a control its font, `inherited` where `font` names none.
void SetFormFont(QWidget& control, const FontSpec& font, const FontSpec& inherited);

/// Gives a control the font that another one has.
void CopyFormFont(QWidget& control, const QWidget& other);

/// Sets the scale of the program, and with it every font and every place in every window that there is.
void ShowAtScale(double scale);

}  // namespace quillon
