#pragma once

// The base of all one-line boxes: text copied from a table cell or a terminal ends in a line end, which is not shown.

#include <QLineEdit>

namespace quillon {

/// Cuts pasted, dropped or set text at its first line end, and replaces tabs by spaces. What follows the caret stays.
void KeepToOneLine(QLineEdit& box);

}  // namespace quillon
