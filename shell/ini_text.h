#pragma once

// The text of a settings file, as bytes. It is the old profile text that people edit by hand: lines of `key=value`
// under headings in square brackets.
//
//     [Main]
//     Left=1500
//     ; a comment
//     [Values]
//     0=150
//
// Sections and keys are found whatever the case of their letters A to Z, and white space (space and tab) round a
// section's name, a key and a value do not count. A line that starts with ";" is a comment. Where a section, or a key
// in it, occurs more than once the first counts, and a key before any heading is in no section. A line ends with LF, CR
// LF or CR. The three bytes with which some editors mark UTF-8 may come first.
//
// Writing changes the one value, or adds a line for it, and leaves every other byte as it is.

#include <string>
#include <string_view>

namespace quillon {

/// Whether a text is in UTF-16, by its mark or by a zero byte as exactly one of its first two, as a Latin letter has it
/// there. A single zero byte counts: with a line added after it, it would. The routines below do not know its lines.
[[nodiscard]] bool IsUtf16(std::string_view text);

/// The value of a key, the empty text where there is none. One pair of quotes, double or single, that encloses the
/// value is taken off.
///
///     "Left = 5 " -> "5"      "0=\" 5 \"" -> " 5 "      "0='a'b'" -> "a'b"      "0=\"" -> "\""      "0=a=b" -> "a=b"
[[nodiscard]] std::string IniValue(std::string_view text, std::string_view section, std::string_view key);

/// The text with the key's value changed. The value is put in so that IniValue returns it: in double quotes if a
/// space is at either end of it or if it is in quotes itself, else as it is. It ends at its first line end, for
/// a value is one line.
///
/// A new key goes after the last one of its section, and a new section to the end of the text. Their lines end as the
/// first line of the text does, with CR LF where it has none.
[[nodiscard]] std::string WithIniValue(std::string_view text, std::string_view section, std::string_view key,
                                       std::string_view value);

}  // namespace quillon
