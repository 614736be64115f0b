#pragma once

// What a fuzz target is made of. A target is one function that takes any bytes and ends the process if a rule does not
// hold for them. libFuzzer gives it bytes that it makes up ("fuzz/fuzzer_entry.cpp"), and "fuzz/replay_main.cpp" the
// files of the target's corpus, so that what has been found once is tried again with every compiler.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <string_view>

namespace quillon {

/// Ends the process, with the rule on standard error, if it does not hold.
inline void Require(bool holds, const char* rule) {
  if (holds) return;
  static_cast<void>(std::fputs("broken rule: ", stderr));
  static_cast<void>(std::fputs(rule, stderr));
  static_cast<void>(std::fputs("\n", stderr));
  std::abort();
}

/// The bytes of one run, taken from the front. After the last one come zeros.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}  // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)

  /// The next byte modulo `limit`.
  std::size_t TakeBelow(std::size_t limit) {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return byte % limit;
  }

  /// The next eight bytes as they lie in memory, or as many as there are.
  double TakeDouble() {
    double value = 0;
    if (rest_.empty()) return value;
    const std::size_t count = std::min(sizeof value, rest_.size());
    std::memcpy(&value, rest_.data(), count);
    rest_.remove_prefix(count);
    return value;
  }

  /// At most the next `count` bytes.
  std::string_view TakeText(std::size_t count) {
    const std::string_view text = rest_.substr(0, count);
    rest_.remove_prefix(text.size());
    return text;
  }

  /// All bytes that are left.
  [[nodiscard]] std::string_view Rest() const { return rest_; }

 private:
  std::string_view rest_;
};

/// The target: the one function of this name in each program.
void CheckInput(FuzzInput input);

/// Whether this program runs its target over committed inputs rather than over made-up ones.
#ifdef QUILLON_REPLAYS
inline constexpr bool kReplays = true;
#else
inline constexpr bool kReplays = false;
#endif

/// What a run of a slow target looks at. Where inputs are replayed, that is all of its checks. A made-up input has one
/// as a rule, so that there are more runs, and seldom all, since one check may hide what another would find. Seldom
/// means by the sum of its bytes: such an input reaches the most, so libFuzzer keeps it and makes others from it, which
/// a byte that stays would leave as slow.
class ChecksOfRun {
 public:
  /// Takes one byte of the input for the check.
  ChecksOfRun(FuzzInput& input, std::size_t count) : all_(kReplays || Sum(input.Rest()) == 0) {
    chosen_ = input.TakeBelow(count);
  }

  [[nodiscard]] bool All() const { return all_; }
  [[nodiscard]] bool Has(std::size_t check) const { return all_ || chosen_ == check; }

 private:
  // Of all bytes, so that each change of one decides anew.
  static std::uint8_t Sum(std::string_view text) {
    return std::accumulate(text.begin(), text.end(), std::uint8_t{0},
                           [](std::uint8_t sum, char c) { return static_cast<std::uint8_t>(sum * 31 + c); });
  }

  bool all_;
  std::size_t chosen_ = 0;
};

}  // namespace quillon
