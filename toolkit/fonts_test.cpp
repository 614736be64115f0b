#include "toolkit/fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <array>
#include <gtest/gtest.h>

#include "toolkit/text.h"

namespace quillon {
namespace {

TEST(Fonts, PointsAreThoseOf96DotsToTheInch) {
  struct Row {
    float Points;
    int Pixels;
  };
  constexpr std::array kRows = {
      Row{6.75F, 9},  Row{8, 11},  Row{8.25F, 11},  Row{9, 12},
      Row{9.75F, 13}, Row{12, 16}, Row{15.75F, 21}, Row{20.25F, 27},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(FontPixels(row.Points), row.Pixels) << row.Points;
    EXPECT_EQ(QFontInfo(FormFont({.Family = "Arial", .Points = row.Points}, {})).pixelSize(), row.Pixels) << row.Points;
  }
}

TEST(Fonts, OfAnotherPlatformHaveAFreeOneInTheirPlace) {
  struct Row {
    std::string_view Family;
    std::string_view StandIn;
  };
  constexpr std::array kRows = {
      Row{"Arial", "Liberation Sans"}, Row{"MS Sans Serif", "Liberation Sans"}, Row{"Tahoma", "DejaVu Sans Condensed"},
      Row{"Verdana", "DejaVu Sans"},   Row{"Courier New", "Liberation Mono"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(FontFamilies(row.Family), QStringList({ToQt(row.StandIn)}));
    const std::string shown = QFontInfo(FormFont({.Family = row.Family, .Points = 8.25F}, {})).family().toStdString();
    EXPECT_EQ(shown, row.StandIn) << row.Family;
  }
}

TEST(Fonts, ComeWithTheProgram) {
  EXPECT_EQ(QDir(QStringLiteral(":/fonts")).entryList(QDir::Files, QDir::Name),
            QStringList({QStringLiteral("DejaVuSans.ttf"), QStringLiteral("DejaVuSansCondensed-Bold.ttf"),
                         QStringLiteral("DejaVuSansCondensed.ttf"), QStringLiteral("LiberationMono-Regular.ttf"),
                         QStringLiteral("LiberationSans-Bold.ttf"), QStringLiteral("LiberationSans-Regular.ttf")}));
  for (const QString& file : QDir(QStringLiteral(":/fonts")).entryList(QDir::Files)) {
    const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/") + file);
    EXPECT_FALSE(QFontDatabase::applicationFontFamilies(id).isEmpty()) << file.toStdString();
  }
}

TEST(Fonts, OfAnUnknownNameStandAlone) {
  EXPECT_EQ(FontFamilies("Wingdings"), QStringList({QStringLiteral("Wingdings")}));
}

TEST(Fonts, OfARowWithoutOneAreThoseOfItsFrame) {
  const FontSpec frame = {.Family = "Verdana", .Points = 12, .Bold = true, .Underlined = true};
  EXPECT_EQ(FormFont({}, frame), FormFont(frame, {}));
  EXPECT_TRUE(FormFont({}, frame).bold());
  EXPECT_TRUE(FormFont({}, frame).underline());

  const QFont own = FormFont({.Family = "Arial", .Points = 8.25F}, frame);
  EXPECT_EQ(own.pixelSize(), 11);
  EXPECT_FALSE(own.bold());
  EXPECT_FALSE(own.underline());
}

}  // namespace
}  // namespace quillon
