#include "shell/settings_file.h"

#include <optional>

#include "shell/ini_text.h"
#include "support/files.h"
#include "support/folder_lock.h"
#include "support/run_time_error.h"
#include "support/windows_1252.h"

namespace quillon {

std::filesystem::path SettingsFilePath(const ProgramFolder& folder) {
  return folder.Path / "settings.ini";
}

std::string ReadIniValue(std::string_view section, std::string_view key, const ProgramFolder& folder) {
  const std::string text = ReadAllBytes(SettingsFilePath(folder), *folder.Calls);
  if (IsUtf16(text)) return {};
  const std::string value = IniValue(text, section, key);
  return Utf8FromWindows1252(std::string_view(value).substr(0, kLongestSetting));
}

void WriteIniValues(std::span<const IniSetting> settings, const ProgramFolder& folder) {
  // Another copy of the program may be storing its own values: each must see what the other has written.
  const FolderLock lock(folder.Path, *folder.Calls);
  const std::filesystem::path path = SettingsFilePath(folder);
  const std::optional<std::string> before = TryReadAllBytes(path, *folder.Calls);
  if (!before || IsUtf16(*before)) return;
  std::string after = *before;
  for (const IniSetting& setting : settings)
    after = WithIniValue(after, setting.Section, setting.Key, Windows1252FromUtf8(setting.Value));
  if (after == *before) return;

  try {
    ReplaceFile(path, after, folder.Path, *folder.Calls);
  } catch (const RunTimeError&) {
    // The only ignored failure: a window position is not worth stopping a user who is closing the program.
    return;
  }
}

void WriteIniValue(std::string_view section, std::string_view key, std::string_view value,
                   const ProgramFolder& folder) {
  const IniSetting setting{std::string(section), std::string(key), std::string(value)};
  WriteIniValues({&setting, 1}, folder);
}

}  // namespace quillon
