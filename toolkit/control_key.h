#pragma once

// The name of a control, checked against the form's layout at compile time: a name without a row, or whose row makes
// another kind of control, does not compile.

#include <concepts>
#include <span>
#include <string_view>

#include "toolkit/control_row.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace quillon {

class Control;
class Frame;
class Label;
class Picture;
class RichTextBox;
class Shape;
class TextBox;

/// Whether a row of that kind makes a `Widget`.
template <typename Widget>
[[nodiscard]] constexpr bool Makes(ControlKind kind) {
  using enum ControlKind;
  if (std::same_as<Widget, Control>) return kind == kLabel || kind == kPicture || kind == kFrame;
  if (std::same_as<Widget, Frame>) return kind == kFrame;
  if (std::same_as<Widget, Label>) return kind == kLabel;
  if (std::same_as<Widget, Picture>) return kind == kPicture;
  if (std::same_as<Widget, RichTextBox>) return kind == kRichTextBox;
  if (std::same_as<Widget, Shape>) return kind == kShape || kind == kRoundedShape || kind == kLine;
  if (std::same_as<Widget, TextBox> || std::same_as<Widget, QLineEdit>) return kind == kTextBox;
  if (std::same_as<Widget, QCheckBox>) return kind == kCheckBox;
  if (std::same_as<Widget, QComboBox>) return kind == kChooser;
  if (std::same_as<Widget, QListWidget>) return kind == kListBox;
  if (std::same_as<Widget, QPlainTextEdit>) return kind == kMemo || kind == kReadOnlyMemo;
  if (std::same_as<Widget, QPushButton>) return kind == kButton;
  return std::same_as<Widget, QWidget>;
}

/// Whether a row of the layout has that name and makes a `Widget`.
template <typename Widget>
[[nodiscard]] constexpr bool HasControl(std::span<const ControlTable> layout, std::string_view name) {
  for (const ControlTable& table : layout) {
    for (const ControlRow& row : table.Rows) {
      if (row.Name == name && Makes<Widget>(row.Kind)) return true;
    }
  }
  return false;
}

/// Not defined, so that a wrong name does not compile.
void TheLayoutHasNoSuchControl();

/// The name of a `Widget` in `kLayout`, a table of ControlTable. Converts from a string literal.
template <const auto& kLayout, typename Widget = QWidget>
class ControlKey {
 public:
  template <std::convertible_to<std::string_view> Text>
  consteval ControlKey(const Text& name) : name_(name) {  // NOLINT(google-explicit-constructor): a name is a key
    if (!HasControl<Widget>(kLayout, name)) TheLayoutHasNoSuchControl();
  }

  [[nodiscard]] constexpr std::string_view Name() const { return name_; }

 private:
  std::string_view name_;
};

}  // namespace quillon
