#pragma once

// Limits on a grid of the classes: the colour, short text and words of each cell, the same in a window, on a web page
// and in a picture. The larger the amount, the darker the blue.

#include <array>
#include <limits>
#include <string>
#include <vector>

#include "hand/hand_classes.h"
#include "results/web_page.h"
#include "study/limits.h"
#include "support/rgb.h"

namespace quillon {

/// A cell of a study's grid.
struct ClassCell {
  Rgb Color;
  std::string Text{};  // under the label, UTF-8; may be empty
  std::string Words{};  // the same with every digit
  bool Pale = false;  // does not apply to the current situation

  bool operator==(const ClassCell&) const = default;
};

using ClassCells = std::array<ClassCell, kHandClassCount>;

/// The colour of a hand that is never played.
inline constexpr Rgb kNeverPlayedColor = {0xE3, 0xE6, 0xEA};

/// Shades of blue for amounts above 0, from pale to dark; logarithmic, since amounts span orders of magnitude.
class AmountShades {
 public:
  /// Extends the scale to that amount.
  void Add(double amount);

  /// The shade of an amount on the scale; the palest if all added amounts are equal.
  [[nodiscard]] Rgb Of(double amount) const;

  /// Darker than any amount, and in the middle of the scale.
  [[nodiscard]] static Rgb Deepest();
  [[nodiscard]] static Rgb Middle();

 private:
  double least_ = std::numeric_limits<double>::max();
  double most_ = 0;
};

/// A limit in words; the amount has the general number form.
///
///     "up to 12.5"      "always"      "never"      "from 12.5 on"
[[nodiscard]] std::string LimitWords(const Limit& limit);

/// The cells of all classes by class index, with short amounts (ShortAmount). None is pale.
[[nodiscard]] ClassCells LimitCells(const Limits& limits);

/// The same, but hands that lose at the amount are pale, and the words say so:
///
///     "up to 25, does not lose at 20"      "up to 25, loses at 90"
[[nodiscard]] ClassCells LimitCellsAt(const Limits& limits, double amount);

/// The legend of these limits, one line for each colour that occurs.
[[nodiscard]] std::vector<PageLegend> LimitLegend(const Limits& limits);

/// The same with a line for pale hands, if there are any.
[[nodiscard]] std::vector<PageLegend> LimitLegendAt(const Limits& limits, double amount);

/// The number of concrete hands, 0 to 1326, that do not lose at the amount.
[[nodiscard]] int CombosGoodAt(const Limits& limits, double amount);

/// The limits as lines of three columns with a heading: hand, kind of limit (LimitKindName), and the amount with every
/// digit, or empty. Separated by tabs for spreadsheets, by commas for files.
[[nodiscard]] std::string LimitTable(const Limits& limits, char separator);

}  // namespace quillon
