#pragma once

// What every box for one line of text has in common: a text copied from a table cell or a terminal brings a line end
// along, which no such box shows.

#include <QLineEdit>

namespace quillon {

/// What is pasted, dropped or set in the box ends before its first line end, and each tab becomes a space. What is
/// after the caret stays.
void KeepToOneLine(QLineEdit& box);

}  // namespace quillon
