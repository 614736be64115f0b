#pragma once

// A text on a page: it wraps, grows with the page, is always plain text, and follows the program's zoom.

#include <QLabel>

namespace quillon {

/// An empty text of this size; bold for a heading.
[[nodiscard]] QLabel* MakeTextLabel(QWidget* parent, float points, bool bold = false);

/// The sizes of texts in the dialogs, and of a page's headings.
inline constexpr float kTextPoints = 9;
inline constexpr float kHeadingPoints = 11.25F;

}  // namespace quillon
