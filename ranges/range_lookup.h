#pragma once

// Ranges named outside a list: whether they exist, and whether their files hold a range.

#include <optional>
#include <string>

#include "ranges/range_files.h"
#include "support/run_time_error.h"

namespace quillon {

/// What `read` returns, or nothing if it throws a RunTimeError.
template <typename Read>
auto Attempt(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

/// Whether the range's file can be read as a range and holds at least one entry.
[[nodiscard]] bool IsReadable(const std::string& name, const ProgramFolder& folder);

/// Nothing for a readable range; otherwise the error, with the path, which an error of reading the text lacks.
[[nodiscard]] std::optional<std::string> WhyUnreadable(const std::string& name, const ProgramFolder& folder);

/// Nothing if the range has a file; otherwise a message that there is no such range, with the nearest names. A name
/// that leads out of the range folder, such as "../Tight", is unknown.
///
///     There is no range "Tihgt" in Quillon/Ranges. The nearest names: "Tight", "Top Ten"
[[nodiscard]] std::optional<std::string> WhyUnknown(const std::string& name, const ProgramFolder& folder);

}  // namespace quillon
