// The commands for studies and for typed ranges, run as the program runs them.

#include "tools/commands.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <istream>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/analysis.h"
#include "hand/equity_table.h"
#include "ranges/range_notation.h"
#include "study/equilibrium.h"
#include "study/limits.h"
#include "support/files.h"
#include "support/number_text.h"
#include "support/rounding.h"
#include "testing/companion_program.h"
#include "testing/fault_of.h"
#include "testing/split_text.h"
#include "tools/interrupt.h"

namespace quillon {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::json;

TEST(TypedRange, IsTakenWhereverANameIs) {
  const CompanionProgram program;
  const Arguments tight = {"--hands", "QQ+,AK"};
  struct Case {
    Arguments arguments;
    Arguments named;
    Arguments typed;
  };
  for (const Case& c : std::vector<Case>{
           {{"call", "--pot", "150", "--call", "50", "--format", "table"}, {"--range", "Tight"}, tight},
           {{"equity", "--format", "table"}, {"--range", "Tight"}, tight},
           {{"summary"}, {"--range", "Tight"}, tight},
           {{"notation"}, {"--range", "Tight"}, tight},
           {{"limits", "call", "--pot", "150"}, {"--range", "Tight"}, tight},
           {{"raise", "--pot", "150", "--call", "50", "--shove", "400", "--format", "table"},
            {"--range", "Tight", "--calling-range", "Tight"},
            {"--hands", "AK,QQ+", "--calling-hands", "QQ+ AK"}},
       }) {
    const CompanionOutcome named = program.Run(With(c.arguments, c.named));
    const CompanionOutcome typed = program.Run(With(c.arguments, c.typed));
    EXPECT_EQ(typed.Status, kDone) << typed.Errors;
    EXPECT_EQ(typed.Output, named.Output) << c.arguments.front();
    EXPECT_FALSE(typed.Output.empty()) << c.arguments.front();
  }
}

TEST(TypedRange, IsReportedByItsNotation) {
  const CompanionProgram program;
  const CompanionOutcome outcome = program.Run({"call", "--pot", "150", "--call", "50", "--hands", "ak qq kk AA:0.99"});
  EXPECT_EQ(outcome.Status, kDone) << outcome.Errors;
  EXPECT_THAT(outcome.Output, HasSubstr("AA:0.99,KK-QQ,AKs,AKo"));
}

// The digits of such a weight are the label of a later pair.
TEST(TypedRange, MayHaveAnyWeight) {
  const CompanionProgram program;
  const CompanionOutcome outcome = program.Run({"equity", "--hands", "AA:0.99,99:0.22", "--format", "csv"});
  EXPECT_EQ(outcome.Status, kDone) << outcome.Errors;
  EXPECT_EQ(Lines(outcome.Output).size(), 170U);
}

TEST(TypedRange, IsReadFromStandardInputOnce) {
  const CompanionProgram program;
  EXPECT_EQ(program.Run({"notation", "--hands", "-"}, {.Typed = "AA, KK\nQQ\n"}).Output, "QQ+\n");
  const Arguments amounts = {"--pot", "1", "--call", "1"};
  const Arguments ranges = {"--hands", "-", "--calling-hands", "-"};
  for (const Arguments& twice : {
           With(With({"raise", "--shove", "1"}, amounts), ranges),
           With(With({"limits", "raise"}, amounts), ranges),
           With(With({"sweep", "raise", "--shove", "1:2:1"}, amounts), ranges),
           With(With({"balance", "--shove", "1"}, amounts), {"--hands", "-", "--own-hands", "-"}),
       }) {
    const CompanionOutcome outcome = program.Run(twice, {.Typed = "AA"});
    EXPECT_EQ(outcome.Status, kWrongUsage) << twice.front();
    EXPECT_THAT(outcome.Errors, HasSubstr("Standard input can be read for one range only")) << twice.front();
  }
}

// What is typed there may be missing from the box of a raise: with no bet to call it is 0.
TEST(EmptyCall, CountsAsNothing) {
  const CompanionProgram program;
  const Arguments ranges = {"--hands", "any", "--calling-hands", "QQ+"};
  for (const Arguments& arguments : {
           With({"raise", "--pot", "15", "--shove", "40"}, ranges),
           With({"limits", "raise", "--pot", "15"}, ranges),
           With({"sweep", "raise", "--pot", "15", "--shove", "40:42:1", "--hand", "22"}, ranges),
           {"balance", "--pot", "15", "--shove", "40"},
       }) {
    const CompanionOutcome empty = program.Run(With(arguments, {"--call", ""}));
    EXPECT_EQ(empty.Status, kDone) << empty.Errors;
    EXPECT_EQ(empty.Output, program.Run(With(arguments, {"--call", "0"})).Output) << arguments.front();
  }
}

TEST(BadInput, IsToldWithItsPlaceAndChangesNothing) {
  const CompanionProgram program;
  program.Write("Double.txt", "AA (2), " + TextWith("KK").substr(8) + "\r\n");
  const Arguments sweep = {"sweep", "call", "--hands", "AA"};
  const Arguments balance = {"balance", "--pot", "1", "--call", "1"};
  struct Case {
    Arguments arguments;
    int status;
    const char* errors;
  };
  for (const Case& c : std::vector<Case>{
           {{"notation", "--hands", "AKs, KXs+"}, kRefused, "AKs, KXs+\n     ^ \"X\" is not a rank\n"},
           {{"notation", "--hands", ""}, kRefused, "there is no hand here"},
           {{"notation", "--range", "Tihgt"}, kRefused, "The nearest names: \"Tight\""},
           {{"notation", "--range", "Tight", "--hands", "AA"}, kWrongUsage, "excludes"},
           {{"notation"}, kWrongUsage, "--range or --hands is required"},
           {{"notation", "--range", "../Ranges/Tight"}, kRefused, "There is no range \"../Ranges/Tight\" in "},
           {{"equity", "--range", "../Ranges/Tight"}, kRefused, "There is no range \"../Ranges/Tight\" in "},
           {{"equity", "--range", "..\\Ranges\\Tight"}, kRefused, "There is no range \"..\\Ranges\\Tight\" in "},
           {{"save", "a/b", "--hands", "AA"}, kRefused, "not allowed in the range name"},
           {{"save", "", "--hands", "AA"}, kRefused, "You must choose a name"},
           {{"save", "Tight", "--hands", "AA"}, kRefused, "already exists"},
           {{"save", "../Ranges/Tight", "--hands", "AA", "--replace"}, kRefused, "not allowed in the range name"},
           {{"save", "New\nrange", "--hands", "AA"}, kRefused, "A range name is one line"},
           {{"save", "New", "--hands", "AA:2"}, kRefused, "a weight is from 0 to 1"},
           {{"limits", "call", "--pot", "0", "--hands", "AA"}, kRefused, "--pot must be above 0"},
           {{"limits", "call", "--pot", "x", "--hands", "AA"}, kRefused, "--pot: \"x\" is not an amount"},
           {{"limits", "call", "--pot", "nan", "--hands", "AA"}, kRefused, "--pot: \"nan\" is not an amount"},
           {{"limits", "call", "--pot", "1e301", "--hands", "AA"}, kRefused, "--pot may be at most 1E+300\n"},
           {{"limits", "call", "--pot", "=" + std::string(310, '9') + "+" + std::string(310, '9'), "--hands", "AA"},
            kRefused,
            "--pot: the sum is beyond all numbers\n"},
           {{"limits", "call", "--pot", "1", "--hands", "AA", "--format", "plain"}, kWrongUsage, "--format"},
           {{"limits", "call", "--pot", "1", "--hands", "none"}, kRefused, "The range \"none\" has no hands."},
           {{"limits", "raise", "--pot", "1", "--call", "-1", "--hands", "AA", "--calling-hands", "AA"},
            kRefused,
            "--call must not be below 0"},
           {With(sweep, {"--pot", "9", "--call", "1:2:0"}), kRefused, "--call: the step must be above 0"},
           {With(sweep, {"--pot", "9", "--call", "1:1000000000:1"}), kRefused, "at most 100000 steps"},
           {With(sweep, {"--pot", "9", "--call", "1:9:1"}), kRefused, "--pot must be greater than --call"},
           {With(sweep, {"--pot", "9", "--call", "0:5:1"}), kRefused, "--call must be above 0"},
           {With(sweep, {"--pot", "1e308", "--call", "1:2:1"}), kRefused, "--pot may be at most 1E+300\n"},
           {With(sweep, {"--pot", "9", "--call", "1"}), kWrongUsage, "is given as FROM:TO:STEP"},
           {With(sweep, {"--pot", "5:9:1", "--call", "1:2:1"}), kWrongUsage, "is given as FROM:TO:STEP"},
           {With(sweep, {"--pot", "", "--call", "1:2:1"}), kRefused, "--pot must be above 0"},
           {{"limits", "call", "--pot", "", "--hands", "AA"}, kRefused, "--pot: \"\" is not an amount"},
           {{"sweep", "call", "--pot", "9", "--call", "1", "--width", "5:105:5"},
            kRefused,
            "--width: a share is from 0% to 100%"},
           {{"sweep", "call", "--pot", "9", "--call", "1", "--width", "0:5:5"}, kRefused, "has no hands"},
           {With(sweep, {"--pot", "9", "--call", "1", "--width", "5:10:5"}), kWrongUsage, "leave --range"},
           {{"sweep", "raise", "--pot", "9", "--call", "1", "--shove", "9", "--hands", "any", "--calling-hands", "AA",
             "--width", "5:10:5"},
            kWrongUsage,
            "leave --calling-range"},
           {{"chart", "--step", "0"}, kRefused, "--from, --to, --step: the step must be above 0"},
           {{"chart", "--to", "1000000000"}, kRefused, "at most 100000 steps"},
           {{"chart", "--from", "1"}, kRefused, "--from must be above 1"},
           {{"chart", "--from", "5", "--to", "4"}, kRefused, "the end may not be below the start"},
           {{"chart", "--to", "200000000", "--step", "100000000"}, kRefused, "--to may be at most 100000000\n"},
           {{"chart", "--from", "nan"}, kRefused, "\"nan\" is not a plain decimal"},
           {With(balance, {"--shove", "0"}), kRefused, "--shove must be above 0"},
           {With(balance, {"--shove", "1e400"}), kRefused, "--shove may be at most 1E+300\n"},
           {{"balance", "--pot", "1e-300", "--call", "0", "--shove", "1e290"},
            kRefused,
            "--call and --shove may be at most 100000000 times --pot, together\n"},
           {With(balance, {"--shove", "1e8", "--own-hands", "AA,72o", "--hands", "KK"}), kRefused,
            "--call and --shove may be at most 100000000 times --pot, together\n"},
           {With(balance, {"--shove", "1e7", "--own-hands", "AA,72o", "--hands", "KK"}), kRefused,
            "No ranges were found that are in balance to a millionth of the pot: the shove is too large for it\n"},
           {With(balance, {"--shove", "9", "--range", "Double"}), kRefused,
            "The range \"Double\" has weights that are not from 0 to 1.\n"},
           {With(balance, {"--shove", "9", "--own-range", "Double"}), kRefused, "weights that are not from 0 to 1.\n"},
           {With(balance, {"--shove", "9", "--save-shove", ""}), kRefused, "You must choose a name"},
           {With(balance, {"--shove", "9", "--save-call", ""}), kRefused, "You must choose a name"},
           {With(balance, {"--shove", "9", "--hands", "none"}), kRefused, "has no hands"},
           {With(balance, {"--shove", "9", "--save-call", "Tight"}), kRefused, "already exists"},
           {With(balance, {"--shove", "9", "--save-call", "One", "--save-shove", "One"}), kRefused, "different names"},
       }) {
    const CompanionOutcome outcome = program.Run(c.arguments);
    EXPECT_EQ(outcome.Status, c.status) << testing::PrintToString(c.arguments) << outcome.Errors;
    EXPECT_THAT(outcome.Errors, HasSubstr(c.errors)) << testing::PrintToString(c.arguments);
    EXPECT_EQ(outcome.Output.empty(), c.status != kDone) << testing::PrintToString(c.arguments);
  }
  EXPECT_EQ(program.Read("Tight.txt"), TextWith("AA KK QQ AKs AKo") + "\r\n");
  EXPECT_FALSE(RangeExists(program.Folder(), "New"));
}

TEST(Save, WritesWhatCanBeReadAgain) {
  const CompanionProgram program;
  const std::string notation = "AA:0.99,KK-TT,A5s-A2s:0.5,AKo:0.333333333333333";
  EXPECT_EQ(program.Run({"save", "Mine", "--hands", notation}).Status, kDone);
  EXPECT_EQ(program.Run({"notation", "--range", "Mine"}).Output, notation + "\n");
  EXPECT_EQ(program.Run({"equity", "--range", "Mine"}).Status, kDone);

  EXPECT_EQ(program.Run({"save", "Mine", "--hands", "AA"}).Status, kRefused);
  EXPECT_EQ(program.Run({"save", "Mine", "--hands", "AA", "--replace"}).Status, kDone);
  EXPECT_EQ(program.Read("Mine.txt"), TextWith("AA") + "\r\n");
}

// A file may have weights that no notation can express. They are printed, and the help says that they cannot be typed.
TEST(Notation, OfAWeightAboveOneIsNotRead) {
  const CompanionProgram program;
  program.Write("Double.txt", "AA (2), " + TextWith("KK").substr(8) + "\r\n");
  EXPECT_EQ(program.Run({"notation", "--range", "Double"}).Output, "AA:2,KK\n");
  EXPECT_EQ(program.Run({"notation", "--hands", "AA:2,KK"}).Status, kRefused);
  EXPECT_THAT(program.Run({"help", "notation"}).Output, HasSubstr("typed weights are from 0 to 1."));
}

// Unreadable input is not empty input.
TEST(StandardInput, ThatCannotBeReadEndsTheRun) {
  const CompanionProgram program;
  const int folder = SystemFileCalls().Open("/", OpenFor::kListing, 0);
  ASSERT_GE(folder, 0);
  for (const Arguments& arguments : {Arguments{"notation", "--hands", "-"}, Arguments{"batch"}}) {
    DescriptorInput unreadable(folder, "standard input");
    std::istream input(&unreadable);
    std::ostringstream output;
    const Surroundings surroundings = {
        output, output, [&program] { return program.Folder().Path; }, {}, std::chrono::steady_clock::now, &input};
    EXPECT_EQ(FaultOf([&] { return RunCompanion(arguments, surroundings); }), RunTimeFault::kPathFileAccess)
        << arguments.front();
    EXPECT_EQ(output.str(), "") << arguments.front();
  }
  SystemFileCalls().Close(folder);
}

TEST(Matrix, HoldsTheWholeTable) {
  LoadEquityTable();
  const CompanionProgram program;
  const auto lines = Lines(program.Run({"matrix"}).Output);
  ASSERT_EQ(lines.size(), 170U);
  EXPECT_THAT(lines.at(0), StartsWith("hand,AA,AKs,AQs"));
  EXPECT_THAT(lines.at(1), StartsWith("AA,0.5,0.878595,0.874609"));
  const Json json = Json::parse(program.Run({"matrix", "--format", "json"}).Output);
  for (std::int16_t row = 0; row < kHandClassCount; row += 7) {
    for (std::int16_t column = 0; column < kHandClassCount; ++column) {
      const double equity = HandEquity(HandLabel(row), HandLabel(column));
      ASSERT_EQ(json["equities"][static_cast<std::size_t>(row)][static_cast<std::size_t>(column)], equity)
          << HandLabel(row) << " against " << HandLabel(column);
    }
  }
  EXPECT_EQ(json["hands"][168], "22");
}

TEST(LimitsCommand, PrintsTheLimitsInEachFormat) {
  LoadEquityTable();
  const HandNumbers hands;
  const auto weights = RangeWeightsOf(TextWith("AA KK QQ AKs AKo"));
  const Limits expected = LimitsOf(AnalysisMode::kPreflopRaise, RangeNumbers(hands, AllHands(), weights), {15, 5, 0});
  const CompanionProgram program;
  const Arguments raise = {"limits",  "raise", "--pot",           "15",   "--call", "5",
                           "--hands", "any",   "--calling-range", "Tight"};
  const Json json = Json::parse(program.Run(With(raise, {"--format", "json"})).Output);
  const auto csv = Lines(program.Run(With(raise, {"--format", "csv"})).Output);
  ASSERT_EQ(json["hands"].size(), 169U);
  ASSERT_EQ(csv.size(), 170U);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const std::string label(HandLabel(static_cast<std::int16_t>(i)));
    const Limit& limit = expected.at(i);
    EXPECT_EQ(json["hands"][i]["hand"], label);
    if (limit.Kind == LimitKind::kAlways) {
      EXPECT_EQ(csv.at(i + 1), label + ",always,");
      EXPECT_TRUE(json["hands"][i]["amount"].is_null()) << label;
    } else {
      EXPECT_EQ(csv.at(i + 1), label + ",up to," + NumberText(limit.Amount));
      EXPECT_EQ(json["hands"][i]["amount"], limit.Amount) << label;
    }
  }
  const std::string grid = program.Run(raise).Output;
  EXPECT_THAT(grid, StartsWith("AA  always   AKs 5332.15  AQs 1756.08  "));
  EXPECT_EQ(Lines(grid).size(), 13U);
  EXPECT_EQ(program.Run(With(raise, {"--format", "grid"})).Output, grid);
}

