#pragma once

// The name of a control, checked against the layout of its form as the program is compiled: a name that no row has does
// not compile, nor does one whose row makes another kind of control than the one asked for.

#include <algorithm>
#include <array>
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

/// The rows that make a control of that class. Every row makes a QWidget.
template <typename Widget>
inline constexpr std::array<ControlKind, 0> kKindsOf = {};
template <>
inline constexpr std::array kKindsOf<Label> = {ControlKind::kLabel};
template <>
inline constexpr std::array kKindsOf<Picture> = {ControlKind::kPicture};
template <>
inline constexpr std::array kKindsOf<Frame> = {ControlKind::kFrame};
template <>
inline constexpr std::array kKindsOf<Control> = {ControlKind::kLabel, ControlKind::kPicture, ControlKind::kFrame};
template <>
inline constexpr std::array kKindsOf<Shape> = {ControlKind::kShape, ControlKind::kRoundedShape, ControlKind::kLine};
template <>
inline constexpr std::array kKindsOf<TextBox> = {ControlKind::kTextBox};
template <>
inline constexpr std::array kKindsOf<QLineEdit> = {ControlKind::kTextBox};
template <>
inline constexpr std::array kKindsOf<QPlainTextEdit> = {ControlKind::kMemo, ControlKind::kReadOnlyMemo};
template <>
inline constexpr std::array kKindsOf<RichTextBox> = {ControlKind::kRichTextBox};
template <>
inline constexpr std::array kKindsOf<QComboBox> = {ControlKind::kChooser};
template <>
inline constexpr std::array kKindsOf<QListWidget> = {ControlKind::kListBox};
template <>
inline constexpr std::array kKindsOf<QCheckBox> = {ControlKind::kCheckBox};
template <>
inline constexpr std::array kKindsOf<QPushButton> = {ControlKind::kButton};

/// Whether a row of the layout has that name and makes a `Widget`.
template <typename Widget>
[[nodiscard]] constexpr bool HasControl(std::span<const ControlTable> layout, std::string_view name) {
  for (const ControlTable& table : layout) {
    for (const ControlRow& row : table.Rows) {
      if (row.Name != name) continue;
      if (std::same_as<Widget, QWidget> || std::ranges::count(kKindsOf<Widget>, row.Kind) > 0) return true;
    }
  }
  return false;
}

/// What the compiler stops at. It is not defined.
void TheLayoutHasNoSuchControl();

/// The name of a `Widget` in `kLayout`, a table of ControlTable. Write the name where a key is wanted.
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
