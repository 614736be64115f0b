#include "ranges/range_lists.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <utility>

#include "ranges/range_fixtures.h"
#include "ranges/recorded_list.h"

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
  std::filesystem::create_directory_symlink("folder.txt", program.RangeFile("shortcut.txt"));
  std::filesystem::create_symlink("b.txt", program.RangeFile("link.txt"));
  std::filesystem::create_symlink("nowhere", program.RangeFile("lost.txt"));
  EXPECT_THAT(RangeFolderEntries(program.Folder()),
              ElementsAre(".txt", "a.html", "b.txt", "c.TXT", "link.txt", "lost.txt", "readme"));
}

TEST(RangeFolderEntries, SortsWithoutRegardToCase) {
  const TemporaryProgram program;
  for (const char* name :
       {"ß.txt", "é.txt", "É.txt", "ärger2.txt", "Ärger.txt", "×.txt", "_a.txt", "gamma.txt", "ZZ.txt", "za.txt",
        "AA.txt", "beta.txt", "Beta.txt", "BETA.txt", "alpha2.txt", "Alpha.txt", "9.txt", "10.txt"})
    program.Write(name);
  // The small letters are compared, so "_" comes before "a"; names that agree in them stand in byte order.
  EXPECT_THAT(
      RangeFolderEntries(program.Folder()),
      ElementsAre("10.txt", "9.txt", "_a.txt", "AA.txt", "Alpha.txt", "alpha2.txt", "BETA.txt", "Beta.txt", "beta.txt",
                  "gamma.txt", "za.txt", "ZZ.txt", "×.txt", "ß.txt", "Ärger.txt", "ärger2.txt", "É.txt", "é.txt"));
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

TEST(RangeFolderEntries, NameThatIsNotUtf8IsShownAsWindows1252) {
  const TemporaryProgram program;
  program.Write("K\xE4se.txt");
  program.Write("Kabel.txt");
  program.Write("Käsefondue.txt");
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre("Kabel.txt", "Käse.txt", "Käsefondue.txt"));
}

TEST(RangeFolderEntries, ScratchFilesDoNotShow) {
  const TemporaryProgram program;
  for (const char* name : {".quillon-4711-0.tmp", ".quillon-mine.txt", "a.txt"})
    program.Write(name);
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre(".quillon-mine.txt", "a.txt"));
}

TEST(RangeFolderEntries, EmptyFolderHasNone) {
  const TemporaryProgram program;
  EXPECT_THAT(RangeFolderEntries(program.Folder()), IsEmpty());
}

void ExpectListingFault(const ProgramFolder& folder, RunTimeFault fault) {
  try {
    static_cast<void>(RangeFolderEntries(folder));
    FAIL() << "nothing was thrown";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Fault(), fault) << error.what();
    EXPECT_THAT(error.what(), HasSubstr(RangeFolderPath(folder).string()));
  }
}

TEST(RangeFolderEntries, FolderThatCannotBeReadIsFatalAndNamed) {
  const TemporaryProgram program;
  const std::filesystem::path ranges = RangeFolderPath(program.Folder());
  std::filesystem::remove(ranges);
  ExpectListingFault(program.Folder(), RunTimeFault::kPathNotFound);

  std::ofstream(ranges) << "a file in its place";
  ExpectListingFault(program.Folder(), RunTimeFault::kPathNotFound);
  std::filesystem::remove(ranges);

  std::filesystem::create_symlink("Ranges", ranges);
  ExpectListingFault(program.Folder(), RunTimeFault::kDeviceError);

  ExpectListingFault({program.Folder().Path / std::string(300, 'x')}, RunTimeFault::kBadFileName);
}