// No hand loses at the amount shown, so "up to" is rounded down and "from" up.
TEST(LimitsCommand, RoundsToTheSideThatDoesNotLose) {
  const CompanionProgram program;
  const Arguments call = {"limits", "call", "--pot", "100", "--hands", "AA"};
  const Arguments raise = {"limits", "raise", "--pot", "1", "--call", "5", "--hands", "any", "--calling-hands", "any"};
  struct Case {
    const Arguments& arguments;
    std::string_view line;
    const char* cell;
  };
  for (const Case& c : {
           Case{call, "AA,always,", "AA  always"},
           Case{call, "AKs,up to,13.818084555455", "AKs 13.81 "},
           Case{call, "ATs,up to,15.3885652239634", "ATs 15.38 "},
           Case{raise, "A9s,from,4.82398269255826", "A9s from 4.83 "},
           Case{raise, "A8s,from,5.37253405036127", "A8s from 5.38 "},
           Case{raise, "J5s,never,", "J5s never "},
       }) {
    EXPECT_THAT(Lines(program.Run(With(c.arguments, {"--format", "csv"})).Output), testing::Contains(c.line));
    EXPECT_THAT(program.Run(c.arguments).Output, HasSubstr(c.cell));
  }
  const Json json = Json::parse(program.Run(With(raise, {"--format", "json"})).Output);
  const auto limitOf = [&](std::string_view hand) { return json["hands"][static_cast<std::size_t>(HandIndex(hand))]; };
  EXPECT_EQ(limitOf("A9s")["limit"], "from");
  EXPECT_NEAR(limitOf("A9s")["amount"], 4.823982692558, 1e-9);
  EXPECT_EQ(limitOf("J5s")["limit"], "never");
  EXPECT_TRUE(limitOf("J5s")["amount"].is_null());
}

