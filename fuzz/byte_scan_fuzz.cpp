// The searches over many bytes at a time must give the same as one byte at a time.

#include "fuzz/fuzz_target.h"
#include "support/byte_scan.h"
#include "testing/oracle/searches.h"

namespace quillon {

void CheckInput(FuzzInput input) {
  constexpr std::size_t kLongestWanted = 16;
  const std::size_t n = input.TakeBelow(256);
  const std::string_view wanted = input.TakeText(input.TakeBelow(kLongestWanted + 1));
  const std::string_view text = input.Rest();

  Require(FindText(text, wanted) == text.find(wanted), "FindText equals a plain search");
  for (const char byte : wanted.empty() ? std::string_view(" ") : wanted)
    Require(FindNthByte(text, byte, n) == plain::NthByte(text, byte, n), "FindNthByte equals a plain loop");

  // A piece of the text itself is found, at its place or earlier.
  const std::size_t start = text.empty() ? 0 : n % text.size();
  const std::string_view piece = text.substr(start, wanted.size());
  Require(FindText(text, piece) == text.find(piece), "FindText finds a piece of the text itself");
}

}  // namespace quillon
