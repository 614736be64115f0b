#include "tools/companion.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/entered_situation.h"
#include "hand/equity_table.h"
#include "shell/version.h"
#include "support/run_time_error.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"
#include "tools/analysis_output.h"
#include "tools/commands.h"

namespace quillon {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using Arguments = std::vector<std::string>;
using Json = nlohmann::json;

struct Outcome {
  int Status = -1;
  std::string Output;
  std::string Errors;
};

// As the program's outermost frame does it: a run-time error ends the run with its text and the status for it. Each
// look at the clock takes `step`.
Outcome RunIn(const std::filesystem::path& folder, const Arguments& arguments, Terminal terminal = {},
              std::chrono::milliseconds step = {}) {
  std::chrono::steady_clock::time_point time;
  const auto now = [&time, step] { return time += step; };
  std::ostringstream output;
  std::ostringstream errors;
  Outcome outcome;
  try {
    outcome.Status = RunCompanion(arguments, {output, errors, folder, terminal, now});
  } catch (const RunTimeError& error) {
    outcome.Status = kFailed;
    errors << error.what() << '\n';
  }
  outcome.Output = output.str();
  outcome.Errors = errors.str();
  return outcome;
}

std::vector<std::string> Split(const std::string& text, std::string_view separator) {
  std::vector<std::string> pieces;
  std::size_t start = 0;
  for (std::size_t at = 0; (at = text.find(separator, start)) != std::string::npos; start = at + separator.size())
    pieces.push_back(text.substr(start, at - start));
  pieces.push_back(text.substr(start));
  return pieces;
}

// A program's folder with the ranges that the tests play against.
class CompanionProgram {
 public:
  CompanionProgram() {
    program_.Write("Tight.txt", TextWith("AA KK QQ AKs AKo") + "\r\n");
    program_.Write("Loose.txt", TextWith("AA KK QQ JJ TT 99 AKs AQs AKo AQo KQs", "88 AJs") + "\r\n");
    program_.Write("Nothing.txt", TextWith("") + "\r\n");
  }

  [[nodiscard]] const TemporaryProgram& Files() const { return program_; }
  [[nodiscard]] const ProgramFolder& Folder() const { return program_.Folder(); }
  [[nodiscard]] Outcome Run(const Arguments& arguments, Terminal terminal = {},
                            std::chrono::milliseconds step = {}) const {
    return RunIn(Folder().Path, arguments, terminal, step);
  }

 private:
  TemporaryProgram program_;
};

// ---- the commands

const Arguments kCall = {"call", "--pot", "150", "--call", "50", "--range", "Tight"};
const Arguments kRaise = {"raise", "--pot",   "150",   "--call",          "50",   "--shove",
                          "400",   "--range", "Loose", "--calling-range", "Tight"};
const Arguments kEquity = {"equity", "--range", "Loose"};

Arguments With(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

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

TEST_P(EachCommand, PrintsItsRunInEveryFormat) {
  const CompanionProgram program;
  Analysis state = EngineRun(GetParam(), program.Folder());
  for (const OutputFormatRow& row : kAnalysisFormats) {
    const Outcome outcome = program.Run(With(*GetParam().arguments, {"--format", row.Name}));
    EXPECT_EQ(outcome.Status, kDone) << row.Name;
    EXPECT_EQ(outcome.Errors, "") << row.Name;
    EXPECT_EQ(outcome.Output, AnalysisOutput(row.Format, state, {})) << row.Name;
  }
}

TEST_P(EachCommand, PrintsThePlainReportUnlessToldOtherwise) {
  const CompanionProgram program;
  Analysis state = EngineRun(GetParam(), program.Folder());
  const Outcome outcome = program.Run(*GetParam().arguments);
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Output, AnalysisOutput(OutputFormat::kPlain, state, {}));
}

TEST_P(EachCommand, AddsTheWorkingOfEachHand) {
  const CompanionProgram program;
  Analysis state = EngineRun(GetParam(), program.Folder());
  const std::vector<std::string> hands = {"AKo", "22", "AKo"};
  const std::string expected = AnalysisOutput(OutputFormat::kForum, state, hands);
  for (const Arguments& options : {Arguments{"--hand", "AKo", "--format", "2+2", "--hand", "22", "--hand", "AKo"},
                                   Arguments{"--format", "2+2", "--hand", "AKo", "22", "AKo"},
                                   Arguments{"--hand", "AKo", "22", "--hand", "AKo", "--format", "2+2"}}) {
    const Outcome outcome = program.Run(With(*GetParam().arguments, options));
    EXPECT_EQ(outcome.Status, kDone) << outcome.Errors;
    EXPECT_EQ(outcome.Output, expected);
  }
}

TEST_P(EachCommand, TakesTheFolderThatIsNamed) {
  const TemporaryProgram other;
  const CompanionProgram program;
  const Outcome own = program.Run(*GetParam().arguments);
  const Outcome named = RunIn(other.Folder().Path, With(*GetParam().arguments, {"--folder", program.Folder().Path}));
  EXPECT_EQ(own.Status, kDone);
  EXPECT_EQ(named.Status, kDone);
  EXPECT_EQ(named.Output, own.Output);
}

TEST(Summary, IsTheShortNotation) {
  const CompanionProgram program;
  const Outcome outcome = program.Run({"summary", "--range", "Loose"});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Output, "Full: 99+,AQs+,KQs,AQo+ | Half: 88,AJs\n");
  EXPECT_EQ(outcome.Errors, "");
}

