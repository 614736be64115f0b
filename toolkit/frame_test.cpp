#include "toolkit/frame.h"

#include <QImage>
#include <gtest/gtest.h>

namespace quillon {
namespace {

class FrameTest : public testing::Test {
 public:
  FrameTest() {
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::green);
    form.setPalette(palette);
    form.resize(40, 40);
    frame.setGeometry(10, 10, 20, 20);
  }
  QColor Shown() { return form.grab().toImage().pixelColor(20, 20); }

  QWidget form;
  Frame frame{&form};
};

TEST_F(FrameTest, IsWhiteUntilItIsGivenAColour) {
  EXPECT_EQ(Shown(), QColor(Qt::white));
  frame.SetBackColor(Qt::red);
  EXPECT_EQ(Shown(), QColor(Qt::red));
}

TEST_F(FrameTest, WithoutAColourShowsWhatLiesUnderIt) {
  frame.SetBackColor(Qt::transparent);
  EXPECT_EQ(Shown(), QColor(Qt::green));
  frame.SetBackColor(Qt::red);
  EXPECT_EQ(Shown(), QColor(Qt::red));
}

TEST_F(FrameTest, DoesNotShowItsCaption) {
  const QImage before = form.grab().toImage();
  frame.setAccessibleName(QStringLiteral("ALL IN Grid"));
  EXPECT_EQ(form.grab().toImage(), before);
}

}  // namespace
}  // namespace quillon
