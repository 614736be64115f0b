#pragma once

// The lines of classes that runs in a range's notation follow: the pairs, the suited hands of one high card, the
// offsuit hands of one high card, each from the best class down. In the grid they are the diagonal, the part of a row
// to the right of it, and the part of a column below it.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "hand/hand_classes.h"
#include "support/joined_text.h"

namespace quillon {

struct ClassLine {
  int First = 0;  // class index
  int Step = 0;  // from one class index to the next
  int Count = 0;

  [[nodiscard]] constexpr int Index(int place) const { return First + place * Step; }
  [[nodiscard]] std::string_view Label(int place) const { return HandLabel(static_cast<std::int16_t>(Index(place))); }

  /// The classes from position `start` to position `end` in notation.
  ///
  ///     "88" for one class      "88+", "ATs+" for a run from the line's best      "JJ-88", "AQs-A9s" for any other
  [[nodiscard]] std::string Run(int start, int end) const {
    if (start == end) return std::string(Label(end));
    if (start == 0) return Joined({Label(end), "+"});
    return Joined({Label(start), "-", Label(end)});
  }
};

/// All lines in notation order: the pairs, then the suited hands by high card from A down to 3, then the offsuit hands
/// likewise. Every class is in exactly one.
inline constexpr std::array<ClassLine, 25> kClassLines = [] {
  constexpr int kToTheRight = 1;
  constexpr int kDown = kRankCount;
  constexpr int kAlongDiagonal = kToTheRight + kDown;
  std::array<ClassLine, 25> lines;
  std::size_t next = 0;
  lines[next++] = {0, kAlongDiagonal, kRankCount};
  for (const int step : {kToTheRight, kDown}) {
    for (int high = 0; high + 1 < kRankCount; ++high)
      lines[next++] = {high * kAlongDiagonal + step, step, kRankCount - 1 - high};
  }
  return lines;
}();

}  // namespace quillon