TEST(Summary, OfAnEmptyRangeIsNone) {
  const CompanionProgram program;
  EXPECT_EQ(program.Run({"summary", "--range", "Nothing"}).Output, "[None]\n");
}

TEST(Help, IsPrintedOnStandardOutput) {
  for (const Arguments& arguments : {Arguments{"--help"}, Arguments{"-h"}, Arguments{"help"}}) {
    const Outcome outcome = RunIn("", arguments);
    EXPECT_EQ(outcome.Status, kDone);
    EXPECT_EQ(outcome.Errors, "");
    for (const Command& command : kCommands) {
      EXPECT_THAT(outcome.Output, HasSubstr("\n  " + std::string(command.Name) + " ")) << "a line of its own";
      EXPECT_THAT(outcome.Output, Not(HasSubstr(command.About))) << command.Name;
    }
    EXPECT_THAT(outcome.Output, HasSubstr("\n  help "));
  }
}

TEST(Help, OfACommandNamesItsOptions) {
  for (const Arguments& arguments : {Arguments{"raise", "--help"}, Arguments{"help", "raise"}}) {
    const Outcome outcome = RunIn("", arguments);
    EXPECT_EQ(outcome.Status, kDone);
    for (const char* option :
         {"--pot", "--call", "--shove", "--range", "--calling-range", "--folder", "--format", "--hand"})
      EXPECT_THAT(outcome.Output, HasSubstr("\n  " + std::string(option) + " ")) << "a line of its own";
  }
}

TEST(Help, OfACommandIsItsManual) {
  for (const Command& command : kCommands) {
    const Outcome outcome = RunIn("", {"help", command.Name});
    EXPECT_EQ(outcome.Status, kDone) << command.Name;
    EXPECT_THAT(outcome.Output, StartsWith(std::string(command.Description) + "\n\n" + command.About));
    EXPECT_THAT(outcome.Output, HasSubstr("\nUsage: quillon-cli " + std::string(command.Name))) << outcome.Output;
    EXPECT_THAT(outcome.Output, HasSubstr("\nExit status:\n  0  ")) << command.Name;
    EXPECT_THAT(outcome.Output, HasSubstr(std::string("\nExample:\n  quillon-cli ") + command.Name)) << command.Name;
  }
}

TEST(Help, OfACommandTellsWhatItsFormatsAre) {
  for (const Arguments& arguments :
       {Arguments{"help", "call"}, Arguments{"help", "limits"}, Arguments{"help", "limits", "raise"},
        Arguments{"sweep", "call", "--help"}, Arguments{"help", "balance"}, Arguments{"help", "matrix"}}) {
    const std::string help = RunIn("", arguments).Output;
    EXPECT_THAT(help, HasSubstr("\nFormats:\n  ")) << testing::PrintToString(arguments);
    EXPECT_THAT(help, HasSubstr("\n  json   ")) << testing::PrintToString(arguments);
    EXPECT_THAT(Split(help, "Formats:"), SizeIs(2)) << testing::PrintToString(arguments);
  }
}

TEST(Version, IsPrintedOnStandardOutput) {
  const Outcome outcome = RunIn("", {"--version"});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Output, "quillon-cli " + VersionText() + "\n");
  EXPECT_EQ(outcome.Errors, "");
}

// ---- the list of ranges

TEST(Ranges, AreListedByNameWithPercentAndNotation) {
  const CompanionProgram program;
  const Outcome outcome = program.Run({"ranges"});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Errors, "");
  EXPECT_EQ(outcome.Output,
            "Loose\t5.8% selected\tFull: 99+,AQs+,KQs,AQo+ | Half: 88,AJs\n"
            "Nothing\t0% selected\t[None]\n"
            "Tight\t2.6% selected\tQQ+,AKs,AKo\n");
}

TEST(Ranges, OfAnEmptyFolderAreNone) {
  const TemporaryProgram program;
  const Outcome outcome = RunIn(program.Folder().Path, {"ranges"});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Output + outcome.Errors, "");
}

TEST(Ranges, WithoutTheirFolderAreARunTimeError) {
  const Outcome outcome = RunIn("/nowhere", {"ranges"});
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_EQ(outcome.Output, "");
  EXPECT_EQ(outcome.Errors, "Run-time error '76': Path not found (/nowhere/Ranges: No such file or directory)\n");
}

TEST(Ranges, BehindAFileInPlaceOfTheirFolderAreARunTimeError) {
  const TemporaryProgram program;
  std::filesystem::remove(RangeFolderPath(program.Folder()));
  std::ofstream(RangeFolderPath(program.Folder())) << "no folder";
  const Outcome outcome = RunIn(program.Folder().Path, {"ranges"});
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_THAT(outcome.Errors, HasSubstr((program.Folder().Path / "Ranges").string()));
}

