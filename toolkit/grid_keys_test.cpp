#include "toolkit/grid_keys.h"

#include <gtest/gtest.h>
#include <string_view>

#include "hand/hand_classes.h"

namespace quillon {
namespace {

TEST(GridKeys, LeadFromCellToCell) {
  struct Row {
    std::string_view From;
    Qt::Key Key;
    Qt::KeyboardModifiers Held;
    std::string_view To;
  };
  for (const Row& row : {
           Row{"KJs", Qt::Key_Left, {}, "KQs"},
           Row{"KJs", Qt::Key_Right, {}, "KTs"},
           Row{"KJs", Qt::Key_Up, {}, "AJs"},
           Row{"KJs", Qt::Key_Down, {}, "QJs"},
           Row{"AA", Qt::Key_Left, {}, "AA"},
           Row{"AA", Qt::Key_Up, {}, "AA"},
           Row{"22", Qt::Key_Right, {}, "22"},
           Row{"22", Qt::Key_Down, {}, "22"},
           Row{"KJs", Qt::Key_Home, {}, "AKo"},
           Row{"KJs", Qt::Key_End, {}, "K2s"},
           Row{"AKo", Qt::Key_Home, {}, "AKo"},
           Row{"KJs", Qt::Key_Home, Qt::ControlModifier, "AA"},
           Row{"KJs", Qt::Key_End, Qt::ControlModifier, "22"},
       }) {
    const auto to = CellReachedFrom(HandIndex(row.From), QKeyEvent(QEvent::KeyPress, row.Key, row.Held));
    ASSERT_TRUE(to) << row.Key;
    EXPECT_EQ(HandLabel(*to), row.To) << row.From << " " << row.Key;
  }
  EXPECT_FALSE(CellReachedFrom(0, QKeyEvent(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier)));
}

}  // namespace
}  // namespace quillon
