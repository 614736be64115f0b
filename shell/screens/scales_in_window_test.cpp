// The window and its dialogs at every step of the zoom: texts fit, neighbours do not overlap, and the captions of the
// grid are readable.

#include <QAbstractButton>
#include <QImage>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
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

class ScalesInWindow : public MainFormTest {
 protected:
  void TearDown() override { ShowAtScale(1); }

  /// Checks at each step of the zoom.
  static void AtEachScale(const std::function<void()>& check) {
    for (const int percent : kZoomSteps) {
      SCOPED_TRACE(percent);
      ShowAtScale(percent / 100.0);
      check();
    }
  }
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

TEST_F(ScalesInWindow, EveryTextFitsItsPlace) {
  Dialogs.ShowManager();
  Dialogs.ShowNewRange();
  AtEachScale([this] {
    ExpectRoomForAll(Form, main_layout::kTables);
    ExpectRoomForAll(*Dialogs.LoadedManager(), manager_layout::kTables);
    ExpectRoomForAll(*Dialogs.LoadedNewRange(), new_range_layout::kTables);
  });
}

// The number of lines of each multi-line label, by name.
std::map<std::string, int> LinesOf(const QWidget& form) {
  std::map<std::string, int> lines;
  for (const Label* label : form.findChildren<Label*>()) {
    if (!label->Wraps()) continue;
    const int two = label->fontMetrics().boundingRect({}, 0, QStringLiteral("1\n2")).height();
    lines[label->objectName().toStdString()] = qRound(2.0 * label->TextSize().height() / two);
  }
  return lines;
}

TEST_F(ScalesInWindow, TextsHaveNoMoreLinesThanInTheDesign) {
  Dialogs.ShowManager();
  Dialogs.ShowNewRange();
  for (const QWidget* form :
       std::initializer_list<QWidget*>{&Form, Dialogs.LoadedManager(), Dialogs.LoadedNewRange()}) {
    ShowAtScale(1);
    const std::map<std::string, int> design = LinesOf(*form);
    AtEachScale([&] {
      for (const auto& [label, lines] : LinesOf(*form))
        EXPECT_LE(lines, design.at(label)) << label;
    });
  }
}

// The contrast between the darkest and the lightest point of a caption: the letters, and the cell or their own pale
// edge.
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

TEST_F(ScalesInWindow, CaptionsOfTheGridStandOutFromTheirCells) {
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
  AtEachScale([&] { EXPECT_GT(expectLegible(), 0) << "there are losses on dark red"; });
  RunEquity("Tight");
  AtEachScale(expectLegible);
}

// The head of the box is a picture, 30 twips wider than the box, cut at its edge.
TEST_F(ScalesInWindow, TheHeadOfTheQuickInfoIsAsWideAsItsBox) {
  AtEachScale([this] {
    const QRect head = Get("aImage", 0).geometry();
    const QRect box = Get("aRectangle", 3).geometry();
    const QImage picture = Get("frameAboutContent").grab(head).toImage();
    const int row = picture.height() * 47 / 60;  // the blue rule
    int last = 0;
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, row).lightness() < 200) last = x;
    }
    EXPECT_NEAR(head.left() + last, box.right(), 1);
  });
}

}  // namespace
}  // namespace quillon
