#include "tools/analysis_output.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iomanip>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/entered_situation.h"
#include "analysis/results_table.h"
#include "hand/equity_table.h"
#include "hand/hand_classes.h"
#include "ranges/range_summary.h"
#include "results/report.h"
#include "results/results_grid.h"
#include "testing/range_texts.h"
#include "testing/split_text.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Json = nlohmann::ordered_json;

// ---- what the tests compare with, written without the routines under test

// First the pairs, then what is left: a different method from the product's scan.
std::string WithUnixLineEnds(const std::string& text) {
  return Replaced(Replaced(text, "\r\n", "\n"), "\r", "\n");
}

// The cells of each row of a results table.
std::vector<std::vector<std::string>> Cells(const std::string& table) {
  std::vector<std::vector<std::string>> rows;
  for (const std::string& row : Split(table, "\r\n")) {
    if (!row.empty()) rows.push_back(Split(row, "\t"));
  }
  return rows;
}

std::string CombosOf(const std::string& hand) {
  if (hand.size() == 2) return "6";
  return hand.back() == 's' ? "4" : "12";
}

std::string HexColor(Rgb color) {
  std::ostringstream text;
  text << '#' << std::hex << std::setfill('0');
  for (const unsigned channel : {color.Red, color.Green, color.Blue})
    text << std::setw(2) << channel;
  return text.str();
}

// ---- one finished run of each scenario

Analysis FinishedRun(AnalysisMode mode, const EnteredSituation& situation) {
  const TemporaryProgram program;
  program.Write("Now.txt", TextWith("AA KK QQ AKs AKo", "JJ ATs"));
  program.Write("Calls.txt", TextWith("AA KK JJ 77", "AKs"));
  program.Write("Nothing.txt", TextWith(""));
  LoadEquityTable();
  return *Analyze(SituationOf(mode, situation, program.Folder()));
}

Analysis CallRun() {
  return FinishedRun(AnalysisMode::kPreflopCall,
                     {.Pot = "150.125", .Call = "50", .Shove = "", .Range = "Now", .CallingRange = ""});
}

Analysis RaiseRun() {
  return FinishedRun(AnalysisMode::kPreflopRaise,
                     {.Pot = "150", .Call = "50", .Shove = "400", .Range = "Now", .CallingRange = "Calls"});
}

Analysis EquityRun() {
  return FinishedRun(AnalysisMode::kEquityOnly,
                     {.Pot = "", .Call = "", .Shove = "", .Range = "Now", .CallingRange = ""});
}

struct RunCase {
  const char* name;
  Analysis (*run)();
  bool hasValue;
  bool hasFold;
};

// Each test covers all three.
class EachScenario : public testing::Test {
 protected:
  static constexpr std::array kRuns = {RunCase{"Call", CallRun, true, false}, RunCase{"Raise", RaiseRun, true, true},
                                       RunCase{"Equity", EquityRun, false, false}};

  static void InEach(const std::function<void(const RunCase& run, const Analysis& state)>& check) {
    for (const RunCase& run : kRuns) {
      SCOPED_TRACE(run.name);
      check(run, run.run());
    }
  }
};

std::string BoxText(ReportForm form, const Analysis& state, const std::vector<std::string>& hands) {
  ReportText report = BuildReport(state, form);
  for (const std::string& hand : hands)
    AddSpecificHand(report, state, hand);
  return PlainText(report);
}

// ---- the two reports and the table

TEST_F(EachScenario, PrintsTheReportsOfTheWindow) {
  InEach([](const RunCase& /*run*/, const Analysis& state) {
    const std::string plain = WithUnixLineEnds(BoxText(ReportForm::kPlainText, state, {}));
    EXPECT_EQ(InFormat(kAnalysisFormats, "plain", {state, {}}), plain);
    EXPECT_TRUE(plain.ends_with('\n'));
    const std::string forum = WithUnixLineEnds(BoxText(ReportForm::kForum, state, {}));
    EXPECT_EQ(InFormat(kAnalysisFormats, "2+2", {state, {}}), forum);
    EXPECT_TRUE(forum.starts_with("[URL="));
  });
}

TEST_F(EachScenario, AddsTheWorkingOfHandsInTheOrderAskedFor) {
  InEach([](const RunCase& /*run*/, const Analysis& state) {
    const std::vector<std::string> hands = {"72o", "AA", "72o"};
    const std::string expected = WithUnixLineEnds(BoxText(ReportForm::kForum, state, hands));
    EXPECT_EQ(InFormat(kAnalysisFormats, "2+2", {state, hands}), expected);
    EXPECT_THAT(Split(expected, "for 72o"), SizeIs(3));
    EXPECT_LT(expected.find("for 72o"), expected.find("for AA"));
  });
}

