#include "toolkit/placement.h"

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "toolkit/form_builder.h"
#include "toolkit/label.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

constexpr std::array kScales = {0.75, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};

// Twelve squares of a card grid in a row, on a slightly larger frame.
struct Grid : public QWidget {
  Grid() {
    SetPlace(*this, {0, 0, 6000, 600});
    for (int i = 0; i < 12; ++i) {
      auto* square = new Shape(ControlKind::kShape, this);
      SetPlace(*square, {static_cast<float>(100 + i * 430), 100, 405, 405});
      Squares.push_back(square);
    }
  }
  std::vector<Shape*> Squares;
};

class Placement : public testing::Test {
 protected:
  void TearDown() override { ShowAtScale(1); }
};

TEST_F(Placement, FollowsTheScaleAndComesBack) {
  QWidget form;
  SetPlace(form, {0, 0, 15300, 9045});
  const ControlRow row = {
      .Name = "txtNumber", .Kind = ControlKind::kTextBox, .Place = {1440, 3240, 2475, 315}, .Font = {"Arial", 11.25F}};
  const ControlTable table{.Container = {}, .Font = {}, .Rows = {&row, 1}};
  const FormControls controls(form, {&table, 1});
  const QWidget* box = &controls.At(row);
  for (const double scale : kScales) {
    ShowAtScale(scale);
    EXPECT_EQ(form.size(), PixelPlace({0, 0, 15300, 9045}).size()) << scale;
    EXPECT_EQ(form.minimumSize(), form.maximumSize()) << scale;
    EXPECT_EQ(box->geometry(), PixelPlace(row.Place)) << scale;
    EXPECT_NEAR(box->font().pixelSize(), 15 * scale, 1) << scale;
    EXPECT_EQ(PlaceOf(*box), row.Place) << scale;
  }
  ShowAtScale(1);
  EXPECT_EQ(form.size(), QSize(1020, 603));
  EXPECT_EQ(box->geometry(), QRect(96, 216, 165, 21));
  EXPECT_EQ(box->font().pixelSize(), 15);
}

TEST_F(Placement, KeepsASizeThatTheUserHasGiven) {
  QWidget form;
  SetResizable(form, {9000, 6000}, {15005, 9050});
  EXPECT_EQ(form.size(), QSize(1000, 603));
  for (const double scale : kScales) {
    ShowAtScale(scale);
    EXPECT_EQ(form.minimumSize(), PixelPlace({0, 0, 9000, 6000}).size()) << scale;
    EXPECT_EQ(form.size(), PixelPlace({0, 0, 15005, 9050}).size()) << scale;
    EXPECT_EQ(SizeOf(form), (TwipSize{15005, 9050})) << scale;
  }
  form.resize(2000, 1500);
  EXPECT_EQ(SizeOf(form), (TwipSize{10000, 7500}));
  ShowAtScale(1);
  EXPECT_EQ(form.size(), QSize(667, 500));
  form.resize(10, 10);
  EXPECT_EQ(SizeOf(form), (TwipSize{9000, 6000})) << "the minimum";
}

TEST_F(Placement, LeavesAMaximizedWindowAsLargeAsItIs) {
  QWidget form;
  SetResizable(form, {9000, 6000}, {15005, 9050});
  form.showMaximized();
  QCoreApplication::processEvents();
  const QSize whole = form.size();
  ASSERT_GT(whole.width(), 1000);
  ShowAtScale(1.5);
  EXPECT_EQ(form.size(), whole);
  EXPECT_EQ(SizeOf(form), (TwipSize{15005, 9050})) << "the size that it goes back to";
}