// Each row has the figures of a separate command.
TEST(SweepCommand, AgreesWithSingleAnalyses) {
  const CompanionProgram program;
  const Arguments shared = {"--pot", "15", "--call", "5", "--hands", "any", "--calling-range", "Tight"};
  const auto rows = Lines(program
                              .Run(With(With({"sweep", "raise", "--shove", "0.1:0.4:0.1"}, shared),
                                        {"--hand", "72o", "AA", "--format", "csv"}))
                              .Output);
  ASSERT_EQ(rows.size(), 5U);
  EXPECT_EQ(rows.front(), "shove,profitable,72o,AA");
  for (const std::string shove : {"0.1", "0.2", "0.3", "0.4"}) {
    const CompanionOutcome single = program.Run(With(With({"raise", "--shove", shove}, shared), {"--format", "table"}));
    const auto value = [&](std::string_view hand) {
      return NumberText(GetHandResult(single.Output, hand).ExpectedValue);
    };
    EXPECT_THAT(rows, testing::Contains(shove + ",100," + value("72o") + "," + value("AA")));
  }
}

// 33.3% is not the double 0.333, but an analysis reads the weight from a text, where it is.
TEST(SweepCommand, TakesWeightsAsAnAnalysisReadsThem) {
  const CompanionProgram program;
  const Arguments shared = {"--hands", "AA:33.3%,KK:7.7%,QJs:12.3%,72o:91.7%", "--pot", "100", "--call"};
  const CompanionOutcome single = program.Run(With(With({"call"}, shared), {"50", "--format", "table"}));
  const CompanionOutcome sweep =
      program.Run(With(With({"sweep", "call"}, shared), {"50:50:1", "--hand", "72o", "--format", "csv"}));
  EXPECT_THAT(sweep.Output,
              testing::EndsWith("," + NumberText(GetHandResult(single.Output, "72o").ExpectedValue) + "\n"));
}

