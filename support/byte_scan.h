#pragma once

// Two searches over plain bytes, many bytes at a time. The equity table and the range texts stay text and are searched
// on every lookup, so an analysis spends its time in these loops. They work on vectors; on x86-64 they are built for
// AVX2 and for the baseline, and the program picks the better one at start. Both give the same answers. Where the
// compiler or loader cannot choose this way, only the baseline is built.

#include <cstddef>
#include <string_view>

namespace quillon {

/// The position of occurrence number `n` (from 0) of `byte` in `text`; std::string_view::npos if there are fewer.
[[nodiscard]] std::size_t FindNthByte(std::string_view text, char byte, std::size_t n);

/// The position of the first occurrence of `wanted` in `text`, or std::string_view::npos: same as
/// std::string_view::find. The empty text is found at 0.
[[nodiscard]] std::size_t FindText(std::string_view text, std::string_view wanted);

}  // namespace quillon
