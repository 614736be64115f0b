#include "support/byte_scan.h"

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
// What such a function is made of is built for the same processor only where it is taken into it.
#define QUILLON_PART_OF_SCAN [[gnu::always_inline]] inline

namespace quillon {
namespace {

// Bytes are passed by whole blocks while that may be, a counted block being as large as a count in one byte allows.
// Within a block a place is narrowed down by groups of one vector's size and by words.
constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::size_t kGroup = 32;
constexpr std::size_t kCountedBlock = 7 * kGroup;
constexpr std::size_t kSearchedBlock = 4 * kGroup;
constexpr std::uint64_t kOnes = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x8080808080808080;

static_assert(std::endian::native == std::endian::little,
              "byte k of a text must be byte k of the word it is read into");

// Every loop over a block or a group has a length known while compiling and makes no choice, so that it becomes a few
// vector instructions. Conditions are masks, all bits set or none, joined with "&": "&&" may leave its right side out.
std::uint8_t Mask(bool set) {
  return static_cast<std::uint8_t>(set ? 0xFF : 0);
}

template <std::size_t Size>
QUILLON_PART_OF_SCAN std::size_t Count(const char* bytes, char wanted) {
  static_assert(Size <= 0xFF);
  std::uint8_t count = 0;
  for (std::size_t k = 0; k < Size; ++k)
    count = static_cast<std::uint8_t>(count + (bytes[k] == wanted ? 1 : 0));
  return count;
}

// For each byte of a group, 1 where it is the one wanted.
using GroupMarks = std::array<std::uint8_t, kGroup>;

std::uint64_t WordOf(const GroupMarks& marks, std::size_t word) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, marks.data() + word * kWord, kWord);
  return bits;
}

// Place within a group of its occurrence number `n`; the group holds more than `n`. Counts words that end at or before
// it and then bytes likewise, with no choice that a processor could guess wrong.
QUILLON_PART_OF_SCAN std::size_t PlaceInGroup(const char* group, char wanted, std::size_t n) {
  GroupMarks marks{};
  for (std::size_t k = 0; k < kGroup; ++k)
    marks[k] = group[k] == wanted ? 1 : 0;

  // Multiplying by ones adds each byte to all bytes above it, so byte k becomes the number of marks in bytes 0 to k.
  std::size_t word = 0;
  std::size_t before = 0;
  std::size_t total = 0;
  for (std::size_t w = 0; w + 1 < kGroup / kWord; ++w) {
    const std::size_t count = (WordOf(marks, w) * kOnes) >> 56U;
    total += count;
    const std::size_t passed = total <= n ? 1 : 0;
    word += passed;
    before += passed * count;
  }
  // All the numbers are below 128, so no subtraction borrows.
  const std::uint64_t counts = WordOf(marks, word) * kOnes;
  const std::uint64_t passed = (((n - before) * kOnes | kHighBits) - counts) & kHighBits;
  return word * kWord + static_cast<std::size_t>(std::popcount(passed));
}

// A group in one vector, as bytes and as words.
using Bytes = signed char __attribute__((vector_size(kGroup)));
using Words = std::uint64_t __attribute__((vector_size(kGroup)));

// A text of two or three characters: its first two and its last are all that it has.
struct ShortText {
  signed char first;
  signed char second;
  char last;
  std::size_t lastPlace;
};

// Place of the first occurrence that starts in a block, or kSearchedBlock if none does.
QUILLON_PART_OF_SCAN std::size_t PlaceInBlock(const char* block, const ShortText& wanted) {
  // The first two characters are seldom side by side, so most blocks are passed by looking for these alone.
  Bytes seen{};
  for (std::size_t start = 0; start < kSearchedBlock; start += kGroup) {
    Bytes here;
    Bytes next;
    std::memcpy(&here, block + start, kGroup);
    std::memcpy(&next, block + start + 1, kGroup);
    seen |= (here == wanted.first) & (next == wanted.second);
  }
  Words words;
  std::memcpy(&words, &seen, kGroup);
  if ((words[0] | words[1] | words[2] | words[3]) == 0) return kSearchedBlock;

  // The earliest of several places has the largest number, and 0 is none.
  std::uint8_t earliest = 0;
  for (std::size_t k = 0; k < kSearchedBlock; ++k) {
    const auto here =
        static_cast<std::uint8_t>(Mask(block[k] == wanted.first) & Mask(block[k + 1] == wanted.second) &
                                  Mask(block[k + wanted.lastPlace] == wanted.last) & (kSearchedBlock - k));
    earliest = here > earliest ? here : earliest;
  }
  return kSearchedBlock - earliest;
}

// Out of the way: taken in, the library's search would cost every other search a dozen registers.
[[gnu::noinline]] std::size_t FindPlainly(std::string_view text, std::string_view wanted) {
  return text.find(wanted);
}

}  // namespace

QUILLON_FOR_EACH_PROCESSOR
std::size_t FindNthByte(std::string_view text, char byte, std::size_t n) {
  const char* const start = text.data();
  const std::size_t size = text.size();
  std::size_t position = 0;
  for (; position + kCountedBlock <= size; position += kCountedBlock) {
    const std::size_t count = Count<kCountedBlock>(start + position, byte);
    if (count > n) break;
    n -= count;
  }
  for (; position + kGroup <= size; position += kGroup) {
    const std::size_t count = Count<kGroup>(start + position, byte);
    if (count > n) return position + PlaceInGroup(start + position, byte, n);
    n -= count;
  }
  for (; position < size; ++position) {
    if (start[position] == byte && n-- == 0) return position;
  }
  return std::string_view::npos;
}

QUILLON_FOR_EACH_PROCESSOR
std::size_t FindText(std::string_view text, std::string_view wanted) {
  const bool isShort = wanted.size() == 2 || wanted.size() == 3;
  if (!isShort || text.size() < kSearchedBlock + wanted.size() - 1) return FindPlainly(text, wanted);

  const std::size_t lastPlace = wanted.size() - 1;
  const ShortText shortText{static_cast<signed char>(wanted[0]), static_cast<signed char>(wanted[1]), wanted[lastPlace],
                            lastPlace};
  // The last block overlaps the one before it, where nothing was found.
  const std::size_t lastBlock = text.size() - lastPlace - kSearchedBlock;
  for (std::size_t start = 0; start < lastBlock; start += kSearchedBlock) {
    const std::size_t place = PlaceInBlock(text.data() + start, shortText);
    if (place < kSearchedBlock) return start + place;
  }
  const std::size_t place = PlaceInBlock(text.data() + lastBlock, shortText);
  return place < kSearchedBlock ? lastBlock + place : std::string_view::npos;
}

}  // namespace quillon
