#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ranges/range_lists.h"
#include "support/run_time_error.h"
#include "testing/fault_of.h"
#include "testing/ordinary_user.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(RangeFolderEntries, ListsLinksButForThoseToFolders) {
  const TemporaryProgram program;
  program.Write("b.txt");
  std::filesystem::create_directory(program.RangeFile("folder.txt"));
  std::filesystem::create_directory_symlink("folder.txt", program.RangeFile("shortcut.txt"));
  std::filesystem::create_symlink("b.txt", program.RangeFile("link.txt"));
  std::filesystem::create_symlink("nowhere", program.RangeFile("lost.txt"));
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre("b.txt", "link.txt", "lost.txt"));
}

TEST(RangeFolderEntries, NamesTheSameInSmallLettersAreInByteOrder) {
  const TemporaryProgram program;
  for (const char* name :
       {"ß.txt", "é.txt", "É.txt", "ärger2.txt", "Ärger.txt", "×.txt", "_a.txt", "gamma.txt", "ZZ.txt", "za.txt",
        "AA.txt", "beta.txt", "Beta.txt", "BETA.txt", "alpha2.txt", "Alpha.txt", "9.txt", "10.txt"})
    program.Write(name);
  EXPECT_THAT(
      RangeFolderEntries(program.Folder()),
      ElementsAre("10.txt", "9.txt", "_a.txt", "AA.txt", "Alpha.txt", "alpha2.txt", "BETA.txt", "Beta.txt", "beta.txt",
                  "gamma.txt", "za.txt", "ZZ.txt", "×.txt", "ß.txt", "Ärger.txt", "ärger2.txt", "É.txt", "é.txt"));
}

TEST(RangeFolderEntries, NameThatIsNotUtf8IsShownAsWindows1252) {
  const TemporaryProgram program;
  for (const char* name : {"K\xE4se.txt", "Käse.txt", "Kabel.txt"})
    program.Write(name);
  EXPECT_THAT(RangeFolderEntries(program.Folder()), ElementsAre("Kabel.txt", "Käse.txt", "Käse.txt"));
}

TEST(RangeFolderEntries, FolderThatIsALinkToItselfIsFatalAndNamed) {
  const TemporaryProgram program;
  std::filesystem::remove(RangeFolderPath(program.Folder()));
  std::filesystem::create_symlink("Ranges", RangeFolderPath(program.Folder()));
  const auto list = [&] { return RangeFolderEntries(program.Folder()); };
  EXPECT_EQ(FaultOf(list), RunTimeFault::kDeviceError);
  EXPECT_THAT(FaultTextOf(list), HasSubstr(RangeFolderPath(program.Folder()).string()));
}

TEST(RangeFolderEntries, FolderThatMayNotBeReadIsFatalAndNamed) {
  const TemporaryProgram program;
  std::filesystem::permissions(program.Folder().Path, std::filesystem::perms::all);
  std::filesystem::permissions(RangeFolderPath(program.Folder()), std::filesystem::perms::none);
  {
    const OrdinaryUser user;
    EXPECT_EQ(FaultOf([&] { return RangeFolderEntries(program.Folder()); }), RunTimeFault::kPermissionDenied);
  }
  std::filesystem::permissions(RangeFolderPath(program.Folder()), std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace quillon
