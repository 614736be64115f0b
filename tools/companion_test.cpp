#include "tools/companion.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/entered_situation.h"
#include "hand/equity_table.h"
#include "shell/version.h"
#include "support/file_names.h"
#include "testing/companion_program.h"
#include "testing/split_text.h"
#include "tools/analysis_output.h"
#include "tools/commands.h"

namespace quillon {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using Json = nlohmann::json;

// ---- the commands

const Arguments kCall = {"call", "--pot", "150", "--call", "50", "--range", "Tight"};
const Arguments kRaise = {"raise", "--pot",   "150",   "--call",          "50",   "--shove",
                          "400",   "--range", "Loose", "--calling-range", "Tight"};
const Arguments kEquity = {"equity", "--range", "Loose"};

Arguments Call(const char* pot, const char* call, const char* range = "Tight") {
  return {"call", "--pot", pot, "--call", call, "--range", range};
}

Arguments Raise(const char* pot, const char* call, const char* shove, const char* range = "Loose",
                const char* callingRange = "Tight") {
  return {"raise", "--pot", pot, "--call", call, "--shove", shove, "--range", range, "--calling-range", callingRange};
}

struct CommandCase {
  const char* name;
  const Arguments* arguments;
  AnalysisMode mode;
  EnteredSituation situation;
};

class EachCommand : public testing::TestWithParam<CommandCase> {};

INSTANTIATE_TEST_SUITE_P(
    Companion, EachCommand,
    testing::Values(CommandCase{"Call", &kCall, AnalysisMode::kPreflopCall, {"150", "50", "", "Tight", ""}},
                    CommandCase{"Raise", &kRaise, AnalysisMode::kPreflopRaise, {"150", "50", "400", "Loose", "Tight"}},
                    CommandCase{"Equity", &kEquity, AnalysisMode::kEquityOnly, {"", "", "", "Loose", ""}}),
    [](const auto& entry) { return std::string(entry.param.name); });

// The same run by the engine alone.
Analysis EngineRun(const CommandCase& command, const ProgramFolder& folder) {
  LoadEquityTable();
  return *Analyze(SituationOf(command.mode, command.situation, folder));
}

TEST_P(EachCommand, PrintsItsRunInEveryFormatAndPlainUnlessToldOtherwise) {
  const CompanionProgram program;
  const Analysis state = EngineRun(GetParam(), program.Folder());
  for (const auto& row : kAnalysisFormats) {
    const CompanionOutcome outcome = program.Run(With(*GetParam().arguments, {"--format", row.Name}));
    EXPECT_EQ(outcome.Status, kDone) << row.Name;
    EXPECT_EQ(outcome.Errors, "") << row.Name;
    EXPECT_EQ(outcome.Output, row.Text({state, {}})) << row.Name;
  }
  EXPECT_EQ(program.Run(*GetParam().arguments).Output, InFormat(kAnalysisFormats, "plain", {state, {}}));
}

TEST_P(EachCommand, AddsTheWorkingOfEachHand) {
  const CompanionProgram program;
  Analysis state = EngineRun(GetParam(), program.Folder());
  const std::vector<std::string> hands = {"AKo", "22", "AKo"};
  const std::string expected = InFormat(kAnalysisFormats, "2+2", {state, hands});
  for (const Arguments& options : {Arguments{"--hand", "AKo", "--format", "2+2", "--hand", "22", "--hand", "AKo"},
                                   Arguments{"--format", "2+2", "--hand", "AKo", "22", "AKo"},
                                   Arguments{"--hand", "AKo", "22", "--hand", "AKo", "--format", "2+2"}}) {
    const CompanionOutcome outcome = program.Run(With(*GetParam().arguments, options));
    EXPECT_EQ(outcome.Status, kDone) << outcome.Errors;
    EXPECT_EQ(outcome.Output, expected);
  }
}

TEST_P(EachCommand, TakesTheFolderThatIsNamed) {
  const TemporaryProgram other;
  const CompanionProgram program;
  const CompanionOutcome own = program.Run(*GetParam().arguments);
  const CompanionOutcome named =
      RunCompanionIn(other.Folder().Path, With(*GetParam().arguments, {"--folder", program.Folder().Path.string()}));
  EXPECT_EQ(own.Status, kDone);
  EXPECT_EQ(named.Status, kDone);
  EXPECT_EQ(named.Output, own.Output);
}

TEST(Companion, AnswersOnStandardOutput) {
  const CompanionProgram program;
  for (const auto& [arguments, output] : std::vector<std::pair<Arguments, std::string>>{
           {{"summary", "--range", "Loose"}, "Full: 99+,AQs+,KQs,AQo+ | Half: 88,AJs\n"},
           {{"summary", "--range", "Nothing"}, "[None]\n"},
           {{"--version"}, std::string("quillon-cli ").append(kVersionText) + "\n"},
           {{"ranges"},
            "Loose\t5.8% selected\tFull: 99+,AQs+,KQs,AQo+ | Half: 88,AJs\n"
            "Nothing\t0% selected\t[None]\n"
            "Tight\t2.6% selected\tQQ+,AKs,AKo\n"},
       }) {
    const CompanionOutcome outcome = program.Run(arguments);
    EXPECT_EQ(outcome.Status, kDone) << arguments.front();
    EXPECT_EQ(outcome.Output, output) << arguments.front();
    EXPECT_EQ(outcome.Errors, "") << arguments.front();
  }
}

TEST(Help, HasALineForEachCommandOrOption) {
  std::vector<std::string> commands = {"help"};
  for (const Command& command : kCommands)
    commands.emplace_back(command.Name);
  const std::vector<std::string> options = {"--pot",           "--call",   "--shove",  "--range",
                                            "--calling-range", "--folder", "--format", "--hand"};
  for (const auto& [arguments, words] :
       std::vector<std::pair<Arguments, std::vector<std::string>>>{{{"--help"}, commands},
                                                                   {{"-h"}, commands},
                                                                   {{"help"}, commands},
                                                                   {{"raise", "--help"}, options},
                                                                   {{"help", "raise"}, options}}) {
    const CompanionOutcome outcome = RunCompanionIn("", arguments);
    EXPECT_EQ(outcome.Status, kDone);
    EXPECT_EQ(outcome.Errors, "");
    for (const std::string& word : words)
      EXPECT_THAT(outcome.Output, HasSubstr("\n  " + word + " "));
    for (const Command& command : kCommands)
      EXPECT_TRUE(words != commands || outcome.Output.find(command.About) == std::string::npos) << command.Name;
  }
}

TEST(Help, OfACommandIsItsManual) {
  for (const Command& command : kCommands) {
    const CompanionOutcome outcome = RunCompanionIn("", {"help", command.Name});
    EXPECT_EQ(outcome.Status, kDone) << command.Name;
    EXPECT_THAT(outcome.Output, StartsWith(std::string(command.Description) + "\n\n" + command.About));
    EXPECT_THAT(outcome.Output, HasSubstr("\nUsage: quillon-cli " + std::string(command.Name))) << outcome.Output;
    EXPECT_THAT(outcome.Output, HasSubstr("\nExit status:\n  0  ")) << command.Name;
    EXPECT_THAT(outcome.Output, HasSubstr(std::string("\nExample:\n  quillon-cli ") + command.Name)) << command.Name;
  }
}

TEST(Help, OfAPartOfACommandHasTheManualToo) {
  for (const Command& command : kCommands) {
    if (command.Name != std::string_view("limits") && command.Name != std::string_view("sweep")) continue;
    for (const char* part : {"call", "raise"}) {
      const std::string help = RunCompanionIn("", {"help", command.Name, part}).Output;
      EXPECT_THAT(help, HasSubstr(std::string("\n\n") + command.About + "\n")) << command.Name << " " << part;
      EXPECT_THAT(help, HasSubstr(std::string("\nUsage: quillon-cli ") + command.Name + " " + part)) << command.Name;
    }
  }
}

TEST(Help, OfACommandTellsItsFormatWithoutOne) {
  for (const auto& [arguments, format] :
       std::vector<std::pair<Arguments, std::string>>{{{"help", "call"}, "plain"},
                                                      {{"help", "limits", "call"}, "grid"},
                                                      {{"help", "sweep", "call"}, "table"},
                                                      {{"help", "chart"}, "grid"},
                                                      {{"help", "matrix"}, "csv"}}) {
    EXPECT_THAT(RunCompanionIn("", arguments).Output, HasSubstr("(default: " + format + ")\n"))
        << testing::PrintToString(arguments);
  }
}

TEST(Help, OfACommandTellsWhatItsFormatsAre) {
  for (const Arguments& arguments :
       {Arguments{"help", "call"}, Arguments{"help", "limits"}, Arguments{"help", "limits", "raise"},
        Arguments{"sweep", "call", "--help"}, Arguments{"help", "balance"}, Arguments{"help", "matrix"}}) {
    const std::string help = RunCompanionIn("", arguments).Output;
    EXPECT_THAT(help, HasSubstr("\nFormats:\n  ")) << testing::PrintToString(arguments);
    EXPECT_THAT(help, HasSubstr("\n  json   ")) << testing::PrintToString(arguments);
    EXPECT_THAT(Split(help, "Formats:"), SizeIs(2)) << testing::PrintToString(arguments);
    EXPECT_THAT(help, HasSubstr("\nExit status:\n  0  ")) << testing::PrintToString(arguments);
  }
}

// ---- the list of ranges

TEST(Ranges, OfAnEmptyFolderAreNone) {
  const TemporaryProgram program;
  const CompanionOutcome outcome = RunCompanionIn(program.Folder().Path, {"ranges"});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Output + outcome.Errors, "");
}

