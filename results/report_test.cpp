#include "results/report.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "results/web_addresses.h"
#include "support/run_time_error.h"
#include "testing/sample_analysis.h"

namespace quillon {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string Report(const Analysis& state, ReportForm form) {
  return PlainText(BuildReport(state, form));
}

std::string_view Combos(std::string_view hand) {
  if (hand.size() == 2) return "6";
  return hand[2] == 's' ? "4" : "12";
}

// The rows of a plain report's table: hand, combos, and the remaining columns, by hand.
std::string Rows(const sample::TextsByHand& cells, std::string_view otherwise) {
  std::string rows;
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const std::string_view hand = HandLabel(index);
    rows.append(hand).append("\t").append(Combos(hand)).append("\t");
    rows.append(sample::TextFor(cells, hand, otherwise)).append("\r");
  }
  return rows;
}

std::string Title(const std::string& title) {
  return "[URL=\"" + HomeAddress() + "\"]Quillon[/URL] - " + title + ":\r\n\r";
}

TEST(Report, PlainPreflopCall) {
  const std::string expected =
      "Situation\r"
      "Type:               \t Preflop Call ALL IN\r"
      "Total Pot Size:     \t 150\r"
      "Amount To Call:     \t 50\r"
      "\r\n\r\nRange\r"
      "Opponent Range Name:\t Tight\r"
      "Range:              \t Full: AA | Half: KK\r"
      "\r\n\r"
      "Details\r"
      "Pot Odds:           \t 3 : 1\r"
      "BEP:                \t 25%\r"
      "\r\n\r"
      "Calculations\r"
      "Hand\tCombs\tEquity\tEV      \tFormula\r" +
      Rows({{"AA", "0.850\t       120.00\t=0.85*(150+50)-50"},
            {"AKs", "0.250\t          .00\t=0.25*(150+50)-50"},
            {"72o", "0.123\t       -25.32\t=0.123*(150+50)-50"},
            {"22", "0.063\t         -.50\t=0.062*(150+50)-50"}},
           "0.000\t          .00\t=0*(150+50)-50");
  EXPECT_EQ(Report(sample::CallState(), ReportForm::kPlainText), expected);
}

TEST(Report, PlainPreflopRaise) {
  const std::string expected =
      "Situation\r"
      "Type:               \t Preflop Raise ALL IN\r"
      "Total Pot Size:     \t 150\r"
      "Amount To Call:     \t 50\r"
      "Amount Behind:      \t 62.5\r"
      "\r\n\r\nRange\r"
      "Current Range:      \t Wide\r"
      "Range:              \t QQ+,AKs\r"
      "Calling Range:      \t Tight\r"
      "Range:              \t AA\r"
      "\r\n\r"
      "Calculations\r"
      "Hand\tCombs\t    Equity\t        EV\tFormula\r" +
      Rows({{"AA", "    -1.000\t    150.00\t=(1*150)+(1-1)*(-1*(150+50+2*62)-(50+62.5))"},
            {"AKs", "    0.550\t     98.20\t=(0.4*150)+(1-0.4)*(0.55*(150+50+2*62)-(50+62.5))"},
            {"KK", "    0.123\t   1234.57\t=(0.1235*150)+(1-0.1235)*(0.1234568*(150+50+2*62)-(50+62.5))"},
            {"22", "    0.300\t    -12.50\t=(0*150)+(1-0)*(0.3*(150+50+2*62)-(50+62.5))"}},
           "    0.000\t       .00\t=(0*150)+(1-0)*(0*(150+50+2*62)-(50+62.5))");
  EXPECT_EQ(Report(sample::RaiseState(), ReportForm::kPlainText), expected);
}

// Both doubles are slightly below the decimal tie that they display as.
TEST(Report, ColumnsRoundTheNumberAsItReadsAndTheFormulaItsBinaryValue) {
  Analysis state = sample::CallState();
  state.HandInfo = sample::ResultsTable({{"AA", "199738.115\t0.4135\t1"}});
  EXPECT_THAT(Report(state, ReportForm::kPlainText), HasSubstr("AA\t6\t0.414\t    199738.12\t=0.413*(150+50)-50\r"));

  Analysis raise = sample::RaiseState();
  raise.HandInfo = state.HandInfo;
  EXPECT_THAT(Report(raise, ReportForm::kPlainText), HasSubstr("AA\t6\t    0.414\t 199738.12\t=("));
}

