#pragma once

// Input as from broken disks, strange editors and people who try things out. A valid range file, settings file or
// amount is generated and then damaged: cut, doubled, shuffled, filled with odd characters, re-encoded, inflated. The
// same seed always gives the same inputs.

#include <cstddef>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>

#include "testing/oracle/runs.h"

namespace quillon {

/// The number of random inputs for a test with this percentage of all. By default all are 300; QUILLON_BAD_INPUTS in
/// the environment sets another number.
[[nodiscard]] int RandomInputs(int share);

class BadInputs {
 public:
  explicit BadInputs(std::uint64_t seed) : random_(seed) {}

  /// Bytes of a range file, and of a settings file.
  [[nodiscard]] std::string RangeFile();
  [[nodiscard]] std::string SettingsFile();

  /// Roughly UTF-8: the text of an amount box, valid half the time.
  [[nodiscard]] std::string BoxText();

  /// 0 to `count` - 1.
  [[nodiscard]] std::size_t Below(std::size_t count);

 private:
  // The start and length of a piece of text.
  struct Stretch {
    std::size_t begin;
    std::size_t length;
  };

  [[nodiscard]] Stretch StretchOf(std::string_view text);
  [[nodiscard]] bool OneIn(std::size_t count) { return Below(count) == 0; }
  [[nodiscard]] std::string_view Any(std::string_view joined);
  [[nodiscard]] std::string RandomBytes(std::size_t count);
  [[nodiscard]] std::string Amount();
  [[nodiscard]] std::string Sum();
  [[nodiscard]] std::string GoodRangeFile();
  [[nodiscard]] std::string GoodSettingsFile();
  void Spoil(std::string& text, std::string_view pieces);

  std::mt19937_64 random_;
};

/// A text as some editors save it, with two bytes for each character and a byte-order mark.
[[nodiscard]] std::string InWideCharacters(std::string_view text);

/// Counts the outcomes for inputs of one kind and prints them at the end: "120 range files: 93 read, ...".
class Tally {
 public:
  explicit Tally(std::string_view kind) : kind_(kind) {}
  Tally(const Tally&) = delete;
  Tally(Tally&&) = delete;
  Tally& operator=(const Tally&) = delete;
  Tally& operator=(Tally&&) = delete;
  /// Prints it.
  ~Tally();

  void Count(const std::string& fate) { ++fates_[fate]; }

 private:
  std::string kind_;
  std::map<std::string, int> fates_;
};

/// Checks that the companion's CSV has the figures of the oracle.
void ExpectFigures(const std::string& csv, const plain::Result& result, plain::Mode mode);

/// A printable form of the input: unprintable characters as numbers, and only its first part.
[[nodiscard]] std::string Shown(std::string_view input);

}  // namespace quillon
