#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <set>
#include <vector>

#include "testing/main_stage.h"
#include "testing/sample_analysis.h"
#include "toolkit/fonts.h"
#include "tools/analysis_output.h"

namespace quillon {
namespace {

class DetailsInWindow : public MainFormTest {
 protected:
  RichTextBox& Report() { return Get<RichTextBox>("rtfSummary"); }
  std::string ReportText() { return FromQt(Report().toPlainText()); }

  /// The Details screen of a made-up analysis.
  void ShowDetailsOf(const Analysis& state) {
    if (!Shows("lblNav", kDetailsNav)) RunEquity("Tight");
    static_cast<Analysis&>(Form.State()) = state;
    Open(kDetailsNav);
  }

  /// Picks an entry with the keyboard.
  void Pick(MainControls::Key<QComboBox> list, const std::string& text) {
    auto& box = Get<QComboBox>(list);
    const int wanted = box.findText(ToQt(text));
    ASSERT_GE(wanted, 0);
    const bool up = wanted < box.currentIndex();
    while (box.currentIndex() != wanted)
      QTest::keyClick(&box, up ? Qt::Key_Up : Qt::Key_Down);
  }
  void PickForum() { Pick("cmboOutputType", "2+2"); }
  void PickPlain() { Pick("cmboOutputType", "Plain Text"); }

  /// Picks a hand in one step, without passing the hands in between.
  void PickHand(std::string_view hand) {
    auto& box = Get<QComboBox>("cmbo169");
    const int wanted = box.findText(ToQt(hand));
    box.setCurrentIndex(wanted - 1);
    QTest::keyClick(&box, Qt::Key_Down);
  }

  /// The position on the line of the text after each tab.
  std::vector<int> EdgesBehindTabs(const QTextBlock& line) {
    const QString text = line.text();
    std::vector<int> edges;
    for (int i = 0; i < text.size(); ++i) {
      if (text.at(i) != QLatin1Char('\t')) continue;
      QTextCursor behind(line);
      behind.setPosition(line.position() + i + 1);
      edges.push_back(Report().cursorRect(behind).left());
    }
    return edges;
  }

