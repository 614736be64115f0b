// The searches over many bytes at a time must give what one byte at a time gives.

#include "fuzz/fuzz_target.h"
#include "support/byte_scan.h"

namespace quillon {
namespace {

constexpr std::size_t kLongestWanted = 16;

std::size_t PlainNthByte(std::string_view text, char byte, std::size_t n) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == byte && n-- == 0) return i;
  }
  return std::string_view::npos;
}

std::size_t PlainFind(std::string_view text, std::string_view wanted) {
  for (std::size_t i = 0; i + wanted.size() <= text.size(); ++i) {
    std::size_t same = 0;
    while (same < wanted.size() && text[i + same] == wanted[same])
      ++same;
    if (same == wanted.size()) return i;
  }
  return std::string_view::npos;
}

}  // namespace
}  // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillon;  // NOLINT(google-build-using-namespace): the name of this function is not ours to choose
  FuzzInput input(data, size);
  const std::size_t n = input.TakeBelow(256);
  const std::string_view wanted = input.TakeText(input.TakeBelow(kLongestWanted + 1));
  const std::string_view text = input.Rest();

  Require(FindText(text, wanted) == PlainFind(text, wanted), "FindText equals a plain search");
  for (const char byte : wanted.empty() ? std::string_view(" ") : wanted)
    Require(FindNthByte(text, byte, n) == PlainNthByte(text, byte, n), "FindNthByte equals a plain loop");

  // A piece of the text itself is there, at the latest where it was taken from.
  const std::size_t start = text.empty() ? 0 : n % text.size();
  const std::string_view piece = text.substr(start, wanted.size());
  Require(FindText(text, piece) == PlainFind(text, piece), "FindText finds a piece of the text itself");
  return 0;
}