TEST(Ranges, WithAFileInPlaceOfTheirFolderAreARunTimeError) {
  const TemporaryProgram program;
  std::filesystem::remove(RangeFolderPath(program.Folder()));
  std::ofstream(RangeFolderPath(program.Folder())) << "no folder";
  const CompanionOutcome outcome = RunCompanionIn(program.Folder().Path, {"ranges"});
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_THAT(outcome.Errors, HasSubstr((program.Folder().Path / "Ranges").string()));
}

TEST(Ranges, InUtf8AreListedAsTheyAreWritten) {
  const TemporaryProgram program;
  program.Write("Überfall am Fluß.txt", TextWith("AA"));
  EXPECT_EQ(RunCompanionIn(program.Folder().Path, {"ranges"}).Output, "Überfall am Fluß\t0.5% selected\tAA\n");
}

// ---- files that are not ranges

TEST(BadFile, IsReportedByNameAndTheOthersAreListed) {
  for (const auto& [rule, file, content] :
       std::vector<std::array<std::string, 3>>{{"an empty file", "Bad.txt", ""},
                                               {"no entry of a class", "Bad.txt", "some noise ) and more of it"},
                                               {"an entry without a weight that can be read", "Bad.txt", "KK (1), AA"},
                                               {"a name too short for an extension", "bad", "AA (1), "},
                                               {"another extension", "Bad.html", "AA (1), "}}) {
    SCOPED_TRACE(rule);
    const TemporaryProgram program;
    program.Write("Aces.txt", TextWith("AA"));
    program.Write(file, content);
    program.Write("Kings.txt", TextWith("KK"));
    const CompanionOutcome outcome = RunCompanionIn(program.Folder().Path, {"ranges"});
    EXPECT_EQ(outcome.Status, kFailed);
    EXPECT_EQ(outcome.Output, "Aces\t0.5% selected\tAA\nKings\t0.5% selected\tKK\n");
    EXPECT_EQ(outcome.Errors, program.RangeFile(file).string() + " cannot be read, is empty or no range file.\n");
  }
}

