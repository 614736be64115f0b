#pragma once

// The ranges that a user names on the command line: whether there is one, and whether its file is one of a range.

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "ranges/range_files.h"
#include "support/run_time_error.h"

namespace quillon {

/// What `read` returns, nothing where it ends in a run-time error.
template <typename Read>
auto Attempt(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

/// Whether the range's file can be read as a range and holds an entry of one.
[[nodiscard]] bool IsReadable(const std::string& name, const ProgramFolder& folder);

/// Tells of a range that is not readable; the failure over it comes later, and does not know which file it is about.
void PointOutUnreadable(const std::string& name, const ProgramFolder& folder, std::ostream& errors);

/// Whether one of the names is no range's. Each that is not is told, with the names nearest to it.
[[nodiscard]] bool RefuseUnknown(const std::vector<std::string>& names, const ProgramFolder& folder,
                                 std::ostream& errors);

}  // namespace quillon