TEST(SweepCommand, EndsAtTheLastStepThatIsNotAboveTheEnd) {
  const CompanionProgram program;
  const CompanionOutcome outcome =
      program.Run({"sweep", "call", "--pot", "9", "--call", "1", "--width", "5:101:5", "--format", "csv"});
  EXPECT_EQ(outcome.Status, kDone) << outcome.Errors;
  const auto lines = Lines(outcome.Output);
  ASSERT_EQ(lines.size(), 21U);
  EXPECT_THAT(lines.back(), StartsWith("100,"));
}

TEST(SweepCommand, GoesThroughWidthsInEachFormat) {
  const CompanionProgram program;
  const Arguments width = {"sweep", "call", "--pot", "100", "--call", "90", "--width", "10:100:45", "--hand", "KTo"};
  const Json json = Json::parse(program.Run(With(width, {"--format", "json"})).Output);
  ASSERT_EQ(json["steps"].size(), 3U);
  for (const Json& step : json["steps"]) {
    const std::string share = "top " + NumberText(step["width"]) + "%";
    const CompanionOutcome single =
        program.Run({"call", "--pot", "100", "--call", "90", "--hands", share, "--format", "table"});
    EXPECT_EQ(step["ev"]["KTo"], GetHandResult(single.Output, "KTo").ExpectedValue) << share;
  }
  EXPECT_EQ(Lines(program.Run(width).Output).at(0), "width  profitable       KTo");
}

