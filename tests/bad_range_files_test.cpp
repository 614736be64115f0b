// Odd and random range files: not ranges, broken, or edited by hand. The companion must read each as the oracle does.

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "testing/companion_program.h"
#include "testing/folder_state.h"
#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/ranges.h"
#include "testing/oracle/runs.h"
#include "testing/split_text.h"
#include "tests/bad_inputs.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr const char* kNoRange = "";  // instead of a listing

// A range text with this weight for the aces and 0 for all other classes.
std::string AcesAt(const std::string& weight) {
  return "AA (" + weight + ")" + TextWith("").substr("AA (0)"s.size());
}

// The same with another entry for the aces.
std::string AcesAs(const std::string& entry) {
  return entry + TextWith("").substr("AA (0)"s.size());
}

std::string Without(const std::string& text, const std::string& entry) {
  return Replaced(text, entry, "");
}

std::string Reversed(const std::string& text) {
  std::string reversed;
  for (const std::string& entry : Split(text, ", "))
    reversed.insert(0, entry.empty() ? "" : entry + ", ");
  return reversed;
}

// Not ranges.
const std::vector<std::string> kOtherFiles = {"",
                                              "\r\n",
                                              "\r\n\r\n",
                                              "\n",
                                              "hello",
                                              "AA, KK, QQ",
                                              "AA (1",
                                              ") AA (1",
                                              "abc) AA (1)",
                                              "AA [1], KK [1]",
                                              "aa (1), kk (1), ",
                                              "<html><body onload=\"go()\">AA KK</body></html>\n",
                                              "[Values]\r\n0=100\r\n1=50\r\n",
                                              "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\0\0\0\1\0)(\x08\2\0\0\0"s,
                                              ")" + AcesAt("1").substr(0, 8),
                                              AcesAt("0.225"),
                                              InWideCharacters(TextWith("AA KK")),
                                              std::string(1000, '\0'),
                                              std::string(1000, ' '),
                                              std::string(1000, ')')};

// Weights of the aces in an otherwise valid file.
const std::vector<std::string> kWeights = Split(
    "1.0|1e0|+1|  1  |1x|1,5|1 of 2|1e+|1.|0001|1.00000000000000000001|1(0|0.50|.5|5e-1|0.5.5| 0 . 5 "
    "|50%|0,5|\xBD|\xB9|"
    "0.25|2|-1|--1|1e400|1e-400|1 0||.|NaN|inf|0x1|TRUE|\t1|\r\n1|(1",
    "|");

// Ranges in a different form from the program's.
const std::vector<std::string> kOddShapes = {"AA (1)",
                                             "AA (1), AKs (1), ",
                                             "AA (0)",
                                             "AKs (1)",
                                             "abcd) AA (1)",
                                             Without(AcesAt("1"), "72o (0), "),
                                             Without(AcesAt("1"), "77 (0), "),
                                             "\xEF\xBB\xBF" + Without(AcesAt("1"), "72o (0), "),
                                             "\xE9\xE9 (1) " + Without(TextWith(""), "72o (0), "),
                                             "AA (0.5), " + AcesAt("1"),
                                             Reversed(AcesAt("1")),
                                             "My best hands: " + AcesAt("1"),
                                             "AA is best: " + AcesAt("1"),
                                             AcesAt("0.22500") + "22 (1), ",
                                             AcesAs("AA(1)"),
                                             AcesAs("AA  (1)"),
                                             AcesAs("AA\t(1)"),
                                             AcesAs("AA=[1)"),
                                             AcesAs("AA\xBD(1)"),
                                             AcesAs("AA\xAB\xBB"
                                                    "1)"),
                                             AcesAs("AA\xE9 (1)"),
                                             AcesAs("AA (1"),
                                             AcesAt("1"),
                                             AcesAt("1") + "\n",
                                             AcesAt("1") + "\r\n\r\n\r\n",
                                             "\xEF\xBB\xBF" + AcesAt("1") + "\r\n",
                                             std::string(1U << 20U, ' ') + AcesAt("1"),
                                             AcesAt("1") + std::string(1U << 20U, ')'),
                                             "\0"s + AcesAt("1")};

