#include <functional>
#include <vector>

#include "results/hover_panel.h"
#include "testing/main_stage.h"
#include "testing/sample_analysis.h"
#include "toolkit/placement.h"

namespace quillon {
namespace {

class HoverInWindow : public MainFormTest {
 protected:
  QPoint CellOf(std::string_view hand) { return MiddleOf("lblCards", HandIndex(hand)); }
  void Hover(std::string_view hand) {
    MoveTo(CellOf(hand) + QPoint(2, 2));  // the mouse may be there already, and must move
    MoveTo(CellOf(hand));
  }

  /// The panel of AKs, opened by an arrow key.
  void OpenByKey() {
    Get("lblCards", 0).setFocus(Qt::TabFocusReason);
    Press(Qt::Key_Right);
    ASSERT_TRUE(PanelShows());
    ASSERT_EQ(Caption("lblHov_Cards"), "AKs");
  }

  /// Moves the mouse to the empty part of the screen.
  void MoveOffTheGrid() { MoveTo({230, 565}); }

  [[nodiscard]] bool PanelShows() { return Shows("frameHover"); }
};

TEST_F(HoverInWindow, ThePanelShowsTheTextsOfItsHandBesideItsCell) {
  constexpr std::array<std::string_view, 3> kPictures = {"hover_green", "hover_red", "hover_blue"};
  const auto expectLine = [this](LabelKey title, LabelKey figure, const std::optional<std::string>& text) {
    EXPECT_EQ(LabelAt(title).isVisible(), text.has_value()) << title.Name();
    EXPECT_EQ(LabelAt(figure).isVisible(), text.has_value()) << figure.Name();
    if (text) {
      EXPECT_EQ(Caption(figure), *text);
    }
  };
  for (const Analysis& state : {sample::CallState(), sample::RaiseState(), sample::EquityState()}) {
    ShowGridOf(state);
    for (const std::string_view hand : {"AA", "AKs", "72o", "A2s", "22", "22"}) {  // the last one again
      SCOPED_TRACE(hand);
      MoveOffTheGrid();
      Hover(hand);
      const HoverTexts texts = MakeHoverTexts(HandIndex(hand), state).value();
      ASSERT_TRUE(PanelShows());
      EXPECT_EQ(Get<Picture>("imgHover").Artwork(), ToQt(kPictures.at(static_cast<std::size_t>(texts.Picture))));
      EXPECT_EQ(Caption("lblHov_Cards"), hand);
      EXPECT_EQ(Caption("lblHovDesc_Eq"), texts.EquityTitle);
      EXPECT_EQ(Caption("lblHov_Eq"), texts.Equity);
      EXPECT_EQ(Caption("lblHov_Advice"), texts.Advice);
      expectLine("lblHovDesc_EV", "lblHov_EV", texts.Value);
      expectLine("lblHovDesc_ROI", "lblHov_ROI", texts.Return);
      expectLine("lblHovDesc_FoldPerc", "lblHov_FoldPerc", texts.FoldShare);
      const TwipRect place =
          HoverPlace({0, 0, 3780, 3315}, PlaceOf(Get("shapeCardBack", HandIndex(hand))), {0, 0, 12000, 8645});
      EXPECT_EQ(Get("frameHover").geometry(), PixelPlace(place));
    }
  }
}

TEST_F(HoverInWindow, ThePanelLiesInFront) {
  ShowGridOf(sample::CallState());
  Hover("AA");
  QWidget& screen = Get("frameContent", kGridScreen);
  const QRect place = Get("frameHover").geometry();
  for (const QPoint& point : {place.topLeft(), place.center(), place.bottomRight()}) {
    const QWidget* there = screen.childAt(point);
    ASSERT_NE(there, nullptr);
    EXPECT_TRUE(there == &Get("frameHover") || Get("frameHover").isAncestorOf(there));
  }
}

TEST_F(HoverInWindow, StripAndGapBelongToTheScreen) {
  ShowGridOf(sample::CallState());
  const QRect square = Get("shapeCardBack", 14).geometry();
  const QRect label = Get("lblCards", 14).geometry();
  EXPECT_EQ(label.top() - square.top(), 7) << "100 twips";
  const QPoint corner = Get("frameContent", kGridScreen).mapTo(&Form, QPoint(0, 0));
  const std::array<QPoint, 4> outside = {
      QPoint(square.center().x(), square.top() + 3),  // the strip above the label
      QPoint(label.left() - 1, square.center().y()),  // to its left
      QPoint(label.right() + 1, square.center().y()),  // to its right
      QPoint(square.center().x(), square.bottom() + 1),  // the gap below the cell
  };
  for (const QPoint& point : outside) {
    Hover("KK");
    ASSERT_TRUE(PanelShows());
    MoveTo(corner + point);
    EXPECT_FALSE(PanelShows()) << point.x() << "," << point.y();
  }
}

TEST_F(HoverInWindow, OtherControlsLeaveThePanelOpen) {
  ShowGridOf(sample::CallState());
  Hover("AA");
  MoveOver("lblNav", kCallNav);
  EXPECT_TRUE(PanelShows());
  MoveOver("lblResults");
  EXPECT_TRUE(PanelShows());
  MoveTo(MiddleOf("frameHover"));
  EXPECT_TRUE(PanelShows());
}

TEST_F(HoverInWindow, TheSameHandKeepsItsOldNumbersAfterANewRun) {
  ShowGridOf(sample::CallState());
  Hover("AA");
  static_cast<Analysis&>(Form.State()) = sample::RaiseState();
  Hover("AA");
  EXPECT_EQ(Caption("lblHov_EV"), "+120");
  EXPECT_FALSE(Shows("lblHov_FoldPerc"));
  Hover("AKs");
  Hover("AA");
  EXPECT_EQ(Caption("lblHov_EV"), "+150");
  EXPECT_TRUE(Shows("lblHov_FoldPerc"));
}

TEST_F(HoverInWindow, EquityHidesTheOtherLinesAlsoForTheSameHand) {
  ShowGridOf(sample::RaiseState());
  Hover("AA");
  static_cast<Analysis&>(Form.State()) = sample::EquityState();
  Hover("AA");
  for (const ControlName name :
       std::to_array<ControlName>({"lblHov_EV", "lblHov_ROI", "lblHov_FoldPerc", "lblHovDesc_FoldPerc"}))
    EXPECT_FALSE(Shows(name)) << name.Name();
  static_cast<Analysis&>(Form.State()) = sample::CallState();
  Hover("AKs");
  EXPECT_TRUE(Shows("lblHov_EV"));
}

TEST_F(HoverInWindow, APanelOfTheKeyboardsGoesWithItAndOneOfTheMousesStays) {
  struct Row {
    const char* Rule;
    std::function<void()> Leave;
  };
  const std::vector<Row> rows = {{"Tab", [this] { Press(Qt::Key_Tab); }},
                                 {"Escape", [this] { Press(Qt::Key_Escape); }},
                                 {"another screen", [this] { Press(Qt::Key_1, Qt::ControlModifier); }},
                                 {"another window", [this] {
                                    Dialogs.ShowManager();
                                    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialogs.LoadedManager()));
                                  }}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Rule);
    ShowGridOf(sample::CallState());
    OpenByKey();
    row.Leave();
    EXPECT_TRUE(Get("frameHover").isHidden());
    ComeToFront();
    EXPECT_TRUE(Get("frameHover").isHidden()) << "nor does it return by itself";

