#pragma once

// Where a copy of the program keeps the user's files, and where it finds what came with it. A portable copy keeps
// everything in the folder of its executable, so copying that folder takes everything along. A package puts a marker
// next to its executables, the file "installed", and only this marker moves the program's folder to the user's home.
// Write permissions play no part, so that root's files never end up among the system's.
//
// The marker contains the relative path of the package's shared files: the example "Ranges" and "Guide".

#include <filesystem>
#include <string_view>

#include "support/files.h"
#include "support/this_process.h"

namespace quillon {

inline constexpr std::string_view kPackageMarker = "installed";

/// The folder of the files that came with the program: that of the executable, or the one that the marker in it names.
[[nodiscard]] std::filesystem::path SharedFolderPath(const std::filesystem::path& executableFolder);

/// The program's folder: that of the executable, or with the marker "$XDG_DATA_HOME/Quillon", by default
/// "~/.local/share/Quillon". The latter is created if missing, with the example ranges in it, as a whole or not at all;
/// an existing one is unchanged. A relative XDG_DATA_HOME is ignored, as freedesktop.org's rules demand.
///
/// RunTimeError, with the path and the reason, if it cannot be created, or if the environment has no folder for it.
[[nodiscard]] std::filesystem::path ProgramFolderPath(const std::filesystem::path& executableFolder,
                                                      const EnvironmentVariable& variable,
                                                      FileCalls& calls = SystemFileCalls());

}  // namespace quillon