TEST(Report, PlainEquityOnly) {
  const std::string expected =
      "Range\r"
      "Current Range:      \t Wide\r"
      "Range:              \t KK+\r"
      "\r\n\r\nCalculations\r"
      "Hand\tCombs\tEquity\r" +
      Rows({{"AA", "0.8523"}, {"AKs", "0.123456789012345"}, {"72o", "-1"}, {"22", "0.5"}}, "0");
  EXPECT_EQ(Report(sample::EquityState(), ReportForm::kPlainText), expected);
}

TEST(Report, ForumPreflopCall) {
  const std::string expected = Title("Hand Analysis") +
                               "[b]Situation:[/b]\r"
                               "Pot Size: 150 | To Call: 50\r"
                               "[COLOR=\"GRAY\"](Pot Odds: 3:1, BEP: 0.25)[/COLOR]\r"
                               "Villain Range: Full: AA | Half: KK\r\n\r"
                               "[b][COLOR=\"DarkGreen\"]Profitable Hands:[/COLOR][/b]\r"
                               "33+,A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s,"
                               "A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,73o+,62o+,52o+,42o+,32o\r";
  EXPECT_EQ(Report(sample::CallState(), ReportForm::kForum), expected);
}

TEST(Report, ForumPreflopRaise) {
  const std::string expected = Title("Hand Analysis") +
                               "[b]Situation:[/b]\r"
                               "Pot Size: 150 | To Call: 50 | Shove Amount: 62.5\r"
                               "Villain Current Range: QQ+,AKs\r"
                               "Villain Calling Range: AA\r\n\r"
                               "[b][COLOR=\"DarkGreen\"]Profitable Hands:[/COLOR][/b]\r"
                               "33+,A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s,"
                               "A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,72o+,62o+,52o+,42o+,32o\r";
  EXPECT_EQ(Report(sample::RaiseState(), ReportForm::kForum), expected);
}

// For each rank from aces down: each higher card offsuit, the pair, each lower card suited.
TEST(Report, ForumEquityOnly) {
  constexpr std::string_view kRanks = "AKQJT98765432";
  std::string block;
  int hands = 0;
  const auto add = [&](const std::string& hand) {
    const sample::TextsByHand equities = {{"AA", "0.8523"}, {"AKs", "0.1235"}, {"72o", "-1"}, {"22", "0.5"}};
    if (hands > 0) block += hands % 5 == 0 ? "\r\n" : ", ";
    block.append(hand).append(": ").append(sample::TextFor(equities, hand, "0"));
    ++hands;
  };
  for (std::size_t rank = 0; rank < kRanks.size(); ++rank) {
    for (const char higher : kRanks.substr(0, rank))
      add({higher, kRanks[rank], 'o'});
    add({kRanks[rank], kRanks[rank]});
    for (const char lower : kRanks.substr(rank + 1))
      add({kRanks[rank], lower, 's'});
  }
  EXPECT_EQ(Report(sample::EquityState(), ReportForm::kForum),
            Title("Equity Analysis") + "Villain Range: KK+\r[COLOR=\"BLUE\"]\r" + block + "\r[/COLOR]\r");
}

// The plain form sets a font for each heading and for the line under it; the forum form sets none.
TEST(Report, HeadingsOfThePlainFormAreLargerThanTheRest) {
  constexpr auto kHeadings = std::to_array<std::string_view>({"Situation", "Range", "Details", "Calculations"});
  for (const ReportForm form : {ReportForm::kPlainText, ReportForm::kForum}) {
    for (Analysis state : {sample::CallState(), sample::RaiseState(), sample::EquityState()}) {
      state.DroppedHands = "QQ, JJ";
      ReportFont font;
      std::size_t fonts = 0;
      for (const auto& piece : BuildReport(state, form)) {
        if (const auto* const set = std::get_if<ReportFont>(&piece)) {
          font = *set;
          ++fonts;
          continue;
        }
        const std::string& text = std::get<std::string>(piece);
        const bool isHeading = std::ranges::any_of(kHeadings, [&](const std::string_view heading) {
          return text.find('\t') == std::string::npos && text.ends_with(std::string(heading) + "\r");
        });
        const ReportFont ofPlain = isHeading ? ReportFont{"Arial", 14, 0} : ReportFont{"Courier New", 10, 0};
        EXPECT_EQ(font, form == ReportForm::kForum ? ReportFont{} : ofPlain) << text;
      }
      EXPECT_LT(fonts, 10U) << "no font is set for each row";
    }
  }
}

