#pragma once

// A screen as a table: one row for each control, with its name, its place in twips, its colours and its font. Forms are
// built from these rows ("toolkit/form_builder.h"), and tests and screenshots use them too. If two controls overlap,
// the one whose row comes first is in front.

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

/// How a control reacts to mouse and keyboard.
enum class ControlUse : std::uint8_t {
  kPassive,  // not at all
  kLink,  // clickable, with the hand cursor, and Tab reaches it
  kFocusLink,  // the same, and a mouse click focuses it
  kPlainLink,  // clickable, and Tab reaches it, with the ordinary cursor
};

enum class LineStyle : std::uint8_t { kSolid, kDotted, kNone };

/// No colour of its own. Colours in tables of controls have the form 0xRRGGBB.
inline constexpr std::int32_t kNoColor = -1;
/// The window system's colour for the background and the text of a window.
inline constexpr std::int32_t kWindowColor = -2;
inline constexpr std::int32_t kWindowTextColor = -3;

struct FontSpec {
  std::string_view Family = {};  // empty: the font of the containing frame
  float Points = 0;  // at 96 dots to the inch, whatever the screen reports
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

/// The index of a control with a unique name.
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
  std::string_view Picture = {};  // the file in "artwork/" without its extension
  std::string_view ToolTip = {};
  std::string_view Spoken = {};  // the name for screen readers; empty: its text
};

/// The rows of one container: the form itself, one screen, or a frame within a screen.
struct ControlTable {
  std::string_view Container;  // the object name of the frame, such as "frameContent(0)"; empty: the form
  FontSpec Font;  // for every row without one
  std::span<const ControlRow> Rows;
};

/// A control's object name: "txtNumber(2)", or "picLogo" for a unique name.
[[nodiscard]] inline std::string ObjectName(std::string_view name, std::int16_t index = kNoIndex) {
  return std::string(name) + (index == kNoIndex ? "" : "(" + std::to_string(index) + ")");
}

}  // namespace quillon
