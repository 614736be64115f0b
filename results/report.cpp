#include "results/report.h"

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

// Writes the plain form. A heading and the first line under it set their fonts; later lines keep the current one.
class PlainReport {
 public:
  explicit PlainReport(ReportText& box) : box_(box) {}

  void Heading(std::string text) {
    SetReportFont(box_, kHeadingFontCode, kHeadingSize, kBlack);
    AppendReportLine(box_, text, kNameColumn);
  }
  void Body(std::string text) {
    SetReportFont(box_, kFixedWidthFontCode, kBodySize, kBlack);
    AppendReportLine(box_, text, kNameColumn);
  }
  void Line(std::string text) { AppendReportLine(box_, text, kNameColumn); }
  void BlankLine() { Line("\r\n"); }

 private:
  ReportText& box_;
};

std::string HandAndCombos(const HandResult& hand) {
  return Joined({hand.Label, "\t", std::to_string(hand.Combos), "\t"});
}

// Intentional: the equity column rounds half away from zero and the formula to even, so the last digits may differ.
std::string CallRow(const Analysis& analysis, const HandResult& hand) {
  const std::string call = RoundedText(analysis.Amounts.CallAmount, 2);
  const std::string pot = RoundedText(analysis.Amounts.PotSize, 2);
  return Joined({HandAndCombos(hand), PatternText(hand.Equity, 3), "\t", MoneyColumn(hand.ExpectedValue, 13),
                 "\t=", RoundedText(hand.Equity, 3), "*(", pot, "+", call, ")-", call});
}

std::string RaiseRow(const Analysis& analysis, const HandResult& hand) {
  return Joined({HandAndCombos(hand), "    ", PatternText(hand.Equity, 3), "\t", MoneyColumn(hand.ExpectedValue, 10),
                 "\t=", ShoveFormulaText(analysis, hand)});
}

std::string EquityRow(const Analysis& /*analysis*/, const HandResult& hand) {
  return HandAndCombos(hand) + NumberText(hand.Equity);
}

using RowText = std::string (*)(const Analysis& analysis, const HandResult& hand);

void WriteRows(PlainReport& report, const Analysis& analysis, RowText rowText) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    report.Line(rowText(analysis, GetHandResult(analysis.HandInfo, HandLabel(index))));
}

void WritePlainCall(ReportText& box, const Analysis& analysis) {
  PlainReport report(box);
  const double odds = PotOdds(analysis.Amounts.PotSize, analysis.Amounts.CallAmount);

  report.Heading("Situation");
  report.Body("Type: Preflop Call ALL IN");
  report.Line("Total Pot Size: " + RoundedText(analysis.Amounts.PotSize, 2));
  report.Line("Amount To Call: " + RoundedText(analysis.Amounts.CallAmount, 2));
  report.Heading("\r\n\r\nRange");
  report.Body("Opponent Range Name: " + analysis.RangeName);
  report.Line("Range: " + RangeSummary(analysis.RangeText));
  report.BlankLine();
  report.Heading("Details");
  report.Body("Pot Odds: " + RoundedText(odds, 3) + " : 1");
  report.Line("BEP: " + RoundedText(BreakEvenEquity(odds) * 100, 2) + "%");
  report.BlankLine();
  report.Heading("Calculations");
  report.Body("Hand\tCombs\tEquity\tEV      \tFormula");
  WriteRows(report, analysis, CallRow);
}

void WriteDroppedHands(PlainReport& report, const Analysis& analysis) {
  report.Body("Some hands were dropped because they do not appear in the current range:");
  report.Line(analysis.DroppedHands);
  report.BlankLine();
}

void WritePlainRaise(ReportText& box, const Analysis& analysis) {
  PlainReport report(box);
  report.Heading("Situation");
  report.Body("Type: Preflop Raise ALL IN");
  report.Line("Total Pot Size: " + RoundedText(analysis.Amounts.PotSize, 2));
  report.Line("Amount To Call: " + RoundedText(analysis.Amounts.CallAmount, 2));
  report.Line("Amount Behind: " + RoundedText(analysis.Amounts.ShoveAmount, 2));
  report.Heading("\r\n\r\nRange");
  report.Body("Current Range: " + analysis.RangeName);
  report.Line("Range: " + RangeSummary(analysis.RangeText));
  report.Line("Calling Range: " + analysis.CallingRangeName);
  report.Line("Range: " + RangeSummary(analysis.CallingRangeText));
  report.BlankLine();
  if (!analysis.DroppedHands.empty()) WriteDroppedHands(report, analysis);
  report.Heading("Calculations");
  report.Body("Hand\tCombs\t    Equity\t        EV\tFormula");
  WriteRows(report, analysis, RaiseRow);
}

void WritePlainEquity(ReportText& box, const Analysis& analysis) {
  PlainReport report(box);
  report.Heading("Range");
  report.Body("Current Range: " + analysis.RangeName);
  report.Line("Range: " + RangeSummary(analysis.RangeText));
  report.Heading("\r\n\r\nCalculations");
  report.Body("Hand\tCombs\tEquity");
  WriteRows(report, analysis, EquityRow);
}

void WriteForumLine(ReportText& box, std::string text) {
  AppendReportLine(box, text, kNoPadding);
}

// The hands with an expected value of 0 or more, in range notation.
std::string ProfitableHandsText(const Analysis& analysis) {
  std::array<double, kHandClassCount> weights{};
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const bool profitable = GetHandInfo(analysis.HandInfo, HandLabel(index), kExpectedValueColumn) >= 0;
    weights[static_cast<std::size_t>(index)] = profitable ? 1 : 0;
  }
  return RangeSummary(RangeTextOf(weights));
}

