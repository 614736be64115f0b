#include <QCheckBox>
#include <QPlainTextEdit>

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

  /// The pixels of the grid screen have the engine's colours for the state.
  void ExpectCellsAsWorkedOut() {
    const std::array<Rgb, kHandClassCount> colors = GridColors(Form.State());
    const QImage shown = Get("frameContent", kGridScreen).grab().toImage();
    for (std::int16_t i = 0; i < kHandClassCount; ++i) {
      const QPoint corner = Get("shapeCardBack", i).geometry().topLeft() + QPoint(2, 2);
      EXPECT_EQ(ColorName(shown.pixelColor(corner)), ColorText(colors.at(static_cast<std::size_t>(i)))) << HandLabel(i);
    }
  }

  /// The engine's texts for the state, all readable.
  void ExpectTextsAsWorkedOut() {
    const GridTexts texts = MakeGridTexts(Form.State());
    EXPECT_EQ(Caption("lblGridTitle"), texts.Title);
    EXPECT_EQ(LinesFromQt(Get<QPlainTextEdit>("txtHandInfo").toPlainText()), texts.HandInfo);
    EXPECT_EQ(Caption("lblResults"), texts.Results);
    EXPECT_EQ(Shows("frameLegend"), texts.LegendVisible);
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

TEST_F(ResultsInWindow, EachRunPaintsAndExplains) {
  RunCall("9999999.99", "1234567.89", "Pairs");
  ExpectCellsAsWorkedOut();
  ExpectTextsAsWorkedOut();
  EXPECT_TRUE(Get<QPlainTextEdit>("txtHandInfo").isReadOnly());
  RunEquity("Everything");
  ExpectCellsAsWorkedOut();
  ExpectTextsAsWorkedOut();
  RunRaise("150", "50", "62.5", "Pairs", "Tight");
  ExpectCellsAsWorkedOut();
  ExpectTextsAsWorkedOut();
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

class ResultsAsRange : public ResultsInWindow {
 protected:
  NewRangeForm& Dialog() { return *Dialogs.LoadedNewRange(); }

  /// The hands that win something.
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
