#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

// The Windows headers define macros with these names.
#undef DeleteFile
#undef ReplaceFile

#include "support/files.h"
#include "support/folders.h"
#include "support/run_time_error.h"
#include "testing/saved_files.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

bool IsWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

class FileOpenElsewhere : public Files {
 protected:
  void SetUp() override {
    Files::SetUp();
    Put(File(), kOld);
  }
  // Opens it as another program would, sharing as `shared` says.
  void OpenWith(DWORD shared) {
    handle_ = CreateFileW(File().c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(handle_, INVALID_HANDLE_VALUE);
  }
  // What the other reads.
  [[nodiscard]] std::string Held() const {
    std::string bytes(100, '\0');
    DWORD count = 0;
    EXPECT_NE(ReadFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr), 0);
    return bytes.substr(0, count);
  }
  void TearDown() override {
    CloseHandle(handle_);
    Files::TearDown();
  }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

TEST_F(FileOpenElsewhere, IsReplacedWhateverOfThatTheOtherAllows) {
  OpenWith(FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  EXPECT_FALSE(Replace(SystemFileCalls()));
  EXPECT_EQ(BytesOf(File()), kNew);
  ExpectNoScratchFiles();
  EXPECT_EQ(Held(), IsWine() ? kNew : kOld) << "Wine 8 cannot replace an open file, so there it is written in place";
}

TEST_F(FileOpenElsewhere, IsWrittenInPlaceWhereItMayNotBeReplaced) {
  OpenWith(FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_FALSE(Replace(SystemFileCalls()));
  EXPECT_EQ(BytesOf(File()), kNew);
  ExpectNoScratchFiles();
}

TEST_F(FileOpenElsewhere, StaysWhereTheOtherAllowsNoWriting) {
  OpenWith(FILE_SHARE_READ);
  const auto error = Replace(SystemFileCalls());
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Fault(), RunTimeFault::kPathFileAccess);
  EXPECT_THAT(error->what(), testing::HasSubstr("Button.txt: Another program has it open"));
  EXPECT_EQ(BytesOf(File()), kOld);
  ExpectNoScratchFiles();
}

using FilesOfWindows = Files;

TEST_F(FilesOfWindows, ThatAreReadOnlyStay) {
  Put(File(), kOld);
  ASSERT_NE(SetFileAttributesW(File().c_str(), FILE_ATTRIBUTE_READONLY), 0);
  const auto error = Replace(SystemFileCalls());
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Fault(), RunTimeFault::kPermissionDenied);
  EXPECT_EQ(BytesOf(File()), kOld);
  ExpectNoScratchFiles();
  ASSERT_NE(SetFileAttributesW(File().c_str(), FILE_ATTRIBUTE_NORMAL), 0);
}

// Creates a folder within this one whose path is far longer than 259 characters.
fs::path DeepFolderIn(fs::path folder) {
  for (int level = 0; level < 5; ++level) {
    folder /= PathOf(std::string(100, static_cast<char>('a' + level)) + " ä 漢");
    EXPECT_EQ(SystemFileCalls().MakeFolder(folder.string()), 0) << level;
    EXPECT_TRUE(FolderExists(folder)) << level;
  }
  return folder;
}

// Some are names of devices, which a path in the usual form would lead to.
TEST_F(FilesOfWindows, HaveTheirNamesHoweverLongTheirPathIs) {
  const fs::path folder = DeepFolderIn(Folder());
  for (const char* name : {"Größe.txt", "CON.txt", "nul.json"}) {
    ReplaceFile(folder / PathOf(name), kOld, ScratchFolder());
    EXPECT_EQ(ReadAllBytes(folder / PathOf(name)), kOld) << name;
    EXPECT_TRUE(IsThere(folder / PathOf(name))) << name;
    ReplaceFile(folder / PathOf(name), kNew, ScratchFolder());
    EXPECT_EQ(ReadAllBytes(folder / PathOf(name)), kNew) << name;
  }
  EXPECT_THAT(FileNamesIn(folder), testing::UnorderedElementsAre("Größe.txt", "CON.txt", "nul.json"));
  for (const char* name : {"Größe.txt", "CON.txt", "nul.json"})
    DeleteFile(folder / PathOf(name));
  EXPECT_THAT(FileNamesIn(folder), testing::IsEmpty());
  EXPECT_FALSE(IsThere(folder / "CON.txt"));
}

TEST_F(FilesOfWindows, AreToldFromFoldersAndByTheirAgeHoweverLongTheirPathIs) {
  const fs::path folder = DeepFolderIn(Folder());
  ASSERT_EQ(SystemFileCalls().MakeFolder((folder / "inner").string()), 0);
  for (const char* name : {"range.txt", ".quillon-1-0.tmp", ".quillon-2-0.tmp"})
    ReplaceFile(folder / name, kOld, ScratchFolder());
  const HANDLE old = CreateFileW((LR"(\\?\)" + (folder / ".quillon-1-0.tmp").native()).c_str(), FILE_WRITE_ATTRIBUTES,
                                 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  const FILETIME longAgo = {.dwLowDateTime = 0, .dwHighDateTime = 0x01D00000};  // 2014
  EXPECT_NE(SetFileTime(old, nullptr, nullptr, &longAgo), 0);
  CloseHandle(old);
  RemoveStaleScratchFiles(folder);
  EXPECT_FALSE(IsThere(folder / ".quillon-1-0.tmp"));
  EXPECT_TRUE(IsThere(folder / ".quillon-2-0.tmp"));
  EXPECT_THAT(FileNamesIn(folder), testing::ElementsAre("range.txt"));
}

// Wine cannot store such a name.
TEST_F(FilesOfWindows, WithHalfASurrogatePairInTheirNamesAreLeftOut) {
  const std::wstring name = (Folder() / L"a").native() + wchar_t{0xD800} + L".txt";
  const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) GTEST_SKIP() << "this file system has no such names";
  CloseHandle(file);
  Put(File(), kOld);
  EXPECT_THAT(FileNamesIn(Folder()), testing::ElementsAre("Button.txt"));
  RemoveStaleScratchFiles(Folder());
  ::DeleteFileW(name.c_str());
}

// Wine 8 neither creates links nor deletes them, but follows those of its host system, whose own commands do both here.
void RunOnHost(const fs::path& folder, const std::wstring& command, std::wstring line) {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  CreateProcessW((LR"(\\?\unix\bin\)" + command).c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                 folder.c_str(), &start, &process);
}

bool MakeLink(const fs::path& folder, const std::wstring& target, const std::wstring& link) {
  const fs::path path = folder / link;
  CreateSymbolicLinkW(path.c_str(), target.c_str(), SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE);
  if (IsWine()) RunOnHost(folder, L"ln", L"ln -s " + target + L" " + link);
  for (int attempt = 0; attempt < 500 && !IsThere(path); ++attempt)
    Sleep(10);
  return IsThere(path);
}

void RemoveLink(const fs::path& folder, const std::wstring& link) {
  const fs::path path = folder / link;
  if (IsWine())
    RunOnHost(folder, L"rm", L"rm " + link);
  else
    ::DeleteFileW(path.c_str());
  for (int attempt = 0; attempt < 500 && IsThere(path); ++attempt)
    Sleep(10);
}

TEST_F(FilesOfWindows, AreReplacedWhereALinkLeads) {
  Put(Folder() / "kept.txt", kOld);
  if (!MakeLink(Folder(), L"kept.txt", L"Button.txt")) GTEST_SKIP() << "only some users may create links";
  for (const auto& content : {kNew, kOld}) {  // the link outlives the first
    ReplaceFile(File(), content, ScratchFolder());
    EXPECT_EQ(BytesOf(File()), content);
    EXPECT_EQ(BytesOf(Folder() / "kept.txt"), content);
  }
  ExpectNoScratchFiles();
  RemoveLink(Folder(), L"Button.txt");
  EXPECT_THAT(Listing(Folder()), testing::ElementsAre("kept.txt"));
}

TEST_F(FilesOfWindows, AreReachedByEveryFormOfAPath) {
  Put(File(), kOld);
  const std::string path = File().string();
  const fs::path before = fs::current_path();
  fs::current_path(Folder());
  std::string slashes = path;
  std::replace(slashes.begin(), slashes.end(), '\\', '/');
  const std::string inner = (Folder() / "a" / ".." / "." / "Button.txt").string();
  for (const std::string& form : {path, slashes, inner, R"(\\?\)" + path, path.substr(2), std::string("Button.txt"),
                                  std::string("../Ranges/button.TXT")})
    EXPECT_EQ(ReadAllBytes(PathOf(form)), kOld) << form;
  fs::current_path(before);
}

// Windows shares every disk with its administrators; for Wine tools/windows/check_core.sh makes this share.
TEST_F(FilesOfWindows, AreReachedOnAShare) {
  const std::string share = R"(\\localhost\C$)";
  if (GetFileAttributesW(PathOf(share + "\\").c_str()) == INVALID_FILE_ATTRIBUTES) GTEST_SKIP() << "no share of disk C";
  Put(File(), kOld);
  ASSERT_TRUE(File().string().starts_with("C:"));
  const fs::path folder = PathOf(share + Folder().string().substr(2));
  for (const fs::path& form : {folder / "Button.txt", folder / ".." / "Ranges" / "." / "Button.txt"})
    EXPECT_EQ(ReadAllBytes(form), kOld) << form;
  ReplaceFile(folder / "Button.txt", kNew, folder);
  EXPECT_EQ(BytesOf(File()), kNew);
  EXPECT_THAT(FileNamesIn(folder), testing::ElementsAre("Button.txt"));
  const fs::path before = fs::current_path();
  fs::current_path(folder);
  EXPECT_EQ(ReadAllBytes("Button.txt"), kNew) << fs::current_path();
  fs::current_path(before);
}

TEST(DevicesOfWindows, AreOpenedByEachOfTheirNames) {
  for (const char* name : {"NUL", "nul", R"(\\.\NUL)", "//./NUL"}) {
    const int file = SystemFileCalls().Open(name, OpenFor::kReading, 0);
    EXPECT_GE(file, 0) << name;
    SystemFileCalls().Close(file);
  }
}

TEST(PathsOfWindows, ShowOneKindOfSeparator) {
  EXPECT_EQ(PathOf("C:/Quillon\\Ranges/x.txt").string(), R"(C:\Quillon\Ranges\x.txt)");
  EXPECT_EQ(FileOfName(PathOf("//server/share/Ranges"), "x.txt").string(), R"(\\server\share\Ranges\x.txt)");
}

}  // namespace
}  // namespace quillon
