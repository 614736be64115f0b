// Range files that are not ranges, that are broken, or that somebody has edited by hand, given to the real companion: a
// table of files with what each must be read as, and random ones beside the oracle.

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "testing/oracle/hands.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/ranges.h"
#include "testing/oracle/runs.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"
#include "tests/bad_inputs.h"
#include "tests/companion_in_folder.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr const char* kNoRange = "";  // in place of a listing
constexpr const char* kNothing = "0% selected\t[None]";
constexpr const char* kAces = "0.5% selected\tAA";
constexpr const char* kHalfAces = "0.2% selected\tFull:  | Half: AA";

const std::string kAllUnpaired =
    "A2s+,K2s+,Q2s+,J2s+,T2s+,92s+,82s+,72s+,62s+,52s+,42s+,32s,A2o+,K2o+,Q2o+,J2o+,T2o+,92o+,82o+,72o+,62o+,52o+,"
    "42o+,32o";

// The text of a range whose aces have any weight, and whose other classes have none.
std::string AcesAt(const std::string& weight) {
  return "AA (" + weight + ")" + TextWith("").substr("AA (0)"s.size());
}

// The same with another entry for the aces.
std::string AcesAs(const std::string& entry) {
  return entry + TextWith("").substr("AA (0)"s.size());
}

std::string Without(std::string text, const std::string& entry) {
  const std::size_t at = text.find(entry);
  return text.replace(at, entry.size(), "");
}

std::string Reversed(const std::string& text) {
  std::string reversed;
  for (std::size_t end = text.size(); end > 0;) {
    const std::size_t start = text.rfind(", ", end - 3);
    const std::size_t begin = start == std::string::npos ? 0 : start + 2;
    reversed += text.substr(begin, end - begin);
    end = begin;
  }
  return reversed;
}

struct FileCase {
  const char* Name;  // the rule, and the name of the range
  std::string File;
  std::string Listing;  // after the name; kNoRange if the file is reported as not a range
};

