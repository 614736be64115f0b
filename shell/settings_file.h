#pragma once

// The file "settings.ini" in the program's folder, all that survives a restart besides the ranges: where the windows
// were, what the amount boxes held, and whether to look for upgrades. "shell/ini_text.h" has its form; on disk it is
// in the code page of "support/windows_1252.h". It is the user's file, who may edit it while the program runs: it is
// read anew for each value, and the lines that are not ours stay as they are. A file that an editor has saved in UTF-16
// is left alone, neither read nor written.

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "ranges/range_files.h"

namespace quillon {

/// So much of a value is read, and what lies beyond is lost.
inline constexpr std::size_t kLongestSetting = 2999;

/// "settings.ini" in the program's folder.
[[nodiscard]] std::filesystem::path SettingsFilePath(const ProgramFolder& folder);

/// The value of a key, cut after kLongestSetting characters. It is the empty text where the key is empty, the key, the
/// section or the file is missing, or the file cannot be read or is in UTF-16.
[[nodiscard]] std::string ReadIniValue(std::string_view section, std::string_view key, const ProgramFolder& folder);

/// A value and where it is stored.
struct IniSetting {
  std::string Section;
  std::string Key;
  std::string Value;
};

/// Stores values in order, with their sections and the file made where they are missing. ReadIniValue returns each
/// exactly, up to what the code page lacks (which becomes "?") and to its length. The file is replaced as
/// a whole ("support/files.h"), once for all values, and not touched where they are there already.
///
/// Copies of the program in one folder may store at once ("support/folder_lock.h"): no value of either is lost.
///
/// It never fails: a file that cannot be written keeps the values it has, and so does one that cannot be read, since
/// nobody knows then what would be lost, and one in UTF-16.
void WriteIniValues(std::span<const IniSetting> settings, const ProgramFolder& folder);

/// Stores one value in this way.
void WriteIniValue(std::string_view section, std::string_view key, std::string_view value, const ProgramFolder& folder);

}  // namespace quillon
