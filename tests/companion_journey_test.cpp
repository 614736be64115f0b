// Whole runs of the companion as its user sees them: the real program, put into a folder with the example ranges as
// ./run does it, started from somewhere else.

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "results/web_addresses.h"
#include "support/files.h"
#include "testing/companion_program.h"
#include "testing/folder_state.h"
#include "testing/golden_file.h"
#include "testing/split_text.h"
#include "testing/temporary_folder.h"
#include "tests/program_run.h"
#include "tools/commands.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const Arguments kCall = {"call", "--pot", "110", "--call", "90", "--range", "Button Shove"};
const Arguments kRaise = {"raise",        "--pot",           "150",           "--call",
                          "50",           "--shove",         "400",           "--range",
                          "Button Shove", "--calling-range", "Big Blind Call"};
const Arguments kEquity = {"equity", "--range", "Tight Open"};

// A user's home with the program in one folder, started from another.
class Household {
 public:
  Household() {
    fs::create_directories(ProgramFolder());
    fs::create_directories(Elsewhere());
    fs::copy_file(QUILLON_CLI_PROGRAM, Program());
    fs::copy(QUILLON_EXAMPLES_FOLDER "/Ranges", RangeFolder());
  }
  [[nodiscard]] fs::path ProgramFolder() const { return home_ / "Quillon"; }
  [[nodiscard]] fs::path RangeFolder() const { return ProgramFolder() / "Ranges"; }
  [[nodiscard]] fs::path Program() const { return ProgramFolder() / "quillon-cli"; }
  [[nodiscard]] fs::path Elsewhere() const { return home_ / "Elsewhere"; }

  /// A run of the program with every place it might write to inside the home.
  [[nodiscard]] ProgramRun Prepare(const Arguments& arguments) const {
    ProgramRun run;
    run.Program = Program();
    run.Arguments = arguments;
    run.CurrentFolder = Elsewhere();
    run.Environment = {{"HOME", home_.string()},
                       {"TMPDIR", home_.string()},
                       {"XDG_CONFIG_HOME", home_.string()},
                       {"XDG_CACHE_HOME", home_.string()},
                       {"XDG_DATA_HOME", home_.string()}};
    return run;
  }
  [[nodiscard]] ProgramOutcome Run(const Arguments& arguments) const { return RunProgram(Prepare(arguments)); }

  [[nodiscard]] auto Inventory() const { return FolderState(home_); }

 private:
  TemporaryFolder temporary_{"quillon journey ½"};
  fs::path home_ = temporary_.Path();
};

// ---- golden reports

// The files hold the web host that is built in unless another one is chosen.
std::string WithUsualAddress(std::string text) {
  const std::size_t at = text.find(HomeAddress());
  if (at != std::string::npos) text.replace(at, HomeAddress().size(), "http://www.quillon.example/quillon/");
  return text;
}

TEST(CompanionJourney, PrintsTheGoldenReportsToTheLastCharacter) {
  struct Case {
    const Arguments& command;
    const char* format;
    const char* file;
  };
  const Household household;
  for (const Case& c : {Case{kCall, "plain", "call_plain.txt"}, Case{kCall, "2+2", "call_forum.txt"},
                        Case{kRaise, "plain", "raise_plain.txt"}, Case{kRaise, "2+2", "raise_forum.txt"},
                        Case{kEquity, "plain", "equity_plain.txt"}, Case{kEquity, "2+2", "equity_forum.txt"}}) {
    const ProgramOutcome outcome = household.Run(With(c.command, {"--format", c.format}));
    EXPECT_EQ(outcome.Status, 0) << c.file;
    EXPECT_EQ(outcome.Errors, "") << c.file;
    ExpectGolden(WithUsualAddress(outcome.Output), fs::path(QUILLON_GOLDEN_FOLDER) / c.file);
  }
}

// ---- examples

// The words of a command line; double quotes keep spaces together.
Arguments Words(const std::string& line) {
  Arguments words;
  bool quoted = false;
  bool inWord = false;
  for (const char c : line) {
    if (c == '"') quoted = !quoted;
    if (c == '"' || (c == ' ' && !quoted)) {
      inWord = inWord && c == '"';
      continue;
    }
    if (!inWord) words.emplace_back();
    inWord = true;
    words.back() += c;
  }
  return words;
}

TEST(CompanionJourney, DoesWhatTheHelpOfEachCommandGivesAsItsExample) {
  for (const Command& command : kCommands) {
    const Household household;
    std::ofstream(household.Elsewhere() / "situations.jsonl") << R"({"mode":"equity","range":"Tight Open"})";
    const ProgramOutcome outcome = household.Run(With({command.Name}, Words(command.Example)));
    EXPECT_EQ(outcome.Status, 0) << command.Name << ": " << outcome.Errors;
    EXPECT_EQ(outcome.Errors, "") << command.Name;
  }
}

