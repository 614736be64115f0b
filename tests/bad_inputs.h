#pragma once

// For tests: input as it comes from broken disks, strange editors and people who try things out. A good range file,
// settings file or amount is drawn first and then damaged: cut, doubled, mixed up, filled with odd characters, written
// in another encoding, blown up. The same seed gives the same inputs each time.

#include <cstddef>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>

#include "testing/oracle/runs.h"

namespace quillon {

/// How many random inputs a test takes, given its share of all in hundredths. There are 300 of them by default, and as
/// many as QUILLON_BAD_INPUTS in the environment says if it is set.
[[nodiscard]] int RandomInputs(int share);

class BadInputs {
 public:
  explicit BadInputs(std::uint64_t seed) : random_(seed) {}

  /// Bytes of a range file, and of a settings file.
  [[nodiscard]] std::string RangeFile();
  [[nodiscard]] std::string SettingsFile();

  /// UTF-8, more or less: the text of an amount box, good in one of two.
  [[nodiscard]] std::string BoxText();

  /// 0 to `count` - 1.
  [[nodiscard]] std::size_t Below(std::size_t count);

 private:
  // Where a piece of a text begins, and how long it is.
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

/// A text as some editors save it, with two bytes for each character and a byte order mark.
[[nodiscard]] std::string InWideCharacters(std::string_view text);

/// What became of the inputs of one kind, printed at the end: "120 range files: 93 read, ...".
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

/// The companion's table in CSV has the figures of the oracle.
void ExpectFigures(const std::string& csv, const plain::Result& result, plain::Mode mode);

/// The input as a test can print it: unprintable characters as numbers, and only its first part.
[[nodiscard]] std::string Shown(std::string_view input);

}  // namespace quillon
