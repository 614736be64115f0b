#include "support/byte_scan.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

// One source, two machine codes: the loader resolves each call once, by what the processor offers. Sanitizers hook into
// programs before such a choice can be made, and other compilers spell it differently; they take the baseline.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define QUILLON_FOR_EACH_PROCESSOR __attribute__((target_clones("avx2", "default")))
#else
#define QUILLON_FOR_EACH_PROCESSOR
#endif

namespace quillon {
namespace {

constexpr std::size_t kBlock = 128;  // what is counted in a block fits one byte, so every lane of a vector does work
constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::uint64_t kOnes = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x8080808080808080;

static_assert(std::endian::native == std::endian::little,
              "byte k of a text must be byte k of the word it is read into");

// For each byte of a block, 1 where it is the one wanted.
using BlockMarks = std::array<std::uint8_t, kBlock>;

// All bits set or none. Marks are joined with "&": "&&" may leave its right side out, and a choice inside a loop keeps
// the compiler from using vectors.
std::uint8_t Mask(bool set) {
  return static_cast<std::uint8_t>(set ? 0xFF : 0);
}

std::uint64_t WordOf(const BlockMarks& marks, std::size_t word) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, marks.data() + word * kWord, kWord);
  return bits;
}

// Multiplying by ones adds each byte to all bytes above it, so the highest byte holds the sum of all eight.
std::size_t SumOfBytes(std::uint64_t bytes) {
  return (bytes * kOnes) >> 56U;
}

// Position within the block of its mark number `n`; the block holds more than `n`. Counts words that end at or before
// it and then bytes likewise, with no choice that a processor could guess wrong.
std::size_t NthMark(const BlockMarks& marks, std::size_t n) {
  std::size_t word = 0;
  std::size_t before = 0;
  std::size_t total = 0;
  for (std::size_t w = 0; w < kBlock / kWord; ++w) {
    total += SumOfBytes(WordOf(marks, w));
    const bool passed = total <= n;
    word += passed ? 1 : 0;
    before = passed ? total : before;
  }
  // Byte k of the product is the number of marks in bytes 0 to k; all are below 128, so no subtraction borrows.
  const std::uint64_t counts = WordOf(marks, word) * kOnes;
  const std::uint64_t wanted = (n - before) * kOnes;
  const std::uint64_t passed = ((wanted | kHighBits) - counts) & kHighBits;
  return word * kWord + static_cast<std::size_t>(std::popcount(passed));
}

}  // namespace

QUILLON_FOR_EACH_PROCESSOR
std::size_t FindNthByte(std::string_view text, char byte, std::size_t n) {
  const char* const start = text.data();
  std::size_t position = 0;
  if (text.size() < kBlock) {
    for (; position < text.size(); ++position) {
      if (start[position] == byte && n-- == 0) return position;
    }
    return std::string_view::npos;
  }
  for (; position + kBlock <= text.size(); position += kBlock) {
    const char* const block = start + position;
    std::uint8_t count = 0;
    for (std::size_t k = 0; k < kBlock; ++k)
      count = static_cast<std::uint8_t>(count + (block[k] == byte ? 1 : 0));
    if (count > n) {
      BlockMarks marks{};
      for (std::size_t k = 0; k < kBlock; ++k)
        marks[k] = block[k] == byte ? 1 : 0;
      return position + NthMark(marks, n);
    }
    n -= count;
  }
  // The block at the end overlaps the one before it, and what has been counted there does not count again.
  const std::size_t last = text.size() - kBlock;
  const auto skip = static_cast<std::uint8_t>(position - last);
  BlockMarks marks{};
  std::uint8_t count = 0;
  for (std::size_t k = 0; k < kBlock; ++k) {
    marks[k] =
        static_cast<std::uint8_t>(Mask(start[last + k] == byte) & Mask(static_cast<std::uint8_t>(k) >= skip) & 1U);
    count = static_cast<std::uint8_t>(count + marks[k]);
  }
  return count > n ? last + NthMark(marks, n) : std::string_view::npos;
}

QUILLON_FOR_EACH_PROCESSOR
std::size_t FindText(std::string_view text, std::string_view wanted) {
  if (wanted.size() < 2 || text.size() < kBlock + wanted.size() - 1) return text.find(wanted);
  // The first two characters and the last are compared everywhere at once; with labels of two or three characters that
  // is all of them. A place that has them all is then looked at whole.
  const std::size_t tail = wanted.size() - 1;
  const char first = wanted[0];
  const char second = wanted[1];
  const char final = wanted[tail];
  const std::size_t lastBlock = text.size() - tail - kBlock;
  for (std::size_t position = 0;;) {
    // The last block overlaps the one before it, where nothing was found.
    const std::size_t start = std::min(position, lastBlock);
    const char* const block = text.data() + start;
    // The earliest of several places has the largest number, and 0 is none.
    std::uint8_t earliest = 0;
    for (std::size_t k = 0; k < kBlock; ++k) {
      const auto here = static_cast<std::uint8_t>(Mask(block[k] == first) & Mask(block[k + 1] == second) &
                                                  Mask(block[k + tail] == final) & (kBlock - k));
      earliest = here > earliest ? here : earliest;
    }
    if (earliest == 0) {
      if (start == lastBlock) return std::string_view::npos;
      position = start + kBlock;
      continue;
    }
    const std::size_t place = start + kBlock - earliest;
    if (text.substr(place, wanted.size()) == wanted) return place;
    if (start == lastBlock) return text.find(wanted, place + 1);
    position = place + 1;
  }
}

}  // namespace quillon
