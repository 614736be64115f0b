#include "shell/settings_file.h"

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "testing/file_calls.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

void Put(const ProgramFolder& folder, std::string_view bytes) {
  std::ofstream(SettingsFilePath(folder), std::ios::binary) << bytes;
}

std::string Content(const ProgramFolder& folder) {
  std::ostringstream bytes;
  bytes << std::ifstream(SettingsFilePath(folder), std::ios::binary).rdbuf();
  return bytes.str();
}

std::ptrdiff_t EntriesOf(const ProgramFolder& folder) {
  return std::distance(std::filesystem::directory_iterator(folder.Path), std::filesystem::directory_iterator());
}

TEST(SettingsFile, StandsInTheProgramsFolder) {
  EXPECT_EQ(SettingsFilePath({"/opt/quillon"}), "/opt/quillon/settings.ini");
}

TEST(SettingsFile, MissingFileSectionOrKeyIsTheEmptyText) {
  const TemporaryProgram program;
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "");
  EXPECT_EQ(EntriesOf(program.Folder()), 1) << "reading makes no file; the range folder is there";
  Put(program.Folder(), "[Main]\r\nLeft=5\r\n");
  EXPECT_EQ(ReadIniValue("Main", "Top", program.Folder()), "");
  EXPECT_EQ(ReadIniValue("New", "Left", program.Folder()), "");
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "5");
}

TEST(SettingsFile, IsMadeByTheFirstWrite) {
  const TemporaryProgram program;
  WriteIniValue("Upgrade", "Auto", "1", program.Folder());
  EXPECT_EQ(Content(program.Folder()), "[Upgrade]\r\nAuto=1\r\n");
  EXPECT_EQ(EntriesOf(program.Folder()), 2) << "no scratch file stays";
}

TEST(SettingsFile, KeepsTheOtherLines) {
  const TemporaryProgram program;
  Put(program.Folder(), "; mine\r\n[Main]\r\nLeft=5\r\nHello\r\n[Other]\r\nLeft=6\r\n");
  WriteIniValue("Main", "Left", "7", program.Folder());
  WriteIniValue("Main", "Top", "8", program.Folder());
  EXPECT_EQ(Content(program.Folder()), "; mine\r\n[Main]\r\nLeft=7\r\nTop=8\r\nHello\r\n[Other]\r\nLeft=6\r\n");
}

TEST(SettingsFile, GivesEveryTextBackAsItStood) {
  const TemporaryProgram program;
  for (const char* text : {"", "150", "=735+220-178", "abc", "  35 dollars ", "\"5\"", "'5'", "\"", "5 €", "Grüße",
                           "; no comment", "[Main]", "a=b", "\t", " \" "}) {
    WriteIniValue("Values", "0", text, program.Folder());
    EXPECT_EQ(ReadIniValue("Values", "0", program.Folder()), text);
  }
}

TEST(SettingsFile, IsInTheCodePage) {
  const TemporaryProgram program;
  WriteIniValue("Values", "0", "5 € ♠", program.Folder());
  EXPECT_EQ(Content(program.Folder()), "[Values]\r\n0=5 \x80 ?\r\n");
  EXPECT_EQ(ReadIniValue("Values", "0", program.Folder()), "5 € ?");
}

TEST(SettingsFile, IsReadUpTo2999Characters) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {std::string(2999, 'x'), std::string(2999, 'x')},
      {std::string(3000, 'x'), std::string(2999, 'x')},
      {std::string(100000, 'x'), std::string(2999, 'x')},
      {" " + std::string(2999, 'x'), " " + std::string(2998, 'x')},
  };
  const TemporaryProgram program;
  for (const auto& [text, read] : cases) {
    WriteIniValue("Values", "0", text, program.Folder());
    EXPECT_EQ(ReadIniValue("Values", "0", program.Folder()), read) << "length " << text.size();
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
  Put(program.Folder(), "[Main]\r\nLeft=5\r\n");
  for (const int call : {2, 3}) {  // after the lock of its folder: opening the file, reading it
    FailingCalls calls(call);
    WriteIniValue("Main", "Left", "7", {program.Folder().Path, &calls});
    EXPECT_TRUE(calls.HasFailed());
    EXPECT_EQ(Content(program.Folder()), "[Main]\r\nLeft=5\r\n") << "call " << call;
    EXPECT_EQ(EntriesOf(program.Folder()), 2) << "call " << call;
  }
}

TEST(SettingsFile, InUtf16IsNeitherReadNorWritten) {
  using namespace std::string_literals;
  const TemporaryProgram program;
  for (const std::string& text : {"\xFF\xFE[\0M\0a\0i\0n\0]\0\n\0L\0=\0005\0"s, "\xFE\xFF\0[\0M"s, "[\0M\0"s, "\0[\0M"s,
                                  "\0"s, "\xFF\xFE\n[Main]\nLeft=5\n"s}) {
    Put(program.Folder(), text);
    EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "");
    WriteIniValue("Main", "Left", "7", program.Folder());
    EXPECT_EQ(Content(program.Folder()), text);
  }
}

TEST(SettingsFile, ManyValuesAreOneWrite) {
  const TemporaryProgram program;
  Put(program.Folder(), "[Main]\nLeft=5\n");
  WatchedCalls calls;
  const std::vector<IniSetting> settings = {{"Main", "Left", "7"}, {"Values", "0", "€"}, {"Main", "Top", "8"}};
  WriteIniValues(settings, {program.Folder().Path, &calls});
  EXPECT_EQ(Content(program.Folder()), "[Main]\nLeft=7\nTop=8\n[Values]\n0=\x80\n");
  EXPECT_EQ(calls.Count(Call::kRename), 1);
  WriteIniValues({}, {program.Folder().Path, &calls});
  EXPECT_EQ(calls.Count(Call::kRename), 1);
}

TEST(SettingsFile, InAFolderThatIsNotThereIsNeitherReadNorWritten) {
  const ProgramFolder nowhere{"/no/such/folder"};
  EXPECT_NO_THROW(WriteIniValue("Main", "Left", "7", nowhere));
  EXPECT_EQ(ReadIniValue("Main", "Left", nowhere), "");
}

TEST(SettingsFile, ThatIsAFolderStays) {
  const TemporaryProgram program;
  std::filesystem::create_directory(SettingsFilePath(program.Folder()));
  EXPECT_NO_THROW(WriteIniValue("Main", "Left", "7", program.Folder()));
  EXPECT_EQ(ReadIniValue("Main", "Left", program.Folder()), "");
  EXPECT_TRUE(std::filesystem::is_directory(SettingsFilePath(program.Folder())));
}

TEST(SettingsFile, IsNotTouchedByTheValueItHas) {
  const TemporaryProgram program;
  Put(program.Folder(), "[Main]\nLeft = 7\n");
  WatchedCalls calls;
  WriteIniValue("Main", "Left", "7", {program.Folder().Path, &calls});
  EXPECT_TRUE(calls.ScratchFiles().empty());
  WriteIniValue("Main", "Left", "8", {program.Folder().Path, &calls});
  EXPECT_EQ(calls.ScratchFiles().size(), 1U);
}

}  // namespace
}  // namespace quillon
