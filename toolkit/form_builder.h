#pragma once

// From the rows of a form to its controls, and from a control's name and index back to the control.

#include <QWidget>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "toolkit/control_key.h"
#include "toolkit/control_row.h"
#include "toolkit/frame.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"
#include "toolkit/shape.h"

namespace quillon {

/// The controls of one form by their object names. It owns none of them; the form does.
class FormControls {
 public:
  /// Builds the controls of all tables, each in its container, which is in an earlier table. Every control gets its
  /// name and index as object name; the rows of each table are stacked with the first in front.
  FormControls(QWidget& form, std::span<const ControlTable> layout);

  void Add(QWidget* control);

  /// Null for a name that is not there.
  [[nodiscard]] QWidget* Find(const std::string& objectName) const;

  /// The control of that name, and that which a row of the layout has become. A name that is not there is a fault in
  /// the program: std::out_of_range.
  [[nodiscard]] QWidget& At(const std::string& objectName) const { return *controls_.at(objectName); }
  [[nodiscard]] QWidget& At(const ControlRow& row) const { return At(ObjectName(row.Name, row.Index)); }

  /// How many controls there are of that name, counted from index 0 without a gap.
  [[nodiscard]] std::int16_t CountOf(std::string_view name) const;

 private:
  std::unordered_map<std::string, QWidget*> controls_;
};

/// The controls of the form that is built from `kLayout`, each as the kind that its row makes.
template <const auto& kLayout>
class LayoutControls : public FormControls {
 public:
  template <typename Widget = QWidget>
  using Key = ControlKey<kLayout, Widget>;

  explicit LayoutControls(QWidget& form) : FormControls(form, kLayout) {}

  /// The control of that name. An index that is not there is a fault in the program: std::out_of_range.
  template <typename Widget>
  [[nodiscard]] Widget& Get(Key<Widget> key, std::int16_t index = kNoIndex) const {
    return dynamic_cast<Widget&>(At(ObjectName(key.Name(), index)));
  }

  [[nodiscard]] Label& LabelAt(Key<Label> key, std::int16_t index = kNoIndex) const { return Get<Label>(key, index); }
  [[nodiscard]] Picture& PictureAt(Key<Picture> key, std::int16_t index = kNoIndex) const {
    return Get<Picture>(key, index);
  }
  [[nodiscard]] Shape& ShapeAt(Key<Shape> key, std::int16_t index = kNoIndex) const { return Get<Shape>(key, index); }
  [[nodiscard]] Frame& FrameAt(Key<Frame> key, std::int16_t index = kNoIndex) const { return Get<Frame>(key, index); }

  /// The controls of these names, those that share one in the order of their indexes.
  [[nodiscard]] std::vector<QWidget*> All(std::span<const Key<>> keys) const {
    std::vector<QWidget*> all;
    for (const Key<>& key : keys) {
      const std::int16_t count = CountOf(key);
      if (count == 0) all.push_back(&Get<QWidget>(key));
      for (std::int16_t index = 0; index < count; ++index)
        all.push_back(&Get<QWidget>(key, index));
    }
    return all;
  }

  [[nodiscard]] std::int16_t CountOf(Key<> key) const { return FormControls::CountOf(key.Name()); }
};

}  // namespace quillon
