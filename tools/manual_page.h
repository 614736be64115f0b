#pragma once

// The companion's manual page, quillon-cli(1), made of the same texts as its help.

#include <string>
#include <string_view>

#include "tools/command_tree.h"

namespace quillon {

/// The page as input of man's. Its last line names the guide. `exitStatuses`, a list that the footer of each command
/// has, gets a section of its own.
[[nodiscard]] std::string ManualPage(const CommandText& root, std::string_view exitStatuses, const std::string& guide);

}  // namespace quillon