TEST_F(EachScenario, PrintsTheTableByteForByte) {
  InEach([](const RunCase& /*run*/, const Analysis& state) {
    EXPECT_EQ(InFormat(kAnalysisFormats, "table", {state, {}}), state.HandInfo);
    EXPECT_THAT(Cells(state.HandInfo), SizeIs(169));
  });
}

TEST_F(EachScenario, AddsWorkingToNoOtherFormat) {
  InEach([](const RunCase& /*run*/, const Analysis& state) {
    const std::vector<std::string> hands = {"AA"};
    for (const auto& format : kAnalysisFormats) {
      const bool adds = format.Name == std::string_view(kForumFormat);
      EXPECT_EQ(format.Text({state, hands}) != format.Text({state, {}}), adds) << format.Name;
    }
  });
}

// ---- csv

TEST_F(EachScenario, PrintsCsvWithTheDigitsOfTheTable) {
  InEach([](const RunCase& run, const Analysis& state) {
    const std::array<Rgb, 169> colors = GridColors(state);
    std::string expected = "hand,combos,ev,equity,fold,colour\n";
    const auto rows = Cells(state.HandInfo);
    ASSERT_THAT(rows, SizeIs(169));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const std::vector<std::string>& cells = rows[i];
      expected += cells[0] + "," + CombosOf(cells[0]) + "," + (run.hasValue ? cells[1] : "") + "," + cells[2] + "," +
                  (run.hasFold ? cells[3] : "") + "," + HexColor(colors[i]) + "\n";
    }
    EXPECT_EQ(InFormat(kAnalysisFormats, "csv", {state, {}}), expected);
  });
}

// ---- json

std::vector<std::string> Keys(const Json& object) {
  std::vector<std::string> keys;
  for (const auto& [key, value] : object.items())
    keys.push_back(key);
  return keys;
}

std::vector<std::string> NullKeys(const Json& object) {
  std::vector<std::string> keys;
  for (const auto& [key, value] : object.items()) {
    if (value.is_null()) keys.push_back(key);
  }
  return keys;
}

TEST_F(EachScenario, PrintsOneJsonObjectWithItsKeysInOrder) {
  InEach([](const RunCase& /*run*/, const Analysis& state) {
    const std::string text = InFormat(kAnalysisFormats, "json", {state, {}});
    EXPECT_TRUE(text.ends_with("}\n"));
    const Json object = Json::parse(text);
    EXPECT_THAT(Keys(object), ElementsAre("mode", "pot", "call", "shove", "range", "calling_range", "range_summary",
                                          "calling_range_summary", "dropped_hands", "title", "situation", "explanation",
                                          "best", "worst", "hands"));
    ASSERT_THAT(object["hands"], SizeIs(169));
    for (const Json& hand : object["hands"])
      EXPECT_THAT(Keys(hand), ElementsAre("hand", "combos", "ev", "equity", "fold", "colour"));
  });
}

TEST_F(EachScenario, PrintsJsonHandsThatEqualTableAndGrid) {
  InEach([](const RunCase& run, const Analysis& state) {
    const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
    const std::array<Rgb, 169> colors = GridColors(state);
    const auto rows = Cells(state.HandInfo);
    ASSERT_THAT(rows, SizeIs(169));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const Json& hand = object["hands"][i];
      const std::vector<std::string>& cells = rows[i];
      EXPECT_EQ(hand["hand"], cells[0]);
      EXPECT_EQ(std::to_string(hand["combos"].get<int>()), CombosOf(cells[0]));
      EXPECT_EQ(hand["ev"], run.hasValue ? Json(std::strtod(cells[1].c_str(), nullptr)) : Json()) << cells[0];
      EXPECT_EQ(hand["equity"], std::strtod(cells[2].c_str(), nullptr)) << cells[0];
      EXPECT_EQ(hand["fold"], run.hasFold ? Json(std::strtod(cells[3].c_str(), nullptr)) : Json()) << cells[0];
      EXPECT_EQ(hand["colour"], HexColor(colors[i])) << cells[0];
    }
  });
}

TEST_F(EachScenario, PrintsJsonTextsWithUnixLineEnds) {
  InEach([](const RunCase& /*run*/, const Analysis& state) {
    const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
    const GridTexts texts = MakeGridTexts(state);
    EXPECT_EQ(object["situation"], WithUnixLineEnds(texts.HandInfo));
    EXPECT_EQ(object["explanation"], WithUnixLineEnds(texts.Results));
  });
}