TEST(SweepCommand, HasOneColumnForAHandThatIsNamedTwice) {
  const CompanionProgram program;
  const CompanionOutcome outcome = program.Run({"sweep", "call", "--pot", "9", "--call", "1", "--width", "5:5:1",
                                                "--hand", "AA", "KK", "AA", "--format", "csv"});
  EXPECT_EQ(Lines(outcome.Output).at(0), "width,profitable,AA,KK");
}

TEST(SweepCommand, RoundsTheShareInItsTableOnly) {
  const CompanionProgram program;
  const Arguments width = {"sweep", "call", "--pot", "100", "--call", "90", "--width", "10:10:1"};
  const double share =
      Json::parse(program.Run(With(width, {"--format", "json"})).Output)["steps"][0]["profitable_percent"];
  const double combos = share * kConcreteHandCount / 100;
  EXPECT_NEAR(combos, std::round(combos), 1e-9) << "a whole number of hands";
  EXPECT_EQ(Lines(program.Run(With(width, {"--format", "csv"})).Output).at(1), "10," + NumberText(share));
  EXPECT_THAT(program.Run(width).Output, testing::EndsWith(" " + NumberText(RoundTo(share, 2)) + "\n"));
}

TEST(BalanceCommand, PrintsAndSavesBothRanges) {
  const CompanionProgram program;
  const Arguments balance = {"balance", "--pot", "1.5", "--call", "0.5", "--shove", "9"};
  LoadEquityTable();
  const auto found = FindEquilibrium(HandNumbers(), {.Pot = 1.5, .Call = 0.5, .Shove = 9});
  ASSERT_TRUE(found);
  const std::string shove = RangeNotation(found->Shove);
  const CompanionOutcome plain =
      program.Run(With(balance, {"--save-shove", "Balanced shove", "--save-call", "Balanced call"}));
  EXPECT_EQ(plain.Status, kDone) << plain.Errors;
  EXPECT_THAT(plain.Output, HasSubstr("% of hands: " + shove + "\n"));
  EXPECT_EQ(program.Run({"notation", "--range", "Balanced shove"}).Output, shove + "\n");
  EXPECT_EQ(program.Run({"notation", "--range", "Balanced call"}).Output, RangeNotation(found->Call) + "\n");

  const Json json = Json::parse(program.Run(With(balance, {"--format", "json"})).Output);
  EXPECT_EQ(json["shove_range"]["hands"], shove);
  EXPECT_EQ(json["value"], found->Value);
  EXPECT_LE(json["exploitability"], 1.5e-6);

  const Json own = Json::parse(program.Run(With(balance, {"--own-hands", "AA", "--format", "json"})).Output);
  EXPECT_EQ(own["shove_range"]["hands"], "AA");
  EXPECT_NEAR(own["value"], 1.5 - 1.0 / 1225, 1e-9) << "only other aces call, and split the pot";

  const Json seldom = Json::parse(
      program.Run(With(balance, {"--own-hands", "AA:1e-200", "--hands", "KK:1e-200", "--format", "json"})).Output);
  EXPECT_EQ(seldom["shove_range"]["hands"], "AA:1E-200") << "so seldom that a deal of both is no number";
  EXPECT_EQ(seldom["value"], 1.5) << "kings fold";
}

