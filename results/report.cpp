#include "results/report.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "analysis/expected_value.h"
#include "analysis/results_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "ranges/range_text.h"
#include "results/formula_texts.h"
#include "results/web_addresses.h"
#include "support/joined_text.h"
#include "support/number_text.h"

namespace quillon {
namespace {

constexpr std::int16_t kHeadingSize = 14;
constexpr std::int16_t kBodySize = 10;

// Writes the lines of the plain form. A heading and the first line under it set their fonts; the lines that follow go
// on in the font that is set.
class PlainReport {
 public:
  explicit PlainReport(ReportBox& box) : box_(box) {}

  void Heading(std::string text) {
    SetReportFont(box_, kHeadingFontCode, kHeadingSize, kBlack);
    AppendReportLine(box_, text, kNameColumn);
  }
  void Body(std::string text) {
    SetReportFont(box_, kFixedWidthFontCode, kBodySize, kBlack);
    AppendReportLine(box_, text, kNameColumn);
  }
  void Line(std::string text) { AppendReportLine(box_, text, kNameColumn); }
  void LineOf(std::string& text) { AppendReportLine(box_, text, kNameColumn); }
  void BlankLine() { Line("\r\n"); }

 private:
  ReportBox& box_;
};

std::string HandAndCombos(std::string_view hand) {
  return Joined({hand, "\t", std::to_string(ComboCount(hand)), "\t"});
}

// The equity column rounds half away from zero and the formula to even; the two may differ in the last digit.
std::string CallRow(const AnalysisState& state, std::string_view hand) {
  const double expectedValue = GetHandInfo(state.HandInfo, hand, kExpectedValueColumn);
  const double equity = GetHandInfo(state.HandInfo, hand, kEquityColumn);
  const std::string call = RoundedText(state.CallAmount, 2);
  const std::string pot = RoundedText(state.PotSize, 2);
  return Joined({HandAndCombos(hand), PatternText(equity, 3), "\t", MoneyColumn(expectedValue, 13),
                 "\t=", RoundedText(equity, 3), "*(", pot, "+", call, ")-", call});
}

std::string RaiseRow(const AnalysisState& state, std::string_view hand) {
  const double expectedValue = GetHandInfo(state.HandInfo, hand, kExpectedValueColumn);
  const double equity = GetHandInfo(state.HandInfo, hand, kEquityColumn);
  const double foldShare = GetHandInfo(state.HandInfo, hand, kFoldShareColumn);
  return Joined({HandAndCombos(hand), "    ", PatternText(equity, 3), "\t", MoneyColumn(expectedValue, 10),
                 "\t=", ShoveFormulaText(state, foldShare, equity)});
}

std::string EquityRow(const AnalysisState& state, std::string_view hand) {
  return HandAndCombos(hand) + NumberText(GetHandInfo(state.HandInfo, hand, kEquityColumn));
}

using RowText = std::string (*)(const AnalysisState&, std::string_view hand);

void WriteRows(PlainReport& report, const AnalysisState& state, RowText rowText) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    report.Line(rowText(state, HandLabel(index)));
}

void WritePlainCall(PlainReport& report, const AnalysisState& state) {
  const double odds = PotOdds(state.PotSize, state.CallAmount);

  report.Heading("Situation");
  report.Body("Type: Preflop Call ALL IN");
  report.Line("Total Pot Size: " + RoundedText(state.PotSize, 2));
  report.Line("Amount To Call: " + RoundedText(state.CallAmount, 2));
  report.Heading("\r\n\r\nRange");
  report.Body("Opponent Range Name: " + state.RangeName);
  report.Line("Range: " + RangeSummary(state.RangeText));
  report.BlankLine();
  report.Heading("Details");
  report.Body("Pot Odds: " + RoundedText(odds, 3) + " : 1");
  report.Line("BEP: " + RoundedText(BreakEvenEquity(odds) * 100, 2) + "%");
  report.BlankLine();
  report.Heading("Calculations");
  report.Body("Hand\tCombs\tEquity\tEV      \tFormula");
  WriteRows(report, state, CallRow);
}

void WriteDroppedHands(PlainReport& report, AnalysisState& state) {
  report.Body("Some hands were dropped because they do not appear in the current range:");
  report.LineOf(state.DroppedHands);
  report.BlankLine();
}

void WritePlainRaise(PlainReport& report, AnalysisState& state) {
  report.Heading("Situation");
  report.Body("Type: Preflop Raise ALL IN");
  report.Line("Total Pot Size: " + RoundedText(state.PotSize, 2));
  report.Line("Amount To Call: " + RoundedText(state.CallAmount, 2));
  report.Line("Amount Behind: " + RoundedText(state.ShoveAmount, 2));
  report.Heading("\r\n\r\nRange");
  report.Body("Current Range: " + state.RangeName);
  report.Line("Range: " + RangeSummary(state.RangeText));
  report.Line("Calling Range: " + state.CallingRangeName);
  report.Line("Range: " + RangeSummary(state.CallingRangeText));
  report.BlankLine();
  if (!state.DroppedHands.empty()) WriteDroppedHands(report, state);
  report.Heading("Calculations");
  report.Body("Hand\tCombs\t    Equity\t        EV\tFormula");
  WriteRows(report, state, RaiseRow);
}

void WritePlainEquity(PlainReport& report, const AnalysisState& state) {
  report.Heading("Range");
  report.Body("Current Range: " + state.RangeName);
  report.Line("Range: " + RangeSummary(state.RangeText));
  report.Heading("\r\n\r\nCalculations");
  report.Body("Hand\tCombs\tEquity");
  WriteRows(report, state, EquityRow);
}

void WritePlainReport(ReportBox& box, AnalysisState& state) {
  PlainReport report(box);
  switch (state.Mode) {
    case AnalysisMode::kPreflopCall:
      return WritePlainCall(report, state);
    case AnalysisMode::kPreflopRaise:
      return WritePlainRaise(report, state);
    case AnalysisMode::kEquityOnly:
      return WritePlainEquity(report, state);
    case AnalysisMode::kNone:
      return;
  }
}

void WriteForumLine(ReportBox& box, std::string text) {
  AppendReportLine(box, text, kNoPadding);
}

// The hands with an expected value of 0 or more, in the notation of a range.
std::string ProfitableHandsText(const AnalysisState& state) {
  std::array<double, kHandClassCount> weights{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const bool profitable = GetHandInfo(state.HandInfo, HandLabel(index), kExpectedValueColumn) >= 0;
    weights[static_cast<std::size_t>(index)] = profitable ? 1 : 0;
  }
  return RangeSummary(RangeTextOf(weights));
}

// Five hands to a line; the separator behind the last hand is cut off.
std::string EquityBlockText(const AnalysisState& state) {
  constexpr std::int16_t kHandsPerLine = 5;
  constexpr std::size_t kSeparatorLength = 2;

  std::string block;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view hand = HandLabel(index);
    block.append(hand).append(": ").append(RoundedText(GetHandInfo(state.HandInfo, hand, kEquityColumn), 4));
    block += (index + 1) % kHandsPerLine == 0 ? "\r\n" : ", ";
  }
  block.resize(block.size() - kSeparatorLength);
  return block;
}

