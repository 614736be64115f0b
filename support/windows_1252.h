#pragma once

// The single-byte code page in which the user's files are kept. In memory every text is UTF-8; these two routines are
// the boundary. Source of the table: the Unicode Consortium's mapping of Windows code page 1252, in which the five
// unassigned bytes (81, 8D, 8F, 90, 9D) are the control characters of the same number, so that every byte
// survives the round trip.

#include <string>
#include <string_view>

namespace quillon {

/// Bytes of the code page as UTF-8. Every byte has a character, so nothing can fail.
[[nodiscard]] std::string Utf8FromWindows1252(std::string_view bytes);

/// UTF-8 text as bytes of the code page. A character that the code page lacks, and each byte that is not part of valid
/// UTF-8, becomes "?".
[[nodiscard]] std::string Windows1252FromUtf8(std::string_view text);

/// The name of a file as text. A name on disk is UTF-8 as a rule; one that is not, as old archives leave them, is taken
/// for bytes of the code page, and Windows1252FromUtf8 returns it from its text.
///
///     "Käse.txt" in UTF-8 -> itself      "K\xE4se.txt" -> "Käse.txt"
[[nodiscard]] std::string TextOfFileName(std::string_view name);

}  // namespace quillon
