#pragma once

// The base of all one-line boxes: text copied from a table cell or a terminal contains a line end, which such a box
// does not show.

#include <QLineEdit>

namespace quillon {

/// Cuts pasted, dropped or set text at its first line end, and replaces each tab by a space. What is after the caret
/// stays.
void KeepToOneLine(QLineEdit& box);

}  // namespace quillon