TEST(Ranges, InUtf8AreListedAsTheyAreWritten) {
  const TemporaryProgram program;
  program.Write("Überfall am Fluß.txt", TextWith("AA"));
  EXPECT_EQ(RunIn(program.Folder().Path, {"ranges"}).Output, "Überfall am Fluß\t0.5% selected\tAA\n");
}

struct BadFileCase {
  const char* rule;
  const char* file;
  const char* content;
};

class BadFile : public testing::TestWithParam<BadFileCase> {};

TEST_P(BadFile, IsPointedOutAndTheOthersAreListed) {
  const TemporaryProgram program;
  program.Write("Aces.txt", TextWith("AA"));
  program.Write(GetParam().file, GetParam().content);
  program.Write("Kings.txt", TextWith("KK"));
  const Outcome outcome = RunIn(program.Folder().Path, {"ranges"});
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_EQ(outcome.Output, "Aces\t0.5% selected\tAA\nKings\t0.5% selected\tKK\n");
  EXPECT_EQ(outcome.Errors,
            program.RangeFile(GetParam().file).string() + " cannot be read, is empty or no range file.\n");
}

constexpr auto kBadFiles = std::to_array<BadFileCase>({
    {"Empty", "Bad.txt", ""},
    {"LineEndAlone", "Bad.txt", "\r\n"},
    {"NoiseWithoutABracket", "Bad.txt", "\x01\xff\x80 no range at all"},
    {"NoiseWithABracket", "Bad.txt", "a) no range at all"},
    {"LabelWithoutAWeight", "Bad.txt", "KK (1), AA"},
    {"NameTooShortForAnExtension", "bad", "AA (1), "},
    {"OtherExtension", "Bad.html", "AA (1), "},
});

INSTANTIATE_TEST_SUITE_P(Ranges, BadFile, testing::ValuesIn(kBadFiles),
                         [](const auto& entry) { return std::string(entry.param.rule); });

// ---- ranges that cannot be read

struct UnreadableCase {
  const char* rule;
  const char* content;
};

class Unreadable : public testing::TestWithParam<UnreadableCase> {};

TEST_P(Unreadable, IsNamedBeforeTheRunFailsOverIt) {
  const CompanionProgram program;
  program.Files().Write("Bad one.txt", GetParam().content);
  const std::string complaint =
      "The range \"Bad one\" cannot be read: " + program.Files().RangeFile("Bad one.txt").string() +
      " is missing, empty or no range file.\n";
  for (const Arguments& arguments :
       {Arguments{"call", "--pot", "150", "--call", "50", "--range", "Bad one"},
        Arguments{"raise", "--pot", "9", "--call", "", "--shove", "9", "--range", "Bad one", "--calling-range",
                  "Tight"},
        Arguments{"raise", "--pot", "9", "--call", "", "--shove", "9", "--range", "Tight", "--calling-range",
                  "Bad one"},
        Arguments{"equity", "--range", "Bad one"}, Arguments{"summary", "--range", "Bad one"}}) {
    const Outcome outcome = program.Run(arguments);
    EXPECT_EQ(outcome.Status, kFailed) << arguments[0];
    EXPECT_EQ(outcome.Output, "") << arguments[0];
    EXPECT_THAT(outcome.Errors, StartsWith(complaint + "Run-time error '")) << arguments[0];
  }
}

constexpr auto kUnreadable = std::to_array<UnreadableCase>({
    {"Empty", ""},
    {"LineEndAlone", "\r\n"},
    {"Noise", "\x01\xff\x80 no range at all"},
    {"NoiseWithABracket", "a) no range at all"},
    {"LabelWithoutAWeight", "KK (1), AA"},
});

INSTANTIATE_TEST_SUITE_P(Companion, Unreadable, testing::ValuesIn(kUnreadable),
                         [](const auto& entry) { return std::string(entry.param.rule); });

TEST(UnreadableRange, BothRangesOfAShoveArePointedOut) {
  const CompanionProgram program;
  program.Files().Write("This.txt", "");
  program.Files().Write("That.txt", "");
  const Outcome outcome = program.Run(Raise("9", "", "9", "This", "That"));
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_THAT(outcome.Errors, HasSubstr("The range \"This\" cannot be read"));
  EXPECT_THAT(outcome.Errors, HasSubstr("The range \"That\" cannot be read"));
}

// A class that a text does not mention reads the number before the first bracket, which here is none.
TEST(UnreadableRange, NoiseWithALateBracketIsPointedOut) {
  const CompanionProgram program;
  program.Files().Write("Noise.txt", "some noise ) and more of it");
  const Outcome equity = program.Run({"equity", "--range", "Noise"});
  EXPECT_EQ(equity.Status, kRefused);
  EXPECT_THAT(equity.Errors, HasSubstr("Noise.txt is missing, empty or no range file.\n"));
  EXPECT_THAT(equity.Errors, HasSubstr("Empty Range: Your opponent's range is empty. Please select another range.\n"));
  const Outcome summary = program.Run({"summary", "--range", "Noise"});
  EXPECT_EQ(summary.Status, kFailed);
  EXPECT_EQ(summary.Output, "");
  EXPECT_THAT(summary.Errors, HasSubstr("Noise.txt is missing, empty or no range file.\n"));
  const Outcome listing = program.Run({"ranges"});
  EXPECT_EQ(listing.Status, kFailed);
  EXPECT_THAT(listing.Errors, HasSubstr("Noise.txt cannot be read, is empty or no range file.\n"));
}

