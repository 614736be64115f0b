#include "ranges/range_lists.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

#include "testing/fault_of.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(RangeFolderEntries, ListsEveryFileWhateverItsExtension) {
  const TemporaryProgram program;
  for (const char* name : {"b.txt", "a.html", ".txt", "readme", "c.TXT"})
    program.Write(name);
  std::filesystem::create_directory(program.RangeFile("folder.txt"));
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre(".txt", "a.html", "b.txt", "c.TXT", "readme"));
}

TEST(RangeFolderEntries, SortsByWhatIsListed) {
  const TemporaryProgram program;
  for (const char* name :
       {"Big Blind Call 2.txt", "Big Blind Call.txt", "Big Blind Call-3.txt", "big blind call.bak", "x"})
    program.Write(name);
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre("Big Blind Call.txt", "big blind call.bak",
                                                                "Big Blind Call 2.txt", "Big Blind Call-3.txt", "x"));
}

TEST(RangeFolderEntries, ScratchFilesDoNotShow) {
  const TemporaryProgram program;
  for (const char* name : {".quillon-4711-0.tmp", ".quillon-4711-0.copy", ".quillon-mine.txt", "a.txt"})
    program.Write(name);
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre(".quillon-mine.txt", "a.txt"));
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
      {"a longer extension", "notes.html", "notes."},
      {"no extension", "readme", "re"},
      {"four characters", ".txt", ""},
      {"characters of several bytes at the end", "xäöü€", "x"},
      {"a character of four bytes", "x♠♥♦🂡", "x"},
      {"a byte of another encoding in the name", "\xE9t\xE9.txt", "\xE9t\xE9"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(RangeNameOfFile(c.file), c.name) << c.rule;
}

TEST(RangeNameOfFile, FewerThanFourCharactersAreFatal) {
  for (const char* name : {"", "a", "txt", ".hm", "äöü"}) {
    EXPECT_THAT(FaultTextOf([&] { return RangeNameOfFile(name); }),
                AllOf(HasSubstr("'5'"), HasSubstr("\"" + std::string(name) + "\""),
                      HasSubstr("has a name of fewer than four characters")));
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
      {"an empty folder leaves the blank alone", {}, kBlank, "Gone", {{""}, 0}},
      {"and a list empty, with nothing selected", {}, kRange, "Gone", {{}, {}}},
      {"the entry wanted in a list", {"a.txt", "b.txt"}, kRange, "b", {{"a", "b"}, 1}},
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