TEST(JsonOutput, HoldsNumbersOfAnySize) {
  Analysis state = CallRun();
  state.Amounts.PotSize = std::numeric_limits<double>::max();
  const std::string& table = state.HandInfo;
  state.HandInfo = "AA\t7.92119999999999E-02\t-1E+300\t1\t\r\n" + table.substr(table.find("AKs"));
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_EQ(object["pot"].get<double>(), state.Amounts.PotSize);
  EXPECT_EQ(object["hands"][0]["ev"].get<double>(), 7.92119999999999E-02);
  EXPECT_EQ(object["hands"][0]["equity"].get<double>(), -1E+300);
}

TEST(JsonOutput, OfACallHasNoShoveAndNoCallingRange) {
  Analysis state = CallRun();
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_THAT(NullKeys(object), ElementsAre("shove", "calling_range", "calling_range_summary", "dropped_hands"));
  EXPECT_EQ(object["mode"], "call");
  EXPECT_EQ(object["pot"], 150.125);
  EXPECT_EQ(object["call"], 50);
  EXPECT_EQ(object["range"], "Now");
  EXPECT_EQ(object["range_summary"], "Full: QQ+,AKs,AKo | Half: JJ,ATs");
  EXPECT_EQ(object["title"], "ALL IN Grid");
  EXPECT_EQ(object["situation"],
            "Pot Size: 150.12 | Call Amount: 50 | Odds: 3:1\nHis Range: Full: QQ+,AKs,AKo | Half: JJ,ATs");
  EXPECT_TRUE(object["explanation"].get<std::string>().starts_with("If you call with all of the hands in green"));
  EXPECT_EQ(object["best"], BestHand(state.HandInfo, kExpectedValueColumn));
  EXPECT_EQ(object["worst"], WorstHand(state.HandInfo, kExpectedValueColumn));
}

TEST(JsonOutput, OfARaiseHasEverything) {
  Analysis state = RaiseRun();
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_THAT(NullKeys(object), IsEmpty());
  EXPECT_EQ(object["mode"], "raise");
  EXPECT_EQ(object["pot"], 150);
  EXPECT_EQ(object["call"], 50);
  EXPECT_EQ(object["shove"], 400);
  EXPECT_EQ(object["range"], "Now");
  EXPECT_EQ(object["calling_range"], "Calls");
  EXPECT_EQ(object["calling_range_summary"], "Full: KK+,JJ,77 | Half: AKs");
  EXPECT_EQ(object["dropped_hands"], Json({"JJ (½'d)", "77"}));
  EXPECT_EQ(object["situation"],
            "Pot Size: 150 | Call Amount: 50 | Shove Amount: 400\n"
            "His Calling Range: Full: KK+,JJ,77 | Half: AKs");
  EXPECT_TRUE(object["explanation"].get<std::string>().starts_with("If you raise with all of the hands in green"));
  EXPECT_EQ(object["best"], BestHand(state.HandInfo, kExpectedValueColumn));
  EXPECT_EQ(object["worst"], WorstHand(state.HandInfo, kExpectedValueColumn));
}

TEST(JsonOutput, OfEquityHasNoAmountsAndRanksByEquity) {
  Analysis state = EquityRun();
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_THAT(NullKeys(object),
              ElementsAre("pot", "call", "shove", "calling_range", "calling_range_summary", "dropped_hands"));
  EXPECT_EQ(object["mode"], "equity");
  EXPECT_EQ(object["range"], "Now");
  EXPECT_EQ(object["title"], "Equity Grid");
  EXPECT_EQ(object["situation"], "His Range: Full: QQ+,AKs,AKo | Half: JJ,ATs");
  EXPECT_TRUE(object["explanation"].get<std::string>().starts_with("Equity is a meausrement"));
  EXPECT_EQ(object["best"], BestHand(state.HandInfo, kEquityColumn));
  EXPECT_EQ(object["worst"], WorstHand(state.HandInfo, kEquityColumn));
}

TEST(JsonOutput, OfARaiseWithNothingDroppedHasAnEmptyList) {
  Analysis state = FinishedRun(AnalysisMode::kPreflopRaise,
                               {.Pot = "3", .Call = "", .Shove = "9", .Range = "Now", .CallingRange = "Nothing"});
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_EQ(object["dropped_hands"], Json::array());
  EXPECT_EQ(object["call"], 0);
  for (const Json& hand : object["hands"]) {
    EXPECT_EQ(hand["equity"], -1);
    EXPECT_EQ(hand["fold"], 1);
  }
}

TEST(JsonOutput, HasNoWorstHandWhereNoneIsBelowTenThousand) {
  Analysis state = FinishedRun(AnalysisMode::kPreflopRaise,
                               {.Pot = "20000", .Call = "", .Shove = "9", .Range = "Now", .CallingRange = "Nothing"});
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_EQ(object["best"], "AA");
  EXPECT_THAT(NullKeys(object), ElementsAre("worst"));
}