// ---- ranges that there are none of

struct UnknownCase {
  const char* rule;
  Arguments arguments;
  const char* complaint;  // with FOLDER for the folder of the ranges
};

class Unknown : public testing::TestWithParam<UnknownCase> {};

TEST_P(Unknown, IsRefusedWithTheNearestNames) {
  const CompanionProgram program;
  program.Files().Write("bad", "a name too short for an extension");
  const Outcome outcome = program.Run(GetParam().arguments, {.ShowProgress = true, .ShowColors = true});
  EXPECT_EQ(outcome.Status, kRefused);
  EXPECT_EQ(outcome.Output, "");
  std::string complaint = GetParam().complaint;
  for (std::size_t at = 0; (at = complaint.find("FOLDER")) != std::string::npos;)
    complaint.replace(at, 6, RangeFolderPath(program.Folder()).string());
  EXPECT_EQ(outcome.Errors, complaint);
}

std::vector<UnknownCase> Unknowns() {
  constexpr const char* kTihgt =
      "There is no range \"Tihgt\" in FOLDER. The nearest names: \"Tight\", \"Loose\", \"Nothing\"\n";
  return {
      {"InACall", Call("150", "50", "Tihgt"), kTihgt},
      {"InARaise", Raise("150", "50", "400", "Tihgt", "Tight"), kTihgt},
      {"InARaiseThatIsCalled", Raise("150", "50", "400", "Loose", "Tihgt"), kTihgt},
      {"InBothPlacesOfARaise", Raise("150", "50", "400", "Tihgt", "tihgt"),
       "There is no range \"Tihgt\" in FOLDER. The nearest names: \"Tight\", \"Loose\", \"Nothing\"\n"
       "There is no range \"tihgt\" in FOLDER. The nearest names: \"Tight\", \"Loose\", \"Nothing\"\n"},
      {"InAnEquity", {"equity", "--range", "Tihgt"}, kTihgt},
      {"InASummary", {"summary", "--range", "Tihgt"}, kTihgt},
      {"InASummaryWithoutAName",
       {"summary", "--range", ""},
       "There is no range \"\" in FOLDER. The nearest names: \"Loose\", \"Tight\", \"Nothing\"\n"},
      {"OfTheRightNameInTheWrongCase",
       {"summary", "--range", "loose"},
       "There is no range \"loose\" in FOLDER. The nearest names: \"Loose\", \"Tight\", \"Nothing\"\n"},
      {"WithAnAmountThatWouldBeRefused", Call("150", "-5", "Tihgt"), kTihgt},
  };
}

INSTANTIATE_TEST_SUITE_P(Companion, Unknown, testing::ValuesIn(Unknowns()),
                         [](const auto& entry) { return std::string(entry.param.rule); });

TEST(UnknownRange, HasNoNearestNameWhereThereIsNone) {
  const TemporaryProgram program;
  const Outcome outcome = RunIn(program.Folder().Path, kCall);
  EXPECT_EQ(outcome.Status, kRefused);
  EXPECT_EQ(outcome.Errors, "There is no range \"Tight\" in " + RangeFolderPath(program.Folder()).string() + ".\n");
}

TEST(UnknownRange, InAFolderWithoutRangesIsARunTimeErrorThatNamesIt) {
  const Outcome outcome = RunIn("/nowhere", kCall);
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_EQ(outcome.Errors, "Run-time error '76': Path not found (/nowhere/Ranges: No such file or directory)\n");
}

// ---- refusals

struct RefusalCase {
  const char* rule;
  Arguments arguments;
  const char* message;
};

class Refusal : public testing::TestWithParam<RefusalCase> {};

TEST_P(Refusal, PrintsTitleAndMessageAndNothingElse) {
  const CompanionProgram program;
  const Outcome outcome = program.Run(GetParam().arguments, {.ShowProgress = true, .ShowColors = true});
  EXPECT_EQ(outcome.Status, kRefused);
  EXPECT_EQ(outcome.Output, "");
  EXPECT_EQ(outcome.Errors, std::string(GetParam().message) + "\n");
}

constexpr const char* kBadSum =
    "Problem: There was a problem processing your expression: \n\n"
    "Only addition (+) and subtract (-) are supported";

