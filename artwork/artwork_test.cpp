#include "artwork/artwork.h"

#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <array>
#include <cstdlib>
#include <gmock/gmock.h>

namespace quillon {
namespace {

class ArtworkPicture : public testing::Test {
 protected:
  void SetUp() override { InitArtwork(); }

  [[nodiscard]] static QImage Drawn(const QString& name) {
    QSvgRenderer renderer(QStringLiteral(":/artwork/") + name);
    EXPECT_TRUE(renderer.isValid()) << name.toStdString();
    QImage image(renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
  }
};

TEST_F(ArtworkPicture, DrawsSomething) {
  const QStringList names = QDir(QStringLiteral(":/artwork")).entryList(QDir::Files);
  EXPECT_GE(names.size(), 28);
  for (const QString& name : names) {
    const QImage image = Drawn(name);
    QImage nothing(image.size(), image.format());
    nothing.fill(Qt::transparent);
    EXPECT_NE(image, nothing) << name.toStdString();
  }
}

TEST_F(ArtworkPicture, BackgroundsRunFromTheirColourToNearlyWhite) {
  struct Background {
    const char* Name = nullptr;
    int Rim = 0;  // pixels around the gradient
    QColor Top;
    QColor Bottom;
  };
  const std::array backgrounds = {
      Background{"hover_green.svg", 0, QColor(229, 254, 224), QColor(253, 255, 252)},
      Background{"hover_red.svg", 0, QColor(251, 63, 62), QColor(255, 247, 245)},
      Background{"hover_blue.svg", 0, QColor(214, 231, 251), QColor(251, 253, 255)},
      Background{"legend_green.svg", 1, QColor(227, 254, 222), QColor(243, 255, 241)},
      Background{"legend_red.svg", 1, QColor(254, 93, 93), QColor(255, 241, 241)},
  };
  // A small picture has few steps from top to bottom, and its outer ones are half-way to the next.
  const auto isNear = [](const QColor& a, const QColor& b, int tolerance) {
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
  };

  for (const Background& background : backgrounds) {
    const QImage image = Drawn(QLatin1String(background.Name));
    const int tolerance = image.height() < 50 ? 12 : 1;
    const int middle = background.Rim == 0 ? 0 : image.width() / 2;
    EXPECT_TRUE(isNear(image.pixelColor(middle, background.Rim), background.Top, tolerance)) << background.Name;
    EXPECT_TRUE(isNear(image.pixelColor(middle, image.height() - 1 - background.Rim), background.Bottom, tolerance))
        << background.Name;
  }
}

}  // namespace
}  // namespace quillon