TEST(BalanceCommand, TellsWhatBothCanHold) {
  const CompanionProgram program;
  const Arguments balance = {"balance", "--pot", "1.5", "--call", "0.5", "--shove", "9"};
  const CompanionOutcome all = program.Run(balance);
  EXPECT_THAT(all.Output, StartsWith("You hold 100% of hands: any\nHe holds 100% of hands: any\nShove "));
  const Arguments some = With(balance, {"--own-hands", "AA,72o:0.5", "--range", "Tight"});
  EXPECT_THAT(program.Run(some).Output,
              StartsWith("You hold 0.9% of hands: AA,72o:0.5\nHe holds 2.56% of hands: QQ+,AKs,AKo\n"));
  const Json json = Json::parse(program.Run(With(some, {"--format", "json"})).Output);
  EXPECT_EQ(json["own_range"], (Json{{"hands", "AA,72o:0.5"}, {"percent", 0.9}}));
  EXPECT_EQ(json["his_range"], (Json{{"hands", "QQ+,AKs,AKo"}, {"percent", 2.56}}));
}

TEST(BalanceCommand, SavesBothRangesOrNeither) {
  const CompanionProgram program;
  const std::filesystem::path ranges = RangeFolderPath(program.Folder());
  std::filesystem::create_directory(ranges / "Blocked.txt");
  const std::string tight = program.Read("Tight.txt");
  for (const Arguments& names : std::vector<Arguments>{
           {"--save-shove", "New", "--save-call", "Blocked"},
           {"--save-shove", "Blocked", "--save-call", "New"},
           {"--save-shove", "Tight", "--save-call", "Blocked"},
       }) {
    const CompanionOutcome outcome =
        program.Run(With({"balance", "--pot", "1.5", "--call", "0.5", "--shove", "9", "--replace"}, names));
    EXPECT_EQ(outcome.Status, kFailed) << testing::PrintToString(names);
    EXPECT_THAT(outcome.Errors, HasSubstr("Blocked.txt")) << testing::PrintToString(names);
    EXPECT_EQ(outcome.Output, "") << testing::PrintToString(names);
    EXPECT_FALSE(std::filesystem::exists(ranges / "New.txt")) << testing::PrintToString(names);
    EXPECT_EQ(program.Read("Tight.txt"), tight) << testing::PrintToString(names);
  }
}

