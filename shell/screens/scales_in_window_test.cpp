// The window and its dialogs at every scale that the pictures are looked at: texts fit, neighbours stay apart, and the
// captions of the grid can be read.

#include <QAbstractButton>
#include <QImage>
#include <gtest/gtest.h>
#include <span>
#include <string>
#include <vector>

#include "ranges/dialogs/manager_layout.h"
#include "ranges/dialogs/new_range_layout.h"
#include "shell/screens/main_layout.h"
#include "shell/window_zoom.h"
#include "testing/layout_rules.h"
#include "testing/main_stage.h"
#include "toolkit/colors.h"
#include "toolkit/placement.h"

namespace quillon {
namespace {

class ScalesInWindow : public testing::Test, public MainStage, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    StoreZoom(GetParam(), Program.Folder());
    Start();
    ASSERT_EQ(PixelScale(), GetParam() / 100.0);
  }
  void TearDown() override { ShowAtScale(1); }
};

// Boxes, lists and buttons, besides the labels.
void ExpectControlsHaveRoom(const QWidget& form) {
  for (const QLineEdit* box : form.findChildren<QLineEdit*>())
    EXPECT_LE(box->fontMetrics().height(), box->height()) << box->objectName().toStdString();
  for (const QComboBox* box : form.findChildren<QComboBox*>())
    EXPECT_LE(box->fontMetrics().height(), box->height()) << box->objectName().toStdString();
  for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width())
        << button->objectName().toStdString();
  }
}

template <typename Form>
void ExpectRoomForAll(Form& form, std::span<const ControlTable> tables) {
  ExpectTextsFit(form);
  ExpectControlsHaveRoom(form);
  ExpectNoLabelRunsIntoItsNeighbours(form.Controls(), tables);
}

TEST_P(ScalesInWindow, EveryTextFitsItsPlace) {
  ExpectRoomForAll(Form, main_layout::kTables);
  Dialogs.ShowManager();
  ExpectRoomForAll(*Dialogs.LoadedManager(), manager_layout::kTables);
  ExpectRoomForAll(Dialogs.ShowNewRange(), new_range_layout::kTables);
}

// A label that wraps in the design wraps here, and one that grows grows.
TEST_P(ScalesInWindow, LabelsWrapAsTheyDoInTheDesign) {
  const auto wrapping = [this] {
    std::vector<std::string> names;
    for (const Label* label : Form.findChildren<Label*>()) {
      if (label->Wraps() && !label->isHidden()) names.push_back(label->objectName().toStdString());
    }
    return names;
  };
  const std::vector<std::string> here = wrapping();
  ShowAtScale(1);
  EXPECT_EQ(here, wrapping());
}

// The darkest point of a caption's picture against the lightest: the letters, and the cell or their own pale edge.
double ContrastOfCaption(const QImage& cell) {
  constexpr Rgb kWhite = {255, 255, 255};
  Rgb darkest = kWhite;
  Rgb lightest = {0, 0, 0};
  for (int y = 0; y < cell.height(); ++y) {
    for (int x = 0; x < cell.width(); ++x) {
      const Rgb color = FromColor(cell.pixelColor(x, y));
      if (ContrastRatio(color, kWhite) > ContrastRatio(darkest, kWhite)) darkest = color;
      if (ContrastRatio(color, kWhite) < ContrastRatio(lightest, kWhite)) lightest = color;
    }
  }
  return ContrastRatio(darkest, lightest);
}

TEST_P(ScalesInWindow, CaptionsOfTheGridStandOutFromTheirCells) {
  const auto expectLegible = [this] {
    constexpr double kLegible = 3;
    int edged = 0;
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      const Label& cell = LabelAt("lblCards", i);
      const Rgb fill = FromColor(Get<Shape>("shapeCardBack", i).Fill());
      const bool dim = ContrastRatio(FromColor(cell.TextColor()), fill) < kLegible;
      EXPECT_EQ(cell.Halo().alpha() != 0, dim) << HandLabel(i) << " on " << ColorText(fill);
      if (!dim) continue;
      ++edged;
      const QImage picture = Form.grab(QRect(cell.mapTo(&Form, QPoint(0, 0)), cell.size()))
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
      EXPECT_GE(ContrastOfCaption(picture), kLegible) << HandLabel(i) << " on " << ColorText(fill);
    }
    return edged;
  };
  RunRaise("150", "50", "400", "Tight", "Pairs");
  EXPECT_GT(expectLegible(), 0) << "there are losses on dark red";
  RunEquity("Tight");
  expectLegible();
}

// The head of the box is a picture, 30 twips wider than the box, and ends with it.
TEST_P(ScalesInWindow, TheHeadOfTheQuickInfoIsAsWideAsItsBox) {
  Click("picLogo");
  const QRect head = Get("aImage", 0).geometry();
  const QRect box = Get("aRectangle", 3).geometry();
  const QImage picture = Get("frameAboutContent").grab(head).toImage();
  const int row = picture.height() * 47 / 60;  // the blue rule
  int last = 0;
  for (int x = 0; x < picture.width(); ++x) {
    if (picture.pixelColor(x, row).lightness() < 200) last = x;
  }
  EXPECT_NEAR(head.left() + last, box.right(), 1);
}

INSTANTIATE_TEST_SUITE_P(InWindow, ScalesInWindow, testing::Values(75, 100, 150, 200, 300));

}  // namespace
}  // namespace quillon