std::vector<RefusalCase> Refusals() {
  return {
      {"CallWithoutRange", Call("150", "50", ""), "Missing Range: Please choose a range for your opponent."},
      {"CallAgainstNoHands", Call("150", "50", "Nothing"),
       "No Hands in Range: No hands in your opponent's current range."},
      {"CallOfThePot", Call("100", "100"),
       "Pot Size Error: The pot size must be greater than the amount you have to call."},
      {"CallOfNothingIntoNothing", Call("0", "0"),
       "Pot Size Error: The pot size must be greater than the amount you have to call."},
      {"CallIntoAWord", Call("abc", "50"),
       "Pot Size Error: The pot size must be greater than the amount you have to call."},
      {"CallIntoNoPot", Call("0", "-5"), "Pot Size Error: The pot size must be greater than zero."},
      {"CallOfNothing", Call("150", "0"), "Call Size Error: The amount to call must be greater than zero."},
      {"CallOfLessThanNothing", Call("150", "-5"), "Call Size Error: The amount to call must be greater than zero."},
      {"CallOfAWord", Call("150", "abc"), "Call Size Error: The amount to call must be greater than zero."},
      {"CallIntoAPotWithLetters", Call("150x", "50"), "Pot Size Error: The pot size contains non-numeric characters"},
      {"CallWithLetters", Call("150", "50x"), "Call Size Error: The call size contains non-numeric characters"},
      {"CallIntoAPotInEuros", Call("100 €", "50"), "Pot Size Error: The pot size contains non-numeric characters"},

      {"RaiseWithoutRange", Raise("150", "50", "400", ""),
       "Missing Range: You must assign or create a range of hands for your opponent."},
      {"RaiseWithoutCallingRange", Raise("150", "50", "400", "Loose", ""),
       "Missing Range: You must assign or create a range of hands for your opponent to call with."},
      {"RaiseOfNoPot", Raise("0", "50", "400"), "Pot Size: The pot size must be greater than zero."},
      {"RaiseAfterANegativeCall", Raise("150", "-1", "400"),
       "Call Amount: The amount you must call cannot be a negative number."},
      {"ShoveOfNothing", Raise("150", "50", "0"),
       "Pot Size: The amount your opponent must call must be greater than zero."},
      {"ShoveOfLessThanNothing", Raise("150", "50", "-400"),
       "Pot Size: The amount your opponent must call must be greater than zero."},
      {"RaiseOfAPotWithLetters", Raise("150x", "50", "400"), "Pot Size: The pot size contains non-numeric characters"},
      {"RaiseAfterACallWithLetters", Raise("150", "50x", "400"),
       "Call Size: The call size contains illegal characters"},
      {"ShoveWithLetters", Raise("150", "50", "400x"),
       "Shove Size: The amount your opponent must call when you shove contains illegal characters."},

      {"EquityWithoutRange", {"equity", "--range", ""}, "Select Range: Please select a range for your opponent."},
      {"EquityAgainstNoHands",
       {"equity", "--range", "Nothing"},
       "Empty Range: Your opponent's range is empty. Please select another range."},

      {"SumWithBlanks", Call("=1 + 2", "1"), kBadSum},
      {"SumWithDollars", Call("150", "=$5"), kBadSum},
      {"Product", Raise("150", "50", "=2*200"), kBadSum},
      {"FirstOfSeveralBadSums", Raise("=a", "=b", "=c"), kBadSum},
      {"SumThatComesToTooLittle", Call("150", "=5-5"),
       "Call Size Error: The amount to call must be greater than zero."},
  };
}

INSTANTIATE_TEST_SUITE_P(Companion, Refusal, testing::ValuesIn(Refusals()),
                         [](const auto& entry) { return std::string(entry.param.rule); });

// ---- amounts

struct AmountCase {
  const char* rule;
  const char* text;
  double value;
};

class Amount : public testing::TestWithParam<AmountCase> {};

TEST_P(Amount, IsTakenAsItsBoxTakesIt) {
  const CompanionProgram program;
  const char* const text = GetParam().text;
  const Outcome outcome = program.Run(With(Raise(text, text, text), {"--format", "json"}));
  ASSERT_EQ(outcome.Status, kDone) << outcome.Errors;
  const Json object = Json::parse(outcome.Output);
  for (const char* amount : {"pot", "call", "shove"})
    EXPECT_EQ(object[amount].get<double>(), GetParam().value) << amount;
}

constexpr auto kAmounts = std::to_array<AmountCase>({
    {"WholeNumber", "150", 150},
    {"Fraction", "12.5", 12.5},
    {"Dollars", "$35", 35},
    {"Sum", "=735+220-178", 777},
    {"SumOfFractions", "=.5+.5", 1},
    {"SumWithASignInFront", "=+5", 5},
    {"SumThatEndsInASign", "=5+", 5},
    {"CommaEndsTheNumber", "1,000", 1},
    {"Exponent", "1e3", 1000},
    {"Blanks", " 7 ", 7},
});

INSTANTIATE_TEST_SUITE_P(Companion, Amount, testing::ValuesIn(kAmounts),
                         [](const auto& entry) { return std::string(entry.param.rule); });

struct WarningCase {
  const char* rule;
  Arguments arguments;
  int status;
  const char* errors;
};

class Warning : public testing::TestWithParam<WarningCase> {};

