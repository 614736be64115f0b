#include "toolkit/picture.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include "artwork/artwork.h"

namespace quillon {
namespace {

const QString kLogo = QStringLiteral("logo");
const QString kButton = QStringLiteral("analyze");
constexpr QSize kButtonSize(201, 53);

class PictureTest : public testing::Test {
 protected:
  PictureTest() { InitArtwork(); }

  // The file drawn directly by the renderer.
  static QImage File(const QString& name, const QSize& pixels) {
    QSvgRenderer renderer(QStringLiteral(":/artwork/%1.svg").arg(name));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    return image;
  }

  static QImage Drawn(Picture& picture) {
    QImage image(picture.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    picture.render(&image, {}, {}, {});
    return image;
  }

  static QImage ImageOf(const QPixmap& pixmap) {
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1);
    return image;
  }
};

TEST_F(PictureTest, IsDrawnAnewForEveryScale) {
  const QSize size(193, 92);
  const QPixmap usual = ArtworkPixmap(kLogo, size, 1);
  const QPixmap doubled = ArtworkPixmap(kLogo, size, 2);

  EXPECT_EQ(ImageOf(usual), File(kLogo, size));
  EXPECT_EQ(doubled.size(), size * 2);
  EXPECT_EQ(doubled.devicePixelRatio(), 2);
  EXPECT_EQ(ImageOf(doubled), File(kLogo, size * 2));
  EXPECT_NE(ImageOf(doubled), ImageOf(usual).scaled(size * 2));
}

TEST_F(PictureTest, IsDrawnAnewForEverySize) {
  EXPECT_EQ(ImageOf(ArtworkPixmap(kLogo, {50, 20}, 1)), File(kLogo, {50, 20}));
  EXPECT_EQ(ImageOf(ArtworkPixmap(kLogo, {20, 50}, 1)), File(kLogo, {20, 50}));
  EXPECT_EQ(ArtworkPixmap(kLogo, {193, 92}, 1.5).size(), QSize(290, 138));
}

TEST_F(PictureTest, IsDrawnOnce) {
  EXPECT_EQ(ArtworkPixmap(kLogo, {60, 20}, 1).cacheKey(), ArtworkPixmap(kLogo, {60, 20}, 1).cacheKey());
}

TEST_F(PictureTest, FillsTheControl) {
  Picture picture(nullptr);
  picture.resize(193, 92);
  picture.SetArtwork(kLogo);

  EXPECT_EQ(Drawn(picture), File(kLogo, {193, 92}));
}

TEST_F(PictureTest, OfNoNameShowsNothing) {
  Picture picture(nullptr);
  picture.resize(193, 92);
  picture.SetArtwork(kLogo);
  picture.SetArtwork({});
  QImage nothing(picture.size(), QImage::Format_ARGB32_Premultiplied);
  nothing.fill(Qt::transparent);

  EXPECT_EQ(Drawn(picture), nothing);
}

TEST_F(PictureTest, HasLooksForTheMouseOverItAndPressed) {
  QWidget form;
  form.resize(400, 200);
  Picture picture(&form);
  picture.setGeometry(QRect(QPoint(50, 50), kButtonSize));
  picture.SetArtwork(kButton);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  QWindow* const window = form.windowHandle();
  const QPoint middle = picture.geometry().center();

  QTest::mouseMove(window, QPoint(5, 5));
  EXPECT_EQ(Drawn(picture), File(kButton, kButtonSize));
  QTest::mouseMove(window, middle);
  EXPECT_EQ(Drawn(picture), File(QStringLiteral("analyze_hover"), kButtonSize));
  QTest::mousePress(window, Qt::LeftButton, {}, middle);
  EXPECT_EQ(Drawn(picture), File(QStringLiteral("analyze_pressed"), kButtonSize));
  QTest::mouseRelease(window, Qt::LeftButton, {}, middle);
  EXPECT_EQ(Drawn(picture), File(QStringLiteral("analyze_hover"), kButtonSize));
  QTest::mouseMove(window, QPoint(5, 5));
  EXPECT_EQ(Drawn(picture), File(kButton, kButtonSize));
}

TEST_F(PictureTest, WithoutLooksOfItsOwnStaysAsItIs) {
  Picture picture(nullptr);
  picture.resize(193, 92);
  picture.SetArtwork(kLogo);
  const QImage before = Drawn(picture);
  QTest::mousePress(&picture, Qt::LeftButton);
  EXPECT_EQ(Drawn(picture), before);
  QTest::mouseRelease(&picture, Qt::LeftButton);
}

}  // namespace
}  // namespace quillon
