// What the shells offer after the start of a command line, asked of the shells themselves, and the manual page as man
// formats it.

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "testing/temporary_folder.h"
#include "tests/program_run.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Matcher;
using testing::Not;
using testing::UnorderedElementsAre;

using Words = std::vector<std::string>;

// How to ask a shell: the script reads the completion, its first argument, and completes the last of the others.
struct Shell {
  const char* Name;
  const char* Script;
};

constexpr Shell kBash = {"bash", R"(
source "$1"
shift
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
_quillon_cli
printf '%s\n' "${COMPREPLY[@]}")"};

// compadd works only in an interactive line.
constexpr Shell kZsh = {"zsh", R"(
compdef() { }
compadd() { shift; print -l -- ${(M)@:#$PREFIX*} }
source "$1"
shift
words=("$@") CURRENT=$# PREFIX=$@[-1]
_quillon_cli)"};

constexpr Shell kFish = {"fish", R"(
source $argv[1]
complete -C (string join ' ' -- $argv[2..-1]) | string replace -r '\t.*' '')"};

struct Row {
  const char* Rule;
  Words Typed;  // after the program's name
  Matcher<const Words&> Offered;
};

std::vector<Row> Rows() {
  return {
      {"commands come first", {""}, IsSupersetOf({"call", "limits", "ranges", "help"})},
      {"what is for packages stays hidden", {""}, Not(Contains("generate"))},
      {"the start of a command", {"ba"}, UnorderedElementsAre("balance", "batch")},
      {"a command's own", {"limits", ""}, UnorderedElementsAre("call", "raise")},
      {"commands after help", {"help", "ba"}, UnorderedElementsAre("balance", "batch")},
      {"options", {"call", "--f"}, UnorderedElementsAre("--format", "--folder")},
      {"options of an inner command",
       {"sweep", "raise", "--calling-"},
       UnorderedElementsAre("--calling-range", "--calling-hands")},
      {"formats", {"call", "--format", "p"}, ElementsAre("plain")},
      {"formats of an inner command", {"limits", "call", "--format", "h"}, ElementsAre("html")},
      {"ranges", {"call", "--range", "B"}, UnorderedElementsAre("Button Shove", "Big Blind Call")},
      {"a range after another option", {"raise", "--pot", "5", "--calling-range", "Ti"}, ElementsAre("Tight Open")},
      {"a range that is saved over", {"save", "Ev"}, ElementsAre("Everything")},
      {"hands", {"call", "--hand", "AK"}, UnorderedElementsAre("AKs", "AKo")},
      {"more hands", {"call", "--hand", "AKs", "72"}, UnorderedElementsAre("72s", "72o")},
      {"an amount is for the player to type", {"call", "--pot", ""}, Not(Contains("Everything"))},
  };
}

// Offers, with the quoting that fish and readline add on insertion.
Words OffersIn(const std::string& output) {
  Words offers;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) {
    std::erase(line, '\\');
    if (!line.empty()) offers.push_back(line);
  }
  return offers;
}

// A folder with the companion, its examples, and what it generates.
class GeneratedTexts : public testing::Test {
 protected:
  GeneratedTexts() {
    fs::copy_file(QUILLON_CLI_PROGRAM, Program());
    fs::copy(QUILLON_EXAMPLES_FOLDER "/Ranges", folder_.Path() / "Ranges");
  }

  [[nodiscard]] fs::path Program() const { return folder_.Path() / "quillon-cli"; }

  /// A file with the output of `quillon-cli generate`.
  [[nodiscard]] fs::path Generated(const Words& words) const {
    ProgramRun run;
    run.Program = Program();
    run.Arguments = {"generate"};
    run.Arguments.insert(run.Arguments.end(), words.begin(), words.end());
    const ProgramOutcome outcome = RunProgram(run);
    EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
    fs::path file = folder_.Path() / words.front();
    std::ofstream(file, std::ios::binary) << outcome.Output;
    return file;
  }

  [[nodiscard]] ProgramOutcome RunHere(const Words& command) const {
    ProgramRun run;
    run.Program = "/usr/bin/env";
    run.Arguments = command;
    run.CurrentFolder = folder_.Path();
    run.Environment = {{"PATH", folder_.Path().string() + ":/usr/bin:/bin"},
                       {"HOME", folder_.Path().string()},
                       {"XDG_DATA_HOME", ""},
                       {"XDG_CONFIG_HOME", ""}};
    return RunProgram(run);
  }

 private:
  TemporaryFolder folder_{"quillon words ½"};
};

class ShellCompletion : public GeneratedTexts, public testing::WithParamInterface<Shell> {};

TEST_P(ShellCompletion, OffersWhatMayComeNext) {
  const fs::path script = Generated({GetParam().Name});
  for (const Row& row : Rows()) {
    Words command = {GetParam().Name, "-c", GetParam().Script};
    if (std::string(GetParam().Name) != "fish") command.emplace_back("-");
    command.insert(command.end(), {script.string(), "quillon-cli"});
    command.insert(command.end(), row.Typed.begin(), row.Typed.end());
    const ProgramOutcome outcome = RunHere(command);
    EXPECT_EQ(outcome.Errors, "") << row.Rule;
    EXPECT_THAT(OffersIn(outcome.Output), row.Offered) << row.Rule;
  }
}

INSTANTIATE_TEST_SUITE_P(In, ShellCompletion, testing::Values(kBash, kZsh, kFish),
                         [](const auto& shell) { return std::string(shell.param.Name); });

TEST_F(GeneratedTexts, AreAManualPageThatManReadsWithoutAWarning) {
  const fs::path page = Generated({"man", "--guide", "/usr/share/quillon/Guide/user-guide.html"});
  const ProgramOutcome outcome =
      RunHere({"groff", "-man", "-Tascii", "-ww", "-rF0", "-rHY=0", "-P-cbou", page.string()});
  EXPECT_EQ(outcome.Status, 0);
  EXPECT_EQ(outcome.Errors, "");
  EXPECT_THAT(outcome.Output, testing::HasSubstr("--calling-range NAME\n"));
  EXPECT_THAT(outcome.Output, testing::HasSubstr("\n       3      the input was refused"));
  std::ostringstream source;
  source << std::ifstream(page).rdbuf();
  EXPECT_THAT(source.str(), EndsWith("\nThe user guide: file:///usr/share/quillon/Guide/user\\-guide.html\n"));
}

TEST_F(GeneratedTexts, AreRefusedWhereNoSuchOneIs) {
  EXPECT_EQ(RunHere({"quillon-cli", "generate", "powershell"}).Status, 2);
}

}  // namespace
}  // namespace quillon
