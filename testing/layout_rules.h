#pragma once

// Rules that every layout keeps, whatever its rows say. Pictures of each screen are compared in
// "tests/screens_journey_test.cpp".

#include <QWidget>
#include <gtest/gtest.h>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "toolkit/form_builder.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {

/// Each row has its control, under a name of its own and in its container.
inline void ExpectBuiltAsItsRows(const QWidget& form, const FormControls& controls,
                                 std::span<const ControlTable> tables) {
  std::set<std::string> names;
  for (const ControlTable& table : tables) {
    const QWidget* container = table.Container.empty() ? &form : controls.Find(std::string(table.Container));
    for (const ControlRow& row : table.Rows) {
      const std::string name = ObjectName(row.Name, row.Index);
      EXPECT_TRUE(names.insert(name).second) << name << " is there twice";
      const QWidget& control = controls.At(row);
      EXPECT_EQ(FromQt(control.objectName()), name);
      EXPECT_EQ(control.parentWidget(), container) << name;
    }
  }
}

/// Each label has room for its text.
inline void ExpectTextsFit(const QWidget& form) {
  for (const Label* label : form.findChildren<Label*>()) {
    EXPECT_LE(label->TextSize().width(), label->width()) << FromQt(label->objectName());
    EXPECT_LE(label->TextSize().height(), label->height()) << FromQt(label->objectName());
  }
}

/// A label may grow with its text, and then must not run into a control that its row leaves free.
inline void ExpectNoLabelRunsIntoItsNeighbours(const FormControls& controls, std::span<const ControlTable> tables) {
  const auto isDrawing = [](ControlKind kind) {
    return kind == ControlKind::kShape || kind == ControlKind::kRoundedShape || kind == ControlKind::kLine;
  };
  for (const ControlTable& table : tables) {
    for (const ControlRow& row : table.Rows) {
      if (row.Kind != ControlKind::kLabel || row.Hidden) continue;
      for (const ControlRow& other : table.Rows) {
        if (&other == &row || isDrawing(other.Kind) || other.Hidden) continue;
        if (PixelPlace(row.Place).intersects(PixelPlace(other.Place))) continue;
        EXPECT_FALSE(controls.At(row).geometry().intersects(controls.At(other).geometry()))
            << ObjectName(row.Name, row.Index) << " and " << ObjectName(other.Name, other.Index);
      }
    }
  }
}

/// Each picture can be drawn.
inline void ExpectPicturesAreThere(const FormControls& controls, std::span<const ControlTable> tables) {
  for (const ControlTable& table : tables) {
    for (const ControlRow& row : table.Rows) {
      if (row.Picture.empty()) continue;
      const auto& picture = dynamic_cast<const Picture&>(controls.At(row));
      EXPECT_FALSE(ArtworkPixmap(picture.Artwork(), picture.size(), 1).isNull()) << ObjectName(row.Name, row.Index);
    }
  }
}

}  // namespace quillon
