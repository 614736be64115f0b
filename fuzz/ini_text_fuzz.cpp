// Settings files of arbitrary bytes, against the oracle, which splits them into lines first.

#include <array>
#include <string>

#include "fuzz/fuzz_target.h"
#include "shell/ini_text.h"
#include "shell/settings_file.h"
#include "support/windows_1252.h"
#include "testing/memory_files.h"
#include "testing/oracle/settings.h"

namespace quillon {
namespace {

std::string FirstLine(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of("\r\n")));
}

// Whether `longer` is `text` with some bytes inserted at one place.
bool HasInsertion(std::string_view longer, std::string_view text) {
  std::size_t same = 0;
  while (same < text.size() && same < longer.size() && longer[same] == text[same])
    ++same;
  return longer.ends_with(text.substr(same));
}

void CheckWriting(std::string_view text, const std::string& section, const std::string& key, std::string_view value) {
  const std::string after = WithIniValue(text, section, key, value);
  Require(IniValue(after, section, key) == FirstLine(value), "what was written reads back");
  Require(plain::IniValue(after, section, key) == FirstLine(value), "the oracle reads back what was written");
  Require(WithIniValue(after, section, key, value) == after, "writing twice is writing once");

  for (const char* const other : {"Left", "Top", "Auto", "0"}) {
    if (other == key) continue;
    Require(IniValue(after, section, other) == IniValue(text, section, other), "other keys keep their values");
  }
  const bool isNew = IniValue(text, section, key).empty() && text.find('=') == std::string_view::npos;
  if (isNew) Require(HasInsertion(after, text), "a new key changes no other byte");
}

// The same through the file, with text of the code page.
void CheckFile(std::string_view bytes, const std::string& section, const std::string& key, std::string_view value) {
  MemoryFiles files;
  const ProgramFolder folder{"/quillon-fuzz", &files};
  files.Contents[SettingsFilePath(folder).string()] = bytes;

  const bool wide = plain::IsUtf16(bytes);
  const std::string stored = wide ? "" : FirstLine(Windows1252FromUtf8(value)).substr(0, kLongestSetting);
  WriteIniValue(section, key, value, folder);
  Require(!wide || files.Contents.begin()->second == bytes, "a UTF-16 file is unchanged");
  Require(ReadIniValue(section, key, folder) == Utf8FromWindows1252(stored), "a setting reads back from its file");
  Require(files.Contents.size() == 1, "no scratch file is left");
  Require(files.AllClosed(), "no file stays open");
}

}  // namespace

void CheckInput(FuzzInput input) {
  const std::string section = input.TakeBelow(2) == 0 ? "Main" : "Values";
  constexpr std::array<const char*, 4> kKeys = {"Left", "Top", "Auto", "0"};
  const std::string key = kKeys[input.TakeBelow(kKeys.size())];
  const std::string value(input.TakeText(input.TakeBelow(32)));
  const std::string_view text = input.Rest();

  Require(IniValue(text, section, key) == plain::IniValue(text, section, key), "a value equals the plain one");
  CheckWriting(text, section, key, value);
  CheckFile(text, section, key, value);
}

}  // namespace quillon
