#include "toolkit/form_card_grid.h"

#include <QContextMenuEvent>
#include <QMimeData>
#include <algorithm>

#include "toolkit/colors.h"
#include "toolkit/grid_keys.h"
#include "toolkit/placement.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

std::size_t At(std::int16_t index) {
  return static_cast<std::size_t>(index);
}

Qt::CheckState CheckStateOf(Rgb color) {
  if (color == kFullColor) return Qt::Checked;
  return color == kHalfColor ? Qt::PartiallyChecked : Qt::Unchecked;
}

CardGridPlaces PlacesIn(const Shape& frameShape, const Shape& squareShape) {
  const TwipRect frame = PlaceOf(frameShape);
  const TwipRect square = PlaceOf(squareShape);
  return PlaceCardGrid(frame.Left, frame.Top, {.Width = square.Width, .Height = square.Height});
}

}  // namespace

FormCardGrid::FormCardGrid(const Patterns& patterns, FormControls& controls, QWidget& container, ShiftWatch& shift,
                           const QCheckBox* half)
    : controls_(controls),
      container_(container),
      frame_(patterns.Frame),
      shift_(shift),
      half_(half),
      places_(PlacesIn(patterns.Frame, patterns.Square)) {
  SetPlace(patterns.Frame, places_.Frame);
  squares_[0] = &patterns.Square;
  labels_[0] = &patterns.Cell;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    BuildCell(index);
  MakeTabStop(0);
  container.installEventFilter(this);
}

CellColors FormCardGrid::Colors() const {
  CellColors cells{};
  for (std::size_t index = 0; index < cells.size(); ++index)
    cells.at(index) = FromColor(squares_.at(index)->Fill());
  return cells;
}

void FormCardGrid::Show(const CellColors& cells) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    const Rgb color = cells.at(At(index));
    SetFill(index, color);
    Cell(index).SetTextColor(ToColor(CaptionColorOn(color)));
    ShowHalo(index);
  }
}

void FormCardGrid::SetFill(std::int16_t index, Rgb color) {
  Square(index).SetFill(ToColor(color));
  ShowHalo(index);
  // On a grid for selecting, the colour is a state, which screen readers must hear.
  if (half_ != nullptr) Cell(index).SetCheckState(CheckStateOf(color));
}

void FormCardGrid::Describe(std::int16_t index, const QString& text) {
  Cell(index).setAccessibleDescription(text);
}

// Black letters on a dark cell: neither colour may change, so the letters get a pale edge.
void FormCardGrid::ShowHalo(std::int16_t index) {
  constexpr double kLegible = 3;
  constexpr Rgb kPale = {0xF4, 0xF4, 0xF4};
  const Rgb text = FromColor(Cell(index).TextColor());
  const bool dim = ContrastRatio(text, FromColor(Square(index).Fill())) < kLegible;
  Cell(index).SetHalo(dim ? ToColor(kPale) : Qt::transparent);
}

void FormCardGrid::Toggle(std::int16_t index) {
  CellColors cells = Colors();
  ToggleCell(cells, index, {.Half = half_ != nullptr && half_->isChecked(), .Shift = shift_.Ask()});
  Show(cells);
}

void FormCardGrid::Toggle(std::span<const CellToggle> toggles) {
  CellColors cells = Colors();
  for (const CellToggle& toggle : toggles)
    ToggleCell(cells, toggle.Index, {.Half = toggle.Half});
  Show(cells);
}

void FormCardGrid::SetToolTip(const QString& text) {
  for (Label* label : labels_)
    label->setToolTip(text);
}

void FormCardGrid::TakeTexts() {
  container_.setAcceptDrops(true);
}

void FormCardGrid::Raise(std::int16_t index) {
  Square(index).raise();
  Cell(index).raise();
}

const TwipRect& FormCardGrid::SquarePlace(std::int16_t index) const {
  return places_.Cells.at(At(index)).Square;
}