    Open(kGridNav);
    OpenByKey();
    Hover("AKs");
    row.Leave();
    EXPECT_FALSE(Get("frameHover").isHidden());
    ComeToFront();
  }
}

TEST_F(HoverInWindow, TheMouseOnTheBareScreenClosesAPanelOfTheKeyboards) {
  ShowGridOf(sample::CallState());
  OpenByKey();
  MoveOffTheGrid();
  EXPECT_FALSE(PanelShows());
  Press(Qt::Key_Right);
  EXPECT_TRUE(PanelShows()) << "the next key opens one again";
}

TEST_F(HoverInWindow, APanelOfTheKeyboardsIsNotThereInARunNorAfterIt) {
  for (const bool byKey : {true, false}) {
    ShowGridOf(sample::CallState());
    OpenByKey();
    DuringRun("50%", [this] { EXPECT_TRUE(Get("frameHover").isHidden()); });
    if (byKey) {
      Press(Qt::Key_3, Qt::ControlModifier);
      Press(Qt::Key_Return, Qt::ControlModifier);
    } else {
      Open(kEquityNav);
      Click("cmdPreflopEV", 2);
    }
    EXPECT_EQ(Screen(), "ALL IN Grid");
    EXPECT_FALSE(PanelShows()) << byKey;
  }
}

TEST_F(HoverInWindow, NoTextOfARealRunIsCutOff) {
  RunRaise("1234567.89", "345678.91", "4567891.23", "Everything", "Tight");
  const QRect panel = Get("frameHover").rect();
  for (std::int16_t i = 0; i < kHandClassCount; ++i) {
    Hover(HandLabel(i));
    for (const Label* label : Get("frameHover").findChildren<Label*>()) {
      if (!label->isVisible()) continue;
      EXPECT_GE(label->width(), label->TextSize().width()) << label->objectName().toStdString();
      // The verdict is centred over the whole panel, and a pixel wider than it.
      EXPECT_TRUE(panel.contains(label->geometry()) || label == &LabelAt("lblHov_Advice"))
          << HandLabel(i) << " " << label->objectName().toStdString() << ": " << label->Text().toStdString();
    }
  }
}

}  // namespace
}  // namespace quillon
