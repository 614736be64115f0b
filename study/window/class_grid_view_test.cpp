#include "study/window/class_grid_view.h"

#include <QTest>
#include <cstddef>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

#include "hand/hand_classes.h"
#include "testing/bring_to_front.h"
#include "toolkit/colors.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

class ClassGrid : public testing::Test {
 protected:
  ClassGrid() {
    QObject::connect(&View, &ClassGridView::HandReached, [this](qint16 index) { Reached.push_back(index); });
    QObject::connect(&View, &ClassGridView::HandPressed, [this](qint16 index) { Pressed.push_back(index); });
    View.resize(523, 417);
    BringToFront(View);
  }

  [[nodiscard]] QWidget& At(std::string_view hand) const { return View.Cell(HandIndex(hand)); }

  ClassGridView View;
  std::vector<int> Reached;
  std::vector<int> Pressed;
};

TEST_F(ClassGrid, FillsItsPlaceWithCellsThatDoNotTouch) {
  for (const QSize size : {QSize(523, 417), QSize(300, 300), QSize(1201, 907)}) {
    View.resize(size);
    EXPECT_EQ(At("AA").geometry().topLeft(), QPoint(0, 0));
    EXPECT_EQ(At("22").geometry().bottomRight(), View.rect().bottomRight());
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      const QRect cell = View.Cell(i).geometry();
      if (i % kRankCount != 12) {
        EXPECT_EQ(View.Cell(static_cast<std::int16_t>(i + 1)).x() - cell.right(), 2) << i;
      }
      if (i < 156) {
        EXPECT_EQ(View.Cell(static_cast<std::int16_t>(i + 13)).y() - cell.bottom(), 2) << i;
      }
    }
  }
}

TEST_F(ClassGrid, SaysWhatACellShows) {
  ClassCells cells{};
  cells.at(1) = {.Color = {10, 20, 200}, .Text = "25", .Words = "up to 25"};
  View.Show(cells);
  EXPECT_EQ(At("AKs").accessibleName(), QStringLiteral("AKs"));
  EXPECT_EQ(At("AKs").accessibleDescription(), QStringLiteral("up to 25"));
  const QImage picture = View.grab().toImage();
  EXPECT_EQ(picture.pixelColor(At("AKs").geometry().topLeft() + QPoint(1, 1)), QColor(10, 20, 200));
}

TEST_F(ClassGrid, IsWalkedByKeys) {
  View.setFocus(Qt::TabFocusReason);
  Reached.clear();
  struct Step {
    Qt::Key key;
    Qt::KeyboardModifiers held;
    std::string_view reached;
  };
  for (const Step& step :
       {Step{Qt::Key_Right, {}, "AKs"}, Step{Qt::Key_Down, {}, "KK"}, Step{Qt::Key_End, Qt::ControlModifier, "22"}}) {
    QTest::keyClick(View.windowHandle(), step.key, step.held);
    EXPECT_EQ(FromQt(View.focusWidget()->accessibleName()), step.reached);
    EXPECT_EQ(HandLabel(static_cast<std::int16_t>(Reached.back())), step.reached);
  }
  QTest::keyClick(View.windowHandle(), Qt::Key_Return);
  EXPECT_EQ(Pressed, std::vector<int>{HandIndex("22")});
}

TEST_F(ClassGrid, TellsTheMouse) {
  QTest::mouseMove(View.windowHandle(), At("T9s").geometry().center());
  ASSERT_FALSE(Reached.empty());
  EXPECT_EQ(Reached.back(), HandIndex("T9s"));
  QTest::mouseClick(View.windowHandle(), Qt::LeftButton, {}, At("T8s").geometry().center());
  EXPECT_EQ(Pressed, std::vector<int>{HandIndex("T8s")});
}

}  // namespace
}  // namespace quillon
