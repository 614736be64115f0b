#pragma once

// What is written into the report's text box, one line and one font at a time. The box is a rich text box with an
// insertion point: fonts set there apply to what is inserted next, and inserting moves it after the new text. Line ends
// within the box are single carriage returns; CR LF within a line makes empty lines.

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillon {

/// The font of the insertion point.
struct ReportFont {
  std::string_view Name;  // if empty, the name stays as it is
  std::int16_t Size = 0;  // in points
  std::int32_t Color = 0;  // red + 256 * green + 65536 * blue

  bool operator==(const ReportFont&) const = default;
};

/// What goes into the box, in order: texts for the insertion point, and its fonts.
using ReportText = std::vector<std::variant<ReportFont, std::string>>;

/// The texts alone.
[[nodiscard]] std::string PlainText(const ReportText& report);

inline constexpr std::int32_t kHeadingFontCode = 1;  // "Arial"
inline constexpr std::int32_t kFixedWidthFontCode = 3;  // "Courier New"
inline constexpr std::int32_t kBlack = 0;

/// For a line without padding.
inline constexpr std::int16_t kNoPadding = -1;
/// The pad width of lines that start with a name and a colon, so that what follows the names is aligned.
inline constexpr std::int16_t kNameColumn = 20;

/// Sets the font of the insertion point. The codes are 1 "Arial", 2 "Verdana" and 3 "Courier New"; any other code keeps
/// the name.
void SetReportFont(ReportText& box, std::int32_t fontCode, std::int16_t size, std::int32_t color);

/// Inserts one line and a carriage return. Unless `padWidth` is kNoPadding, a text with a colon is first split after
/// its first colon, the left part padded with spaces to `padWidth` characters (not bytes), and a tab put between the
/// parts. `text` becomes what was written. A left part that is already long enough just gets the tab.
///
///     ("Total Pot Size: 150", 20) -> "Total Pot Size:     \t 150"      ("BEP:", 2) -> "BEP:\t"
///     ("Situation", 20) -> "Situation"                                 ("a: b", -1) -> "a: b"
void AppendReportLine(ReportText& box, std::string& text, std::int16_t padWidth);

/// An amount with two decimals, rounded half away from zero, without a leading 0 before the point, right-aligned to
/// `width`, so that a column lines up at the points. A longer amount is not cut. A loss too small to show keeps its
/// sign. Fails as PatternText does.
///
///     (120, 13) -> "       120.00"      (0.5, 6) -> "   .50"      (-0.5, 0) -> "-.50"      (0, 0) -> ".00"
[[nodiscard]] std::string MoneyColumn(double value, std::int16_t width);

}  // namespace quillon
