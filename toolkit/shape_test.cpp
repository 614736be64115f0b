#include "toolkit/shape.h"

#include <QImage>
#include <gtest/gtest.h>

namespace quillon {
namespace {

QImage Drawn(Shape& shape, const QSize& size) {
  shape.resize(size);
  QImage image(size, QImage::Format_ARGB32);
  image.fill(Qt::white);
  shape.render(&image, {}, {}, {});
  return image;
}

int CountOf(const QImage& image, const QColor& color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == color) ++count;
    }
  }
  return count;
}

TEST(Shape, HasItsLineJustInsideItsEdge) {
  for (const int width : {1, 2, 3}) {
    Shape shape(ControlKind::kShape, nullptr);
    shape.SetFill(Qt::red);
    shape.SetLineColor(Qt::blue);
    shape.SetLineWidth(width);
    const QImage image = Drawn(shape, {20, 10});

    const int inner = (20 - 2 * width) * (10 - 2 * width);
    EXPECT_EQ(CountOf(image, Qt::red), inner) << width;
    EXPECT_EQ(CountOf(image, Qt::blue), 200 - inner) << width;
    EXPECT_EQ(image.pixelColor(10, 5), QColor(Qt::red));
  }
}

TEST(Shape, WithoutALineIsFilledToItsEdge) {
  Shape shape(ControlKind::kShape, nullptr);
  shape.SetFill(Qt::red);
  shape.SetLineStyle(LineStyle::kNone);

  EXPECT_EQ(CountOf(Drawn(shape, {20, 10}), Qt::red), 200);
}

TEST(Shape, WithoutAFillShowsWhatLiesUnderIt) {
  Shape shape(ControlKind::kShape, nullptr);

  EXPECT_EQ(Drawn(shape, {20, 10}).pixelColor(10, 5), QColor(Qt::white));
}

TEST(Shape, HasGapsInADottedLine) {
  Shape shape(ControlKind::kShape, nullptr);
  shape.SetLineStyle(LineStyle::kDotted);
  const QImage image = Drawn(shape, {40, 40});

  EXPECT_GT(CountOf(image, Qt::black), 30);
  EXPECT_LT(CountOf(image, Qt::black), 130);  // a solid one has 156
}

TEST(Shape, WithRoundedCornersLeavesTheCornersFree) {
  Shape shape(ControlKind::kRoundedShape, nullptr);
  shape.SetFill(Qt::red);
  const QImage image = Drawn(shape, {40, 30});

  for (const QPoint corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 29), QPoint(39, 29)})
    EXPECT_EQ(image.pixelColor(corner), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(20, 15), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(20, 0), QColor(Qt::black));

  shape.SetLineStyle(LineStyle::kNone);
  EXPECT_EQ(Drawn(shape, {40, 30}).pixelColor(20, 0), QColor(Qt::red));
}

TEST(Shape, ThatIsALineIsOneThroughAndThrough) {
  Shape line(ControlKind::kLine, nullptr);
  line.SetLineColor(Qt::blue);

  EXPECT_EQ(CountOf(Drawn(line, {20, 1}), Qt::blue), 20);
}

}  // namespace
}  // namespace quillon