TEST(BadFile, IsReportedByEachCommandBeforeTheRunFailsOverIt) {
  const CompanionProgram program;
  program.Write("Bad one.txt", "a) no range at all");
  const std::string complaint = "The range \"Bad one\" cannot be read: " + program.RangeFile("Bad one.txt").string() +
                                " is missing, empty or no range file.\n";
  const std::vector<std::pair<Arguments, std::string>> cases = {
      {Call("150", "50", "Bad one"), complaint},
      {Raise("9", "", "9", "Bad one", "Tight"), complaint},
      {Raise("9", "", "9", "Tight", "Bad one"), complaint},
      {Raise("9", "", "9", "Bad one", "Bad one"), complaint + complaint},
      {{"equity", "--range", "Bad one"}, complaint},
      {{"summary", "--range", "Bad one"}, complaint}};
  for (const auto& [arguments, complaints] : cases) {
    const CompanionOutcome outcome = program.Run(arguments);
    EXPECT_EQ(outcome.Status, kFailed) << arguments[0];
    EXPECT_EQ(outcome.Output, "") << arguments[0];
    EXPECT_THAT(outcome.Errors, StartsWith(complaints + "Run-time error '")) << arguments[0];
  }
}

// Each missing class reads the number before the first bracket, and there is none.
TEST(BadFile, MayPassForARangeOfNoHands) {
  const CompanionProgram program;
  program.Write("Noise.txt", "some noise ) and more of it");
  const CompanionOutcome equity = program.Run({"equity", "--range", "Noise"});
  EXPECT_EQ(equity.Status, kRefused);
  EXPECT_THAT(equity.Errors, EndsWith("Noise.txt is missing, empty or no range file.\n"
                                      "Empty Range: Your opponent's range is empty. Please select another range.\n"));
  EXPECT_EQ(program.Run({"summary", "--range", "Noise"}).Status, kFailed);
}

