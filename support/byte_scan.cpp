#include "support/byte_scan.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

// One source, two machine codes: the loader picks one for each search at start, by what the processor offers.
// Sanitizers hook into programs before that choice, and other compilers and loaders do it differently; they take the
// baseline.
#if defined(__x86_64__) && defined(__GLIBC__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define QUILLON_CHOOSES_PROCESSOR
#endif
// Helpers must be inlined to be compiled for the caller's target.
#define QUILLON_PART_OF_SCAN [[gnu::always_inline]] inline

namespace quillon {
namespace {

// `Processor` policy: a byte vector, which the compiler compares and combines by itself, plus the two operations that
// the compiler cannot derive: whether any byte of a mask is set, and a mask's bytes as bits, the first one lowest. A
// mask has all bits of a byte set or none.
#ifdef QUILLON_CHOOSES_PROCESSOR
struct Avx2 {
  using Bytes = signed char __attribute__((vector_size(32)));

  [[gnu::target("avx2")]] static bool Any(const Bytes& mask) {
    __m256i bytes;
    std::memcpy(&bytes, &mask, sizeof bytes);
    return _mm256_testz_si256(bytes, bytes) == 0;
  }
  [[gnu::target("avx2")]] static std::uint32_t Bits(const Bytes& mask) {
    __m256i bytes;
    std::memcpy(&bytes, &mask, sizeof bytes);
    return static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes));
  }
};
#endif

struct Baseline {
  using Bytes = signed char __attribute__((vector_size(16)));

  static bool Any(const Bytes& mask) { return Bits(mask) != 0; }
#if defined(__x86_64__)
  static std::uint32_t Bits(const Bytes& mask) {
    return static_cast<std::uint32_t>(_mm_movemask_epi8(std::bit_cast<__m128i>(mask)));
  }
#else
  static std::uint32_t Bits(const Bytes& mask) {
    std::uint32_t bits = 0;
    for (std::uint32_t k = 0; k < sizeof mask; ++k)
      bits |= (mask[k] == 0 ? 0U : 1U) << k;
    return bits;
  }
#endif
};

template <class Bytes>
QUILLON_PART_OF_SCAN void Read(Bytes& bytes, const char* from) {
  std::memcpy(&bytes, from, sizeof bytes);
}

// How many bytes in a block of `Vectors` vectors equal the wanted one; a byte holds the counts of seven vectors. The
// loop has a fixed length and no branches, so it becomes a few vector instructions.
template <class Processor, std::size_t Vectors>
QUILLON_PART_OF_SCAN std::size_t Count(const char* block, char wanted) {
  constexpr std::size_t kSize = Vectors * sizeof(typename Processor::Bytes);
  static_assert(kSize <= 0xFF);
  std::uint8_t count = 0;
  for (std::size_t k = 0; k < kSize; ++k)
    count = static_cast<std::uint8_t>(count + (block[k] == wanted ? 1 : 0));
  return count;
}

// The position of set bit number `n` (from 0) in a word that has more than `n` set.
QUILLON_PART_OF_SCAN std::size_t PlaceOfBit(std::uint32_t bits, std::size_t n) {
  for (; n > 0; --n)
    bits &= bits - 1;
  return static_cast<std::size_t>(std::countr_zero(bits));
}

// Skips whole blocks by their counts, then vectors within the block that holds the position.
template <class Processor>
QUILLON_PART_OF_SCAN std::size_t NthByte(std::string_view text, char byte, std::size_t n) {
  using Bytes = typename Processor::Bytes;
  constexpr std::size_t kVectors = 7;
  constexpr std::size_t kBlock = kVectors * sizeof(Bytes);

  const char* const start = text.data();
  const std::size_t size = text.size();
  std::size_t position = 0;
  for (; position + kBlock <= size; position += kBlock) {
    const std::size_t count = Count<Processor, kVectors>(start + position, byte);
    if (count > n) break;
    n -= count;
  }
  for (; position + sizeof(Bytes) <= size; position += sizeof(Bytes)) {
    Bytes bytes;
    Read(bytes, start + position);
    const std::uint32_t bits = Processor::Bits(bytes == static_cast<signed char>(byte));
    const auto count = static_cast<std::size_t>(std::popcount(bits));
    if (count > n) return position + PlaceOfBit(bits, n);
    n -= count;
  }
  for (; position < size; ++position) {
    if (start[position] == byte && n-- == 0) return position;
  }
  return std::string_view::npos;
}

// A text of two or three characters: its first two and its last cover it.
struct ShortText {
  signed char first;
  signed char second;
  signed char last;
  std::size_t lastPlace;
};

constexpr std::size_t kVectorsOfSearch = 4;

template <class Processor>
constexpr std::size_t kSearchedBlock = kVectorsOfSearch * sizeof(typename Processor::Bytes);