// A command line in the guide, and the output that it shows.
struct GuideSample {
  std::string Command;
  std::vector<std::string> Shown{};
};

std::vector<GuideSample> SamplesOfTheGuide() {
  constexpr std::string_view kIndentation = "    ";
  constexpr std::string_view kPrompt = "    $ quillon-cli ";
  std::vector<GuideSample> samples;
  bool inSample = false;
  for (const std::string& line : Lines(ReadAllBytes(QUILLON_GUIDE))) {
    inSample = line.starts_with(kPrompt) || (inSample && line.starts_with(kIndentation));
    if (line.starts_with(kPrompt))
      samples.push_back({line.substr(kPrompt.size(), line.find(" > ") - kPrompt.size())});
    else if (inSample)
      samples.back().Shown.push_back(line.substr(kIndentation.size()));
  }
  return samples;
}

TEST(CompanionJourney, SaysWhatTheGuideShows) {
  const Household household;
  std::ofstream situations(household.Elsewhere() / "situations.jsonl");
  for (const std::string& line : Lines(ReadAllBytes(QUILLON_GUIDE))) {
    if (line.starts_with("    {\"id\": ")) situations << line << '\n';
  }
  situations.close();
  const std::vector<GuideSample> samples = SamplesOfTheGuide();
  EXPECT_GE(samples.size(), 8U);
  for (const GuideSample& sample : samples) {
    const ProgramOutcome outcome = household.Run(Words(sample.Command));
    EXPECT_FALSE(outcome.Output.empty() && outcome.Errors.empty()) << sample.Command;
    const std::vector<std::string> said = Lines(outcome.Output + outcome.Errors);
    auto from = said.begin();
    for (const std::string& shown : sample.Shown) {
      const auto found = std::find(from, said.end(), shown);
      ASSERT_NE(found, said.end()) << sample.Command << "\ndoes not say, or not after the line before:\n" << shown;
      from = found + 1;
    }
  }
}

// ---- where ranges are looked for

TEST(CompanionJourney, LooksBesideTheProgramThatALinkLeadsTo) {
  const Household household;
  ProgramRun run = household.Prepare({"summary", "--range", "Everything"});
  run.Program = household.Elsewhere() / "quillon";
  fs::create_symlink(household.Program(), run.Program);
  const ProgramOutcome outcome = RunProgram(run);
  EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
  EXPECT_EQ(outcome.Output, "[Everything]\n");
}

TEST(CompanionJourney, LooksInAFolderNamedFromTheCurrentOne) {
  const Household household;
  fs::create_directory(household.Elsewhere() / "Mine");
  fs::rename(household.RangeFolder(), household.Elsewhere() / "Mine" / "Ranges");
  EXPECT_EQ(household.Run({"summary", "--range", "Everything"}).Status, 1);  // its own folder is gone
  const ProgramOutcome outcome = household.Run({"summary", "--range", "Everything", "--folder", "Mine"});
  EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
  EXPECT_EQ(outcome.Output, "[Everything]\n");
}

// ---- installed

// A household with the program installed as a package, and its user's data in a separate folder.
class InstalledHousehold : public Household {
 public:
  InstalledHousehold() { std::ofstream(ProgramFolder() / "installed") << ".\n"; }

  [[nodiscard]] ProgramOutcome RunAs(const fs::path& dataHome, const Arguments& arguments) const {
    ProgramRun run = Prepare(arguments);
    run.Environment["XDG_DATA_HOME"] = dataHome.string();
    return RunProgram(run);
  }
};

TEST(CompanionJourney, InstalledKeepsTheRangesOfEachUserApart) {
  const InstalledHousehold household;
  const fs::path ann = household.Elsewhere() / "ann";
  const fs::path bob = household.Elsewhere() / "bob";
  const std::string examples = household.RunAs(bob, {"ranges"}).Output;
  EXPECT_THAT(examples, HasSubstr("Tight Open\t"));

  const auto beside = FolderState(household.ProgramFolder());
  EXPECT_EQ(household.RunAs(ann, {"folder"}).Output, (ann / "Quillon").string() + "\n");
  EXPECT_EQ(household.RunAs(ann, {"save", "Mine", "--hands", "AA"}).Status, 0);
  EXPECT_THAT(household.RunAs(ann, {"ranges"}).Output, HasSubstr("\nMine\t"));
  EXPECT_EQ(household.RunAs(bob, {"ranges"}).Output, examples);
  EXPECT_TRUE(FolderState(household.ProgramFolder()) == beside);
}

