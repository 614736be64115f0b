#pragma once

// Rules for every layout. "tests/screens_journey_test.cpp" compares pictures of each screen.

#include <QImageReader>
#include <QWidget>
#include <gtest/gtest.h>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "toolkit/artwork_painting.h"
#include "toolkit/form_builder.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {

/// Each row has a control with a unique name and in its container.
inline void ExpectBuiltAsItsRows(const QWidget& form, const FormControls& controls,
                                 std::span<const ControlTable> tables) {
  std::set<std::string> names;
  for (const ControlTable& table : tables) {
    const QWidget* container = table.Container.empty() ? &form : controls.Find(std::string(table.Container));
    for (const ControlRow& row : table.Rows) {
      const std::string name = ObjectName(row.Name, row.Index);
      EXPECT_TRUE(names.insert(name).second) << name << " is not unique";
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

/// A label may grow with its text, but not into a control that its row leaves free.
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

/// Each picture exists, and was drawn in the size of its place; if the build has rendered it, at this multiple.
inline void ExpectPicturesAreThere(const FormControls& controls, std::span<const ControlTable> tables) {
  for (const ControlTable& table : tables) {
    for (const ControlRow& row : table.Rows) {
      if (row.Picture.empty()) continue;
      const std::string name = ObjectName(row.Name, row.Index);
      const auto& picture = dynamic_cast<const Picture&>(controls.At(row));
      EXPECT_FALSE(ArtworkPixmap(picture.Artwork(), picture.size(), 1).isNull()) << name;
      if (table.Container == "frameControls") continue;  // which only stores them
      const QString file = ArtworkFile(picture.Artwork());
      const QSize drawn = QImageReader(file).size();
      const QSize place = PixelPlace(row.Place).size();
      EXPECT_EQ(drawn, place * (file.endsWith(QStringLiteral(".svg")) ? 1 : drawn.width() / place.width())) << name;
    }
  }
}

}  // namespace quillon
