#include "toolkit/label.h"

#include <QImage>
#include <array>
#include <gtest/gtest.h>
#include <memory>

#include "toolkit/fonts.h"

namespace quillon {
namespace {

const QRect kOneLine(100, 50, 60, 16);
const QRect kSeveralLines(100, 50, 60, 48);
const QString kShort = QStringLiteral("Pot");
const QString kLong = QStringLiteral("The amount your opponent must call");

class LabelTest : public testing::Test {
 public:
  LabelTest() {
    form.resize(400, 200);
    label.setFont(FormFont(Arial(8.25), {}));
  }

  QWidget form;
  Label label{&form};
};

TEST_F(LabelTest, KeepsItsPlaceWhereTheTextFits) {
  for (const TextAlignment alignment : {TextAlignment::kLeft, TextAlignment::kCentered, TextAlignment::kRight}) {
    label.SetAlignment(alignment);
    label.SetPlace(kOneLine);
    label.SetText(kShort);
    EXPECT_EQ(label.geometry(), kOneLine);
  }
}

TEST_F(LabelTest, OfOneLineGrowsToWhereItsAlignmentLeavesRoom) {
  label.SetPlace(kOneLine);
  label.SetText(kLong);
  const int width = label.TextSize().width();
  ASSERT_GT(width, kOneLine.width());

  label.SetAlignment(TextAlignment::kLeft);
  EXPECT_EQ(label.geometry(), QRect(100, 50, width, 16));

  label.SetAlignment(TextAlignment::kRight);
  EXPECT_EQ(label.geometry(), QRect(160 - width, 50, width, 16));

  label.SetAlignment(TextAlignment::kCentered);
  EXPECT_EQ(label.width(), label.TextSize().width());
  EXPECT_EQ(label.height(), kOneLine.height());
  EXPECT_NEAR(label.geometry().center().x(), kOneLine.center().x(), 1);
}

TEST_F(LabelTest, OfOneLineGrowsBackFromItsContainersEdge) {
  label.SetPlace(QRect(350, 50, 40, 16));
  label.SetText(kLong);

  EXPECT_EQ(label.width(), label.TextSize().width());
  EXPECT_LT(label.geometry().right(), form.rect().right());

  label.SetText(kShort);
  EXPECT_EQ(label.geometry(), QRect(350, 50, 40, 16));
}

TEST_F(LabelTest, OfOneLineIsNeverTooLowForItsFont) {
  label.SetPlace(QRect(100, 50, 60, 5));
  label.SetText(kShort);

  EXPECT_EQ(label.geometry().topLeft(), QPoint(100, 50));
  EXPECT_GE(label.height(), label.fontMetrics().height());
}

TEST_F(LabelTest, OfOneLineGrowsWithItsFont) {
  label.SetPlace(kOneLine);
  label.SetText(kShort);
  label.setFont(FormFont(Bold(Arial(20.25)), {}));

  EXPECT_GE(label.width(), label.TextSize().width());
  EXPECT_GE(label.height(), 27);
}

TEST_F(LabelTest, OfSeveralLinesWrapsAtItsEdges) {
  label.SetPlace(kSeveralLines, true);
  label.SetText(kLong);

  EXPECT_LE(label.TextSize().width(), kSeveralLines.width());
  EXPECT_GT(label.TextSize().height(), kSeveralLines.height());
  EXPECT_EQ(label.geometry(), QRect(kSeveralLines.topLeft(), QSize(60, label.TextSize().height())));
  label.SetText(kShort);
  EXPECT_EQ(label.geometry(), kSeveralLines);
}

TEST_F(LabelTest, OfSeveralLinesBreaksAWordThatIsTooLong) {
  label.SetPlace(kSeveralLines, true);
  label.SetText(QString(40, QLatin1Char('W')));

  EXPECT_LE(label.TextSize().width(), kSeveralLines.width());
  EXPECT_EQ(label.width(), kSeveralLines.width());
}

TEST_F(LabelTest, ShowsEveryCharacterAsItStands) {
  label.SetPlace(kOneLine);
  const std::array<QString, 3> texts = {QStringLiteral("<b>AA</b>"), QStringLiteral("Q&A"), QStringLiteral("&lt;")};
  for (const QString& text : texts) {
    label.SetText(text);
    EXPECT_EQ(label.TextSize().width(), label.fontMetrics().boundingRect({}, Qt::AlignLeft, text).width());
    EXPECT_EQ(label.Text(), text);
  }
}

TEST_F(LabelTest, ShowsAnAmpersandAndNoUnderscoredLetter) {
  label.SetPlace(kOneLine);
  label.SetText(QStringLiteral("&A"));
  const QImage ampersand = label.grab().toImage();
  label.SetText(QStringLiteral("A"));

  EXPECT_NE(label.grab().toImage(), ampersand);
}

TEST_F(LabelTest, UnderlinesAndTakesTheLineAwayAgain) {
  label.SetPlace(kOneLine);
  label.SetText(kShort);
  const QImage plain = label.grab().toImage();

  label.SetUnderline(true);
  EXPECT_TRUE(label.HasUnderline());
  EXPECT_NE(label.grab().toImage(), plain);

  label.SetUnderline(false);
  EXPECT_FALSE(label.HasUnderline());
  EXPECT_EQ(label.grab().toImage(), plain);
}

TEST_F(LabelTest, LetsWhatLiesUnderItShowThroughUnlessItHasABackColour) {
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::green);
  form.setPalette(palette);
  label.SetPlace(kOneLine);
  EXPECT_EQ(form.grab().toImage().pixelColor(kOneLine.center()), QColor(Qt::green));

