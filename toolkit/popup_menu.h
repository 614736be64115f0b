#pragma once

// Context menus, opened by the right mouse button, the menu key or Shift+F10. They add nothing visible to a form.

#include <QKeySequence>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

namespace quillon {

/// One line of a menu.
struct MenuEntry {
  QString Text;  // empty for a separator
  std::function<void()> Action{};
  QKeySequence Key{};  // a key that does the same; only displayed here
  bool Enabled = true;
};

/// Opens a menu at that point of the screen, over the window of `owner`, and returns at once. The chosen action runs
/// after the menu has closed. If a key opened it, its first enabled entry is selected.
void PopUpMenu(QWidget& owner, const QPoint& place, const std::vector<MenuEntry>& entries);

}  // namespace quillon
