#pragma once

// A text on a page: it wraps, grows with the page, is never read as mark-up, and follows the scale of the program.

#include <QLabel>

namespace quillon {

/// An empty text of that size; in bold it is a heading.
[[nodiscard]] QLabel* MakeTextLabel(QWidget* parent, float points, bool bold = false);

/// The sizes of texts: those of the dialogs, and of a page's headings.
inline constexpr float kTextPoints = 9;
inline constexpr float kHeadingPoints = 11.25F;

}  // namespace quillon