TEST_P(Warning, IsGivenOfAnAmountThatACommaCutsShort) {
  const CompanionProgram program;
  const Outcome outcome = program.Run(GetParam().arguments);
  EXPECT_EQ(outcome.Status, GetParam().status);
  EXPECT_EQ(outcome.Errors, GetParam().errors);
  EXPECT_EQ(outcome.Output.empty(), GetParam().status != kDone);
}

std::vector<WarningCase> Warnings() {
  return {
      {"OfThousands", Call("1,000", "0.5"), kDone, "Warning: --pot 1,000 counts as 1; a comma ends a number.\n"},
      {"OfADecimalComma", Call("150", "12,5"), kDone, "Warning: --call 12,5 counts as 12; a comma ends a number.\n"},
      {"OfCurrency", Raise("150", "50", "$1,200.50"), kDone,
       "Warning: --shove $1,200.50 counts as 1; a comma ends a number.\n"},
      {"OfAllThree", Raise("1,000", "1,000", "1,000"), kDone,
       "Warning: --pot 1,000 counts as 1; a comma ends a number.\n"
       "Warning: --call 1,000 counts as 1; a comma ends a number.\n"
       "Warning: --shove 1,000 counts as 1; a comma ends a number.\n"},
      {"BeforeTheRefusalThatItExplains", Call("1,000", "50"), kRefused,
       "Warning: --pot 1,000 counts as 1; a comma ends a number.\n"
       "Pot Size Error: The pot size must be greater than the amount you have to call.\n"},
      {"NotOfACommaThatTakesNothingAway", Raise("150", "0,0", "400"), kDone, ""},
      {"NotOfWhatIsNoNumber", Call("1,000x", "0.5"), kRefused,
       "Pot Size Error: The pot size contains non-numeric characters\n"},
      {"NotOfASum", Call("=1000+500", "50"), kDone, ""},
  };
}

INSTANTIATE_TEST_SUITE_P(Companion, Warning, testing::ValuesIn(Warnings()),
                         [](const auto& entry) { return std::string(entry.param.rule); });

TEST(Amounts, GoToTheirOwnPlaces) {
  const CompanionProgram program;
  const Outcome outcome = program.Run(With(Raise("=100+50", "$25", "=400"), {"--format", "json"}));
  ASSERT_EQ(outcome.Status, kDone) << outcome.Errors;
  const Json object = Json::parse(outcome.Output);
  EXPECT_EQ(object["pot"], 150);
  EXPECT_EQ(object["call"], 25);
  EXPECT_EQ(object["shove"], 400);
}

TEST(Amounts, OfNoCallBeforeAShoveAreZero) {
  const CompanionProgram program;
  const Outcome outcome = program.Run(With(Raise("150", "", "400"), {"--format", "json"}));
  ASSERT_EQ(outcome.Status, kDone) << outcome.Errors;
  EXPECT_EQ(Json::parse(outcome.Output)["call"], 0);
}

TEST(Amounts, BelowZeroMayFollowTheirOptionOrStickToIt) {
  const CompanionProgram program;
  const Arguments apart = {"call", "--pot", "150", "--call", "-5", "--range", "Tight"};
  const Arguments joined = {"call", "--pot=150", "--call=-5", "--range=Tight"};
  for (const Arguments& arguments : {apart, joined}) {
    const Outcome outcome = program.Run(arguments);
    EXPECT_EQ(outcome.Status, kRefused);
    EXPECT_EQ(outcome.Errors, "Call Size Error: The amount to call must be greater than zero.\n");
  }
}

struct OddRunCase {
  const char* rule;
  Arguments arguments;
};

class OddRun : public testing::TestWithParam<OddRunCase> {};

TEST_P(OddRun, IsPrintedInEveryFormat) {
  const CompanionProgram program;
  program.Files().Write("Aces.txt", TextWith("AA"));
  std::string trace = TextWith("AA");
  program.Files().Write("Trace.txt", trace.replace(trace.find("(1)"), 3, "(5e-324)"));
  for (const OutputFormatRow& row : kAnalysisFormats) {
    const Outcome outcome = program.Run(With(GetParam().arguments, {"--format", row.Name}), {.ShowColors = true});
    EXPECT_EQ(outcome.Status, kDone) << row.Name;
    EXPECT_EQ(outcome.Errors, "") << row.Name;
    EXPECT_NE(outcome.Output, "") << row.Name;
  }
}

std::vector<OddRunCase> OddRuns() {
  return {
      {"ValuesBeyondThirtyTwoBits", Call("4e9", "3e9")},
      {"BestValueOfZero", Raise("100", "100", "50", "Aces", "Aces")},
      {"EquitiesAllAlike", {"equity", "--range", "Trace"}},
      {"AllHandsTheSameValue", Raise("3", "", "9", "Loose", "Nothing")},
  };
}

INSTANTIATE_TEST_SUITE_P(Companion, OddRun, testing::ValuesIn(OddRuns()),
                         [](const auto& entry) { return std::string(entry.param.rule); });

// ---- names of ranges

class RangeName : public testing::TestWithParam<const char*> {};

