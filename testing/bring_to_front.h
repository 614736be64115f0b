#pragma once

#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace quillon {

/// Shows the window, and waits until it is in front and active.
inline void BringToFront(QWidget& window) {
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

}  // namespace quillon