// What the companion lists for each range, or kNoRange.
using Listings = std::map<std::string, std::string>;

Listings ListingsIn(const ProgramFolder& folder) {
  const CompanionOutcome outcome = RunCompanionIn(folder.Path, {"ranges"});
  Listings listings;
  for (const std::string& line : Lines(outcome.Output)) {
    const std::size_t tab = line.find('\t');
    listings[line.substr(0, tab)] = line.substr(tab + 1);
  }
  const std::string start = RangeFolderPath(folder).string() + "/";
  const std::string end = ".txt cannot be read, is empty or no range file.";
  for (const std::string& line : Lines(outcome.Errors)) {
    EXPECT_TRUE(line.starts_with(start) && line.ends_with(end)) << Shown(line);
    listings[line.substr(start.size(), line.size() - start.size() - end.size())] = kNoRange;
  }
  EXPECT_EQ(outcome.Status, outcome.Errors.empty() ? 0 : 1);
  return listings;
}

// Returns how many of the files are ranges.
std::ptrdiff_t ExpectAsThePlainReader(const std::vector<std::string>& files) {
  const TemporaryProgram program;
  Listings expected;
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::string name = "Range " + std::to_string(i);
    program.Write(name + ".txt", files[i]);
    expected[name] = plain::ListingOf(files[i]).value_or(kNoRange);
  }
  const auto before = FolderState(program.Folder().Path);
  const Listings listings = ListingsIn(program.Folder());
  EXPECT_EQ(listings.size(), files.size());
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::string name = "Range " + std::to_string(i);
    EXPECT_TRUE(listings.contains(name) && listings.at(name) == expected[name]) << Shown(files[i]);
  }
  EXPECT_TRUE(FolderState(program.Folder().Path) == before) << "a file was written to";
  return std::ranges::count_if(expected, [](const auto& entry) { return entry.second != kNoRange; });
}

TEST(BadRangeFiles, AreReadAsThePlainReaderReadsThem) {
  EXPECT_EQ(ExpectAsThePlainReader(kOtherFiles), 0);
  std::vector<std::string> files = kOddShapes;
  for (const std::string& weight : kWeights)
    files.push_back(AcesAt(weight));
  EXPECT_EQ(ExpectAsThePlainReader(files), std::ssize(files));

  BadInputs inputs(1);
  std::vector<std::string> random(static_cast<std::size_t>(RandomInputs(40)));
  std::ranges::generate(random, [&] { return inputs.RangeFile(); });
  std::cout << random.size() << " range files: " << ExpectAsThePlainReader(random) << " ranges\n";
}

// ---- what is not a file

TEST(BadRangeFiles, ThatCannotBeReadArePointedOut) {
  const TemporaryProgram program;
  program.Write("Good.txt", AcesAt("1"));
  fs::create_symlink("nowhere", program.RangeFile("A link to nowhere.txt"));
  fs::create_symlink("A link in a circle.txt", program.RangeFile("A link in a circle.txt"));
  program.Write("More than 64 MiB.txt", AcesAt("1"));
  fs::resize_file(program.RangeFile("More than 64 MiB.txt"), (std::uintmax_t{64} << 20U) + 1);
  fs::create_directory(program.RangeFile("A folder is not listed.txt"));
  EXPECT_EQ(ListingsIn(program.Folder()), (Listings{{"Good", "0.5% selected\tAA"},
                                                    {"A link to nowhere", kNoRange},
                                                    {"A link in a circle", kNoRange},
                                                    {"More than 64 MiB", kNoRange}}));
}

// ---- runs on such files

