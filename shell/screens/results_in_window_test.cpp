#include <QCheckBox>
#include <QPlainTextEdit>
#include <cmath>

#include "analysis/results_table.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "results/results_grid.h"
#include "support/rgb.h"
#include "testing/main_stage.h"

namespace quillon {
namespace {

class ResultsInWindow : public MainFormTest {
 protected:
  std::string CellColorName(std::string_view hand) {
    return ColorName(Get<Shape>("shapeCardBack", HandIndex(hand)).Fill());
  }

  /// The pixels of the grid screen show the colours that the engine gives the state.
  void ExpectCellsAsWorkedOut() {
    const std::array<Rgb, kHandClassCount> colors = GridColors(Form.State());
    const QImage shown = Get("frameContent", kGridScreen).grab().toImage();
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      const QPoint corner = Get("shapeCardBack", i).geometry().topLeft() + QPoint(2, 2);
      EXPECT_EQ(ColorName(shown.pixelColor(corner)), ColorText(colors.at(static_cast<std::size_t>(i)))) << HandLabel(i);
    }
  }

  /// How many of all hands are green, in whole percent.
  int GreenShare() {
    int green = 0;
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      const QColor color = Get<Shape>("shapeCardBack", i).Fill();
      if (color.green() > color.red()) green += ComboCount(HandLabel(i));
    }
    return static_cast<int>(std::lround(green / 1325.0 * 100));
  }

  void ExpectTexts(std::string_view title, std::string_view situation, std::string_view explanation, bool legend) {
    EXPECT_EQ(Caption("lblGridTitle"), title);
    EXPECT_EQ(LinesFromQt(Get<QPlainTextEdit>("txtHandInfo").toPlainText()), situation);
    EXPECT_EQ(Caption("lblResults"), explanation);
    EXPECT_EQ(Shows("frameLegend"), legend);
  }

  void ExpectNothingIsCutOff() {
    const Label& explanation = LabelAt("lblResults");
    EXPECT_TRUE(explanation.Wraps());
    EXPECT_LE(explanation.TextSize().width(), explanation.width());
    EXPECT_LE(explanation.TextSize().height(), explanation.height());
    if (Shows("frameLegend")) {
      EXPECT_LE(explanation.y() + explanation.TextSize().height(), Get("frameLegend").y());
    }
  }
};

TEST_F(ResultsInWindow, BeforeAnyRunTheDesignStands) {
  EXPECT_EQ(Caption("lblGridTitle"), "ALL IN Grid");
  EXPECT_EQ(Caption("lblResults"), "No analysis has been performed.");
  EXPECT_EQ(LinesFromQt(Get<QPlainTextEdit>("txtHandInfo").toPlainText()), "-\r\n");
  EXPECT_FALSE(Get("frameLegend").isHidden());
}

TEST_F(ResultsInWindow, CallPaintsAndExplains) {
  RunCall("150", "50", "Pairs");
  EXPECT_EQ(Screen(), "ALL IN Grid");
  ExpectCellsAsWorkedOut();
  ExpectTexts("ALL IN Grid", "Pot Size: 150 | Call Amount: 50 | Odds: 3:1\r\nHis Range: Full: KK+ | Half: QQ",
              "If you call with all of the hands in green you will profit in the long run. You should fold everything "
              "else.\r\n\r\nSince you are getting 3:1 odds, you need 25% equity in order to call.\r\n\r\nIn this "
              "situation, " +
                  std::to_string(GreenShare()) + "% of hands are profitable.",
              true);
  ExpectNothingIsCutOff();
}

TEST_F(ResultsInWindow, RaisePaintsAndExplains) {
  RunRaise("150", "50", "62.5", "Pairs", "Tight");
  ExpectCellsAsWorkedOut();
  ExpectTexts("ALL IN Grid", "Pot Size: 150 | Call Amount: 50 | Shove Amount: 62.5\r\nHis Calling Range: KK+,AKs,AKo",
              "If you raise with all of the hands in green you will profit in the long run. For any hand, you should "
              "also consider how well you and your opponent play after the flop to decide whether or not calling is an "
              "option.\r\n\r\nIn this situation, " +
                  std::to_string(GreenShare()) + "% of hands are profitable.",
              true);
  ExpectNothingIsCutOff();
}

TEST_F(ResultsInWindow, EquityPaintsAndExplainsWithoutALegend) {
  RunEquity("Everything");
  ExpectCellsAsWorkedOut();
  ExpectTexts("Equity Grid", "His Range: [Everything]",
              "Equity is a meausrement of how much value you have in the current hand. In other words, it is what "
              "percentage you will win against your opponent's range.",
              false);
  ExpectNothingIsCutOff();
  RunCall("150", "50", "Tight");
  EXPECT_TRUE(Shows("frameLegend"));
  EXPECT_EQ(Caption("lblGridTitle"), "ALL IN Grid");
}