TEST_F(Placement, LeavesGapsThatAreAlikeToAPixel) {
  const Grid grid;
  for (const double scale : kScales) {
    ShowAtScale(scale);
    for (std::size_t i = 1; i < grid.Squares.size(); ++i) {
      const int gap = grid.Squares.at(i)->x() - grid.Squares.at(i - 1)->geometry().right() - 1;
      EXPECT_NEAR(gap, 25 * scale / 15, 1) << scale << " " << i;
      EXPECT_NEAR(grid.Squares.at(i)->width(), 27 * scale, 1) << scale << " " << i;
    }
  }
}

TEST_F(Placement, DrawsEveryEdgeOfAShapeAlikeAtEveryScale) {
  for (const double scale : kScales) {
    for (const ControlKind kind : {ControlKind::kShape, ControlKind::kRoundedShape}) {
      for (const int width : {1, 3}) {
        QWidget form;
        SetPlace(form, {0, 0, 900, 900});
        auto* shape = new Shape(kind, &form);
        shape->SetFill(Qt::white);
        shape->SetLineWidth(width);
        SetPlace(*shape, {100, 100, 405, 405});
        ShowAtScale(scale);

        const QImage image = shape->grab().toImage();
        const int middle = image.width() / 2;
        const int last = image.width() - 1;
        for (int i = 0; i < middle; ++i) {
          const QColor expected = i < LinePixels(width) ? Qt::black : Qt::white;
          EXPECT_EQ(image.pixelColor(i, middle), expected) << scale << " left " << i;
          EXPECT_EQ(image.pixelColor(middle, i), expected) << scale << " top " << i;
          EXPECT_EQ(image.pixelColor(last - i, middle), expected) << scale << " right " << i;
          EXPECT_EQ(image.pixelColor(middle, image.height() - 1 - i), expected) << scale << " bottom " << i;
        }
      }
    }
  }
}

TEST_F(Placement, OfALineIsAsThickAsALineIs) {
  QWidget form;
  auto* line = new Shape(ControlKind::kLine, &form);
  SetPlace(*line, {0, 700, 900, 0});
  for (const double scale : kScales) {
    ShowAtScale(scale);
    EXPECT_EQ(line->height(), LinePixels(1)) << scale;
  }
}

TEST_F(Placement, OfAShapeThatSticksOutIsDrawnToTheEdgeWithItsWholeLine) {
  for (const double scale : kScales) {
    QWidget panel;
    SetPlace(panel, {0, 0, 3780, 3315});
    auto* border = new Shape(ControlKind::kShape, &panel);
    border->SetLineWidth(2);
    SetPlace(*border, {10, 10, 3780, 3315});
    ShowAtScale(scale);
    const QImage image = panel.grab().toImage();
    for (int i = 1; i <= LinePixels(2); ++i) {
      EXPECT_EQ(image.pixelColor(image.width() - i, image.height() / 2), QColor(Qt::black)) << scale << " right " << i;
      EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - i), QColor(Qt::black)) << scale << " lower " << i;
    }
  }
}

TEST_F(Placement, OfALabelWrapsWhereTheDesignHasRoomForTwoLines) {
  for (const bool wraps : {true, false}) {
    QWidget form;
    Label label(&form);
    SetFormFont(label, {.Family = "Tahoma", .Points = 8.25F}, {});  // 11 pixels
    SetPlace(label, {0, 0, 400, wraps ? 330.0F : 329.0F});
    for (const double scale : kScales) {
      ShowAtScale(scale);
      EXPECT_EQ(label.Wraps(), wraps) << scale;
    }
    ShowAtScale(1);
  }
}

TEST_F(Placement, OfAMemoTakesItsMarginAlongAndKeepsWhatCanBeUndone) {
  QPlainTextEdit memo;
  SetFormFont(memo, {.Family = "Arial", .Points = 9}, {});
  ShowAtScale(2);
  EXPECT_EQ(memo.document()->documentMargin(), 8);
  memo.insertPlainText(QStringLiteral("typed"));
  ShowAtScale(1);
  memo.undo();
  EXPECT_EQ(memo.toPlainText(), QString());
}

}  // namespace
}  // namespace quillon
