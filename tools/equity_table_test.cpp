// Runs the program equity-table as a user would and checks its output, files and status.

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <utility>

#include "hand/equity_rows.h"
#include "support/files.h"
#include "testing/temporary_folder.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

struct Outcome {
  int exitCode = -1;
  std::string output;  // standard output and standard error
};

Outcome RunProgram(const std::string& arguments) {
  Outcome outcome;
  const std::string command = std::string("\"") + EQUITY_TABLE_PROGRAM + "\" " + arguments + " 2>&1";
  // NOLINTNEXTLINE(cert-env33-c): the shell joins standard error to standard output, as a user's would
  std::FILE* const program = popen(command.c_str(), "r");
  if (program == nullptr) return outcome;
  std::array<char, 4096> buffer{};
  for (std::size_t size = 0; (size = std::fread(buffer.data(), 1, buffer.size(), program)) > 0;) {
    outcome.output.append(buffer.data(), size);
  }
  const int status = pclose(program);
  if (WIFEXITED(status)) outcome.exitCode = WEXITSTATUS(status);
  return outcome;
}

std::string Row(std::size_t i) {
  return std::string(kEquityPieces[i][0]) + std::string(kEquityPieces[i][1]) + '\n';
}

std::string Rows(std::size_t first, std::size_t last) {
  std::string rows;
  for (std::size_t i = first; i <= last; ++i)
    rows += Row(i);
  return rows;
}

class EquityTableProgram : public testing::Test {
 protected:
  [[nodiscard]] std::string Path(const std::string& name) const { return (folder_.Path() / name).string(); }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
  }

  [[nodiscard]] std::ptrdiff_t FileCount() const {
    return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(EquityTableProgram, PrintsTheRowsAskedFor) {
  const Outcome outcome = RunProgram("--rows 167-168");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.output, Rows(167, 168));
}

TEST_F(EquityTableProgram, WritesOneRowToAFileInsteadOfPrinting) {
  Write("rows.txt", "what stood here before");
  const Outcome outcome = RunProgram("--rows 13 --threads 1 --out \"" + Path("rows.txt") + "\"");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(ReadAllBytes(Path("rows.txt")), Row(13));
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(EquityTableProgram, JoinsPartsToRowsAndToTheSourceFile) {
  Write("upper.txt", Rows(0, 84));
  Write("lower.txt", Rows(85, 168));
  const std::string join = "--join \"" + Path("lower.txt") + "\" \"" + Path("upper.txt") + "\"";
  for (const auto& [format, expected] :
       {std::pair(std::string(), Rows(0, 168)),
        {" --format source", ReadAllBytes(QUILLON_SOURCE_DIR "/hand/equity_rows.cpp")}}) {
    const Outcome outcome = RunProgram(join + format);
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.output == expected) << format;
  }
}

TEST_F(EquityTableProgram, SaysWhichRowIsMissingFromAJoin) {
  Write("upper.txt", Rows(0, 84));
  const Outcome outcome = RunProgram("--join \"" + Path("upper.txt") + "\"");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output, "equity-table: no row of 87s\n");
}

TEST_F(EquityTableProgram, SaysWhichFileOfAJoinCannotBeRead) {
  const Outcome outcome = RunProgram("--join \"" + Path("nowhere.txt") + "\"");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output, "equity-table: " + Path("nowhere.txt") + " cannot be read or is empty\n");
}

TEST_F(EquityTableProgram, AJoinThatFailsLeavesTheOldFile) {
  Write("upper.txt", Rows(0, 84));
  Write("table.txt", "what stood here before");
  EXPECT_EQ(RunProgram("--join \"" + Path("upper.txt") + "\" --out \"" + Path("table.txt") + "\"").exitCode, 1);
  EXPECT_EQ(ReadAllBytes(Path("table.txt")), "what stood here before");
}

TEST_F(EquityTableProgram, AFileThatCannotBeWrittenFails) {
  Write("table.txt", Rows(0, 168));
  const Outcome outcome =
      RunProgram("--join \"" + Path("table.txt") + "\" --out \"" + Path("no such folder") + "/table.txt\"");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_NE(outcome.output.find("no such folder"), std::string::npos) << outcome.output;
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(EquityTableProgram, AFolderIsNotReplaced) {
  Write("table.txt", Rows(0, 168));
  fs::create_directory(Path("folder"));
  const Outcome outcome = RunProgram("--join \"" + Path("table.txt") + "\" --out \"" + Path("folder") + "\"");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output, "equity-table: " + Path("folder") + " is not a file\n");
  EXPECT_TRUE(fs::is_directory(Path("folder")));
}

TEST_F(EquityTableProgram, AFullDiskBehindStandardOutputFails) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
  Write("table.txt", Rows(0, 168));
  const Outcome outcome = RunProgram("--join \"" + Path("table.txt") + "\" 2>&1 >/dev/full");
  EXPECT_EQ(outcome.exitCode, 1);
}

TEST_F(EquityTableProgram, ExplainsItself) {
  const Outcome outcome = RunProgram("--help");
  EXPECT_EQ(outcome.exitCode, 0);
  for (const char* option : {"--rows", "--threads", "--format", "--out", "--join"}) {
    EXPECT_NE(outcome.output.find(option), std::string::npos) << option;
  }
}

struct BadArgumentsCase {
  const char* rule;
  const char* arguments;
  const char* complaint;
};

constexpr auto kBadArguments = std::to_array<BadArgumentsCase>({
    {"RowsBeyondTheTable", "--rows 160-169", "--rows: must be FIRST-LAST with 0 <= FIRST <= LAST <= 168, not 160-169"},
    {"RowsTheWrongWayRound", "--rows 25-13", "not 25-13"},
    {"RowsThatAreWords", "--rows AA-AKs", "not AA-AKs"},
    {"RowsWithoutAnEnd", "--rows 13-", "not 13-"},
    {"RowsWithATail", "--rows 1-2-3", "not 1-2-3"},
    {"RowsTooLongForANumber", "--rows 0-99999999999999999999", "not 0-99999999999999999999"},
    {"NoThreads", "--threads 0", "--threads"},
    {"TooManyThreads", "--threads 257", "--threads"},
    {"AnUnknownFormat", "--format table", "--format"},
    {"SourceOfSomeRows", "--rows 0-1 --format source", "--format source needs all rows"},
    {"RowsOfAJoin", "--rows 0-1 --join a.txt", "--rows excludes --join"},
    {"AnUnknownOption", "--quick", "--quick"},
    {"AStrayArgument", "rows", "rows"},
});

TEST(BadArguments, AreRefusedWithAReason) {
  for (const BadArgumentsCase& c : kBadArguments) {
    SCOPED_TRACE(c.rule);
    const Outcome outcome = RunProgram(c.arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.output.find(c.complaint), std::string::npos) << outcome.output;
  }
}

}  // namespace
}  // namespace quillon