std::vector<FileCase> FilesThatAreNone() {
  return {
      {"Nothing at all is no range", "", kNoRange},
      {"A line end alone is no range", "\r\n", kNoRange},
      {"Two line ends are no range", "\r\n\r\n", kNoRange},
      {"A line feed is no range", "\n", kNoRange},
      {"A word is no range", "hello", kNoRange},
      {"Labels without weights are no range", "AA, KK, QQ", kNoRange},
      {"A weight that is never closed is none", "AA (1", kNoRange},
      {"A bracket before the label does not close its weight", ") AA (1", kNoRange},
      {"A bracket at the very start leaves no room for missing classes", ")" + AcesAt("1").substr(0, 8), kNoRange},
      {"A bracket as the fourth character leaves no room for three letters", "abc) AA (1)", kNoRange},
      {"Square brackets close nothing", "AA [1], KK [1]", kNoRange},
      {"Labels in lower case are no entries", "aa (1), kk (1), ", kNoRange},
      {"Two bytes for a character hide every label", InWideCharacters(TextWith("AA KK")), kNoRange},
      {"Zeros are no range", std::string(1000, '\0'), kNoRange},
      {"Blanks are no range", std::string(1000, ' '), kNoRange},
      {"Closing brackets are no range", std::string(1000, ')'), kNoRange},
      {"A picture is no range", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\0\0\0\1\0)(\x08\2\0\0\0"s, kNoRange},
      {"A web page is no range", "<html><body onload=\"go()\">AA KK</body></html>\n", kNoRange},
      {"Settings are no range", "[Values]\r\n0=100\r\n1=50\r\n", kNoRange},
      {"A weight that ends within another label cannot be read", AcesAt("0.225"), kNoRange},
  };
}

std::vector<FileCase> FilesWithWeights() {
  return {
      {"Weight 1.0 is full", AcesAt("1.0"), kAces},
      {"Weight 1e0 is full", AcesAt("1e0"), kAces},
      {"Weight with a plus is full", AcesAt("+1"), kAces},
      {"Weight between blanks is full", AcesAt("  1  "), kAces},
      {"Weight with letters behind is full", AcesAt("1x"), kAces},
      {"Weight with a decimal comma is cut at it", AcesAt("1,5"), kAces},
      {"Weight as a fraction is cut at the stroke", AcesAt("1 of 2"), kAces},
      {"Weight with an exponent left open is full", AcesAt("1e+"), kAces},
      {"Weight with a point left open is full", AcesAt("1."), kAces},
      {"Weight with zeros in front is full", AcesAt(std::string(400, '0') + "1"), kAces},
      {"Weight with a zero byte behind is full", AcesAt("1\0"s), kAces},
      {"Weight next to one is one", AcesAt("1.00000000000000000001"), kAces},
      {"Weight with a bracket behind is full", AcesAt("1(0"), kAces},
      {"Weight 0.50 is half", AcesAt("0.50"), kHalfAces},
      {"Weight .5 is half", AcesAt(".5"), kHalfAces},
      {"Weight 5e-1 is half", AcesAt("5e-1"), kHalfAces},
      {"Weight with two points is cut at the second", AcesAt("0.5.5"), kHalfAces},
      {"Weight with blanks within is read over them", AcesAt(" 0 . 5 "), kHalfAces},
      {"Weight in percent is no half", AcesAt("50%"), kNothing},
      {"Weight of a half with a comma is zero", AcesAt("0,5"), kNothing},
      {"Weight as the character for a half is zero", AcesAt("\xBD"), kNothing},
      {"Weight as a raised one is zero", AcesAt("\xB9"), kNothing},
      {"Weight of a quarter is not shown", AcesAt("0.25"), kNothing},
      {"Weight of two is not shown", AcesAt("2"), kNothing},
      {"Weight below zero is not shown", AcesAt("-1"), kNothing},
      {"Weight of two signs is zero", AcesAt("--1"), kNothing},
      {"Weight beyond all numbers is not shown", AcesAt("1e400"), kNothing},
      {"Weight below all numbers is zero", AcesAt("1e-400"), kNothing},
      {"Weight of four hundred digits is not shown", AcesAt("1" + std::string(400, '0')), kNothing},
      {"Weight of one and zero is ten", AcesAt("1 0"), kNothing},
      {"Weight that is empty is zero", AcesAt(""), kNothing},
      {"Weight that is a point is zero", AcesAt("."), kNothing},
      {"Weight NaN is zero", AcesAt("NaN"), kNothing},
      {"Weight infinity is zero", AcesAt("inf"), kNothing},
      {"Weight in hexadecimal is zero", AcesAt("0x1"), kNothing},
      {"Weight TRUE is zero", AcesAt("TRUE"), kNothing},
      {"Weight behind a tab is zero", AcesAt("\t1"), kNothing},
      {"Weight behind a line end is zero", AcesAt("\r\n1"), kNothing},
      {"Weight behind a second bracket is zero", AcesAt("(1"), kNothing},
  };
}

std::vector<FileCase> FilesInOtherShape() {
  return {
      {"One entry alone gives its weight to every other hand of two ranks", "AA (1)",
       "94.6% selected\tAA," + kAllUnpaired},
      {"Two entries alone do as one", "AA (1), AKs (1), ", "94.6% selected\tAA," + kAllUnpaired},
      {"One entry of weight zero gives nothing to the others", "AA (0)", kNothing},
      {"One entry of three letters gives nothing to the others", "AKs (1)", "0.3% selected\tAKs"},
      {"A bracket as the fifth character leaves room for all", "abcd) AA (1)", kAces},
      {"A missing class of three letters has the first weight", Without(AcesAt("1"), "72o (0), "),
       "1.4% selected\tAA,72o"},
      {"A missing pair has none", Without(AcesAt("1"), "77 (0), "), kAces},
      {"A mark in front moves the first weight away", "\xEF\xBB\xBF" + Without(AcesAt("1"), "72o (0), "), kAces},
      {"Characters of the code page count one place each", "\xE9\xE9 (1) " + Without(TextWith(""), "72o (0), "),
       "0.9% selected\t72o"},
      {"Of two entries the first counts", "AA (0.5), " + AcesAt("1"), kHalfAces},
      {"Entries may stand in any order", Reversed(AcesAt("1")), kAces},
      {"A remark before the label does no harm", "My best hands: " + AcesAt("1"), kAces},
      {"A label in a remark hides its entry", "AA is best: " + AcesAt("1"), kNothing},
      {"A label in a weight hides its entry", AcesAt("0.22500") + "22 (1), ", kNothing},
      {"A bracket right behind the label leaves no weight", AcesAs("AA(1)"), kNothing},
      {"Two blanks before the bracket leave no weight", AcesAs("AA  (1)"), kNothing},
      {"A tab does for the blank", AcesAs("AA\t(1)"), kAces},
      {"Any two characters do for blank and bracket", AcesAs("AA=[1)"), kAces},
      {"A character of the code page does for the blank", AcesAs("AA\xBD(1)"), kAces},
      {"Two characters of the code page do for blank and bracket",
       AcesAs("AA\xAB\xBB"
              "1)"),
       kAces},
      {"A character of the code page does not do for more than one", AcesAs("AA\xE9 (1)"), kNothing},
      {"A weight that is not closed goes on to the next bracket", AcesAs("AA (1"), kAces},
      {"No line end is as good as one", AcesAt("1"), kAces},
      {"A line feed does for the line end", AcesAt("1") + "\n", kAces},
      {"Many line ends do no harm", AcesAt("1") + "\r\n\r\n\r\n", kAces},
      {"A mark in front does no harm", "\xEF\xBB\xBF" + AcesAt("1") + "\r\n", kAces},
      {"A megabyte of blanks in front does no harm", std::string(1U << 20U, ' ') + AcesAt("1"), kAces},
      {"A megabyte of brackets behind does no harm", AcesAt("1") + std::string(1U << 20U, ')'), kAces},
      {"A zero byte in front does no harm", "\0"s + AcesAt("1"), kAces},
  };
}

std::vector<FileCase> AllFiles() {
  std::vector<FileCase> all;
  for (const auto& some : {FilesThatAreNone(), FilesWithWeights(), FilesInOtherShape()})
    all.insert(all.end(), some.begin(), some.end());
  return all;
}

// What the companion says of each range: its listing, or kNoRange.
using Listings = std::map<std::string, std::string>;

Listings ListingsIn(const ProgramFolder& folder) {
  const ProgramOutcome outcome = RunCompanionIn(folder, {"ranges"});
  Listings listings;
  std::istringstream lines(outcome.Output);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t tab = line.find('\t');
    listings[line.substr(0, tab)] = line.substr(tab + 1);
  }
  const std::string start = RangeFolderPath(folder).string() + "/";
  const std::string end = ".txt cannot be read, is empty or no range file.";
  std::istringstream complaints(outcome.Errors);
  for (std::string line; std::getline(complaints, line);) {
    EXPECT_TRUE(line.starts_with(start) && line.ends_with(end)) << Shown(line);
    listings[line.substr(start.size(), line.size() - start.size() - end.size())] = kNoRange;
  }
  EXPECT_EQ(outcome.Status, outcome.Errors.empty() ? 0 : 1);
  return listings;
}