  label.SetBackColor(Qt::red);
  EXPECT_EQ(form.grab().toImage().pixelColor(kOneLine.center()), QColor(Qt::red));
}

TEST_F(LabelTest, IsDrawnInItsTextColour) {
  label.SetPlace(kSeveralLines, true);
  label.SetBackColor(Qt::white);
  label.SetTextColor(Qt::blue);
  label.setFont(FormFont(Bold(Arial(36)), {}));
  label.SetText(QStringLiteral("I"));
  const QImage image = label.grab().toImage();

  bool found = false;
  for (int x = 0; x < image.width(); ++x)
    found = found || image.pixelColor(x, image.height() / 2) == QColor(Qt::blue);
  EXPECT_TRUE(found);
}

TEST(Label, ThatIsCutKeepsItsPlaceAndHasTheWholeTextInItsToolTip) {
  QWidget form;
  form.resize(400, 100);
  Label label(&form);
  label.SetCut(true);
  label.SetPlace(kOneLine);
  const QString longName = QStringLiteral("A name of a good many letters");
  label.SetText(longName);
  EXPECT_EQ(label.geometry(), kOneLine);
  EXPECT_EQ(label.Text(), longName);
  EXPECT_EQ(label.SpokenText(), longName);
  EXPECT_EQ(label.toolTip(), longName);

  const QImage cut = label.grab().toImage();
  label.SetText(label.fontMetrics().elidedText(longName, Qt::ElideRight, kOneLine.width()));
  EXPECT_EQ(label.grab().toImage(), cut) << "the start and an ellipsis are visible";
  EXPECT_EQ(label.toolTip(), QString()) << "this one fits";
}

TEST(Label, WithAHaloHasItRoundItsLettersOnly) {
  QWidget form;
  form.resize(400, 100);
  Label label(&form);
  label.SetPlace(QRect(100, 50, 60, 20));
  label.SetBackColor(QColor(0x78, 0, 0));
  label.SetText(QStringLiteral("AKs"));
  const QImage plain = label.grab().toImage();
  label.SetHalo(Qt::white);
  const QImage edged = label.grab().toImage();
  int letters = 0;
  int pale = 0;
  for (int y = 0; y < plain.height(); ++y) {
    for (int x = 0; x < plain.width(); ++x) {
      if (plain.pixelColor(x, y) == QColor(Qt::black)) {
        ++letters;
        EXPECT_EQ(edged.pixelColor(x, y), QColor(Qt::black)) << "the letters are unchanged";
      }
      pale += edged.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
    }
  }
  EXPECT_GT(letters, 5);
  EXPECT_GT(pale, letters);
  EXPECT_EQ(edged.pixelColor(59, 10), QColor(0x78, 0, 0));
  label.SetHalo(Qt::transparent);
  EXPECT_EQ(label.grab().toImage(), plain);
}

}  // namespace
}  // namespace quillon