// Five hands to a line; the separator after the last hand is removed.
std::string EquityBlockText(const Analysis& analysis) {
  constexpr std::int16_t kHandsPerLine = 5;
  constexpr std::size_t kSeparatorLength = 2;

  std::string block;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view hand = HandLabel(index);
    block.append(hand).append(": ").append(RoundedText(GetHandInfo(analysis.HandInfo, hand, kEquityColumn), 4));
    block += (index + 1) % kHandsPerLine == 0 ? "\r\n" : ", ";
  }
  block.resize(block.size() - kSeparatorLength);
  return block;
}

void WriteForumTitle(ReportText& box, const std::string& title) {
  WriteForumLine(box, "[URL=\"" + HomeAddress() + "\"]Quillon[/URL] - " + title + ":\r\n");
}

void WriteForumProfitableHands(ReportText& box, const Analysis& analysis) {
  WriteForumLine(box, "[b][COLOR=\"DarkGreen\"]Profitable Hands:[/COLOR][/b]");
  WriteForumLine(box, ProfitableHandsText(analysis));
}

void WriteForumCall(ReportText& box, const Analysis& analysis) {
  const double odds = PotOdds(analysis.Amounts.PotSize, analysis.Amounts.CallAmount);

  WriteForumTitle(box, "Hand Analysis");
  WriteForumLine(box, "[b]Situation:[/b]");
  WriteForumLine(box, "Pot Size: " + NumberText(analysis.Amounts.PotSize) +
                          " | To Call: " + NumberText(analysis.Amounts.CallAmount));
  // Intentional: a post shows the break-even point as a fraction, the plain form as a percentage.
  WriteForumLine(box, "[COLOR=\"GRAY\"](Pot Odds: " + RoundedText(odds, 2) +
                          ":1, BEP: " + RoundedText(BreakEvenEquity(odds), 2) + ")[/COLOR]");
  WriteForumLine(box, "Villain Range: " + RangeSummary(analysis.RangeText) + "\r\n");
  WriteForumProfitableHands(box, analysis);
}

void WriteForumRaise(ReportText& box, const Analysis& analysis) {
  WriteForumTitle(box, "Hand Analysis");
  WriteForumLine(box, "[b]Situation:[/b]");
  WriteForumLine(box, "Pot Size: " + NumberText(analysis.Amounts.PotSize) +
                          " | To Call: " + NumberText(analysis.Amounts.CallAmount) +
                          " | Shove Amount: " + NumberText(analysis.Amounts.ShoveAmount));
  WriteForumLine(box, "Villain Current Range: " + RangeSummary(analysis.RangeText));
  WriteForumLine(box, "Villain Calling Range: " + RangeSummary(analysis.CallingRangeText) + "\r\n");
  WriteForumProfitableHands(box, analysis);
}

void WriteForumEquity(ReportText& box, const Analysis& analysis) {
  WriteForumTitle(box, "Equity Analysis");
  WriteForumLine(box, "Villain Range: " + RangeSummary(analysis.RangeText));
  WriteForumLine(box, "[COLOR=\"BLUE\"]");
  WriteForumLine(box, EquityBlockText(analysis));
  WriteForumLine(box, "[/COLOR]");
}

std::string SignedMoneyText(double value) {
  return (value > 0 ? "+" : "") + RoundedText(value, 2);
}

std::string CallWorking(const Analysis& analysis, const HandResult& hand) {
  return Joined({"EV for ", hand.Label, " = ", RoundedText(hand.Equity, 4), " * (",
                 NumberText(analysis.Amounts.PotSize + analysis.Amounts.CallAmount), ") - ",
                 NumberText(analysis.Amounts.CallAmount), " = ", SignedMoneyText(hand.ExpectedValue)});
}

std::string RaiseWorking(const Analysis& analysis, const HandResult& hand) {
  return Joined(
      {"EV for ", hand.Label, " = ", ShoveFormulaText(analysis, hand), " = ", SignedMoneyText(hand.ExpectedValue)});
}

std::string EquityWorking(const Analysis& /*analysis*/, const HandResult& hand) {
  return Joined({"Equity for ", hand.Label, " : ", NumberText(hand.Equity)});
}

struct ReportRow {
  AnalysisMode Mode = AnalysisMode::kNone;
  void (*Plain)(ReportText& box, const Analysis& analysis) = nullptr;
  void (*Forum)(ReportText& box, const Analysis& analysis) = nullptr;
  RowText Working = nullptr;  // the calculation for a single hand
};

constexpr ScenarioTable<ReportRow> kReports = {{
    {AnalysisMode::kPreflopCall, WritePlainCall, WriteForumCall, CallWorking},
    {AnalysisMode::kPreflopRaise, WritePlainRaise, WriteForumRaise, RaiseWorking},
    {AnalysisMode::kEquityOnly, WritePlainEquity, WriteForumEquity, EquityWorking},
}};
static_assert(CoversEveryScenario(kReports));

}  // namespace

ReportText BuildReport(const Analysis& analysis, ReportForm form) {
  ReportText report;
  if (const ReportRow* const row = FindRow(kReports, analysis.Mode))
    (form == ReportForm::kPlainText ? row->Plain : row->Forum)(report, analysis);
  return report;
}

void AddSpecificHand(ReportText& box, const Analysis& analysis, std::string_view hand) {
  const ReportRow* const row = FindRow(kReports, analysis.Mode);
  if (row == nullptr || hand == "None") return;

  SetReportFont(box, kFixedWidthFontCode, kBodySize, kBlack);
  const std::string working = row->Working(analysis, GetHandResult(analysis.HandInfo, hand));
  std::string line = "\r\n[COLOR=\"DimGray\"]" + working + "[/COLOR]";
  AppendReportLine(box, line, kNameColumn);
}

}  // namespace quillon