TEST(BadRangeFiles, AreReadAsTold) {
  const TemporaryProgram program;
  for (const FileCase& one : AllFiles())
    program.Write(one.Name + ".txt"s, one.File);
  const auto before = StateOf(program.Folder().Path);
  const Listings listings = ListingsIn(program.Folder());
  EXPECT_EQ(listings.size(), AllFiles().size());
  for (const FileCase& one : AllFiles()) {
    ASSERT_EQ(listings.count(one.Name), 1U) << one.Name;
    EXPECT_EQ(listings.at(one.Name), one.Listing) << one.Name;
    EXPECT_EQ(plain::ListingOf(one.File).value_or(kNoRange), one.Listing) << one.Name << ", by the plain reader";
  }
  EXPECT_TRUE(StateOf(program.Folder().Path) == before) << "a file was written to";
}

TEST(BadRangeFiles, ThatAreRandomAreReadAsThePlainReaderReadsThem) {
  constexpr int kFilesAtOnce = 500;
  BadInputs inputs(1);
  Tally tally("range files");
  for (int left = RandomInputs(40); left > 0 && !HasFailure(); left -= kFilesAtOnce) {
    const TemporaryProgram program;
    std::map<std::string, std::string> files;
    for (int i = 0; i < std::min(left, kFilesAtOnce); ++i) {
      const std::string name = "Range " + std::to_string(i);
      files[name] = inputs.RangeFile();
      program.Write(name + ".txt", files[name]);
    }
    const auto before = StateOf(program.Folder().Path);
    const Listings listings = ListingsIn(program.Folder());
    EXPECT_EQ(listings.size(), files.size());
    for (const auto& [name, listing] : listings) {
      ASSERT_EQ(files.count(name), 1U) << Shown(name);
      EXPECT_EQ(listing, plain::ListingOf(files[name]).value_or(kNoRange)) << Shown(files[name]);
      tally.Count(listing == kNoRange ? "no ranges" : "ranges");
    }
    EXPECT_TRUE(StateOf(program.Folder().Path) == before) << "a file was written to";
  }
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
  EXPECT_EQ(ListingsIn(program.Folder()), (Listings{{"Good", kAces},
                                                    {"A link to nowhere", kNoRange},
                                                    {"A link in a circle", kNoRange},
                                                    {"More than 64 MiB", kNoRange}}));
}