// ---- ranges that there are none of

TEST(UnknownRange, IsRefusedWithTheNearestNames) {
  const CompanionProgram program;
  program.Write("bad", "a name too short for an extension");
  const auto refusal = [&](const std::string& name, const std::string& nearest) {
    return "There is no range \"" + name + "\" in " + RangeFolderPath(program.Folder()).string() +
           ". The nearest names: " + nearest + "\n";
  };
  const std::string tihgt = refusal("Tihgt", R"("Tight", "Loose", "Nothing")");
  for (const auto& [arguments, complaint] : std::vector<std::pair<Arguments, std::string>>{
           {Call("150", "-5", "Tihgt"), tihgt},
           {Raise("150", "50", "400", "Tihgt", "Tight"), tihgt},
           {Raise("150", "50", "400", "Loose", "Tihgt"), tihgt},
           {Raise("150", "50", "400", "Tihgt", "tihgt"), tihgt + refusal("tihgt", R"("Tight", "Loose", "Nothing")")},
           {{"equity", "--range", "Tihgt"}, tihgt},
           {{"summary", "--range", ""}, refusal("", R"("Loose", "Tight", "Nothing")")}}) {
    const CompanionOutcome outcome = program.Run(arguments, {.Terminal = {.ShowProgress = true, .ShowColors = true}});
    EXPECT_EQ(outcome.Status, kRefused);
    EXPECT_EQ(outcome.Output, "");
    EXPECT_EQ(outcome.Errors, complaint);
  }
}

TEST(UnknownRange, MayDifferByLetterCaseAlone) {
  const CompanionProgram program;
  const CompanionOutcome outcome = program.Run({"summary", "--range", "loose"});
  if (IsSameName("loose", "Loose")) {
    EXPECT_EQ(outcome.Output, program.Run({"summary", "--range", "Loose"}).Output);
  } else {
    EXPECT_EQ(outcome.Status, kRefused);
    EXPECT_THAT(outcome.Errors, EndsWith("The nearest names: \"Loose\", \"Tight\", \"Nothing\"\n"));
  }
}

TEST(UnknownRange, HasNoNearestNameWhereThereIsNone) {
  const TemporaryProgram program;
  const CompanionOutcome outcome = RunCompanionIn(program.Folder().Path, kCall);
  EXPECT_EQ(outcome.Status, kRefused);
  EXPECT_EQ(outcome.Errors, "There is no range \"Tight\" in " + RangeFolderPath(program.Folder()).string() + ".\n");
}

TEST(UnknownRange, InAFolderWithoutRangesIsARunTimeErrorThatNamesIt) {
  const CompanionOutcome outcome = RunCompanionIn("", With(kCall, {"--folder", "/nowhere"}));
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_EQ(outcome.Errors, "Run-time error '76': Path not found (" + PathOf("/nowhere/Ranges").string() +
                                ": No such file or directory)\n");
}

// ---- refusals