TEST(Report, HasNothingBeforeAnyAnalysis) {
  for (const ReportForm form : {ReportForm::kPlainText, ReportForm::kForum})
    EXPECT_TRUE(BuildReport({}, form).empty());
}

TEST(Report, OnlyThePlainFormOfAShoveTellsTheDroppedHands) {
  for (Analysis state : {sample::CallState(), sample::RaiseState(), sample::EquityState()}) {
    for (const ReportForm form : {ReportForm::kPlainText, ReportForm::kForum}) {
      state.DroppedHands = "QQ: 6";
      const bool told = state.Mode == AnalysisMode::kPreflopRaise && form == ReportForm::kPlainText;
      EXPECT_EQ(Report(state, form).find("\rQQ:                 \t 6\r\r\n\rCalculations\r") != std::string::npos,
                told);
    }
  }
}

TEST(Report, ProfitableHandsAreThoseAtZeroOrAbove) {
  struct Case {
    const char* rule;
    std::string table;
    const char* hands;
  };
  const std::vector<Case> cases = {
      {"nobody wins", sample::ResultsTable({}, "-1\t0.1\t1"), "[None]"},
      {"a value of exactly 0 is profitable", sample::ResultsTable({}, "0\t0.5\t1"), "[Everything]"},
      {"a loss too small to be seen is a loss", sample::ResultsTable({{"AA", "-1E-15\t0.5\t1"}}, "-1\t0.1\t1"),
       "[None]"},
  };
  for (const Case& c : cases) {
    for (Analysis state : {sample::CallState(), sample::RaiseState()}) {
      state.HandInfo = c.table;
      EXPECT_THAT(Report(state, ReportForm::kForum),
                  EndsWith(std::string("Profitable Hands:[/COLOR][/b]\r") + c.hands + "\r"))
          << c.rule;
    }
  }
}

TEST(Report, AmountsAreRoundedInThePlainFormAndWholeInTheForumForm) {
  Analysis call = sample::CallState();
  call.RangeName = "Villain: tight";
  call.Amounts = {12.345, 7.001, 0};
  const std::string plain = Report(call, ReportForm::kPlainText);
  EXPECT_THAT(plain, HasSubstr("Total Pot Size:     \t 12.35\rAmount To Call:     \t 7\r"));
  EXPECT_THAT(plain, HasSubstr("\rOpponent Range Name:\t Villain: tight\r")) << "a second colon belongs to the name";
  EXPECT_THAT(plain, HasSubstr("Pot Odds:           \t 1.763 : 1\rBEP:                \t 36.19%\r"));
  EXPECT_THAT(plain, HasSubstr("*(12.35+7)-7\r"));
  EXPECT_THAT(Report(call, ReportForm::kForum), HasSubstr("\rPot Size: 12.345 | To Call: 7.001\r"));
  EXPECT_THAT(Report(call, ReportForm::kForum), HasSubstr("(Pot Odds: 1.76:1, BEP: 0.36)"));

  Analysis raise = sample::RaiseState();
  raise.Amounts = {12.345, 7.001, 100.0625};
  EXPECT_THAT(Report(raise, ReportForm::kPlainText),
              HasSubstr("Total Pot Size:     \t 12.35\rAmount To Call:     \t 7\rAmount Behind:      \t 100.06\r"));
  EXPECT_THAT(Report(raise, ReportForm::kForum),
              HasSubstr("\rPot Size: 12.345 | To Call: 7.001 | Shove Amount: 100.0625\r"));
}