TEST_P(RangeName, IsTakenAsItStands) {
  const std::string name = GetParam();
  const TemporaryProgram program;
  program.Write(name + ".txt", TextWith("AA"));
  const Outcome summary = RunIn(program.Folder().Path, {"summary", "--range", name});
  EXPECT_EQ(summary.Status, kDone) << summary.Errors;
  EXPECT_EQ(summary.Output, "AA\n");
  const Outcome equity = RunIn(program.Folder().Path, {"equity", "--range", name, "--format", "json"});
  ASSERT_EQ(equity.Status, kDone) << equity.Errors;
  EXPECT_EQ(Json::parse(equity.Output)["range"], name);
}

INSTANTIATE_TEST_SUITE_P(Companion, RangeName,
                         testing::Values("Aces", "-", "-5", "-tight", "--range", "--", "[Aces, Kings]", "{A}", "a=b",
                                         "\"quoted\"", "'single'", "100% %s", "two  blanks", " blank in front",
                                         "Überfall ½", "call", "#1", "x:y", "100,000"));

// ---- wrong usage

struct UsageCase {
  const char* rule;
  Arguments arguments;
  const char* complaint;
};

class WrongUsage : public testing::TestWithParam<UsageCase> {};

TEST_P(WrongUsage, IsToldWithItsStatus) {
  const CompanionProgram program;
  const Outcome outcome = program.Run(GetParam().arguments);
  EXPECT_EQ(outcome.Status, kWrongUsage);
  EXPECT_EQ(outcome.Output, "");
  EXPECT_THAT(outcome.Errors, HasSubstr(GetParam().complaint));
  EXPECT_THAT(outcome.Errors, HasSubstr("--help"));
}

std::vector<UsageCase> WrongUsages() {
  return {
      {"NoCommand", {}, "Say what to do: call, raise, equity, summary, "},
      {"UnknownCommand", {"fold"}, "fold"},
      {"HelpOnAnUnknownCommand", {"help", "fold"}, "There is no command \"fold\"; there are call, raise, "},
      {"TwoCommands", With(kEquity, {"ranges"}), "ranges"},
      {"UnknownOption", With(kEquity, {"--quick"}), "--quick"},
      {"OptionBeforeTheCommand", {"--range", "Loose", "equity"}, "--range"},
      {"StrayWord", With(kEquity, {"Tight"}), "Tight"},
      {"CallWithoutPot", {"call", "--call", "50", "--range", "Tight"}, "--pot is required"},
      {"CallWithoutCall", {"call", "--pot", "150", "--range", "Tight"}, "--call is required"},
      {"CallWithoutRange", {"call", "--pot", "150", "--call", "50"}, "--range or --hands is required"},
      {"RaiseWithoutShove",
       {"raise", "--pot", "150", "--call", "50", "--range", "Loose", "--calling-range", "Tight"},
       "--shove is required"},
      {"RaiseWithoutCallingRange",
       {"raise", "--pot", "150", "--call", "50", "--shove", "400", "--range", "Loose"},
       "--calling-range or --calling-hands is required"},
      {"EquityWithoutRange", {"equity"}, "--range or --hands is required"},
      {"SummaryWithoutRange", {"summary"}, "--range or --hands is required"},
      {"EquityTakesNoPot", With(kEquity, {"--pot", "150"}), "--pot"},
      {"CallTakesNoShove", With(kCall, {"--shove", "400"}), "--shove"},
      {"SummaryTakesNoFormat", {"summary", "--range", "Tight", "--format", "csv"}, "--format"},
      {"RangesTakeNoRange", {"ranges", "--range", "Tight"}, "--range"},
      {"RangeWithoutItsName", {"equity", "--range"}, "--range"},
      {"RangeGivenTwice", With(kEquity, {"--range", "Tight"}), "--range"},
      {"UnknownFormat", With(kEquity, {"--format", "xml"}), "--format: xml not in {plain,2+2,table,csv,json}"},
      {"FormatInCapitals", With(kEquity, {"--format", "JSON"}), "--format: JSON not in"},
      {"FormatWithoutItsName", With(kEquity, {"--format"}), "--format"},
      {"HandThatIsNone", With(kEquity, {"--format", "2+2", "--hand", "AAs"}), "\"AAs\" is no starting hand"},
      {"HandWithRanksTurned", With(kEquity, {"--format", "2+2", "--hand", "KAs"}), "\"KAs\" is no starting hand"},
      {"HandInSmallLetters", With(kEquity, {"--format", "2+2", "--hand", "aa"}), "\"aa\" is no starting hand"},
      {"HandWithoutSuitedness", With(kEquity, {"--format", "2+2", "--hand", "AK"}), "\"AK\" is no starting hand"},
      {"HandWithoutLabel", With(kEquity, {"--format", "2+2", "--hand", ""}), "\"\" is no starting hand"},
      {"SecondHandThatIsNone", With(kEquity, {"--format", "2+2", "--hand", "AA", "--hand", "None"}),
       "\"None\" is no starting hand"},
      {"SecondHandAfterOneOptionThatIsNone", With(kEquity, {"--format", "2+2", "--hand", "AA", "None"}),
       "\"None\" is no starting hand"},
      {"HandInThePlainReport", With(kEquity, {"--hand", "AA"}), "--hand goes with --format 2+2 only"},
      {"HandInJson", With(kEquity, {"--format", "json", "--hand", "AA"}), "--hand goes with --format 2+2 only"},
  };
}