// ---- runs on such files

struct RunCase {
  const char* Name;
  std::string File;  // of the range, and of the calling range
  const char* Command;
  const char* Outcome;  // what standard error says in the end; empty where the run goes through
};

class BadRangeInRun : public testing::TestWithParam<RunCase> {};

std::vector<std::string> ArgumentsOf(const plain::Run& run, const std::string& range, const std::string& callingRange) {
  switch (run.Scenario) {
    case plain::Mode::kCall:
      return Joined({{"call"}, Option("--pot", run.Pot), Option("--call", run.Call), {"--range", range}});
    case plain::Mode::kRaise:
      return Joined({{"raise"},
                     Option("--pot", run.Pot),
                     Option("--call", run.Call),
                     Option("--shove", run.Shove),
                     {"--range", range, "--calling-range", callingRange}});
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

// What is said of a range's file before the run.
std::string PointedOut(const TemporaryProgram& program, const std::string& name, const std::string& file) {
  if (plain::ListingOf(file)) return {};
  return "The range \"" + name + "\" cannot be read: " + program.RangeFile(name + ".txt").string() +
         " is missing, empty or no range file.\n";
}

TEST_P(BadRangeInRun, EndsAsTold) {
  const TemporaryProgram program;
  program.Write("Bad.txt", GetParam().File);
  const plain::Run run = RunOn(GetParam().Command, GetParam().File, GetParam().File);
  const ProgramOutcome outcome = RunCompanionIn(program.Folder(), ArgumentsOf(run, "Bad", "Bad"));
  const std::string wanted = GetParam().Outcome;
  const std::string pointedOut = PointedOut(program, "Bad", GetParam().File);
  const int failed = wanted.starts_with("Run-time error") ? 1 : 3;
  EXPECT_EQ(outcome.Status, wanted.empty() ? 0 : failed);
  EXPECT_EQ(outcome.Errors, pointedOut + (run.Scenario == plain::Mode::kRaise ? pointedOut : "") + wanted);
  EXPECT_EQ(outcome.Output.empty(), !wanted.empty());
}

constexpr const char* kSubscript =
    "Run-time error '9': Subscript out of range (the range file \"Bad.txt\" is missing or empty)\n";
constexpr const char* kProcedureCall =
    "Run-time error '5': Invalid procedure call or argument (the range file \"Bad.txt\" holds no weight for AA)\n";
constexpr const char* kTooLarge = "Run-time error '6': Overflow\n";

std::vector<RunCase> Runs() {
  const std::string none = TextWith("");
  const std::string negative = AcesAt("-1");
  const std::string cancelled = AcesAt("-1").replace(AcesAt("-1").find("KK (0)"), 6, "KK (1)");
  const std::string infinite = AcesAt("1e308").replace(AcesAt("1e308").find("KK (0)"), 6, "KK (1e308)");
  return {
      {"EmptyFileEndsACall", "", "call", kSubscript},
      {"EmptyFileEndsARaise", "", "raise", kSubscript},
      {"EmptyFileEndsAnEquity", "", "equity", kSubscript},
      {"LineEndAloneEndsACall", "\r\n", "call", kSubscript},
      {"LineEndAloneEndsARaise", "\r\n", "raise", kSubscript},
      {"UnclosedWeightEndsACall", "AA (1", "call", kProcedureCall},
      {"UnclosedWeightEndsARaise", "AA (1", "raise", kProcedureCall},
      {"UnclosedWeightEndsAnEquity", "AA (1", "equity", kProcedureCall},
      {"NoHandsAreRefusedInACall", none, "call", "No Hands in Range: No hands in your opponent's current range.\n"},
      {"NoHandsAreRefusedInAnEquity", none, "equity",
       "Empty Range: Your opponent's range is empty. Please select another range.\n"},
      {"WeightsThatCancelOutAreRefused", cancelled, "equity",
       "Empty Range: Your opponent's range is empty. Please select another range.\n"},
      {"WeightsBelowZeroHaveNoEquity", negative, "equity", kTooLarge},
      {"WeightsBelowZeroHaveNoValue", negative, "call", kTooLarge},
      {"WeightsBeyondAllNumbersHaveNoEquity", infinite, "equity", kTooLarge},
      {"AQuarterIsAWeight", AcesAt("0.25"), "equity", ""},
      {"AThousandIsAWeight", AcesAt("1000"), "call", ""},
      {"TheSmallestWeightIsOne", AcesAt("1e-300"), "call", ""},
      {"ARangeFromOneEntryGoesThrough", "AA (1)", "raise", ""},
  };
}

INSTANTIATE_TEST_SUITE_P(BadRangeFiles, BadRangeInRun, testing::ValuesIn(Runs()),
                         [](const auto& one) { return std::string(one.param.Name); });

// ---- random runs

// The rows of the output, without its heading.
std::vector<std::vector<std::string>> CellsOf(const std::string& csv) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream lines(csv);
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) {
    std::vector<std::string>& row = rows.emplace_back();
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, ',');)
      row.push_back(cell);
  }
  return rows;
}