// The checks have their own tests; these cover how their messages are printed.
TEST(Refusal, PrintsTitleAndMessageAndNothingElse) {
  const std::string badSum =
      "Problem: There was a problem processing your expression: \n\n"
      "Only addition (+) and subtract (-) are supported";
  const CompanionProgram program;
  for (const auto& [arguments, message] : std::vector<std::pair<Arguments, std::string>>{
           {Call("150", "50", ""), "Missing Range: Please choose a range for your opponent."},
           {Call("150", "50x"), "Call Size Error: The call size contains non-numeric characters"},
           {Call("150", "=5-5"), "Call Size Error: The amount to call must be greater than zero."},
           {{"call", "--pot=150", "--call=-5", "--range=Tight"},
            "Call Size Error: The amount to call must be greater than zero."},
           {Raise("150", "50", "400", "Loose", ""),
            "Missing Range: You must assign or create a range of hands for your opponent to call with."},
           {Raise("150", "-1", "400"), "Call Amount: The amount you must call cannot be a negative number."},
           {Raise("150", "50", "400x"),
            "Shove Size: The amount your opponent must call when you shove contains illegal characters."},
           {{"equity", "--range", ""}, "Select Range: Please select a range for your opponent."},
           {{"equity", "--range", "Nothing"},
            "Empty Range: Your opponent's range is empty. Please select another range."},
           {Call("=1 + 2", "1"), badSum},
           {Raise("150", "50", "=2*200"), badSum},
           {Raise("=a", "=b", "=c"), badSum}}) {
    const CompanionOutcome outcome = program.Run(arguments, {.Terminal = {.ShowProgress = true, .ShowColors = true}});
    EXPECT_EQ(outcome.Status, kRefused) << message;
    EXPECT_EQ(outcome.Output, "") << message;
    EXPECT_EQ(outcome.Errors, message + "\n");
  }
}

// ---- amounts

TEST(Amounts, AreWarnedOfWhereACommaCutsThemShort) {
  struct Case {
    Arguments arguments;
    int status;
    const char* errors;
  };
  const CompanionProgram program;
  for (const Case& c : std::vector<Case>{
           {Call("150", "12,5"), kDone, "Warning: --call 12,5 counts as 12; a comma ends a number.\n"},
           {Raise("1,000", "$1,000", "1,000"), kDone,
            "Warning: --pot 1,000 counts as 1; a comma ends a number.\n"
            "Warning: --call $1,000 counts as 1; a comma ends a number.\n"
            "Warning: --shove 1,000 counts as 1; a comma ends a number.\n"},
           {Call("1,000", "50"), kRefused,
            "Warning: --pot 1,000 counts as 1; a comma ends a number.\n"
            "Pot Size Error: The pot size must be greater than the amount you have to call.\n"},
           {Raise("150", "0,0", "400"), kDone, ""},
           {Call("1,000x", "0.5"), kRefused, "Pot Size Error: The pot size contains non-numeric characters\n"},
           {Call("=1000+500", "50"), kDone, ""}}) {
    const CompanionOutcome outcome = program.Run(c.arguments);
    EXPECT_EQ(outcome.Status, c.status) << testing::PrintToString(c.arguments);
    EXPECT_EQ(outcome.Errors, c.errors);
    EXPECT_EQ(outcome.Output.empty(), c.status != kDone);
  }
}

TEST(Amounts, GoToTheirOwnPlaces) {
  const CompanionProgram program;
  const CompanionOutcome outcome = program.Run(With(Raise("=100+50", "$25", "=400"), {"--format", "json"}));
  ASSERT_EQ(outcome.Status, kDone) << outcome.Errors;
  const Json object = Json::parse(outcome.Output);
  EXPECT_EQ(object["pot"], 150);
  EXPECT_EQ(object["call"], 25);
  EXPECT_EQ(object["shove"], 400);
}

TEST(OddRun, IsPrintedInEveryFormat) {
  const CompanionProgram program;
  program.Write("Aces.txt", TextWith("AA"));
  program.Write("Trace.txt", Replaced(TextWith("AA"), "(1)", "(5e-324)"));
  for (const auto& [rule, arguments] : std::vector<std::pair<std::string, Arguments>>{
           {"values beyond 32 bits", Call("4e9", "3e9")},
           {"a best value of zero", Raise("100", "100", "50", "Aces", "Aces")},
           {"equities all alike", {"equity", "--range", "Trace"}},
           {"all hands of one value", Raise("3", "", "9", "Loose", "Nothing")}}) {
    for (const auto& row : kAnalysisFormats) {
      const CompanionOutcome outcome =
          program.Run(With(arguments, {"--format", row.Name}), {.Terminal = {.ShowColors = true}});
      EXPECT_EQ(outcome.Status, kDone) << rule << " as " << row.Name;
      EXPECT_EQ(outcome.Errors, "") << rule << " as " << row.Name;
      EXPECT_NE(outcome.Output, "") << rule << " as " << row.Name;
    }
  }
}

// ---- names of ranges