  QTextCharFormat FormatAt(const QString& text) {
    QTextCursor found = Report().document()->find(text);
    EXPECT_FALSE(found.isNull()) << text.toStdString();
    return found.charFormat();
  }
};

Analysis ShoveWithDroppedHands() {
  Analysis state = sample::RaiseState();
  state.DroppedHands = "QQ, AKs";
  return state;
}

Analysis CallWithOddDigits() {
  Analysis state = sample::CallState();
  state.Amounts = {12.345, 0.125, 0};
  state.RangeName = "Über: \"alles\"";
  return state;
}

TEST_F(DetailsInWindow, TheReportIsTheCompanionsCharacterForCharacter) {
  const std::array<std::string, 2> hands = {"72o", "AKs"};
  for (const Analysis& state : {sample::CallState(), sample::RaiseState(), sample::EquityState(),
                                ShoveWithDroppedHands(), CallWithOddDigits()}) {
    SCOPED_TRACE(state.RangeName);
    ShowDetailsOf(state);
    EXPECT_EQ(ReportText(), InFormat(kAnalysisFormats, "plain", {state, {}}));
    PickForum();
    EXPECT_EQ(ReportText(), InFormat(kAnalysisFormats, "2+2", {state, {}}));
    PickPlain();
    EXPECT_EQ(ReportText(), InFormat(kAnalysisFormats, "plain", {state, {}}));
    PickForum();
    PickHand("72o");
    PickHand("AKs");
    EXPECT_EQ(ReportText(), InFormat(kAnalysisFormats, "2+2", {state, hands}));
    QTest::keyClick(&Get<QComboBox>("cmbo169"), Qt::Key_Home);
    EXPECT_EQ(ReportText(), InFormat(kAnalysisFormats, "2+2", {state, hands})) << "None adds and removes nothing";
  }
}

TEST_F(DetailsInWindow, AHandReplacesNothingThatIsSelected) {
  const std::array<std::string, 1> hands = {"AKs"};
  ShowDetailsOf(sample::CallState());
  PickForum();
  Report().selectAll();
  PickHand("AKs");
  EXPECT_EQ(ReportText(), InFormat(kAnalysisFormats, "2+2", {sample::CallState(), hands}));
}

TEST_F(DetailsInWindow, HeadingsAreArialAndTheBodyIsFixedWidth) {
  ShowDetailsOf(sample::CallState());
  for (const char* heading : {"Situation", "Details", "Calculations"}) {
    const QTextCharFormat format = FormatAt(QLatin1String(heading));
    EXPECT_EQ(format.fontFamilies().toStringList(), FontFamilies("Arial")) << heading;
    EXPECT_EQ(format.fontPointSize(), 14.25) << "19 pixels";
  }
  for (const char* body : {"Total Pot Size", "Pot Odds", "72o"}) {
    const QTextCharFormat format = FormatAt(QLatin1String(body));
    EXPECT_EQ(format.fontFamilies().toStringList(), FontFamilies("Courier New")) << body;
    EXPECT_EQ(format.fontPointSize(), 9.75) << "13 pixels";
    EXPECT_EQ(format.foreground().color(), QColor(Qt::black));
  }
}

TEST_F(DetailsInWindow, TheForumReportHasTheBoxsOwnFont) {
  ShowDetailsOf(sample::CallState());
  PickForum();
  const QTextCharFormat format = FormatAt(QStringLiteral("Villain Range"));
  EXPECT_EQ(format.fontFamilies().toStringList(), FontFamilies("Verdana"));
  PickHand("AA");
  EXPECT_EQ(FormatAt(QStringLiteral("EV for AA")).fontFamilies().toStringList(), FontFamilies("Courier New"));
}

Analysis LargestCall() {
  Analysis state = sample::CallState();
  state.Amounts.PotSize = 9999999.99;
  state.HandInfo = sample::ResultsTable({{"AA", "9999999.99\t0.85\t1"}, {"72o", "-9999999.99\t0.1234\t1"}});
  return state;
}

Analysis LargestRaise() {
  Analysis state = sample::RaiseState();
  state.HandInfo =
      sample::ResultsTable({{"AA", "9999999.99\t-1\t1"}, {"72o", "-9999999.99\t0.1234\t1"}}, "0.5\t0.5\t0.5");
  return state;
}

TEST_F(DetailsInWindow, ColumnsStandOneAboveTheOther) {
  for (const Analysis& state :
       {sample::CallState(), LargestCall(), sample::RaiseState(), LargestRaise(), sample::EquityState()}) {
    SCOPED_TRACE(state.HandInfo.substr(0, state.HandInfo.find('\r')));
    ShowDetailsOf(state);
    const QTextBlock header = Report().document()->find(QStringLiteral("Hand\t")).block();
    ASSERT_TRUE(header.isValid());
    const std::vector<int> columns = EdgesBehindTabs(header);
    EXPECT_GE(columns.size(), 2U);
    int rows = 0;
    for (QTextBlock row = header.next(); !row.text().isEmpty(); row = row.next(), ++rows)
      EXPECT_EQ(EdgesBehindTabs(row), columns) << row.text().toStdString();
    EXPECT_EQ(rows, 169);

    std::set<std::vector<int>> names;  // above the table, the texts after the names form one column
    for (QTextBlock line = Report().document()->begin(); line != header; line = line.next()) {
      if (!EdgesBehindTabs(line).empty()) names.insert(EdgesBehindTabs(line));
    }
    EXPECT_EQ(names.size(), 1U);
  }
}

TEST_F(DetailsInWindow, HandsCanBePickedForTheForumAlone) {
  ShowDetailsOf(sample::CallState());
  const auto expectPick = [this](bool shown) {
    EXPECT_EQ(Shows("cmbo169"), shown);
    EXPECT_EQ(Shows("lblSpecificHand"), shown);
  };
  expectPick(false);
  PickForum();
  expectPick(true);
  PickPlain();
  expectPick(false);
  PickForum();
  Open(kDetailsNav);
  EXPECT_EQ(Get<QComboBox>("cmboOutputType").currentIndex(), 0);
  expectPick(false);
  EXPECT_TRUE(ReportText().starts_with("Situation\n"));
}

TEST_F(DetailsInWindow, TheLineGoesInAtTheCaret) {
  ShowDetailsOf(sample::CallState());
  PickForum();
  const std::string before = ReportText();
  const std::size_t villain = before.find("Villain Range");
  QTextCursor caret = Report().textCursor();
  caret.setPosition(static_cast<int>(villain));
  Report().setTextCursor(caret);
  PickHand("AA");
  PickHand("AKs");
  EXPECT_EQ(ReportText(), before.substr(0, villain) +
                              "\n[COLOR=\"DimGray\"]EV for AA = 0.85 * (200) - 50 = +120[/COLOR]\n"
                              "\n[COLOR=\"DimGray\"]EV for AKs = 0.25 * (200) - 50 = 0[/COLOR]\n" +
                              before.substr(villain));
}

TEST_F(DetailsInWindow, ANewReportHoldsNoTraceOfThePick) {
  ShowDetailsOf(sample::CallState());
  PickForum();
  const std::string before = ReportText();
  PickHand("AA");
  PickPlain();
  PickForum();
  EXPECT_EQ(ReportText(), before);
  EXPECT_EQ(FromQt(Get<QComboBox>("cmbo169").currentText()), "AA") << "the list stays where it was";
}

TEST_F(DetailsInWindow, PickingTheSameHandAgainAddsItAgain) {
  ShowDetailsOf(sample::CallState());
  PickForum();
  PickHand("AA");
  const std::size_t once = ReportText().size();
  auto& hands = Get<QComboBox>("cmbo169");
  hands.showPopup();
  QTest::keyClick(hands.view(), Qt::Key_Return);
  EXPECT_GT(ReportText().size(), once);
}

TEST_F(DetailsInWindow, ANewRunLeavesTheReportUntilItIsOpened) {
  ShowDetailsOf(sample::CallState());
  const std::string before = ReportText();
  RunEquity("Tight");
  EXPECT_EQ(ReportText(), before);
  Open(kDetailsNav);
  EXPECT_TRUE(ReportText().starts_with("Range\n"));
}

TEST_F(DetailsInWindow, TheReportIsReadFromItsStart) {
  ShowDetailsOf(sample::CallState());
  EXPECT_EQ(Report().verticalScrollBar()->value(), 0);
  EXPECT_GT(Report().verticalScrollBar()->maximum(), 0);
}

TEST_F(DetailsInWindow, WhatIsTypedAndAPickedHandCanBeUndoneButNotTheReport) {
  ShowDetailsOf(sample::CallState());
  PickForum();
  const std::string report = ReportText();
  Report().setFocus(Qt::TabFocusReason);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ReportText(), report);

  TypeKeys("note");
  PickHand("AKs");
  EXPECT_NE(ReportText(), report);
  Report().setFocus(Qt::TabFocusReason);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ReportText(), report + "note");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ReportText(), report);
}

}  // namespace
}  // namespace quillon