TEST(CompanionJourney, InstalledFindsTheRangesThatWereCopiedFromAPortableFolder) {
  const Household portable;
  ASSERT_EQ(portable.Run({"save", "Mine", "--hands", "AA"}).Status, 0);
  const InstalledHousehold household;
  fs::create_directory(household.Elsewhere() / "Quillon");
  fs::copy(portable.RangeFolder(), household.Elsewhere() / "Quillon" / "Ranges");
  EXPECT_EQ(household.RunAs(household.Elsewhere(), {"ranges"}).Output, portable.Run({"ranges"}).Output);
}

TEST(CompanionJourney, InstalledNeedsAFolderOnlyForRangesWithNames) {
  const InstalledHousehold household;
  const fs::path nowhere = household.Elsewhere() / "file" / "data";
  std::ofstream(household.Elsewhere() / "file") << "x";
  const ProgramOutcome typed = household.RunAs(nowhere, {"equity", "--hands", "any"});
  EXPECT_EQ(typed.Status, 0) << typed.Errors;
  for (const Arguments& arguments : {Arguments{"folder"}, {"ranges"}, kEquity, {"save", "Mine", "--hands", "AA"}}) {
    const ProgramOutcome outcome = household.RunAs(nowhere, arguments);
    EXPECT_EQ(outcome.Status, 1) << arguments[0];
    EXPECT_EQ(outcome.Errors, "Run-time error '76': Path not found (" + nowhere.string() + ": Not a directory)\n");
  }
}

// ---- exit statuses

struct StatusCase {
  const char* rule;
  Arguments arguments;
  int status;
  const char* errors;  // start of standard error
};

std::vector<StatusCase> Statuses() {
  return {
      {"UnknownRange", {"equity", "--range", "Everybody"}, 3, "There is no range \"Everybody\" in "},
      {"MissingFolder", {"ranges", "--folder", "/nowhere"}, 1, "Run-time error '76': Path not found (/nowhere/Ranges"},
      {"SumTooLarge",
       {"call", "--pot", "=" + std::string(400, '9') + "+" + std::string(400, '9'), "--call", "1", "--range",
        "Everything"},
       1,
       "Run-time error '6': Overflow"},
      {"UnknownOption", With(kCall, {"--quick"}), 2, "The following argument was not expected: --quick"},
      {"CallOfNothing",
       {"call", "--pot", "150", "--call", "-5", "--range", "Everything"},
       3,
       "Call Size Error: The amount to call must be greater than zero.\n"},
  };
}

TEST(CompanionJourney, EndsWithTheStatusThatGoesWithItsMessage) {
  const Household household;
  for (const StatusCase& c : Statuses()) {
    const ProgramOutcome outcome = household.Run(c.arguments);
    EXPECT_EQ(outcome.Status, c.status) << c.rule;
    EXPECT_EQ(outcome.Output, "") << c.rule;
    EXPECT_THAT(outcome.Errors, StartsWith(c.errors)) << c.rule;
    EXPECT_THAT(outcome.Errors, EndsWith("\n")) << c.rule;
  }
}

// ---- nothing is written

TEST(CompanionJourney, LeavesEveryFileAlone) {
  const Household household;
  const auto before = household.Inventory();
  ASSERT_GE(before.size(), 8U);  // the two folders, the program, the range folder and its files
  for (const Arguments* const command : {&kCall, &kRaise, &kEquity})
    EXPECT_EQ(household.Run(*command).Status, 0);
  for (const char* format : {"2+2", "table", "json", "csv"})
    EXPECT_EQ(household.Run(With(kEquity, {"--format", format})).Status, 0);
  EXPECT_EQ(household.Run({"summary", "--range", "Everything"}).Status, 0);
  EXPECT_EQ(household.Run({"ranges"}).Status, 0);
  EXPECT_EQ(household.Run({"--help"}).Status, 0);
  for (const StatusCase& failing : Statuses())
    EXPECT_EQ(household.Run(failing.arguments).Status, failing.status);
  EXPECT_TRUE(household.Inventory() == before);
}

// ---- streams that are not as usual

TEST(CompanionJourney, AnAnswerThatFindsTheDiskFullIsAFailure) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
  const Household household;
  for (const Arguments& arguments : {kCall, Arguments{"ranges"}, Arguments{"summary", "--range", "Everything"},
                                     Arguments{"--help"}, With(kRaise, {"--format", "json"})}) {
    ProgramRun run = household.Prepare(arguments);
    run.Output = StreamEnd::kFullDisk;
    const ProgramOutcome outcome = RunProgram(run);
    EXPECT_EQ(outcome.Status, 1) << arguments[0];
    EXPECT_EQ(outcome.Errors, "Run-time error '57': Device I/O error (standard output)\n") << arguments[0];
  }
}

