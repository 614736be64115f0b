#include "ranges/range_lists.h"

#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

#include "testing/fault_of.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(RangeFolderEntries, ListsEveryFileWhateverItsExtension) {
  const TemporaryProgram program;
  for (const char* name : {"b.txt", "a.html", ".txt", "readme", "c.TXT"})
    program.Write(name);
  std::filesystem::create_directory(program.RangeFile("folder.txt"));
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre(".txt", "a.html", "b.txt", "c.TXT", "readme"));
}

TEST(RangeFolderEntries, SortsWithoutRegardToCase) {
  const TemporaryProgram program;
  for (const char* name : {"ß.txt", "é.txt", "ärger2.txt", "Ärger.txt", "×.txt", "_a.txt", "gamma.txt", "ZZ.txt",
                           "za.txt", "AA.txt", "BETA.txt", "alpha2.txt", "Alpha.txt", "9.txt", "10.txt"})
    program.Write(name);
  // The small letters are compared, so "_" comes before "a".
  EXPECT_THAT(RangeFolderEntries(program.Folder()),
              ElementsAre("10.txt", "9.txt", "_a.txt", "AA.txt", "Alpha.txt", "alpha2.txt", "BETA.txt", "gamma.txt",
                          "za.txt", "ZZ.txt", "×.txt", "ß.txt", "Ärger.txt", "ärger2.txt", "é.txt"));
}

TEST(RangeFolderEntries, SortsByWhatIsListed) {
  const TemporaryProgram program;
  for (const char* name : {"Big Blind Call 2.txt", "Big Blind Call.txt", "Big Blind Call-3.txt", "big blind call.bak"})
    program.Write(name);
  EXPECT_THAT(RangeFolderEntries(program.Folder()),
              ElementsAre("Big Blind Call.txt", "big blind call.bak", "Big Blind Call 2.txt", "Big Blind Call-3.txt"));
}

TEST(RangeFolderEntries, SortsLettersOfEveryScriptWithoutRegardToCase) {
  const TemporaryProgram program;
  for (const char* name : {"ŠZ.txt", "ša.txt", "Бета.txt", "альфа.txt", "Ÿ2.txt", "ÿ1.txt"})
    program.Write(name);
  EXPECT_THAT(RangeFolderEntries(program.Folder()),
              ElementsAre("ÿ1.txt", "Ÿ2.txt", "ša.txt", "ŠZ.txt", "альфа.txt", "Бета.txt"));
}

TEST(RangeFolderEntries, ScratchFilesDoNotShow) {
  const TemporaryProgram program;
  for (const char* name : {".quillon-4711-0.tmp", ".quillon-4711-0.copy", ".quillon-mine.txt", "a.txt"})
    program.Write(name);
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre(".quillon-mine.txt", "a.txt"));
}

TEST(RangeFolderEntries, EmptyFolderHasNone) {
  const TemporaryProgram program;
  EXPECT_THAT(RangeFolderEntries(program.Folder()), IsEmpty());
}

void ExpectListingFault(const ProgramFolder& folder, RunTimeFault fault) {
  const auto list = [&] { return RangeFolderEntries(folder); };
  EXPECT_EQ(FaultOf(list), fault);
  EXPECT_THAT(FaultTextOf(list), HasSubstr(RangeFolderPath(folder).string()));
}

TEST(RangeFolderEntries, FolderThatCannotBeReadIsFatalAndNamed) {
  const TemporaryProgram program;
  const std::filesystem::path ranges = RangeFolderPath(program.Folder());
  std::filesystem::remove(ranges);
  ExpectListingFault(program.Folder(), RunTimeFault::kPathNotFound);

  std::ofstream(ranges) << "a file in its place";
  ExpectListingFault(program.Folder(), RunTimeFault::kPathNotFound);
  std::filesystem::remove(ranges);

  ExpectListingFault({program.Folder().Path / std::string(300, 'x')}, RunTimeFault::kBadFileName);
}

