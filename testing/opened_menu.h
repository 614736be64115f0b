#pragma once

// The pop-up menu open over a form, used as a user would.

#include <QAction>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/text.h"

namespace quillon {

/// Null if none is open.
[[nodiscard]] inline QMenu* OpenedMenu(const QWidget& form) {
  return form.findChild<QMenu*>();
}

/// Its entries, each followed by its key, and by " (off)" if disabled; a separator is empty.
[[nodiscard]] inline std::vector<std::string> MenuEntries(const QWidget& form) {
  std::vector<std::string> entries;
  for (const QAction* action : OpenedMenu(form)->actions()) {
    const bool off = !action->isEnabled() && !action->isSeparator();
    entries.push_back(FromQt(action->text() + action->shortcut().toString()) + (off ? " (off)" : ""));
  }
  return entries;
}

inline void CloseMenu(const QWidget& form) {
  OpenedMenu(form)->close();
  QTest::qWait(0);  // lets the menu close
}

/// Opens it with the right button at that point.
inline void OpenMenu(const QWidget& form, const QPoint& place) {
  QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, place);
}

/// Opens it with the right button at that point, and chooses the entry of that text with the left one.
inline void ChooseInMenu(const QWidget& form, const QPoint& place, std::string_view text) {
  OpenMenu(form, place);
  ASSERT_NE(OpenedMenu(form), nullptr);
  QMenu& menu = *OpenedMenu(form);
  for (QAction* action : menu.actions()) {
    if (FromQt(action->text()) != text) continue;
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
    QTest::qWait(0);
    return;
  }
  ADD_FAILURE() << "there is no " << text;
}

}  // namespace quillon