TEST_F(ResultsInWindow, CellsKeepTheirColoursUntilTheNextRunPaintsThem) {
  RunCall("150", "50", "Pairs");
  const std::string color = CellColorName("72o");
  const std::string explanation = Caption("lblResults");
  Open(kCallNav);
  Type(0, "9");
  EXPECT_EQ(CellColorName("72o"), color);
  EXPECT_EQ(Caption("lblResults"), explanation);
  RunEquity("Everything");
  EXPECT_NE(CellColorName("72o"), color);
}

TEST_F(ResultsInWindow, CaptionsStandInTheirCells) {
  RunEquity("Tight");
  for (std::int16_t i = 0; i < kHandClassCount; ++i) {
    const Label& label = LabelAt("lblCards", i);
    EXPECT_TRUE(label.isVisible());
    EXPECT_TRUE(Shows("shapeCardBack", i));
    EXPECT_LE(label.TextSize().width(), label.width()) << label.Text().toStdString();
    EXPECT_EQ(ColorName(label.TextColor()), "#000000");
  }
}

TEST_F(ResultsInWindow, ALongSituationCanBeRead) {
  RunCall("9999999.99", "1234567.89", "Pairs");
  auto& situation = Get<QPlainTextEdit>("txtHandInfo");
  EXPECT_TRUE(situation.isReadOnly());
  EXPECT_EQ(ColorName(situation.palette().color(QPalette::Text)), "#404040");
}

class ResultsAsRange : public ResultsInWindow {
 protected:
  NewRangeForm& Dialog() { return *Dialogs.LoadedNewRange(); }

  /// The hands with something to win.
  std::string Winners() {
    std::string winners;
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      if (GetHandInfo(Form.State().HandInfo, HandLabel(i), 1) > 0) winners.append(HandLabel(i)).append(" ");
    }
    return winners;
  }

  void SaveAsRange() {
    Click("imgSaveAsRange");
    ComeToFront();
  }
};

TEST_F(ResultsAsRange, MarksTheWinnersInANewDialog) {
  RunCall("150", "50", "Pairs");
  const std::string winners = Winners();
  ASSERT_FALSE(winners.empty());

  Click("imgSaveAsRange");

  EXPECT_TRUE(Dialog().isVisible());
  EXPECT_FALSE(Dialog().isModal());
  const std::string marked = RangeTextFromGrid(Dialog().Grid().Colors());
  EXPECT_EQ(marked, TextWith(winners));
  EXPECT_EQ(FromQt(Dialog().Controls().LabelAt("lblPercSelected").Text()), SelectionCaption(SelectedCombos(marked)));
  EXPECT_EQ(FromQt(Dialog().Controls().Get<QPlainTextEdit>("txtRangeAbbr").toPlainText()), RangeSummary(marked));
  EXPECT_EQ(Dialog().Controls().Get<QLineEdit>("txtRangeName").text(), QString());
  EXPECT_EQ(Dialog().focusWidget()->objectName(), QStringLiteral("txtRangeName"));
}

TEST_F(ResultsAsRange, ASecondClickUndoesTheFirst) {
  RunCall("150", "50", "Pairs");
  SaveAsRange();
  SaveAsRange();
  EXPECT_EQ(RangeTextFromGrid(Dialog().Grid().Colors()), TextWith(""));
  EXPECT_EQ(FromQt(Dialog().Controls().LabelAt("lblPercSelected").Text()), "0% selected");
  EXPECT_EQ(FromQt(Dialog().Controls().Get<QPlainTextEdit>("txtRangeAbbr").toPlainText()), "[None]");
}

TEST_F(ResultsAsRange, HalfWeightIsAsTheDialogSays) {
  RunCall("150", "50", "Pairs");
  Open(kCallNav);
  Click("lblNewRange", 0);
  Dialog().Controls().Get<QCheckBox>("chkHalf").setChecked(true);
  Open(kGridNav);
  Click("imgSaveAsRange");
  EXPECT_EQ(RangeTextFromGrid(Dialog().Grid().Colors()), TextWith("", Winners()));
}

TEST_F(ResultsAsRange, WithoutResultsTheClickDoesNothing) {
  RunEquity("Tight");
  Form.State().HandInfo.clear();
  Click("imgSaveAsRange");
  EXPECT_EQ(Dialogs.LoadedNewRange(), nullptr);
}

}  // namespace
}  // namespace quillon
