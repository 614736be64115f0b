#pragma once

// Menus that come up by the right mouse button, the menu key or Shift+F10, on what is there already: a form shows no
// more for having one.

#include <QKeySequence>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

namespace quillon {

/// One line of a menu.
struct MenuEntry {
  QString Text;  // as it is shown; of an entry without one, only a line between groups is seen
  std::function<void()> Action{};
  QKeySequence Key{};  // that does the same; it is only shown here
  bool Enabled = true;
};

/// Brings up a menu at that point of the screen, over the window of `owner`, and returns at once. What is chosen is
/// done when the menu has gone. Where a key has brought it up, its first enabled entry is marked.
void PopUpMenu(QWidget& owner, const QPoint& place, const std::vector<MenuEntry>& entries);

}  // namespace quillon