INSTANTIATE_TEST_SUITE_P(Companion, WrongUsage, testing::ValuesIn(WrongUsages()),
                         [](const auto& entry) { return std::string(entry.param.rule); });

// ---- on a terminal

constexpr std::string_view kClearLine = "\r\x1b[K";

constexpr std::chrono::milliseconds kLong(501);

TEST_P(EachCommand, ShowsTheProgressOfALongRun) {
  const CompanionProgram program;
  const Outcome quiet = program.Run(*GetParam().arguments, {}, kLong);
  const Outcome outcome = program.Run(*GetParam().arguments, {.ShowProgress = true}, kLong);
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Output, quiet.Output);
  EXPECT_EQ(quiet.Errors, "");

  const auto frames = Split(outcome.Errors, "\r[");
  ASSERT_THAT(frames, SizeIs(170));  // nothing before the first of the 169
  EXPECT_EQ(frames[0], "");
  EXPECT_EQ(frames[1], std::string(40, ' ') + "] 1%");
  EXPECT_EQ(frames[85], std::string(20, '#') + std::string(20, ' ') + "] 50%");
  EXPECT_EQ(frames[169], std::string(40, '#') + "] 100%" + std::string(kClearLine));
}

// Each class takes 5 milliseconds; after 100 of them it is just half a second.
TEST_P(EachCommand, ShowsProgressAfterHalfASecond) {
  const CompanionProgram program;
  const std::chrono::milliseconds step(5);
  const auto frames = Split(program.Run(*GetParam().arguments, {.ShowProgress = true}, step).Errors, "\r[");
  ASSERT_THAT(frames, SizeIs(1 + 69));
  EXPECT_THAT(frames[1], EndsWith("] 60%"));
}

TEST_P(EachCommand, ShowsNoProgressOfAShortRun) {
  const CompanionProgram program;
  const std::chrono::milliseconds step(2);
  EXPECT_EQ(program.Run(*GetParam().arguments, {.ShowProgress = true}, step).Errors, "");
}

// At AKs, the second class, the negative weights cancel out to nothing, and a share of nothing is a division by zero.
TEST(Progress, IsClearedBeforeTheTextOfAFailureHalfWay) {
  const TemporaryProgram program;
  std::string now = TextWith("AA");
  std::string calls = now;
  now.replace(now.find("KK (0)"), 6, "KK (-1)");
  calls.replace(calls.find("KK (0)"), 6, "KK (-2)");
  program.Write("Now.txt", now);
  program.Write("Calls.txt", calls);
  const Outcome outcome =
      RunIn(program.Folder().Path, Raise("150", "50", "400", "Now", "Calls"), {.ShowProgress = true}, kLong);
  EXPECT_EQ(outcome.Status, kFailed);
  EXPECT_EQ(outcome.Errors, "\r[" + std::string(40, ' ') + "] 1%" + std::string(kClearLine) +
                                "Run-time error '11': Division by zero\n");
}

TEST_P(EachCommand, ShowsThePlainReportBelowTheGridInColors) {
  const CompanionProgram program;
  const Arguments& arguments = *GetParam().arguments;
  const std::string report = program.Run(arguments).Output;
  const Outcome outcome = program.Run(arguments, {.ShowColors = true});
  EXPECT_EQ(outcome.Status, kDone);
  EXPECT_EQ(outcome.Errors, "");
  ASSERT_THAT(outcome.Output, EndsWith("\x1b[0m\n\n" + report));

  const std::string grid = outcome.Output.substr(0, outcome.Output.size() - report.size());
  EXPECT_THAT(Split(grid, "\n"), SizeIs(15));  // 13 rows, a blank line, and nothing behind the last line end
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

TEST(CompanionOnATerminal, GetsNoGridInOtherFormatsThanThePlainOne) {
  const CompanionProgram program;
  for (const char* format : {"2+2", "table", "json", "csv"}) {
    const Outcome outcome = program.Run(With(kEquity, {"--format", format}), {.ShowColors = true});
    EXPECT_EQ(outcome.Status, kDone) << format;
    EXPECT_THAT(outcome.Output, Not(HasSubstr("\x1b"))) << format;
  }
}

TEST(CompanionOnATerminal, GetsNoGridAndNoProgressWithAListOrASummary) {
  const CompanionProgram program;
  for (const Arguments& arguments : {Arguments{"ranges"}, Arguments{"summary", "--range", "Tight"}}) {
    const Outcome outcome = program.Run(arguments, {.ShowProgress = true, .ShowColors = true}, kLong);
    EXPECT_EQ(outcome.Status, kDone);
    EXPECT_THAT(outcome.Output, Not(HasSubstr("\x1b")));
    EXPECT_EQ(outcome.Errors, "");
  }
}

}  // namespace
}  // namespace quillon