TEST(RangeName, IsTakenAsItStands) {
  for (const std::string name :
       {"-", "-5", "-tight", "--range", "--", "[Aces, Kings]", "{A}", "a=b", "\"quoted\"", "'single'", "100% %s",
        "two  blanks", " blank in front", "Überfall ½", "call", "#1", "x:y", "100,000"}) {
    if (!NameFault(name).empty()) continue;  // no file can have it here
    const TemporaryProgram program;
    program.Write(name + ".txt", TextWith("AA"));
    EXPECT_EQ(RunCompanionIn(program.Folder().Path, {"summary", "--range", name}).Output, "AA\n") << name;
    const CompanionOutcome equity =
        RunCompanionIn(program.Folder().Path, {"equity", "--range", name, "--format", "json"});
    ASSERT_EQ(equity.Status, kDone) << equity.Errors;
    EXPECT_EQ(Json::parse(equity.Output)["range"], name);
  }
}

// ---- wrong usage

TEST(WrongUsage, IsReportedWithItsStatus) {
  struct Case {
    const char* rule;
    Arguments arguments;
    const char* complaint;
  };
  const CompanionProgram program;
  for (const Case& c : std::vector<Case>{
           {"no command", {}, "Say what to do: call, raise, equity, summary, "},
           {"unknown command", {"fold"}, "fold"},
           {"two commands", With(kEquity, {"ranges"}), "ranges"},
           {"option before the command", {"--range", "Loose", "equity"}, "--range"},
           {"stray word", With(kEquity, {"Tight"}), "Tight"},
           {"call without pot", {"call", "--call", "50", "--range", "Tight"}, "--pot is required"},
           {"call without range", {"call", "--pot", "150", "--call", "50"}, "--range or --hands is required"},
           {"raise without shove",
            {"raise", "--pot", "150", "--call", "50", "--range", "Loose", "--calling-range", "Tight"},
            "--shove is required"},
           {"raise without calling range",
            {"raise", "--pot", "150", "--call", "50", "--shove", "400", "--range", "Loose"},
            "--calling-range or --calling-hands is required"},
           {"equity takes no pot", With(kEquity, {"--pot", "150"}), "--pot"},
           {"call takes no shove", With(kCall, {"--shove", "400"}), "--shove"},
           {"summary takes no format", {"summary", "--range", "Tight", "--format", "csv"}, "--format"},
           {"range without its name", {"equity", "--range"}, "--range"},
           {"range given twice", With(kEquity, {"--range", "Tight"}), "--range"},
           {"unknown format", With(kEquity, {"--format", "xml"}),
            "--format: xml not in {plain,2+2,table,csv,json,html,svg}"},
           {"format in capitals", With(kEquity, {"--format", "JSON"}), "--format: JSON not in"},
           {"hand that is none", With(kEquity, {"--format", "2+2", "--hand", "AAs"}), "\"AAs\" is no starting hand"},
           {"second hand that is none", With(kEquity, {"--format", "2+2", "--hand", "AA", "--hand", "None"}),
            "\"None\" is no starting hand"},
           {"second hand after one option that is none", With(kEquity, {"--format", "2+2", "--hand", "AA", "None"}),
            "\"None\" is no starting hand"},
           {"hand in json", With(kEquity, {"--format", "json", "--hand", "AA"}),
            "--hand goes with --format 2+2 only"}}) {
    const CompanionOutcome outcome = program.Run(c.arguments);
    EXPECT_EQ(outcome.Status, kWrongUsage) << c.rule;
    EXPECT_EQ(outcome.Output, "") << c.rule;
    EXPECT_THAT(outcome.Errors, HasSubstr(c.complaint)) << c.rule;
    EXPECT_THAT(outcome.Errors, HasSubstr("--help")) << c.rule;
  }
}

// ---- on a terminal

constexpr std::string_view kClearLine = "\r\x1b[K";

constexpr std::chrono::milliseconds kLong(501);

TEST_P(EachCommand, ShowsTheProgressOfALongRun) {
  const CompanionProgram program;
  const CompanionOutcome quiet = program.Run(*GetParam().arguments, {.Step = kLong});
  const CompanionOutcome outcome =
      program.Run(*GetParam().arguments, {.Terminal = {.ShowProgress = true}, .Step = kLong});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Output, quiet.Output);
  EXPECT_EQ(quiet.Errors, "");

  const auto frames = Split(outcome.Errors, "\r[");
  ASSERT_THAT(frames, SizeIs(170));  // one for each of the 169 classes, after the empty start
  EXPECT_EQ(frames[0], "");
  EXPECT_EQ(frames[1], std::string(40, ' ') + "] 1%");
  EXPECT_EQ(frames[85], std::string(20, '#') + std::string(20, ' ') + "] 50%");
  EXPECT_EQ(frames[169], std::string(40, '#') + "] 100%" + std::string(kClearLine));
}

