#pragma once

// Where a copy of the program keeps what is the user's, and where it finds what came with it. A portable copy has all
// of it in the folder of its executable, so that a copied folder takes everything along. A package puts a marker beside
// its executables, the file "installed", and only that marker makes the program's folder one in the user's home: who
// may write where does not matter, so nothing of root's ends up among the system's files.
//
// The marker names, from the folder it is in, the folder of what the package brings: the example "Ranges" and "Guide".

#include <filesystem>
#include <string_view>

#include "support/files.h"
#include "support/this_process.h"

namespace quillon {

inline constexpr std::string_view kPackageMarker = "installed";

/// The folder of what came with the program: that of the executable, or the one that the marker in it names.
[[nodiscard]] std::filesystem::path SharedFolderPath(const std::filesystem::path& executableFolder);

/// The program's folder: that of the executable, or with the marker "$XDG_DATA_HOME/Quillon", by default
/// "~/.local/share/Quillon". The latter is made if it is missing, with the example ranges in it, as a whole or not at
/// all; what is there already stays as it is. A relative XDG_DATA_HOME is ignored, as freedesktop.org's rules for base
/// directories demand.
///
/// RunTimeError, with the path and the reason, if it cannot be made, and where the environment names no folder.
[[nodiscard]] std::filesystem::path ProgramFolderPath(const std::filesystem::path& executableFolder,
                                                      const EnvironmentVariable& variable,
                                                      FileCalls& calls = SystemFileCalls());

}  // namespace quillon