void FormCardGrid::BuildCell(std::int16_t index) {
  if (index > 0) {
    auto* square = new Shape(ControlKind::kShape, &container_);
    square->SetLineColor(Square(0).LineColor());
    square->setObjectName(ToQt(ObjectName("shapeCardBack", index)));
    auto* label = new Label(&container_);
    CopyFormFont(*label, Cell(0));
    label->SetUse(Cell(0).Use());
    label->SetTextColor(Cell(0).TextColor());
    label->setObjectName(ToQt(ObjectName("lblCards", index)));

    squares_.at(At(index)) = square;
    labels_.at(At(index)) = label;
    controls_.Add(square);
    controls_.Add(label);
  }
  const CellPlace& place = places_.Cells.at(At(index));
  const std::string_view caption = HandLabel(index);
  SetPlace(Square(index), place.Square);
  Cell(index).SetMarkedPlace(Square(index));
  SetFill(index, CellBaseColor(caption));
  SetPlace(Cell(index), place.Label);
  Cell(index).SetAlignment(TextAlignment::kCentered);
  Cell(index).SetText(ToQt(caption));
  Square(index).show();
  Cell(index).show();
  Raise(index);
  Listen(index);
}

void FormCardGrid::Listen(std::int16_t index) {
  Label& cell = Cell(index);
  cell.installEventFilter(this);
  if (index != tabStop_) cell.setFocusPolicy(Qt::NoFocus);
  connect(&cell, &Control::Clicked, this, [this, index] { Q_EMIT CellClicked(index); });
  connect(&cell, &Control::MouseMoved, this, [this, index] { Q_EMIT CellHovered(index); });
  connect(&cell, &Control::FocusReached, this, [this, index] { Q_EMIT CellReached(index); });
  connect(&cell, &Control::FocusLeft, this, &FormCardGrid::CellLeft);
}

// Events that cells ignore reach the container: mouse moves anywhere over the grid, and the menu key.
bool FormCardGrid::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (const auto cell = CellOf(watched)) return HandlesKey(*cell, dynamic_cast<QKeyEvent&>(*event));
      break;
    case QEvent::ContextMenu:
      if (const QPoint place = dynamic_cast<QContextMenuEvent&>(*event).pos();
          watched == &container_ && IsOverGrid(place)) {
        AskForMenu(place);
        return true;
      }
      break;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:  // for the container: cells take no drops
      return HandlesDrag(dynamic_cast<QDropEvent&>(*event));
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

std::optional<std::int16_t> FormCardGrid::CellOf(const QObject* label) const {
  const auto* const cell = std::ranges::find(labels_, label);
  if (cell == labels_.end()) return {};
  return static_cast<std::int16_t>(cell - labels_.begin());
}

// But not over what is in front of it.
bool FormCardGrid::IsOverGrid(const QPoint& place) const {
  const QWidget* const front = container_.childAt(place);
  return frame_.geometry().contains(place) && (front == nullptr || CellOf(front));
}

bool FormCardGrid::HandlesKey(std::int16_t from, const QKeyEvent& press) {
  if (press.key() == Qt::Key_F10 && press.modifiers() == Qt::ShiftModifier) {
    AskForMenu(Square(from).geometry().center());
    return true;
  }
  if (press.key() == Qt::Key_Escape) Q_EMIT CellLeft();
  const auto to = CellReachedFrom(from, press);
  if (to) MoveFocus(*to);  // even if it is the same cell, for its signals
  return to.has_value();
}

// A copy: the source keeps what is dragged.
bool FormCardGrid::HandlesDrag(QDropEvent& event) {
  const bool entersWindow = event.type() == QEvent::DragEnter;
  event.setDropAction(Qt::CopyAction);
  event.setAccepted(event.mimeData()->hasText() && (entersWindow || IsOverGrid(event.position().toPoint())));
  if (event.isAccepted() && event.type() == QEvent::Drop) Q_EMIT TextDropped(event.mimeData()->text());
  return true;
}

void FormCardGrid::AskForMenu(const QPoint& place) {
  const auto* const square = std::ranges::find_if(
      squares_, [&place](const Shape* candidate) { return candidate->geometry().contains(place); });
  const auto index = square == squares_.end() ? -1 : square - squares_.begin();
  Q_EMIT MenuWanted(static_cast<qint16>(index), container_.mapToGlobal(place));
}

void FormCardGrid::MoveFocus(std::int16_t to) {
  MakeTabStop(to);
  Cell(to).setFocus(Qt::OtherFocusReason);
  Q_EMIT CellReached(to);
}

void FormCardGrid::MakeTabStop(std::int16_t index) {
  Cell(tabStop_).setFocusPolicy(Qt::NoFocus);
  tabStop_ = index;
  Cell(index).setFocusPolicy(Qt::TabFocus);
}

}  // namespace quillon
