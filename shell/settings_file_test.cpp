#include "shell/settings_file.h"

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "testing/file_bytes.h"
#include "testing/file_calls.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

std::ptrdiff_t EntriesOf(const ProgramFolder& folder) {
  return std::distance(std::filesystem::directory_iterator(folder.Path), std::filesystem::directory_iterator());
}

TEST(SettingsFile, IsInTheCodePageAndMadeByTheFirstWrite) {
  const TemporaryProgram program;
  EXPECT_EQ(SettingsFilePath(program.Folder()), program.Folder().Path / "settings.ini");
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "");
  EXPECT_EQ(EntriesOf(program.Folder()), 1) << "reading creates no file; the range folder existed";
  WriteIniValue("Values", "0", "5 € ♠", program.Folder());
  EXPECT_EQ(BytesOf(SettingsFilePath(program.Folder())), "[Values]\r\n0=5 \x80 ?\r\n");
  EXPECT_EQ(ReadIniValue("Values", "0", program.Folder()), "5 € ?");
  EXPECT_EQ(EntriesOf(program.Folder()), 2) << "no scratch file is left";
}

TEST(SettingsFile, IsReadUpTo2999Characters) {
  const TemporaryProgram program;
  for (const std::size_t length : {2999U, 3000U, 100000U}) {
    WriteIniValue("Values", "0", " " + std::string(length, 'x'), program.Folder());
    EXPECT_EQ(ReadIniValue("Values", "0", program.Folder()), " " + std::string(2998, 'x')) << length;
  }
  std::string euros;
  for (int i = 0; i < 3500; ++i)
    euros += "€";
  WriteIniValue("Values", "0", euros, program.Folder());
  EXPECT_EQ(ReadIniValue("Values", "0", program.Folder()), euros.substr(0, 2999 * std::string_view("€").size()))
      << "characters count, not bytes";
}

TEST(SettingsFile, ThatCannotBeReadIsNotOverwritten) {
  const TemporaryProgram program;
  Put(SettingsFilePath(program.Folder()), "[Main]\r\nLeft=5\r\n");
  for (const int call : {2, 3}) {  // after locking its folder: opening the file, reading it
    FailingCalls calls(call);
    WriteIniValue("Main", "Left", "7", {program.Folder().Path, &calls});
    EXPECT_TRUE(calls.HasFailed());
    EXPECT_EQ(BytesOf(SettingsFilePath(program.Folder())), "[Main]\r\nLeft=5\r\n") << "call " << call;
    EXPECT_EQ(EntriesOf(program.Folder()), 2) << "call " << call;
  }
}

TEST(SettingsFile, InUtf16IsNeitherReadNorWritten) {
  using namespace std::string_literals;
  const TemporaryProgram program;
  for (const std::string& text : {"\xFF\xFE[\0M\0a\0i\0n\0]\0\n\0L\0=\0005\0"s, "\xFE\xFF\0[\0M"s, "[\0M\0"s, "\0[\0M"s,
                                  "\0"s, "\xFF\xFE\n[Main]\nLeft=5\n"s}) {
    Put(SettingsFilePath(program.Folder()), text);
    EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "");
    WriteIniValue("Main", "Left", "7", program.Folder());
    EXPECT_EQ(BytesOf(SettingsFilePath(program.Folder())), text);
  }
}

TEST(SettingsFile, ManyValuesAreOneWrite) {
  const TemporaryProgram program;
  Put(SettingsFilePath(program.Folder()), "[Main]\nLeft=5\n");
  WatchedCalls calls;
  const std::vector<IniSetting> settings = {{"Main", "Left", "7"}, {"Values", "0", "€"}, {"Main", "Top", "8"}};
  WriteIniValues(settings, {program.Folder().Path, &calls});
  EXPECT_EQ(BytesOf(SettingsFilePath(program.Folder())), "[Main]\nLeft=7\nTop=8\n[Values]\n0=\x80\n");
  EXPECT_EQ(calls.Count(Call::kRename), 1);
  WriteIniValues({}, {program.Folder().Path, &calls});
  EXPECT_EQ(calls.Count(Call::kRename), 1);
}

TEST(SettingsFile, ThatIsAFolderStays) {
  const TemporaryProgram program;
  std::filesystem::create_directory(SettingsFilePath(program.Folder()));
  EXPECT_NO_THROW(WriteIniValue("Main", "Left", "7", program.Folder()));
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "");
  EXPECT_TRUE(std::filesystem::is_directory(SettingsFilePath(program.Folder())));
  EXPECT_NO_THROW(WriteIniValue("Main", "Left", "7", ProgramFolder{"/no/such/folder"}));
}

TEST(SettingsFile, IsNotTouchedByTheValueItHas) {
  const TemporaryProgram program;
  Put(SettingsFilePath(program.Folder()), "[Main]\nLeft = 7\n");
  WatchedCalls calls;
  WriteIniValue("Main", "Left", "7", {program.Folder().Path, &calls});
  EXPECT_TRUE(calls.ScratchFiles().empty());
  WriteIniValue("Main", "Left", "8", {program.Folder().Path, &calls});
  EXPECT_EQ(calls.ScratchFiles().size(), 1U);
}

}  // namespace
}  // namespace quillon