TEST(ChartCommand, TellsTheSameInEachFormat) {
  const CompanionProgram program;
  const Arguments chart = {"chart", "--from", "2", "--to", "7.4", "--step", "0.2"};
  const Json json = Json::parse(program.Run(With(chart, {"--format", "json"})).Output);
  const auto csv = Lines(program.Run(With(chart, {"--format", "csv"})).Output);
  const CompanionOutcome grid = program.Run(chart);
  // With wrapped lines joined.
  const std::string svg = std::regex_replace(program.Run(With(chart, {"--format", "svg"})).Output,
                                             std::regex("</text>\n<text [^>]*text-anchor=\"start\">"), " ");
  ASSERT_EQ(json["hands"].size(), 169U);
  ASSERT_EQ(csv.size(), 170U);
  EXPECT_EQ(csv.at(0), "hand,shove,shove_gaps,call,call_gaps");
  for (std::size_t i = 0; i < 169; ++i) {
    const Json& hand = json["hands"][i];
    std::string line = hand["hand"];
    for (const char* move : {"shove", "call"}) {
      line += ',';
      if (!hand[move].is_null()) line += NumberText(hand[move]["up_to"]);
      line += ',';
      std::string gaps;
      for (const Json& gap : hand[move].is_null() ? Json::array() : hand[move]["but_not"]) {
        gaps += gaps.empty() ? "" : " ";
        gaps += NumberText(gap["from"]);
        if (gap["from"] != gap["to"]) gaps += "-" + NumberText(gap["to"]);
      }
      line += gaps;
      if (gaps.empty()) continue;
      const std::string label = hand["hand"];
      EXPECT_THAT(grid.Output, HasSubstr("\n* " + label + " but not at " + gaps + "\n"));
      EXPECT_THAT(svg, testing::AnyOf(HasSubstr(label + " " + gaps + ";"), HasSubstr(label + " " + gaps + "</text>")));
    }
    EXPECT_EQ(csv.at(i + 1), line);
  }
  // As published: 63s is shoved at 7 big blinds and at 2.2, but not from 2.4 to 5.
  EXPECT_THAT(csv, testing::Contains(StartsWith("63s,7,2.4-5")));
  EXPECT_THAT(grid.Output, StartsWith("Shove up to so many big blinds\nAA  7.4+"));
  EXPECT_THAT(grid.Output, HasSubstr("\n* 63s but not at 2.4-5"));
  for (const char* format : {"html", "svg"})
    EXPECT_THAT(program.Run(With(chart, {"--format", format})).Output, HasSubstr(">7*<")) << format;
}

