#include "ranges/dialogs/form_card_grid.h"

#include <QKeyEvent>
#include <algorithm>

#include "toolkit/colors.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

constexpr int kSide = 13;

std::size_t At(std::int16_t index) {
  return static_cast<std::size_t>(index);
}

QString SpokenState(Rgb color) {
  if (color == kFullColor) return QStringLiteral("selected");
  return color == kHalfColor ? QStringLiteral("half as likely") : QStringLiteral("not selected");
}

}  // namespace

FormCardGrid::FormCardGrid(FormControls& controls, QWidget& container, ShiftWatch& shift, const QCheckBox* half)
    : controls_(controls),
      container_(container),
      shift_(shift),
      half_(half),
      frame_(TwipsOf(controls.ShapeAt("shapeBlue").geometry())) {
  squares_[0] = &controls.ShapeAt("shapeCardBack", 0);
  labels_[0] = &controls.LabelAt("lblCards", 0);
  squareRects_[0] = TwipsOf(squares_[0]->geometry());
  Listen(0);
  MakeTabStop(0);
}

void FormCardGrid::SetFrameRect(const TwipRect& rect) {
  frame_ = rect;
  controls_.ShapeAt("shapeBlue").setGeometry(PixelPlace(rect));
}

void FormCardGrid::CreateCell(std::int16_t index) {
  auto* square = new Shape(ControlKind::kShape, &container_);
  square->SetLineColor(Square(0).LineColor());
  square->setObjectName(ToQt(ObjectName("shapeCardBack", index)));
  square->hide();
  auto* label = new Label(&container_);
  label->setFont(Cell(0).font());
  label->SetUse(Cell(0).Use());
  label->SetTextColor(Cell(0).TextColor());
  label->setObjectName(ToQt(ObjectName("lblCards", index)));
  label->hide();

  squares_.at(At(index)) = square;
  labels_.at(At(index)) = label;
  controls_.Add(square);
  controls_.Add(label);
  Listen(index);
}

TwipRect FormCardGrid::SquareRect(std::int16_t index) const {
  return squareRects_.at(At(index));
}

void FormCardGrid::SetSquareRect(std::int16_t index, const TwipRect& rect) {
  squareRects_.at(At(index)) = rect;
  Square(index).setGeometry(PixelPlace(rect));
}

void FormCardGrid::SetLabelRect(std::int16_t index, const TwipRect& rect) {
  Cell(index).SetPlace(PixelPlace(rect));
}

void FormCardGrid::SetLabelCaption(std::int16_t index, std::string_view caption) {
  Cell(index).SetAlignment(TextAlignment::kCentered);
  Cell(index).SetText(ToQt(caption));
}

void FormCardGrid::ShowSquare(std::int16_t index) {
  Square(index).show();
  Square(index).raise();
}

void FormCardGrid::ShowLabel(std::int16_t index) {
  Cell(index).show();
  Cell(index).raise();
}

Rgb FormCardGrid::CellColor(std::int16_t index) const {
  return FromColor(Square(index).Fill());
}

void FormCardGrid::SetCellColor(std::int16_t index, Rgb color) {
  Square(index).SetFill(ToColor(color));
  // Where cells are selected the colour is their state, which is told to somebody who cannot see it.
  if (half_ != nullptr) Cell(index).setAccessibleDescription(SpokenState(color));
}

void FormCardGrid::SetCaptionColor(std::int16_t index, Rgb color) {
  Cell(index).SetTextColor(ToColor(color));
}

bool FormCardGrid::HalfChecked() const {
  return half_ != nullptr && half_->isChecked();
}

void FormCardGrid::Listen(std::int16_t index) {
  Label& cell = Cell(index);
  cell.installEventFilter(this);
  if (index != tabStop_) cell.setFocusPolicy(Qt::NoFocus);
  connect(&cell, &Control::Clicked, this, [this, index] { Q_EMIT CellClicked(index); });
  connect(&cell, &Control::MouseMoved, this, [this, index] { Q_EMIT CellReached(index); });
  connect(&cell, &Control::FocusReached, this, [this, index] { Q_EMIT CellReached(index); });
}

bool FormCardGrid::eventFilter(QObject* watched, QEvent* event) {
  const auto* press = event->type() == QEvent::KeyPress ? dynamic_cast<QKeyEvent*>(event) : nullptr;
  if (press == nullptr || press->key() < Qt::Key_Left || press->key() > Qt::Key_Down) {
    return QObject::eventFilter(watched, event);
  }
  auto* const cell = std::ranges::find(labels_, watched);
  if (cell == labels_.end()) return QObject::eventFilter(watched, event);
  MoveFocus(static_cast<std::int16_t>(cell - labels_.begin()), press->key());
  return true;
}

void FormCardGrid::MoveFocus(std::int16_t from, int key) {
  const int row = from / kSide + (key == Qt::Key_Down ? 1 : 0) - (key == Qt::Key_Up ? 1 : 0);
  const int column = from % kSide + (key == Qt::Key_Right ? 1 : 0) - (key == Qt::Key_Left ? 1 : 0);
  if (row < 0 || row >= kSide || column < 0 || column >= kSide) return;
  const auto index = static_cast<std::int16_t>(row * kSide + column);
  MakeTabStop(index);
  Cell(index).setFocus(Qt::OtherFocusReason);
}

void FormCardGrid::MakeTabStop(std::int16_t index) {
  Cell(tabStop_).setFocusPolicy(Qt::NoFocus);
  tabStop_ = index;
  Cell(index).setFocusPolicy(Qt::TabFocus);
}

}  // namespace quillon