// Each class takes a step: after 100 of 5 milliseconds it is exactly half a second.
TEST_P(EachCommand, ShowsProgressAfterHalfASecond) {
  const CompanionProgram program;
  const auto framesAtSteps = [&](int milliseconds) {
    const CompanionScene scene = {.Terminal = {.ShowProgress = true}, .Step = std::chrono::milliseconds(milliseconds)};
    return Split(program.Run(*GetParam().arguments, scene).Errors, "\r[");
  };
  const auto frames = framesAtSteps(5);
  ASSERT_THAT(frames, SizeIs(1 + 69));
  EXPECT_THAT(frames[1], EndsWith("] 60%"));
  EXPECT_THAT(framesAtSteps(2), SizeIs(1));
}

// At AKs, the second class, the negative weights cancel out, and the division fails.
TEST(Progress, IsClearedBeforeTheTextOfAFailureHalfWay) {
  const TemporaryProgram program;
  program.Write("Now.txt", Replaced(TextWith("AA"), "KK (0)", "KK (-1)"));
  program.Write("Calls.txt", Replaced(TextWith("AA"), "KK (0)", "KK (-2)"));
  const CompanionOutcome outcome = RunCompanionIn(program.Folder().Path, Raise("150", "50", "400", "Now", "Calls"),
                                                  {.Terminal = {.ShowProgress = true}, .Step = kLong});
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_EQ(outcome.Errors, "\r[" + std::string(40, ' ') + "] 1%" + std::string(kClearLine) +
                                "Run-time error '11': Division by zero\n");
}

TEST_P(EachCommand, ShowsThePlainReportBelowTheGridInColors) {
  const CompanionProgram program;
  const Arguments& arguments = *GetParam().arguments;
  const std::string report = program.Run(arguments).Output;
  const CompanionOutcome outcome = program.Run(arguments, {.Terminal = {.ShowColors = true}});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Errors, "");
  ASSERT_THAT(outcome.Output, EndsWith("\x1b[0m\n\n" + report));

  const std::string grid = outcome.Output.substr(0, outcome.Output.size() - report.size());
  EXPECT_THAT(Split(grid, "\n"), SizeIs(15));  // 13 rows, an empty line, and nothing after the last line end
  const auto cells = Split(grid, "\x1b[48;2;");
  const auto rows = Split(program.Run(With(arguments, {"--format", "csv"})).Output, "\n");
  ASSERT_THAT(cells, SizeIs(170));
  for (std::size_t i = 1; i < cells.size(); ++i) {
    const auto columns = Split(rows[i], ",");
    const auto color = static_cast<unsigned>(std::stoul(columns[5].substr(1), nullptr, 16));
    const std::string channels = std::to_string(color >> 16U) + ";" + std::to_string(color >> 8U & 0xFFU) + ";" +
                                 std::to_string(color & 0xFFU) + "m";
    EXPECT_THAT(cells[i], StartsWith(channels)) << columns[0];
    EXPECT_THAT(cells[i], HasSubstr(" " + columns[0] + " ")) << columns[0];
  }
}

TEST(CompanionOnATerminal, GetsNoGridWithAnythingButThePlainReport) {
  const CompanionProgram program;
  for (const Arguments& arguments :
       {With(kEquity, {"--format", "2+2"}), With(kEquity, {"--format", "table"}), With(kEquity, {"--format", "json"}),
        With(kEquity, {"--format", "csv"}), Arguments{"ranges"}, Arguments{"summary", "--range", "Tight"}}) {
    const CompanionOutcome outcome = program.Run(arguments, {.Terminal = {.ShowColors = true}, .Step = kLong});
    EXPECT_EQ(outcome.Status, kDone) << arguments.back();
    EXPECT_THAT(outcome.Output, Not(HasSubstr("\x1b"))) << arguments.back();
  }
  for (const Arguments& arguments : {Arguments{"ranges"}, Arguments{"summary", "--range", "Tight"}})
    EXPECT_EQ(program.Run(arguments, {.Terminal = {.ShowProgress = true}, .Step = kLong}).Errors, "") << arguments[0];
}

}  // namespace
}  // namespace quillon
