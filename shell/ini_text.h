#pragma once

// The text of a settings file, as bytes, in the classic ini form that people edit by hand: lines of `key=value` under
// headings in square brackets.
//
//     [Main]
//     Left=1500
//     ; a comment
//     [Values]
//     0=150
//
// The case of letters A to Z in sections and keys does not matter, and white space (space and tab) around a section's
// name, a key and a value is ignored. A line that starts with ";" is a comment. If a section, or a key in it, occurs
// more than once the first counts; a key before any heading is in no section. A line ends with LF, CR LF or CR. A UTF-8
// byte-order mark may come first.
//
// Writing changes the one value, or adds a line for it, and leaves every other byte as it is.

#include <string>
#include <string_view>

namespace quillon {

/// Whether a text is UTF-16, judged by its byte-order mark or by one zero among its first two bytes, as with a Latin
/// letter. A single zero byte counts too, since an appended line would make it so. The routines below cannot read it.
[[nodiscard]] bool IsUtf16(std::string_view text);

/// The value of a key, or the empty text. One pair of double or single quotes around the value is removed.
///
///     "Left = 5 " -> "5"      "0=\" 5 \"" -> " 5 "      "0='a'b'" -> "a'b"      "0=\"" -> "\""      "0=a=b" -> "a=b"
[[nodiscard]] std::string IniValue(std::string_view text, std::string_view section, std::string_view key);

/// The text with the key's value changed, such that IniValue returns it: in double quotes if it starts or ends with a
/// space or is quoted itself, otherwise as it is. It is cut at its first line end.
///
/// A new key goes after the last one of its section, and a new section to the end of the text. Their lines end as the
/// first line of the text does, or with CR LF if there is none.
[[nodiscard]] std::string WithIniValue(std::string_view text, std::string_view section, std::string_view key,
                                       std::string_view value);

}  // namespace quillon
