#pragma once

// The single-byte code page of the user's files. In memory every text is UTF-8; these two routines are the boundary.
// Source: the Unicode Consortium's mapping of Windows code page 1252, with the five unassigned bytes (81, 8D, 8F, 90,
// 9D) as the control characters of the same number, so that every byte survives the round trip.

#include <string>
#include <string_view>

namespace quillon {

/// Bytes of the code page as UTF-8. Never fails: every byte has a character.
[[nodiscard]] std::string Utf8FromWindows1252(std::string_view bytes);

/// UTF-8 text as bytes of the code page. A character that the code page lacks, and each invalid byte, becomes "?".
[[nodiscard]] std::string Windows1252FromUtf8(std::string_view text);

/// A file's name as text. Names on disk are normally UTF-8; one that is not, as from old archives, is decoded from the
/// code page, and Windows1252FromUtf8 restores it.
///
///     "Käse.txt" in UTF-8 -> itself      "K\xE4se.txt" -> "Käse.txt"
[[nodiscard]] std::string TextOfFileName(std::string_view name);

}  // namespace quillon