// The system refuses nothing to its superuser, so a test run by him steps down for a while.
class OrdinaryUser {
 public:
  OrdinaryUser() : changed_(::geteuid() == 0 && ::seteuid(65534) == 0) {}
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser(OrdinaryUser&&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(OrdinaryUser&&) = delete;
  ~OrdinaryUser() {
    if (changed_ && ::seteuid(0) != 0) std::abort();
  }
  [[nodiscard]] static bool Is() { return ::geteuid() != 0; }

 private:
  bool changed_;
};

TEST(RangeFolderEntries, FolderThatMayNotBeReadIsFatalAndNamed) {
  const TemporaryProgram program;
  std::filesystem::permissions(program.Folder().Path, std::filesystem::perms::all);
  std::filesystem::permissions(RangeFolderPath(program.Folder()), std::filesystem::perms::none);
  {
    const OrdinaryUser user;
    if (!OrdinaryUser::Is()) GTEST_SKIP() << "the superuser may read everything";
    ExpectListingFault(program.Folder(), RunTimeFault::kPermissionDenied);
  }
  std::filesystem::permissions(RangeFolderPath(program.Folder()), std::filesystem::perms::owner_all);
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
    }
  }
}

TEST(FillRangeList, ComboBoxStartsWithABlankEntry) {
  const TemporaryProgram program;
  program.Write("b.txt");
  program.Write("A.txt");
  RecordedList combo("cmboRanges(0)");
  FillRangeList(combo, program.Folder(), "");
  EXPECT_THAT(combo.TakeNotes(), ElementsAre("clear", "add ", "add A", "add b", "select 0"));

  RecordedList list("lstRanges");
  FillRangeList(list, program.Folder(), "");
  EXPECT_THAT(list.TakeNotes(), ElementsAre("clear", "add A", "add b", "select 0"));
}

TEST(FillRangeList, BlankGoesByTheControlsNameWithCase) {
  const TemporaryProgram program;
  RecordedList inside("mycmboBox");
  FillRangeList(inside, program.Folder(), "");
  EXPECT_EQ(inside.Count(), 1);
  RecordedList capital("CmboRanges");
  FillRangeList(capital, program.Folder(), "");
  EXPECT_EQ(capital.Count(), 0);
}

TEST(FillRangeList, EmptyFolderLeavesTheBlankAlone) {
  const TemporaryProgram program;
  RecordedList combo("cmboRanges(3)");
  FillRangeList(combo, program.Folder(), "Gone");
  EXPECT_THAT(combo.TakeNotes(), ElementsAre("clear", "add ", "select 0"));
  RecordedList list("lstRanges");
  FillRangeList(list, program.Folder(), "Gone");
  EXPECT_THAT(list.TakeNotes(), ElementsAre("clear"));
  EXPECT_EQ(list.CurrentText(), "");
}

struct SelectionCase {
  const char* rule;
  const char* control;
  const char* before;  // the entry selected before the list is filled again
  const char* selection;
  const char* selected;
};

TEST(FillRangeList, SelectsTheEntryAskedForOrElseTheOneBeforeOrElseTheFirst) {
  const TemporaryProgram program;
  for (const char* file : {"a.txt", "b.txt", "c.txt"})
    program.Write(file);
  const std::vector<SelectionCase> cases = {
      {"the entry asked for", "cmboRanges(0)", "b", "c", "c"},
      {"nothing asked for keeps what was there", "cmboRanges(0)", "b", "", "b"},
      {"nothing there before stays blank in a combo box", "cmboRanges(0)", "", "", ""},
      {"an entry that is not there gives the blank", "cmboRanges(0)", "b", "x", ""},
      {"names are compared with case", "cmboRanges(0)", "b", "C", ""},
      {"a list keeps what was there", "lstRanges", "c", "", "c"},
      {"a list without a selection takes the first", "lstRanges", "", "", "a"},
      {"a list whose entry is not there takes the first", "lstRanges", "c", "x", "a"},
  };
  for (const SelectionCase& c : cases) {
    RecordedList list(c.control);
    list.Add("gone");
    for (const char* entry : {"", "a", "b", "c"})
      list.Add(entry);
    if (*c.before != '\0') SelectListEntry(list, c.before);
    FillRangeList(list, program.Folder(), c.selection);
    EXPECT_EQ(list.CurrentText(), c.selected) << c.rule;
  }
}

TEST(FillRangeList, RangeThatIsGoneFallsBackToTheFirstEntry) {
  const TemporaryProgram program;
  program.Write("a.txt");
  program.Write("b.txt");
  RecordedList combo("cmboRanges(1)");
  RecordedList list("lstRanges");
  FillRangeList(combo, program.Folder(), "b");
  FillRangeList(list, program.Folder(), "b");
  std::filesystem::remove(program.RangeFile("b.txt"));
  FillRangeList(combo, program.Folder(), "");
  FillRangeList(list, program.Folder(), "");
  EXPECT_EQ(combo.CurrentText(), "");
  EXPECT_EQ(list.CurrentText(), "a");
}