TEST(JsonOutput, HasNoBestHandWhereNoneIsAboveMinusTenThousand) {
  Analysis state = CallRun();
  state.HandInfo.clear();
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    state.HandInfo.append(HandLabel(index)).append("\t-20000\t0\t1\t\r\n");
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_TRUE(object["best"].is_null());
  EXPECT_EQ(object["worst"], "AA");
}

TEST(JsonOutput, IsValidWhateverBytesARangeNameHolds) {
  Analysis state = EquityRun();
  state.RangeName =
      "Gr\xfc\xdf"
      "e \"\\\x01";
  const Json object = Json::parse(InFormat(kAnalysisFormats, "json", {state, {}}));
  EXPECT_EQ(object["range"], "Gr\uFFFD\uFFFDe \"\\\x01");
}

TEST(JsonOutput, KeepsANameInUtf8) {
  Analysis state = EquityRun();
  state.RangeName = "Überfall ½";
  const std::string text = InFormat(kAnalysisFormats, "json", {state, {}});
  EXPECT_NE(text.find(R"("range": "Überfall ½")"), std::string::npos);
}

// ---- the grid on a terminal

std::array<Rgb, 169> AllOf(Rgb color) {
  std::array<Rgb, 169> colors{};
  colors.fill(color);
  return colors;
}

TEST(TerminalGrid, HasOneLineForEachRow) {
  const auto lines = Split(TerminalGrid(AllOf({0, 0, 0})), "\n");
  ASSERT_THAT(lines, SizeIs(14));
  EXPECT_EQ(lines.back(), "");
  for (std::size_t row = 0; row < 13; ++row) {
    EXPECT_TRUE(lines[row].starts_with("\x1b[48;2;")) << row;
    EXPECT_TRUE(lines[row].ends_with("\x1b[0m")) << row;  // the colour is reset at the end of each line
  }
}

TEST(TerminalGrid, ShowsTheClassesInCellsOfOneWidth) {
  std::string text = TerminalGrid(AllOf({0, 0, 0}));
  for (const char* sequence : {"\x1b[48;2;0;0;0m", "\x1b[38;2;255;255;255m", "\x1b[0m"})
    text = Replaced(text, sequence, "");
  const auto lines = Split(text, "\n");
  ASSERT_THAT(lines, SizeIs(14));
  EXPECT_EQ(lines[0], " AA   AKs  AQs  AJs  ATs  A9s  A8s  A7s  A6s  A5s  A4s  A3s  A2s ");
  EXPECT_EQ(lines[1], " AKo  KK   KQs  KJs  KTs  K9s  K8s  K7s  K6s  K5s  K4s  K3s  K2s ");
  EXPECT_EQ(lines[12], " A2o  K2o  Q2o  J2o  T2o  92o  82o  72o  62o  52o  42o  32o  22  ");
  EXPECT_THAT(std::vector<std::string>(lines.begin(), lines.end() - 1), Each(SizeIs(13 * 5)));
}

TEST(TerminalGrid, PaintsEachCellInItsColor) {
  std::array<Rgb, 169> colors{};
  for (std::size_t i = 0; i < colors.size(); ++i)
    colors[i] = {static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(200 - i), 7};
  const auto cells = Split(TerminalGrid(colors), "\x1b[48;2;");
  ASSERT_THAT(cells, SizeIs(170));
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const std::string color = std::to_string(i) + ";" + std::to_string(200 - i) + ";7m";
    EXPECT_TRUE(cells[i + 1].starts_with(color)) << cells[i + 1];
  }
}

TEST(TerminalGrid, HasLabelsInTheColorThatReadsBetter) {
  for (const auto& [cell, white] : std::vector<std::pair<Rgb, bool>>{{{255, 255, 255}, false},
                                                                     {{0, 0, 0}, true},
                                                                     {{200, 255, 200}, false},
                                                                     {{0, 120, 0}, true},
                                                                     {{120, 0, 0}, true},
                                                                     {{0, 0, 255}, true},
                                                                     {{0, 255, 0}, false},
                                                                     {{255, 0, 0}, true},
                                                                     {{128, 128, 128}, false},
                                                                     {{127, 127, 127}, true}}) {
    const std::string first = Split(TerminalGrid(AllOf(cell)), "AA")[0];
    EXPECT_TRUE(first.ends_with(white ? "\x1b[38;2;255;255;255m " : "\x1b[38;2;0;0;0m ")) << first.substr(1);
  }
}

}  // namespace
}  // namespace quillon
