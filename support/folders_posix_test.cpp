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

class FoldersOnPosix : public testing::Test {
 protected:
  [[nodiscard]] const fs::path& Home() const { return home_.Path(); }

 private:
  TemporaryFolder home_;
};

TEST_F(FoldersOnPosix, ArePermittedWhatTheUsersUmaskLeaves) {
  const mode_t before = ::umask(0027);
  MakeFolder(Home() / "Ranges");
  ::umask(before);
  EXPECT_EQ(fs::status(Home() / "Ranges").permissions(), fs::perms{0750});
}

TEST_F(FoldersOnPosix, ExistWhereALinkLeadsToThem) {
  fs::create_directory(Home() / "folder");
  std::ofstream(Home() / "file") << "x";
  fs::create_directory_symlink(Home() / "folder", Home() / "link");
  fs::create_symlink(Home() / "nowhere", Home() / "dangling");
  fs::create_symlink(Home() / "file", Home() / "link to file");
  EXPECT_TRUE(FolderExists(Home() / "link"));
  EXPECT_FALSE(FolderExists(Home() / "dangling"));
  EXPECT_FALSE(FolderExists(Home() / "link to file"));
}

TEST_F(FoldersOnPosix, ListLinksToNowhereAndNamesThatAreNotUtf8) {
  std::ofstream(Home() / "K\xE4se") << "x";
  fs::create_symlink(Home() / "nowhere", Home() / "dangling");
  EXPECT_THAT(FileNamesIn(Home()), testing::UnorderedElementsAre("Käse", "dangling"));
}

TEST_F(FoldersOnPosix, HaveTheFileOfANameUnderItsOldBytesToo) {
  const auto file = [&](std::string_view name) { return FileOfName(Home(), name).filename().string(); };
  EXPECT_EQ(file("Käse"), "Käse") << "a new one is UTF-8";
  std::ofstream(Home() / "K\xE4se") << "old";
  EXPECT_EQ(file("Käse"), "K\xE4se");
  std::ofstream(Home() / "Käse") << "new";
  EXPECT_EQ(file("Käse"), "Käse");
  fs::create_symlink("nowhere", Home() / "dangling");
  EXPECT_TRUE(IsThere(Home() / "dangling"));
  EXPECT_FALSE(IsThere(Home() / "nowhere"));
}

}  // namespace
}  // namespace quillon
