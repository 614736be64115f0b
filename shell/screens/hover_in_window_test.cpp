#include "testing/main_stage.h"
#include "testing/sample_analysis.h"

namespace quillon {
namespace {

class HoverInWindow : public MainFormTest {
 protected:
  /// The grid screen, showing a made-up analysis.
  void ShowGridOf(const Analysis& state) {
    RunEquity("Tight");
    static_cast<Analysis&>(Form.State()) = state;
  }

  QPoint CellOf(std::string_view hand) { return MiddleOf("lblCards", HandIndex(hand)); }
  void Hover(std::string_view hand) {
    MoveTo(CellOf(hand) + QPoint(2, 2));  // a mouse that is there already has to move
    MoveTo(CellOf(hand));
  }

  /// The panel of AKs, opened by an arrow key.
  void OpenByKey() {
    Get("lblCards", 0).setFocus(Qt::TabFocusReason);
    Press(Qt::Key_Right);
    ASSERT_TRUE(PanelShows());
    ASSERT_EQ(Caption("lblHov_Cards"), "AKs");
  }

  /// A point of the bare screen.
  void MoveOffTheGrid() { MoveTo({230, 565}); }

  [[nodiscard]] bool PanelShows() { return Shows("frameHover"); }
};

struct HoverCase {
  const char* Name;
  Analysis (*State)();
  std::string_view Hand;
  std::string_view Picture;
  std::string_view EquityTitle;
  std::string_view Equity;
  std::string_view Value;
  std::string_view Return;
  std::string_view FoldShare;  // empty: the line is hidden
  std::string_view Advice;
};

class HoverTextsInWindow : public HoverInWindow, public testing::WithParamInterface<HoverCase> {};

TEST_P(HoverTextsInWindow, TellWhatTheRunFound) {
  const HoverCase& row = GetParam();
  ShowGridOf(row.State());
  Hover(row.Hand);

  ASSERT_TRUE(PanelShows());
  EXPECT_EQ(Caption("lblHov_Cards"), row.Hand);
  EXPECT_EQ(FromQt(Get<Picture>("imgHover").Artwork()), row.Picture);
  EXPECT_EQ(Caption("lblHovDesc_Eq"), row.EquityTitle);
  EXPECT_EQ(Caption("lblHov_Eq"), row.Equity);
  for (const ControlName name :
       std::to_array<ControlName>({"lblHovDesc_EV", "lblHov_EV", "lblHovDesc_ROI", "lblHov_ROI"}))
    EXPECT_EQ(Shows(name), !row.Value.empty()) << name.Name();
  if (!row.Value.empty()) {
    EXPECT_EQ(Caption("lblHovDesc_EV"), "EV:");
    EXPECT_EQ(Caption("lblHov_EV"), row.Value);
    EXPECT_EQ(Caption("lblHovDesc_ROI"), "ROI:");
    EXPECT_EQ(Caption("lblHov_ROI"), row.Return);
  }
  for (const ControlName name : std::to_array<ControlName>({"lblHovDesc_FoldPerc", "lblHov_FoldPerc"}))
    EXPECT_EQ(Shows(name), !row.FoldShare.empty()) << name.Name();
  if (!row.FoldShare.empty()) {
    EXPECT_EQ(Caption("lblHov_FoldPerc"), row.FoldShare);
  }
  EXPECT_EQ(Caption("lblHov_Advice"), row.Advice);
}

Analysis NothingToCall() {
  Analysis state = sample::RaiseState();
  state.CallAmount = 0;
  return state;
}

Analysis QuarterEquity() {
  Analysis state = sample::EquityState();
  state.HandInfo = sample::ResultsTable({{"AA", "0\t0.25\t1"}, {"22", "0\t0.2499\t1"}});
  return state;
}

INSTANTIATE_TEST_SUITE_P(
    HoverInWindow, HoverTextsInWindow,
    testing::Values(HoverCase{"CallThatWins", sample::CallState, "AA", "hover_green", "Equity:", "85%", "+120", "240%",
                              "", "You should go ALL IN"},
                    HoverCase{"ShoveThatWins", sample::RaiseState, "AKs", "hover_green", "Equity when Called:", "55%",
                              "+98.2", "196.4%", "40%", "You should go ALL IN"},
                    HoverCase{"ShoveThatNobodyCalls", sample::RaiseState, "AA", "hover_green",
                              "Equity when Called:", "N/A", "+150", "300%", "100%", "You should go ALL IN"},
                    HoverCase{"ShoveWithNothingToCall", NothingToCall, "AKs", "hover_green",
                              "Equity when Called:", "55%", "+98.2", "N/A", "40%", "You should go ALL IN"},
                    HoverCase{"EquityOfAQuarter", QuarterEquity, "AA", "hover_blue", "Equity:", "25%", "", "", "",
                              ":)"}),
    CaseName<HoverCase>);

TEST_F(HoverInWindow, ThePanelHangsBelowItsCellOrStandsAboveIt) {
  ShowGridOf(sample::CallState());
  for (std::int16_t i = 0; i < kHandClassCount; ++i) {
    MoveOffTheGrid();
    Hover(HandLabel(i));
    const int row = i / 13;
    const int column = i % 13;
    const auto left = static_cast<float>(520 + column * 430);
    const auto top = static_cast<float>(940 + row * 430);
    const bool above = row >= 10;
    ASSERT_TRUE(PanelShows());
    const QRect place = PixelPlace({left, above ? top - 3315 - 25 : top + 405 + 25, 3780, 3315});
    EXPECT_EQ(Get("frameHover").geometry(), place) << HandLabel(i);
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

TEST_F(HoverInWindow, TheBareScreenClosesThePanel) {
  ShowGridOf(sample::CallState());
  Hover("AA");
  ASSERT_TRUE(PanelShows());
  MoveOffTheGrid();
  EXPECT_FALSE(PanelShows());
  Hover("AA");
  EXPECT_TRUE(PanelShows());
}

TEST_F(HoverInWindow, StripAndGapBelongToTheScreen) {
  ShowGridOf(sample::CallState());
  const QRect square = Get("shapeCardBack", 14).geometry();
  const QRect label = Get("lblCards", 14).geometry();
  EXPECT_EQ(label.top() - square.top(), 7) << "100 twips";
  const QPoint corner = Get("frameContent", kGridScreen).mapTo(&Form, QPoint(0, 0));
  const std::array<QPoint, 4> outside = {
      QPoint(square.center().x(), square.top() + 3),  // the strip above the label
      QPoint(label.left() - 1, square.center().y()),  // at its left
      QPoint(label.right() + 1, square.center().y()),  // at its right
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

struct LeaveCase {
  const char* Name;
  void (*Leave)(MainStage& stage);
};

class GuestPanel : public HoverInWindow, public testing::WithParamInterface<LeaveCase> {
 protected:
  void Leave() { GetParam().Leave(*this); }
};

TEST_P(GuestPanel, GoesWithTheKeyboardAndDoesNotComeBackByItself) {
  ShowGridOf(sample::CallState());
  OpenByKey();
  Leave();
  EXPECT_TRUE(Get("frameHover").isHidden());
  ComeToFront();
  EXPECT_TRUE(Get("frameHover").isHidden());
}

TEST_P(GuestPanel, OfTheMouseStays) {
  ShowGridOf(sample::CallState());
  OpenByKey();
  Hover("AKs");
  Leave();
  EXPECT_FALSE(Get("frameHover").isHidden());
}

INSTANTIATE_TEST_SUITE_P(
    HoverInWindow, GuestPanel,
    testing::Values(LeaveCase{"Tab", [](MainStage& stage) { stage.Press(Qt::Key_Tab); }},
                    LeaveCase{"Escape", [](MainStage& stage) { stage.Press(Qt::Key_Escape); }},
                    LeaveCase{"AnotherScreen", [](MainStage& stage) { stage.Press(Qt::Key_1, Qt::ControlModifier); }},
                    LeaveCase{"AnotherWindow",
                              [](MainStage& stage) {
                                stage.Dialogs.ShowManager();
                                ASSERT_TRUE(QTest::qWaitForWindowActive(stage.Dialogs.LoadedManager()));
                              }}),
    CaseName<LeaveCase>);

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
      // The verdict is centred over the whole panel, and its place a pixel wider.
      EXPECT_TRUE(panel.contains(label->geometry()) || label == &LabelAt("lblHov_Advice"))
          << HandLabel(i) << " " << label->objectName().toStdString() << ": " << label->Text().toStdString();
    }
  }
}

}  // namespace
}  // namespace quillon