Arguments ArgumentsOf(const plain::Run& run, const std::string& range, const std::string& callingRange) {
  switch (run.Scenario) {
    case plain::Mode::kCall:
      return {"call", "--pot", run.Pot, "--call", run.Call, "--range", range};
    case plain::Mode::kRaise:
      return {"raise",   "--pot",   run.Pot, "--call",          run.Call,    "--shove",
              run.Shove, "--range", range,   "--calling-range", callingRange};
    case plain::Mode::kEquity:
      return {"equity", "--range", range};
  }
  return {};
}

plain::Run RunOn(const std::string& command, const std::string& file, const std::string& callingFile) {
  const plain::Mode mode = command == "call"    ? plain::Mode::kCall
                           : command == "raise" ? plain::Mode::kRaise
                                                : plain::Mode::kEquity;
  return {mode, "150", "50", "300", file, callingFile};
}

// The message about a range's file before the run.
std::string PointedOut(const TemporaryProgram& program, const std::string& name, const std::string& file) {
  if (plain::ListingOf(file)) return {};
  return "The range \"" + name + "\" cannot be read: " + program.RangeFile(name + ".txt").string() +
         " is missing, empty or no range file.\n";
}

/// Returns the outcome.
std::string ExpectRunAsThePlainOne(const std::string& command, const std::string& file,
                                   const std::string& callingFile) {
  SCOPED_TRACE(command + ": " + Shown(file) + ", " + Shown(callingFile));
  const TemporaryProgram program;
  program.Write("Bad.txt", file);
  program.Write("Calling.txt", callingFile);
  const auto before = FolderState(program.Folder().Path);

  const plain::Run run = RunOn(command, file, callingFile);
  const plain::Result result = plain::ResultOf(run);
  const CompanionOutcome outcome =
      RunCompanionIn(program.Folder().Path, With(ArgumentsOf(run, "Bad", "Calling"), {"--format", "csv"}));
  const bool raise = run.Scenario == plain::Mode::kRaise;
  const std::string errors = PointedOut(program, "Bad", file) +
                             (raise ? PointedOut(program, "Calling", callingFile) : "") + result.Outcome.Told();
  EXPECT_EQ(outcome.Status, result.Outcome.Status()) << outcome.Errors;
  EXPECT_EQ(outcome.Errors.substr(0, errors.size()), errors);
  EXPECT_TRUE(result.Outcome.GoesThrough() ? outcome.Errors == errors : outcome.Errors.ends_with("\n"));
  EXPECT_EQ(outcome.Output.empty(), !result.Outcome.GoesThrough());
  if (result.Outcome.GoesThrough()) ExpectFigures(outcome.Output, result, run.Scenario);
  EXPECT_TRUE(FolderState(program.Folder().Path) == before) << "a file was written to";
  return result.Outcome.Fate();
}

TEST(BadRangeFiles, GoThroughARunOrEndItAsInThePlainOne) {
  Tally tally("runs on range files");
  for (const char* command : {"call", "raise", "equity"}) {
    for (const std::string& file :
         {""s, "\r\n"s, "AA (1"s, "AA (1)"s, TextWith(""), AcesAt("-1"), Replaced(AcesAt("-1"), "KK (0)", "KK (1)"),
          Replaced(AcesAt("1e308"), "KK (0)", "KK (1e308)"), AcesAt("0.25"), AcesAt("1000"), AcesAt("1e-300")})
      tally.Count(ExpectRunAsThePlainOne(command, file, file));
  }
  constexpr int kFilesARun = 10;  // one in this many; a run takes longer
  BadInputs inputs(2);
  for (int left = RandomInputs(40) / kFilesARun; left > 0 && !HasFailure(); --left) {
    const std::string file = inputs.RangeFile();
    const std::string callingFile = inputs.Below(2) == 0 ? inputs.RangeFile() : TextWith("AA KK AKs", "QQ");
    tally.Count(ExpectRunAsThePlainOne(left % 3 == 0 ? "call" : left % 3 == 1 ? "raise" : "equity", file, callingFile));
  }
}

}  // namespace
}  // namespace quillon
