#pragma once

// The file "settings.ini" in the program's folder, which holds everything that survives a restart besides the ranges:
// window places, the contents of the amount boxes, and whether to look for upgrades. "shell/ini_text.h" describes its
// form; on disk it is in the code page of "support/windows_1252.h". The user may edit it at any time: it is read again
// for each value, and foreign lines are kept. A file saved as UTF-16 is neither read nor written.

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "ranges/range_files.h"

namespace quillon {

/// Longer values are cut when read.
inline constexpr std::size_t kLongestSetting = 2999;

/// "settings.ini" in the program's folder.
[[nodiscard]] std::filesystem::path SettingsFilePath(const ProgramFolder& folder);

/// The value of a key, cut after kLongestSetting characters. The empty text if the key is empty, the key, section or
/// file is missing, or the file is UTF-16 or cannot be read.
[[nodiscard]] std::string ReadIniValue(std::string_view section, std::string_view key, const ProgramFolder& folder);

/// A value and where it is stored.
struct IniSetting {
  std::string Section;
  std::string Key;
  std::string Value;
};

/// Stores values in order, creating sections and the file as needed. ReadIniValue then returns each exactly, except for
/// its length and characters that the code page lacks, which become "?". The file is replaced as a whole
/// ("support/files.h"), once for all values, and not touched if it has them already.
///
/// Copies of the program in one folder may store at once ("support/folder_lock.h"): no value of either is lost.
///
/// Never fails: if the file cannot be written, is UTF-16, or cannot be read, in which case nobody knows what a write
/// would lose, it keeps its values.
void WriteIniValues(std::span<const IniSetting> settings, const ProgramFolder& folder);

/// Stores one value likewise.
void WriteIniValue(std::string_view section, std::string_view key, std::string_view value, const ProgramFolder& folder);

}  // namespace quillon
