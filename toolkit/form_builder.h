#pragma once

// Builds a form's controls from its rows, and finds them by name and index.

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

/// The controls of a form by object name. The form owns them.
class FormControls {
 public:
  /// Builds the controls of all tables, each in its container, which is in an earlier table. A control's object name is
  /// its name and index; the rows of each table are stacked with the first in front.
  FormControls(QWidget& form, std::span<const ControlTable> layout);

  void Add(QWidget* control);

  /// Null for an unknown name.
  [[nodiscard]] QWidget* Find(const std::string& objectName) const;

  /// The control of that name, and of the kind that its row makes. An unknown name is a bug: std::out_of_range.
  [[nodiscard]] QWidget& At(const std::string& objectName) const { return *controls_.at(objectName); }
  [[nodiscard]] QWidget& At(const ControlRow& row) const { return At(ObjectName(row.Name, row.Index)); }

  /// The number of controls of that name, counted from index 0 without a gap.
  [[nodiscard]] std::int16_t CountOf(std::string_view name) const;

 private:
  std::unordered_map<std::string, QWidget*> controls_;
};

/// The controls of a form built from `kLayout`, each as the kind that its row makes.
template <const auto& kLayout>
class LayoutControls : public FormControls {
 public:
  template <typename Widget = QWidget>
  using Key = ControlKey<kLayout, Widget>;

  explicit LayoutControls(QWidget& form) : FormControls(form, kLayout) {}

  /// The control of that name. An unknown index is a bug: std::out_of_range.
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

  /// The controls of these names; controls that share one are ordered by index.
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
