#pragma once

// Ranges that are named where there is no list to choose from: whether there is one, and whether its file holds a
// range.

#include <optional>
#include <string>

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

/// Nothing for a range that is readable, and otherwise that its file is not, with the path: a failure over its text
/// would not know which file it is about.
[[nodiscard]] std::optional<std::string> WhyUnreadable(const std::string& name, const ProgramFolder& folder);

/// Nothing where there is a file for a range of this name, and otherwise that there is none, with the names nearest to
/// it. A name that leads out of the range folder, such as "../Tight", names no range.
///
///     There is no range "Tihgt" in Quillon/Ranges. The nearest names: "Tight", "Top Ten"
[[nodiscard]] std::optional<std::string> WhyUnknown(const std::string& name, const ProgramFolder& folder);

}  // namespace quillon
