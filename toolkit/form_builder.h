#pragma once

// From the rows of a form to its controls, and from a control's name and index back to the control.

#include <QWidget>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "toolkit/control_row.h"
#include "toolkit/frame.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"
#include "toolkit/shape.h"

namespace quillon {

/// The controls of one form by their names. It owns none of them; the form does.
class FormControls {
 public:
  void Add(QWidget* control);

  /// The control of that name, as the kind that the caller knows it to be. A name that is not there, or is of another
  /// kind, is a fault in the program and ends it.
  template <typename Kind>
  [[nodiscard]] Kind& Get(std::string_view name, std::int16_t index = kNoIndex) const;

  [[nodiscard]] QWidget* Find(const std::string& objectName) const;

  [[nodiscard]] Label& LabelAt(std::string_view name, std::int16_t index = kNoIndex) const {
    return Get<Label>(name, index);
  }
  [[nodiscard]] Picture& PictureAt(std::string_view name, std::int16_t index = kNoIndex) const {
    return Get<Picture>(name, index);
  }
  [[nodiscard]] Shape& ShapeAt(std::string_view name, std::int16_t index = kNoIndex) const {
    return Get<Shape>(name, index);
  }
  [[nodiscard]] Frame& FrameAt(std::string_view name, std::int16_t index = kNoIndex) const {
    return Get<Frame>(name, index);
  }

  /// How many controls there are of that name, counted from index 0 without a gap.
  [[nodiscard]] std::int16_t CountOf(std::string_view name) const;

 private:
  std::unordered_map<std::string, QWidget*> controls_;
};

[[noreturn]] void ControlMissing(const std::string& objectName);

template <typename Kind>
Kind& FormControls::Get(std::string_view name, std::int16_t index) const {
  const std::string objectName = ObjectName(name, index);
  auto* control = qobject_cast<Kind*>(Find(objectName));
  if (control == nullptr) ControlMissing(objectName);
  return *control;
}

/// Builds the controls of all tables, each in its container, which is in an earlier table. Every control gets its
/// name and index as object name; the rows of each table are stacked with the first in front.
[[nodiscard]] FormControls BuildForm(QWidget& form, std::span<const ControlTable> tables);

/// Builds one control more.
QWidget* BuildControl(QWidget& container, const ControlRow& row, const FontSpec& inherited);

}  // namespace quillon
