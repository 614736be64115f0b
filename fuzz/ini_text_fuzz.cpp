// Settings files of any bytes, against a plain reader that splits them into lines first.

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "fuzz/memory_files.h"
#include "shell/ini_text.h"
#include "shell/settings_file.h"
#include "support/windows_1252.h"

namespace quillon {
namespace {

std::string PlainTrimmed(std::string text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && isBlank(text.back()))
    text.pop_back();
  while (!text.empty() && isBlank(text.front()))
    text.erase(0, 1);
  return text;
}

std::string PlainLower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
  }
  return text;
}

std::vector<std::string> PlainLines(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\n' || c == '\r')
      lines.emplace_back();
    else
      lines.back() += c;
  }
  return lines;
}

std::string PlainValue(std::string_view text, const std::string& section, const std::string& key) {
  bool found = false;
  for (const std::string& line : PlainLines(text)) {
    const std::string trimmed = PlainTrimmed(line);
    const std::size_t close = trimmed.find(']');
    const std::size_t equals = line.find('=');
    if (!trimmed.empty() && trimmed[0] == '[' && close != std::string::npos) {
      if (found) return {};
      found = PlainLower(PlainTrimmed(trimmed.substr(1, close - 1))) == PlainLower(section);
    } else if (found && equals != std::string::npos && trimmed[0] != ';' &&
               PlainLower(PlainTrimmed(line.substr(0, equals))) == PlainLower(key)) {
      std::string value = PlainTrimmed(line.substr(equals + 1));
      const bool quoted = value.size() >= 2 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
      return quoted ? value.substr(1, value.size() - 2) : value;
    }
  }
  return {};
}

bool PlainIsUtf16(std::string_view text) {
  const bool marked = text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF");
  return marked || (text.size() >= 2 && std::count(text.begin(), text.begin() + 2, '\0') == 1);
}

std::string FirstLine(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of("\r\n")));
}

// Whether `longer` is `text` with some bytes put in at one place.
bool HasInsertion(std::string_view longer, std::string_view text) {
  std::size_t same = 0;
  while (same < text.size() && same < longer.size() && longer[same] == text[same])
    ++same;
  return longer.ends_with(text.substr(same));
}

void CheckWriting(std::string_view text, const std::string& section, const std::string& key, std::string_view value) {
  const std::string after = WithIniValue(text, section, key, value);
  Require(IniValue(after, section, key) == FirstLine(value), "what was written reads back");
  Require(PlainValue(after, section, key) == FirstLine(value), "what was written reads back in the plain way");
  Require(WithIniValue(after, section, key, value) == after, "writing twice is writing once");

  for (const char* const other : {"Left", "Top", "Auto", "0"}) {
    if (PlainLower(other) == PlainLower(key)) continue;
    Require(IniValue(after, section, other) == IniValue(text, section, other), "other keys keep their values");
  }
  const bool isNew = IniValue(text, section, key).empty() && text.find('=') == std::string_view::npos;
  if (isNew) Require(HasInsertion(after, text), "a new key leaves every byte as it is");
}

// The same through the file, with the text of the code page.
void CheckFile(std::string_view bytes, const std::string& section, const std::string& key, std::string_view value) {
  MemoryFiles files;
  const ProgramFolder folder{"/quillon-fuzz", &files};
  files.Contents[SettingsFilePath(folder).string()] = bytes;

  const bool wide = PlainIsUtf16(bytes);
  const std::string stored = wide ? "" : FirstLine(Windows1252FromUtf8(value)).substr(0, kLongestSetting);
  WriteIniValue(section, key, value, folder);
  Require(!wide || files.Contents.begin()->second == bytes, "a file in UTF-16 stays as it is");
  Require(ReadIniValue(section, key, folder) == Utf8FromWindows1252(stored), "a setting reads back from its file");
  Require(files.Contents.size() == 1, "no scratch file stays");
  Require(files.AllClosed(), "no file stays open");
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  const std::string section = input.TakeBelow(2) == 0 ? "Main" : "Values";
  constexpr std::array<const char*, 4> kKeys = {"Left", "Top", "Auto", "0"};
  const std::string key = kKeys[input.TakeBelow(kKeys.size())];
  const std::string value(input.TakeText(input.TakeBelow(32)));
  const std::string_view text = input.Rest();

  Require(IniValue(text, section, key) == PlainValue(text, section, key), "a value equals the plain one");
  CheckWriting(text, section, key, value);
  CheckFile(text, section, key, value);
  return 0;
}
