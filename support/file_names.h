#pragma once

// What a system makes of the names of files, beyond what all of them share.

#include <string_view>

namespace quillon {

/// What keeps this system from storing a file under a name, as what is said of the name; the empty text where nothing
/// does. Windows has names for devices, with any extension and in any letter case, drops dots and spaces at a name's
/// end, and does not take every character; its rules are in "Naming Files, Paths, and Namespaces" of its documentation.
///
///     "CON" -> "is one that Windows keeps for a device"
///     "a." -> "ends with a dot or a space, which Windows drops"
///     "a|b" -> "holds a character that Windows has in no file's name"
[[nodiscard]] std::string_view NameFault(std::string_view name);

/// Whether two names are those of one file. Windows does not tell them apart by letter case.
[[nodiscard]] bool IsSameName(std::string_view first, std::string_view second);

}  // namespace quillon
