#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include "support/folders.h"
#include "testing/temporary_folder.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

class FoldersOnPosix : public testing::Test, public TemporaryFolder {};

TEST_F(FoldersOnPosix, ArePermittedWhatTheUsersUmaskLeaves) {
  const mode_t before = ::umask(0027);
  MakeFolder(Path() / "Ranges");
  ::umask(before);
  EXPECT_EQ(fs::status(Path() / "Ranges").permissions(), fs::perms{0750});
}

TEST_F(FoldersOnPosix, ExistWhereALinkLeadsToThem) {
  fs::create_directory(Path() / "folder");
  std::ofstream(Path() / "file") << "x";
  fs::create_directory_symlink(Path() / "folder", Path() / "link");
  fs::create_symlink(Path() / "nowhere", Path() / "dangling");
  fs::create_symlink(Path() / "file", Path() / "link to file");
  EXPECT_TRUE(FolderExists(Path() / "link"));
  EXPECT_FALSE(FolderExists(Path() / "dangling"));
  EXPECT_FALSE(FolderExists(Path() / "link to file"));
}

TEST_F(FoldersOnPosix, ListLinksToNowhereAndNamesThatAreNotUtf8) {
  std::ofstream(Path() / "K\xE4se") << "x";
  fs::create_symlink(Path() / "nowhere", Path() / "dangling");
  EXPECT_THAT(FileNamesIn(Path()), testing::UnorderedElementsAre("Käse", "dangling"));
}

TEST_F(FoldersOnPosix, HaveTheFileOfANameUnderItsOldBytesToo) {
  const auto file = [&](std::string_view name) { return FileOfName(Path(), name).filename().string(); };
  EXPECT_EQ(file("Käse"), "Käse") << "a new one is UTF-8";
  std::ofstream(Path() / "K\xE4se") << "old";
  EXPECT_EQ(file("Käse"), "K\xE4se");
  std::ofstream(Path() / "Käse") << "new";
  EXPECT_EQ(file("Käse"), "Käse");
  fs::create_symlink("nowhere", Path() / "dangling");
  EXPECT_TRUE(IsThere(Path() / "dangling"));
  EXPECT_FALSE(IsThere(Path() / "nowhere"));
}

}  // namespace
}  // namespace quillon