TEST(ChartCommand, ShowsItsProgressOnATerminal) {
  const CompanionProgram program;
  const CompanionOutcome outcome =
      program.Run({"chart", "--from", "2", "--to", "3", "--step", "0.1"},
                  {.Terminal = {.ShowProgress = true}, .Step = std::chrono::milliseconds(1000)});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_THAT(outcome.Errors, StartsWith("\r["));
  EXPECT_THAT(outcome.Errors, testing::EndsWith("\r\x1b[K"));
}

TEST(StudyPictures, ArePrinted) {
  const CompanionProgram program;
  const Arguments limits = {"limits", "call", "--pot", "15", "--hands", "QQ+:0.9"};
  EXPECT_THAT(program.Run(With(limits, {"--format", "html"})).Output,
              testing::AllOf(HasSubstr("<h1>Largest Call</h1>"), HasSubstr("<dd><b>QQ+:0.9</b></dd>")));
  EXPECT_THAT(program.Run(With(limits, {"--format", "svg"})).Output, StartsWith("<svg "));
  const Arguments sweep = {"sweep", "call", "--pot", "15", "--hands", "QQ+", "--hand", "KK", "--format", "svg"};
  EXPECT_THAT(
      program.Run(With(sweep, {"--call", "1:5:1"})).Output,
      testing::AllOf(StartsWith("<svg "), HasSubstr(">KK</text>"), HasSubstr(">What you must put in to call,")));
}

}  // namespace
}  // namespace quillon
