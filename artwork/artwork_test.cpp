#include "artwork/artwork.h"

#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <array>
#include <cstdlib>
#include <gmock/gmock.h>
#include <ostream>

namespace quillon {
namespace {

struct Picture {
  const char* Name;
  int Width;
  int Height;
};

constexpr std::array kPictures = {
    Picture{"about_header.svg", 319, 60},
    Picture{"analyze.svg", 201, 53},
    Picture{"analyze_hover.svg", 201, 53},
    Picture{"analyze_pressed.svg", 201, 53},
    Picture{"grid_back.svg", 371, 371},
    Picture{"hover_blue.svg", 280, 250},
    Picture{"hover_green.svg", 280, 250},
    Picture{"hover_red.svg", 280, 250},
    Picture{"icon.svg", 64, 64},
    Picture{"legend_green.svg", 21, 21},
    Picture{"legend_red.svg", 21, 21},
    Picture{"logo.svg", 193, 92},
    Picture{"manager_image.svg", 64, 64},
    Picture{"message_exclamation.svg", 32, 32},
    Picture{"message_information.svg", 32, 32},
    Picture{"message_question.svg", 32, 32},
    Picture{"message_stop.svg", 32, 32},
    Picture{"new_range_image.svg", 64, 64},
    Picture{"panel_footer.svg", 182, 29},
    Picture{"progress_mark.svg", 28, 22},
    Picture{"range_delete.svg", 48, 48},
    Picture{"range_new.svg", 48, 48},
    Picture{"range_rename.svg", 48, 48},
    Picture{"range_save.svg", 48, 48},
    Picture{"range_save_as.svg", 48, 48},
    Picture{"save_as_range.svg", 36, 36},
    Picture{"save_image.svg", 32, 32},
    Picture{"side_panel.svg", 220, 600},
};

class ArtworkPicture : public testing::Test {
 protected:
  void SetUp() override { InitArtwork(); }

  [[nodiscard]] static QString Path(const char* name) { return QStringLiteral(":/artwork/") + QLatin1String(name); }

  [[nodiscard]] static QImage Drawn(const char* name) {
    QSvgRenderer renderer(Path(name));
    QImage image(renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
  }
};

TEST_F(ArtworkPicture, DrawsSomethingInTheSizeOfItsPlaceInTheWindow) {
  for (const Picture& picture : kPictures) {
    const QSvgRenderer renderer(Path(picture.Name));
    ASSERT_TRUE(renderer.isValid()) << picture.Name;
    EXPECT_EQ(renderer.defaultSize(), QSize(picture.Width, picture.Height)) << picture.Name;
    const QImage image = Drawn(picture.Name);
    QImage nothing(image.size(), image.format());
    nothing.fill(Qt::transparent);
    EXPECT_NE(image, nothing) << picture.Name;
  }
}

TEST_F(ArtworkPicture, HasARowHereForEachFile) {
  QStringList expected;
  for (const Picture& picture : kPictures)
    expected << QLatin1String(picture.Name);

  EXPECT_EQ(QDir(QStringLiteral(":/artwork")).entryList(QDir::Files, QDir::Name), expected);
}

TEST_F(ArtworkPicture, BackgroundsRunFromTheirColourToNearlyWhite) {
  struct Background {
    const char* Name = nullptr;
    int Rim = 0;  // pixels round the gradient
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
  // A small picture has few steps from top to bottom, and its outer ones are half way to the next.
  const auto isNear = [](const QColor& a, const QColor& b, int tolerance) {
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
  };

  for (const Background& background : backgrounds) {
    const QImage image = Drawn(background.Name);
    const int tolerance = image.height() < 50 ? 12 : 1;
    const int middle = background.Rim == 0 ? 0 : image.width() / 2;
    EXPECT_TRUE(isNear(image.pixelColor(middle, background.Rim), background.Top, tolerance)) << background.Name;
    EXPECT_TRUE(isNear(image.pixelColor(middle, image.height() - 1 - background.Rim), background.Bottom, tolerance))
        << background.Name;
  }
}

}  // namespace
}  // namespace quillon
