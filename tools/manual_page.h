#pragma once

// The companion's manual page, quillon-cli(1), generated from the texts of its help.

#include <string>
#include <string_view>

#include "tools/command_tree.h"

namespace quillon {

/// The page in roff. Its last line names the guide. `exitStatuses`, from the footer of each command, gets a section.
[[nodiscard]] std::string ManualPage(const CommandText& root, std::string_view exitStatuses, const std::string& guide);

}  // namespace quillon