TEST(CompanionJourney, AnAnswerNeedsStandardOutputAndNoStandardInput) {
  const Household household;
  ProgramRun run = household.Prepare(kCall);
  run.InputClosed = true;
  EXPECT_EQ(RunProgram(run).Output, household.Run(kCall).Output);
  run.Output = StreamEnd::kClosed;
  const ProgramOutcome outcome = RunProgram(run);
  EXPECT_EQ(outcome.Status, 1);
  EXPECT_THAT(outcome.Errors, HasSubstr("standard output"));
}

// A file that it opens must not take the stream's place.
TEST(CompanionJourney, FailsOverStandardInputThatIsNotThere) {
  const Household household;
  for (const Arguments& arguments : {Arguments{"batch"}, Arguments{"notation", "--hands", "-"}}) {
    ProgramRun run = household.Prepare(arguments);
    run.InputClosed = true;
    for (const StreamEnd end : {StreamEnd::kKept, StreamEnd::kClosed}) {
      run.Output = end;
      const ProgramOutcome outcome = RunProgram(run);
      EXPECT_EQ(outcome.Status, 1) << arguments.front();
      EXPECT_EQ(outcome.Output, "") << arguments.front();
      EXPECT_EQ(outcome.Errors, "Run-time error '57': Device I/O error (standard input: Bad file descriptor)\n");
    }
  }
}

TEST(CompanionJourney, KeepsItsStatusWithoutStandardError) {
  const Household household;
  for (const StatusCase& failing : Statuses()) {
    for (const StreamEnd end : {StreamEnd::kClosed, StreamEnd::kFullDisk}) {
      ProgramRun run = household.Prepare(failing.arguments);
      run.Errors = end;
      const ProgramOutcome outcome = RunProgram(run);
      EXPECT_EQ(outcome.Status, failing.status) << failing.rule;
      EXPECT_EQ(outcome.Output, "") << failing.rule;
    }
  }
}

// ---- on a terminal

constexpr std::string_view kAnyFrame = "\r[";
constexpr std::string_view kClearLine = "\r\x1b[K";
constexpr const char* kCellColor = "\x1b[48;2;";

// A run of more than half a second first shows its progress; here that is rare.
std::string WithoutProgress(const std::string& terminal) {
  if (!terminal.starts_with(kAnyFrame)) return terminal;
  const std::size_t end = terminal.rfind(kClearLine);
  return end == std::string::npos ? terminal : terminal.substr(end + kClearLine.size());
}

TEST(CompanionJourney, ShowsGridAndReportOnATerminalWithColors) {
  const Household household;
  ProgramRun run = household.Prepare(kCall);
  run.Output = StreamEnd::kTerminal;
  run.Errors = StreamEnd::kTerminal;
  run.Environment["COLORTERM"] = "truecolor";
  const ProgramOutcome outcome = RunProgram(run);
  EXPECT_EQ(outcome.Status, 0);
  EXPECT_THAT(WithoutProgress(outcome.Terminal), StartsWith(kCellColor));
  EXPECT_THAT(outcome.Terminal, EndsWith("\x1b[0m\n\n" + household.Run(kCall).Output));
}

TEST(CompanionJourney, LeavesNothingOnStandardErrorThatAloneIsATerminal) {
  const Household household;
  ProgramRun run = household.Prepare(kCall);
  run.Errors = StreamEnd::kTerminal;
  run.Environment["COLORTERM"] = "truecolor";
  const ProgramOutcome outcome = RunProgram(run);
  EXPECT_EQ(outcome.Status, 0);
  EXPECT_EQ(WithoutProgress(outcome.Terminal), "");
  EXPECT_EQ(outcome.Output, household.Run(kCall).Output);
}

TEST(CompanionJourney, ShowsNoGridOnATerminalThatPromisesNothingOrGetsNone) {
  const Household household;
  const std::string report = household.Run(kEquity).Output;
  for (const std::map<std::string, std::string>& environment :
       {std::map<std::string, std::string>{}, {{"COLORTERM", "truecolor"}, {"NO_COLOR", "1"}}}) {
    ProgramRun run = household.Prepare(kEquity);
    run.Output = StreamEnd::kTerminal;
    run.Environment.insert(environment.begin(), environment.end());
    EXPECT_EQ(RunProgram(run).Terminal, report);
  }
}

}  // namespace
}  // namespace quillon