// Position of the first occurrence that starts in a block, or the block's size if none does.
template <class Processor>
QUILLON_PART_OF_SCAN std::size_t PlaceInBlock(const char* block, const ShortText& wanted) {
  using Bytes = typename Processor::Bytes;
  constexpr std::size_t kVector = sizeof(Bytes);

  // The first two characters are seldom adjacent, so looking for these alone skips most blocks.
  std::array<Bytes, kVectorsOfSearch> pairs{};
  for (std::size_t v = 0; v < kVectorsOfSearch; ++v) {
    Bytes here;
    Bytes next;
    Read(here, block + v * kVector);
    Read(next, block + v * kVector + 1);
    pairs[v] = (here == wanted.first) & (next == wanted.second);
  }
  if (!Processor::Any((pairs[0] | pairs[1]) | (pairs[2] | pairs[3]))) return kSearchedBlock<Processor>;

  for (std::size_t half = 0; half < kVectorsOfSearch; half += 2) {
    Bytes low;
    Bytes high;
    Read(low, block + half * kVector + wanted.lastPlace);
    Read(high, block + (half + 1) * kVector + wanted.lastPlace);
    const std::uint64_t lowBits = Processor::Bits(pairs[half] & (low == wanted.last));
    const std::uint64_t highBits = Processor::Bits(pairs[half + 1] & (high == wanted.last));
    const std::uint64_t bits = lowBits | highBits << kVector;
    if (bits != 0) return half * kVector + static_cast<std::size_t>(std::countr_zero(bits));
  }
  return kSearchedBlock<Processor>;
}

// Not inlined: the library's search would cost every other search a dozen registers.
[[gnu::noinline]] std::size_t FindPlainly(std::string_view text, std::string_view wanted) {
  return text.find(wanted);
}

template <class Processor>
QUILLON_PART_OF_SCAN std::size_t Find(std::string_view text, std::string_view wanted) {
  constexpr std::size_t kBlock = kSearchedBlock<Processor>;
  const bool isShort = wanted.size() == 2 || wanted.size() == 3;
  if (!isShort || text.size() < kBlock + wanted.size() - 1) return FindPlainly(text, wanted);

  const std::size_t lastPlace = wanted.size() - 1;
  const ShortText shortText{static_cast<signed char>(wanted[0]), static_cast<signed char>(wanted[1]),
                            static_cast<signed char>(wanted[lastPlace]), lastPlace};
  // The last block overlaps the one before it, where nothing was found.
  const std::size_t lastBlock = text.size() - lastPlace - kBlock;
  for (std::size_t start = 0; start < lastBlock; start += kBlock) {
    const std::size_t place = PlaceInBlock<Processor>(text.data() + start, shortText);
    if (place < kBlock) return start + place;
  }
  const std::size_t place = PlaceInBlock<Processor>(text.data() + lastBlock, shortText);
  return place < kBlock ? lastBlock + place : std::string_view::npos;
}

std::size_t BaselineNthByte(std::string_view text, char byte, std::size_t n) {
  return NthByte<Baseline>(text, byte, n);
}

std::size_t BaselineFind(std::string_view text, std::string_view wanted) {
  return Find<Baseline>(text, wanted);
}

#ifdef QUILLON_CHOOSES_PROCESSOR
[[gnu::target("avx2")]] std::size_t Avx2NthByte(std::string_view text, char byte, std::size_t n) {
  return NthByte<Avx2>(text, byte, n);
}

[[gnu::target("avx2")]] std::size_t Avx2Find(std::string_view text, std::string_view wanted) {
  return Find<Avx2>(text, wanted);
}

// The better of two functions for this processor. Runs before anything else in the program.
template <typename Search>
Search* Chosen(Search& withAvx2, Search& baseline) {
  __builtin_cpu_init();
  return __builtin_cpu_supports("avx2") != 0 ? withAvx2 : baseline;
}
#endif

}  // namespace

#ifdef QUILLON_CHOOSES_PROCESSOR
// The loader finds these by their unmangled names.
extern "C" {
static auto QuillonNthByteSearch() {
  return Chosen(Avx2NthByte, BaselineNthByte);
}

static auto QuillonTextSearch() {
  return Chosen(Avx2Find, BaselineFind);
}
}

[[gnu::ifunc("QuillonNthByteSearch")]] std::size_t FindNthByte(std::string_view text, char byte, std::size_t n);

[[gnu::ifunc("QuillonTextSearch")]] std::size_t FindText(std::string_view text, std::string_view wanted);
#else
std::size_t FindNthByte(std::string_view text, char byte, std::size_t n) {
  return BaselineNthByte(text, byte, n);
}

std::size_t FindText(std::string_view text, std::string_view wanted) {
  return BaselineFind(text, wanted);
}
#endif

}  // namespace quillon