TEST(Report, ACallOfNothingHasNoPotOddsAndAShoveNeedsNone) {
  for (const ReportForm form : {ReportForm::kPlainText, ReportForm::kForum}) {
    Analysis call = sample::CallState();
    call.Amounts.CallAmount = 0;
    EXPECT_THROW(Report(call, form), RunTimeError);

    Analysis raise = sample::RaiseState();
    raise.Amounts.CallAmount = 0;
    EXPECT_NO_THROW(Report(raise, form));
  }
}

// The line for a hand with the given cells: expected value, equity, fold share.
std::string LineFor(Analysis state, std::string_view hand, std::string_view cells) {
  state.HandInfo = sample::ResultsTable({{hand, cells}}, "7\t0.7\t0.7");
  ReportText report;
  AddSpecificHand(report, state, hand);
  return PlainText(report);
}

Analysis ShoveOf(double shove) {
  Analysis state = sample::RaiseState();
  state.Amounts.ShoveAmount = shove;
  return state;
}

Analysis CallFor(double pot, double call) {
  Analysis state = sample::CallState();
  state.Amounts = {pot, call, 0};
  return state;
}

struct LineCase {
  const char* rule;
  Analysis state;
  const char* hand;
  const char* cells;
  const char* line;  // without line breaks and mark-up
};

TEST(HandLine, HoldsTheWorkingOfTheHand) {
  const std::vector<LineCase> cases = {
      {"a call that wins has a plus sign", CallFor(150, 50), "AA", "120.46\t0.8523\t1",
       "EV for AA = 0.8523 * (200) - 50 = +120.46"},
      {"an equity has four decimals", CallFor(150, 50), "AA", "1\t0.123456\t1", "EV for AA = 0.1235 * (200) - 50 = +1"},
      {"a call that wins nothing has no sign", CallFor(150, 50), "AKo", "0\t0.25\t1",
       "EV for AKo = 0.25 * (200) - 50 = 0"},
      {"a call that loses brings its minus sign", CallFor(150, 50), "72o", "-12.5\t0.1875\t1",
       "EV for 72o = 0.1875 * (200) - 50 = -12.5"},
      {"the amounts are not rounded", CallFor(12.34567, 1.11111), "AA", "1\t0.5\t1",
       "EV for AA = 0.5 * (13.45678) - 1.11111 = +1"},
      {"a win too small to be seen keeps its sign", CallFor(150, 50), "AA", "0.001\t0.5\t1",
       "EV for AA = 0.5 * (200) - 50 = +0"},
      {"a shove that wins", ShoveOf(100), "AKs", "98.2\t0.55\t0.4",
       "EV for AKs = (0.4*150)+(1-0.4)*(0.55*(150+50+2*100)-(50+100)) = +98.2"},
      {"a shove that is never called has an equity of -1", ShoveOf(100), "22", "150\t-1\t1",
       "EV for 22 = (1*150)+(1-1)*(-1*(150+50+2*100)-(50+100)) = +150"},
      {"an equity is not rounded and has a tab after its colon", sample::EquityState(), "AA", "0\t0.852312345678901\t1",
       "Equity for AA :\t 0.852312345678901"},
  };
  for (const LineCase& c : cases) {
    EXPECT_EQ(LineFor(c.state, c.hand, c.cells), std::string("\r\n[COLOR=\"DimGray\"]") + c.line + "[/COLOR]\r")
        << c.rule;
  }
}

TEST(HandLine, IsBlackCourierOfTenPoints) {
  ReportText report = {"one\r"};
  AddSpecificHand(report, sample::EquityState(), "22");
  EXPECT_EQ(report, (ReportText{"one\r", ReportFont{"Courier New", 10, 0},
                                "\r\n[COLOR=\"DimGray\"]Equity for 22 :\t 0.5[/COLOR]\r"}));
}

TEST(HandLine, IsNotAddedForNoneNorBeforeAnyAnalysis) {
  for (const Analysis& state : {Analysis{}, sample::CallState(), sample::RaiseState(), sample::EquityState()}) {
    ReportText report;
    AddSpecificHand(report, state, state.Mode == AnalysisMode::kNone ? "AA" : "None");
    EXPECT_THAT(report, IsEmpty());
  }
}

}  // namespace
}  // namespace quillon
