#pragma once

// Writing into the report's text box, one line and one font at a time. The box is a rich text box with an insertion
// point: fonts set there hold for what is inserted next, and inserting moves it after the new text. Line ends within
// the box are single carriage returns; a line may hold CR LF of its own, which makes empty lines.

#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// What the report needs of the box it is written into.
class ReportBox {
 public:
  virtual ~ReportBox() = default;

  virtual void SetText(std::string_view text) = 0;
  /// The font of the insertion point: its name, its size in points, its colour as red + 256 * green + 65536 * blue.
  virtual void SetFontName(std::string_view name) = 0;
  virtual void SetFontSize(std::int16_t size) = 0;
  virtual void SetFontColor(std::int32_t color) = 0;
  /// Inserts at the insertion point and moves that after what was inserted.
  virtual void InsertText(std::string_view text) = 0;
};

inline constexpr std::int32_t kHeadingFontCode = 1;  // "Arial"
inline constexpr std::int32_t kFixedWidthFontCode = 3;  // "Courier New"
inline constexpr std::int32_t kBlack = 0;

/// The pad width of a line that is written as it is.
inline constexpr std::int16_t kNoPadding = -1;
/// The pad width of lines that start with a name and a colon, so that what follows the names lines up in a column.
inline constexpr std::int16_t kNameColumn = 20;

/// Sets the font of the insertion point: name, then size, then colour. The codes are 1 "Arial", 2 "Verdana" and
/// 3 "Courier New"; any other code leaves the name as it is.
void SetReportFont(ReportBox& box, std::int32_t fontCode, std::int16_t size, std::int32_t color);

/// Inserts one line and a carriage return. Unless `padWidth` is kNoPadding, a text with a colon is first cut after its
/// first colon, the left piece filled up with spaces to `padWidth` characters, and a tab put between the pieces. `text`
/// is changed along with what is written. Characters are counted, not bytes; a left piece that is long enough gets the
/// tab alone.
///
///     ("Total Pot Size: 150", 20) -> "Total Pot Size:     \t 150"      ("BEP:", 2) -> "BEP:\t"
///     ("Situation", 20) -> "Situation"                                 ("a: b", -1) -> "a: b"
void AppendReportLine(ReportBox& box, std::string& text, std::int16_t padWidth);

/// An amount with two decimals, rounded half away from zero, with no digit before the point where the whole part is 0,
/// and spaces in front up to `width`, so that the points of a column of amounts line up. An amount
/// that is too long is not cut. A loss too small to be seen keeps its sign. Fails as PatternText does.
///
///     (120, 13) -> "       120.00"      (0.5, 6) -> "   .50"      (-0.5, 0) -> "-.50"      (0, 0) -> ".00"
[[nodiscard]] std::string MoneyColumn(double value, std::int16_t width);

}  // namespace quillon
