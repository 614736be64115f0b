#pragma once

// A file of the user's, for tests of replacing it.

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "support/files.h"
#include "testing/fault_of.h"
#include "testing/file_bytes.h"
#include "testing/file_calls.h"
#include "testing/temporary_folder.h"

namespace quillon {

inline const std::string kOld = "AA (1), KK (0), \r\n";
inline const std::string kNew = "AA (0.5), KK (1), QQ (1), \r\n";

inline std::vector<std::string> Listing(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

inline WatchedCalls::Fault FailOnce(int atNumber, int error) {
  return [=](const MadeCall&, int number) { return number == atNumber ? std::optional(-error) : std::nullopt; };
}

// Replaces the file and returns the failure, if any.
inline std::optional<RunTimeError> FailureOfReplacing(const std::filesystem::path& path,
                                                      const std::filesystem::path& scratchFolder, FileCalls& calls) {
  return FailureOf([&] { ReplaceFile(path, kNew, scratchFolder, calls); });
}

// A user's folder and one for scratch files, both temporary.
class Files : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::create_directory(Folder());
    std::filesystem::create_directory(ScratchFolder());
  }

  [[nodiscard]] std::filesystem::path Folder() const { return root_.Path() / "Ranges"; }
  [[nodiscard]] std::filesystem::path ScratchFolder() const { return root_.Path() / "program"; }
  [[nodiscard]] std::filesystem::path File() const { return Folder() / "Button.txt"; }

  void ExpectNoScratchFiles() const {
    EXPECT_THAT(Listing(Folder()), testing::Each(testing::Not(testing::HasSubstr("quillon"))));
    EXPECT_THAT(Listing(ScratchFolder()), testing::IsEmpty());
  }

  [[nodiscard]] std::optional<RunTimeError> Replace(FileCalls& calls) const {
    return FailureOfReplacing(File(), ScratchFolder(), calls);
  }

 private:
  TemporaryFolder root_;
};

// The same with a writable file, whatever the folders' permissions.
class WritingInPlace : public Files {
 protected:
  static constexpr auto kReadOnly = static_cast<std::filesystem::perms>(0555);

  void SetUp() override {
    Files::SetUp();
    Put(File(), kOld);
    std::filesystem::permissions(File(), std::filesystem::perms::all);
    std::filesystem::permissions(Folder().parent_path(), std::filesystem::perms::all);
    std::filesystem::permissions(ScratchFolder(), std::filesystem::perms::all);
  }
  void TearDown() override {
    std::filesystem::permissions(Folder(), std::filesystem::perms::all);
    Files::TearDown();
  }
};

}  // namespace quillon
