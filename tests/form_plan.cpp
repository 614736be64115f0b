#include "tests/form_plan.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include "ranges/card_grid.h"
#include "shell/start_up.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

const ControlRow* FindRow(const ControlTable& table, std::string_view objectName) {
  const auto row = std::ranges::find_if(
      table.Rows, [&](const ControlRow& entry) { return ObjectName(entry.Name, entry.Index) == objectName; });
  return row == table.Rows.end() ? nullptr : &*row;
}

// Every screen keeps its row's place except this one, which moves down at start.
TwipRect PlaceInUse(const ControlRow& row) {
  TwipRect place = row.Place;
  if (row.Name == "frameAboutContent") {
    place.Left = 0;
    place.Top = kAboutContentTop;
  }
  return place;
}

}  // namespace

FormPlan::FormPlan(std::span<const ControlTable> tables) {
  for (const ControlTable& table : tables) {
    AddTable(table);
    AddGrid(table);
  }
}

QRect FormPlan::Place(std::string_view objectName) const {
  const auto found = places_.find(objectName);
  if (found == places_.end()) throw std::out_of_range("no control is called " + std::string(objectName));
  return found->second;
}

void FormPlan::AddTable(const ControlTable& table) {
  for (const ControlRow& row : table.Rows)
    Add(ObjectName(row.Name, row.Index), PlaceInUse(row), table.Container);
}

void FormPlan::AddGrid(const ControlTable& table) {
  const ControlRow* const frame = FindRow(table, "shapeBlue");
  const ControlRow* const square = FindRow(table, "shapeCardBack(0)");
  if (frame == nullptr || square == nullptr) return;

  const CardGridPlaces places = PlaceCardGrid(frame->Place.Left, frame->Place.Top,
                                              {.Width = square->Place.Width, .Height = square->Place.Height});
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const CellPlace& cell = places.Cells.at(static_cast<std::size_t>(index));
    Add(ObjectName("shapeCardBack", index), cell.Square, table.Container);
    Add(ObjectName("lblCards", index), cell.Label, table.Container);
  }
}

void FormPlan::Add(const std::string& objectName, const TwipRect& place, std::string_view container) {
  const QPoint corner = container.empty() ? QPoint() : Place(container).topLeft();
  places_[objectName] = PixelPlace(place).translated(corner);
}

}  // namespace quillon