void WriteForumTitle(ReportBox& box, const std::string& title) {
  WriteForumLine(box, "[URL=\"" + HomeAddress() + "\"]Quillon[/URL] - " + title + ":\r\n");
}

void WriteForumProfitableHands(ReportBox& box, const AnalysisState& state) {
  WriteForumLine(box, "[b][COLOR=\"DarkGreen\"]Profitable Hands:[/COLOR][/b]");
  WriteForumLine(box, ProfitableHandsText(state));
}

void WriteForumCall(ReportBox& box, const AnalysisState& state) {
  const double odds = PotOdds(state.PotSize, state.CallAmount);

  WriteForumTitle(box, "Hand Analysis");
  WriteForumLine(box, "[b]Situation:[/b]");
  WriteForumLine(box, "Pot Size: " + NumberText(state.PotSize) + " | To Call: " + NumberText(state.CallAmount));
  // Here the break-even point is the fraction, where the plain form has the percentage; it is meant.
  WriteForumLine(box, "[COLOR=\"GRAY\"](Pot Odds: " + RoundedText(odds, 2) +
                          ":1, BEP: " + RoundedText(BreakEvenEquity(odds), 2) + ")[/COLOR]");
  WriteForumLine(box, "Villain Range: " + RangeSummary(state.RangeText) + "\r\n");
  WriteForumProfitableHands(box, state);
}

void WriteForumRaise(ReportBox& box, const AnalysisState& state) {
  WriteForumTitle(box, "Hand Analysis");
  WriteForumLine(box, "[b]Situation:[/b]");
  WriteForumLine(box, "Pot Size: " + NumberText(state.PotSize) + " | To Call: " + NumberText(state.CallAmount) +
                          " | Shove Amount: " + NumberText(state.ShoveAmount));
  WriteForumLine(box, "Villain Current Range: " + RangeSummary(state.RangeText));
  WriteForumLine(box, "Villain Calling Range: " + RangeSummary(state.CallingRangeText) + "\r\n");
  WriteForumProfitableHands(box, state);
}

void WriteForumEquity(ReportBox& box, const AnalysisState& state) {
  WriteForumTitle(box, "Equity Analysis");
  WriteForumLine(box, "Villain Range: " + RangeSummary(state.RangeText));
  WriteForumLine(box, "[COLOR=\"BLUE\"]");
  WriteForumLine(box, EquityBlockText(state));
  WriteForumLine(box, "[/COLOR]");
}

void WriteForumReport(ReportBox& box, const AnalysisState& state) {
  switch (state.Mode) {
    case AnalysisMode::kPreflopCall:
      return WriteForumCall(box, state);
    case AnalysisMode::kPreflopRaise:
      return WriteForumRaise(box, state);
    case AnalysisMode::kEquityOnly:
      return WriteForumEquity(box, state);
    case AnalysisMode::kNone:
      return;
  }
}

}  // namespace

void BuildReport(ReportScreen& screen, AnalysisState& state) {
  screen.SetText("");
  const ReportForm form = screen.SelectedForm();
  screen.SetSpecificHandVisible(form == ReportForm::kForum);
  if (form == ReportForm::kPlainText) return WritePlainReport(screen, state);
  WriteForumReport(screen, state);
}

}  // namespace quillon