TEST(RangeNameOfFile, IsTheFileNameLessFourCharacters) {
  struct Case {
    const char* rule;
    const char* file;
    const char* name;
  };
  const std::vector<Case> cases = {
      {"the usual extension", "Button Shove.txt", "Button Shove"},
      {"its case does not matter", "Button.TXT", "Button"},
      {"another extension", "notes.log", "notes"},
      {"a longer extension", "notes.html", "notes."},
      {"a shorter extension", "main.c", "ma"},
      {"no extension", "readme", "re"},
      {"four characters", ".txt", ""},
      {"characters of several bytes in the name", "Übermütig €.txt", "Übermütig €"},
      {"characters of several bytes at the end", "xäöü€", "x"},
      {"four characters of several bytes", "äöü€", ""},
      {"a character of four bytes", "x♠♥♦🂡", "x"},
      {"a byte of another encoding in the name", "\xE9t\xE9.txt", "\xE9t\xE9"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(RangeNameOfFile(c.file), c.name) << c.rule;
}

TEST(RangeNameOfFile, FewerThanFourCharactersAreFatal) {
  for (const char* name : {"", "a", "txt", ".hm", "äöü"}) {
    try {
      static_cast<void>(RangeNameOfFile(name));
      FAIL() << "nothing was thrown for " << name;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Fault(), RunTimeFault::kInvalidProcedureCall);
      EXPECT_THAT(error.what(), HasSubstr(name));
      EXPECT_THAT(error.what(), HasSubstr("has a name of fewer than four characters"));
    }
  }
}

struct FillCase {
  const char* rule;
  std::vector<const char*> files;
  ListStart start;
  const char* wanted;
  RangeListContents contents;
};

TEST(FillRangeList, ListsTheFolderAndSelectsTheEntryWantedOrElseTheFirst) {
  constexpr ListStart kBlank = ListStart::kBlankEntry;
  constexpr ListStart kRange = ListStart::kFirstRange;
  const std::vector<FillCase> cases = {
      {"a combo box starts with a blank entry", {"b.txt", "A.txt"}, kBlank, "", {{"", "A", "b"}, 0}},
      {"a list with the first range", {"b.txt", "A.txt"}, kRange, "", {{"A", "b"}, 0}},
      {"an empty folder leaves the blank alone", {}, kBlank, "Gone", {{""}, 0}},
      {"and a list empty, with nothing selected", {}, kRange, "Gone", {{}, {}}},
      {"the entry wanted in a combo box", {"a.txt", "b.txt"}, kBlank, "b", {{"", "a", "b"}, 2}},
      {"the entry wanted in a list", {"a.txt", "b.txt"}, kRange, "b", {{"a", "b"}, 1}},
      {"one that is gone gives the blank", {"a.txt", "b.txt"}, kBlank, "x", {{"", "a", "b"}, 0}},
      {"or the first range", {"a.txt", "b.txt"}, kRange, "x", {{"a", "b"}, 0}},
      {"names are compared with case", {"a.txt", "b.txt"}, kBlank, "B", {{"", "a", "b"}, 0}},
      {"the first of equal entries", {"a.txt", "b.log", "b.txt"}, kRange, "b", {{"a", "b", "b"}, 1}},
      {"a file that is no range", {"loud.TXT", "page.html"}, kRange, "", {{"loud", "page."}, 0}},
  };
  for (const FillCase& c : cases) {
    const TemporaryProgram program;
    for (const char* file : c.files)
      program.Write(file);
    const RangeListContents contents = FillRangeList(program.Folder(), c.start, c.wanted);
    EXPECT_EQ(contents.Entries, c.contents.Entries) << c.rule;
    EXPECT_EQ(contents.Selected, c.contents.Selected) << c.rule;
  }
}

TEST(FillRangeList, FailsWhereAFileHasNoNameOrTheFolderIsMissing) {
  const TemporaryProgram program;
  program.Write("b.c");
  const auto fill = [&] { return FillRangeList(program.Folder(), ListStart::kFirstRange, ""); };
  EXPECT_EQ(FaultOf(fill), RunTimeFault::kInvalidProcedureCall);
  std::filesystem::remove_all(RangeFolderPath(program.Folder()));
  EXPECT_EQ(FaultOf(fill), RunTimeFault::kPathNotFound);
}

TEST(EntryIndex, IsThatOfTheFirstEqualEntryOrNone) {
  const std::vector<std::string> entries = {"a", "b", "a"};
  EXPECT_EQ(EntryIndex(entries, "a"), 0);
  EXPECT_EQ(EntryIndex(entries, "b"), 1);
  EXPECT_EQ(EntryIndex(entries, "A"), std::nullopt);
  EXPECT_EQ(EntryIndex(entries, ""), std::nullopt);
}

}  // namespace
}  // namespace quillon
