#pragma once

// A control keeps its place in twips and the size of its font, so that both can be applied again when the program's
// scale changes ("toolkit/twip_geometry.h"). Places are never computed from pixels.

#include <QWidget>

#include "support/twips.h"
#include "toolkit/control_row.h"

namespace quillon {

/// Puts a control in its place; for a window only the size counts, and becomes fixed. A place without height or width
/// is that of a line with its own thickness.
void SetPlace(QWidget& control, const TwipRect& place);

/// The place last given to SetPlace; all zero if never.
[[nodiscard]] TwipRect PlaceOf(const QWidget& control);

/// Makes a window resizable, with the minimum `least`, and gives it `size`, which is at least that. Both scale, and so
/// does the size that the user chooses.
void SetResizable(QWidget& window, const TwipSize& least, const TwipSize& size);

/// The size of such a window, or before it was maximised: exactly that of SetResizable unless the user changed it.
[[nodiscard]] TwipSize SizeOf(const QWidget& window);

/// Sets a control's font, or `inherited` if `font` has none.
void SetFormFont(QWidget& control, const FontSpec& font, const FontSpec& inherited);

/// Sets a control's font to another's.
void CopyFormFont(QWidget& control, const QWidget& other);

/// Sets the program's scale, and updates every font and place in every window.
void ShowAtScale(double scale);

}  // namespace quillon