TEST(FillRangeList, FirstOfEqualEntriesIsSelected) {
  const TemporaryProgram program;
  for (const char* file : {"a.txt", "b.log", "b.txt"})
    program.Write(file);
  RecordedList list("lstRanges");
  FillRangeList(list, program.Folder(), "b");
  EXPECT_THAT(list.Entries(), ElementsAre("a", "b", "b"));
  EXPECT_EQ(list.TakeNotes().back(), "select 1");
}

TEST(FillRangeList, FileThatIsNoRangeStandsUnderItsTruncatedName) {
  const TemporaryProgram program;
  program.Write("page.html", "AA (1), ");
  program.Write("loud.TXT", "AA (1), ");
  RecordedList list("lstRanges");
  FillRangeList(list, program.Folder(), "");
  EXPECT_THAT(list.Entries(), ElementsAre("loud", "page."));
  EXPECT_FALSE(RangeExists(program.Folder(), "page."));
  EXPECT_FALSE(RangeExists(program.Folder(), "loud"));
}

TEST(FillRangeList, EmptyFileIsListed) {
  const TemporaryProgram program;
  program.Write("x.txt");
  RecordedList list("lstRanges");
  FillRangeList(list, program.Folder(), "");
  EXPECT_THAT(list.Entries(), ElementsAre("x"));
}

TEST(FillRangeList, FailureLeavesTheListAsItWas) {
  const TemporaryProgram program;
  program.Write("a.txt");
  RecordedList list("lstRanges");
  FillRangeList(list, program.Folder(), "");
  static_cast<void>(list.TakeNotes());

  program.Write("b.c");
  const auto faultOfFilling = [&] { return FaultOf([&] { FillRangeList(list, program.Folder(), ""); }); };
  EXPECT_EQ(faultOfFilling(), RunTimeFault::kInvalidProcedureCall);
  std::filesystem::remove_all(RangeFolderPath(program.Folder()));
  EXPECT_EQ(faultOfFilling(), RunTimeFault::kPathNotFound);
  EXPECT_THAT(list.TakeNotes(), IsEmpty());
}

TEST(SelectListEntry, SelectsTheFirstEqualEntryOrNone) {
  RecordedList list("lstRanges");
  for (const char* entry : {"a", "b", "a"})
    list.Add(entry);
  static_cast<void>(list.TakeNotes());
  SelectListEntry(list, "A");
  SelectListEntry(list, "");
  EXPECT_THAT(list.TakeNotes(), IsEmpty());
  SelectListEntry(list, "b");
  SelectListEntry(list, "b");
  SelectListEntry(list, "a");
  EXPECT_THAT(list.TakeNotes(), ElementsAre("select 1", "select 1", "select 0"));
}

TEST(RefreshRangeLists, FillsEachListInOrderAndKeepsItsChoice) {
  const TemporaryProgram program;
  program.Write("a.txt");
  program.Write("b.txt");
  std::vector<std::string> diary;
  RecordedList first("cmboRanges(0)", &diary);
  RecordedList second("cmboRanges(1)", &diary);
  RecordedList manager("lstRanges", &diary);
  const std::array<ChooserList*, 3> lists = {&first, &second, &manager};

  RefreshRangeLists(lists, program.Folder());
  EXPECT_EQ(first.CurrentText(), "");
  EXPECT_EQ(manager.CurrentText(), "a");
  EXPECT_THAT(diary, ElementsAre("cmboRanges(0)", "cmboRanges(1)", "lstRanges"));

  SelectListEntry(second, "b");
  SelectListEntry(manager, "b");
  program.Write("0.txt");
  RefreshRangeLists(lists, program.Folder());
  EXPECT_EQ(first.CurrentText(), "");
  EXPECT_EQ(second.CurrentText(), "b");
  EXPECT_EQ(manager.CurrentText(), "b");
  EXPECT_THAT(first.Entries(), ElementsAre("", "0", "a", "b"));
  EXPECT_THAT(manager.Entries(), ElementsAre("0", "a", "b"));
}

}  // namespace
}  // namespace quillon