void ExpectFigures(const std::string& csv, const plain::Result& result, plain::Mode mode) {
  const auto rows = CellsOf(csv);
  ASSERT_EQ(rows.size(), plain::Labels().size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_EQ(rows[i].size(), 6U);
    EXPECT_EQ(rows[i][0], plain::Labels()[i]);
    EXPECT_EQ(rows[i][2], mode == plain::Mode::kEquity ? "" : plain::NumberText(result.ExpectedValues[i]))
        << rows[i][0];
    EXPECT_EQ(rows[i][3], plain::NumberText(result.Equities[i])) << rows[i][0];
    EXPECT_EQ(rows[i][4], mode == plain::Mode::kRaise ? plain::NumberText(result.FoldShares[i]) : "") << rows[i][0];
  }
}

TEST(BadRangeFiles, ThatAreRandomGoThroughARunOrEndItAsTold) {
  constexpr int kFilesARun = 10;  // of all that are read; a run takes longer
  BadInputs inputs(2);
  Tally tally("runs on range files");
  for (int left = RandomInputs(40) / kFilesARun; left > 0 && !HasFailure(); --left) {
    const std::string file = inputs.RangeFile();
    const std::string callingFile = inputs.Below(2) == 0 ? inputs.RangeFile() : TextWith("AA KK AKs", "QQ");
    SCOPED_TRACE(Shown(file) + ", " + Shown(callingFile));
    const TemporaryProgram program;
    program.Write("Bad.txt", file);
    program.Write("Calling.txt", callingFile);
    const auto before = StateOf(program.Folder().Path);

    const plain::Run run = RunOn(left % 3 == 0 ? "call" : left % 3 == 1 ? "raise" : "equity", file, callingFile);
    const plain::Result result = plain::ResultOf(run);
    const ProgramOutcome outcome =
        RunCompanionIn(program.Folder(), Joined({ArgumentsOf(run, "Bad", "Calling"), {"--format", "csv"}}));
    const bool raise = run.Scenario == plain::Mode::kRaise;
    const std::string errors = PointedOut(program, "Bad", file) +
                               (raise ? PointedOut(program, "Calling", callingFile) : "") + result.Outcome.Told();
    EXPECT_EQ(outcome.Status, result.Outcome.Status()) << outcome.Errors;
    EXPECT_EQ(outcome.Errors.substr(0, errors.size()), errors);
    EXPECT_TRUE(result.Outcome.GoesThrough() ? outcome.Errors == errors : outcome.Errors.ends_with("\n"));
    EXPECT_EQ(outcome.Output.empty(), !result.Outcome.GoesThrough());
    if (result.Outcome.GoesThrough()) ExpectFigures(outcome.Output, result, run.Scenario);
    tally.Count(result.Outcome.Fate());
    EXPECT_TRUE(StateOf(program.Folder().Path) == before) << "a file was written to";
  }
}

}  // namespace
}  // namespace quillon
