#pragma once

// Rules for file names that differ between systems.

#include <string_view>

namespace quillon {

/// Why this system cannot store a file under `name`, phrased to follow the name; the empty text if it can. Windows
/// keeps some names for devices, with any extension and in any letter case, drops dots and spaces at the end of a name,
/// and forbids some characters. Source: "Naming Files, Paths, and Namespaces" in its documentation.
///
///     "CON" -> "is one that Windows keeps for a device"
///     "a." -> "ends with a dot or a space, which Windows drops"
///     "a|b" -> "holds a character that Windows has in no file's name"
[[nodiscard]] std::string_view NameFault(std::string_view name);

/// Whether two names mean the same file. Windows ignores letter case.
[[nodiscard]] bool IsSameName(std::string_view first, std::string_view second);

}  // namespace quillon
