#pragma once

// A screen as a table: one row for each control, with its name, its place in twips, its colours and its font. A form is
// built from such rows ("toolkit/form_builder.h"), and tests and pictures of the screens walk the same ones. Of two
// controls that overlap, the one whose row comes first is in front.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "support/twips.h"

namespace quillon {

enum class ControlKind : std::uint8_t {
  kLabel,
  kPicture,
  kShape,
  kRoundedShape,
  kLine,
  kTextBox,
  kMemo,
  kReadOnlyMemo,
  kChooser,
  kListBox,
  kCheckBox,
  kButton,
  kFrame,
  kRichTextBox,
};

enum class TextAlignment : std::uint8_t { kLeft, kCentered, kRight };

/// What a control does with the mouse and the keyboard.
enum class ControlUse : std::uint8_t {
  kPassive,  // nothing can be done with it
  kLink,  // a click is heard; the hand cursor shows over it, and Tab reaches it
  kFocusLink,  // the same, and a click of the mouse takes the keyboard focus, too
  kPlainLink,  // a click is heard and Tab reaches it, under the ordinary cursor
};

enum class LineStyle : std::uint8_t { kSolid, kDotted, kNone };

/// A colour in the form 0xRRGGBB, as the tables of controls give it, or no colour of its own.
inline constexpr std::int32_t kNoColor = -1;
/// The window system's colour for the background and the text of a window.
inline constexpr std::int32_t kWindowColor = -2;
inline constexpr std::int32_t kWindowTextColor = -3;

struct FontSpec {
  std::string_view Family = {};  // empty: the font of the frame that holds the control
  float Points = 0;  // at 96 dots to the inch, whatever the screen says
  bool Bold = false;
  bool Underlined = false;
};

constexpr FontSpec Arial(double points) {
  return {.Family = "Arial", .Points = static_cast<float>(points)};
}
constexpr FontSpec MsSansSerif(double points) {
  return {.Family = "MS Sans Serif", .Points = static_cast<float>(points)};
}
constexpr FontSpec Tahoma(double points) {
  return {.Family = "Tahoma", .Points = static_cast<float>(points)};
}
constexpr FontSpec Verdana(double points) {
  return {.Family = "Verdana", .Points = static_cast<float>(points)};
}
constexpr FontSpec Bold(FontSpec font) {
  font.Bold = true;
  return font;
}
constexpr FontSpec Underlined(FontSpec font) {
  font.Underlined = true;
  return font;
}

/// The index of a control that alone has its name.
inline constexpr std::int16_t kNoIndex = -1;

struct ControlRow {
  std::string_view Name;
  std::int16_t Index = kNoIndex;
  ControlKind Kind = ControlKind::kLabel;
  std::string_view Text = {};  // UTF-8, lines separated by CR LF
  TwipRect Place = {};  // a line runs from the upper left to the lower right corner
  std::int32_t Back = kNoColor;
  std::int32_t Fore = kNoColor;  // of text; of a shape or a line, its line
  FontSpec Font = {};
  bool Hidden = false;
  ControlUse Use = ControlUse::kPassive;
  TextAlignment Alignment = TextAlignment::kLeft;
  bool Cut = false;  // a label's text that is too wide ends with an ellipsis, and the label does not grow
  LineStyle Style = LineStyle::kSolid;
  std::int16_t LineWidth = 1;  // pixels
  std::string_view Picture = {};  // the file in "artwork/" less its extension
  std::string_view ToolTip = {};
  std::string_view Spoken = {};  // what a screen reader calls it; empty: its text
};

/// The rows of one container: the form itself, one screen, or a frame within a screen.
struct ControlTable {
  std::string_view Container;  // the object name of the frame, such as "frameContent(0)"; empty: the form
  FontSpec Font;  // of every row that names none
  std::span<const ControlRow> Rows;
};

/// The name by which a control is found: "txtNumber(2)", or "picLogo" if it alone has its name.
[[nodiscard]] std::string ObjectName(std::string_view name, std::int16_t index = kNoIndex);

}  // namespace quillon
