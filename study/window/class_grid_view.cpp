#include "study/window/class_grid_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cstddef>

#include "toolkit/colors.h"
#include "toolkit/control.h"
#include "toolkit/grid_keys.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {

// A square for a class. A pale one does not rely on colour alone: its label is not bold.
class GridCell : public Control {
 public:
  GridCell(std::int16_t index, QWidget* parent) : Control(parent), label_(ToQt(HandLabel(index))) {
    SetUse(ControlUse::kPlainLink);
    setAccessibleName(label_);
  }

  void Show(const ClassCell& cell) {
    if (cell == cell_) return;
    cell_ = cell;
    setAccessibleDescription(ToQt(cell.Words));
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), ToColor(cell_.Color));
    painter.setPen(ToColor(ReadableOn(cell_.Color)));
    // Cell heights differ by a pixel; the letters must not.
    const QSize whole = parentWidget()->size() / kRankCount;
    const int label = std::min(whole.height() * kLabelShare, whole.width() * kLabelWidthShare) / 100;
    const bool hasText = !cell_.Text.empty();
    QRect upper = rect();
    if (hasText) upper.setBottom(height() * kUpperShare / 100);
    Write(painter, upper, label_, label, !cell_.Pale);
    if (!hasText) return;
    QRect lower = rect();
    lower.setTop(upper.bottom());
    Write(painter, lower, ToQt(cell_.Text), whole.height() * kTextShare / 100, false);
  }

 private:
  // Percentages of a cell's height, and of its width, in which "AKo" has to fit.
  static constexpr int kUpperShare = 54;
  static constexpr int kLabelShare = 38;
  static constexpr int kTextShare = 30;
  static constexpr int kLabelWidthShare = 38;

  // At this size, or smaller if the text would be too wide.
  void Write(QPainter& painter, const QRect& place, const QString& text, int pixels, bool bold) const {
    QFont font = this->font();
    font.setBold(bold);
    font.setPixelSize(std::max(1, std::min(pixels, LinePixels(kLargest))));
    const int room = place.width() - 2 * LinePixels(1);
    const int wide = QFontMetrics(font).horizontalAdvance(text);
    if (wide > room) font.setPixelSize(std::max(1, font.pixelSize() * room / wide));
    painter.setFont(font);
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
  }

  static constexpr int kLargest = 18;  // pixels of the design

  QString label_;
  ClassCell cell_{.Color = kNeverPlayedColor};
};

ClassGridView::ClassGridView(QWidget* parent) : QWidget(parent) {
  for (std::int16_t index = 0; index < kHandClassCount; ++index) {
    auto* cell = new GridCell(index, this);
    cells_.at(static_cast<std::size_t>(index)) = cell;
    cell->setObjectName(ToQt(ObjectName("cell", index)));
    cell->installEventFilter(this);
    cell->setFocusPolicy(Qt::NoFocus);
    connect(cell, &Control::MouseMoved, this, [this, index] { Q_EMIT HandReached(index); });
    connect(cell, &Control::FocusReached, this, [this, index] { Q_EMIT HandReached(index); });
    connect(cell, &Control::Clicked, this, [this, index] { Q_EMIT HandPressed(index); });
  }
  MakeTabStop(0);
}

void ClassGridView::Show(const ClassCells& cells) {
  for (std::size_t i = 0; i < cells.size(); ++i)
    cells_.at(i)->Show(cells.at(i));
}

QWidget& ClassGridView::Cell(std::int16_t index) const {
  return *cells_.at(static_cast<std::size_t>(index));
}

void ClassGridView::FocusCell(std::int16_t index) {
  MakeTabStop(index);
  Cell(index).setFocus(Qt::OtherFocusReason);
  Q_EMIT HandReached(index);
}

bool ClassGridView::eventFilter(QObject* watched, QEvent* event) {
  auto* const cell = event->type() == QEvent::KeyPress ? std::ranges::find(cells_, watched) : cells_.end();
  if (cell == cells_.end()) return QWidget::eventFilter(watched, event);
  const auto from = static_cast<std::int16_t>(cell - cells_.begin());
  const auto to = CellReachedFrom(from, dynamic_cast<QKeyEvent&>(*event));
  if (!to) return QWidget::eventFilter(watched, event);
  FocusCell(*to);
  return true;
}

// Edges are computed from the whole, so that the cells fill the grid and the gaps differ by at most a pixel.
void ClassGridView::resizeEvent(QResizeEvent* /*event*/) {
  const int gap = LinePixels(1);
  const auto edge = [](int length, int line) { return length * line / kRankCount; };
  for (int index = 0; index < kHandClassCount; ++index) {
    const int column = index % kRankCount;
    const int row = index / kRankCount;
    const QPoint corner(edge(width() + gap, column), edge(height() + gap, row));
    const QPoint next(edge(width() + gap, column + 1), edge(height() + gap, row + 1));
    cells_.at(static_cast<std::size_t>(index))->setGeometry(QRect(corner, next - QPoint(gap + 1, gap + 1)));
  }
}

void ClassGridView::MakeTabStop(std::int16_t index) {
  Cell(tabStop_).setFocusPolicy(Qt::NoFocus);
  tabStop_ = index;
  Cell(index).setFocusPolicy(Qt::TabFocus);
  setFocusProxy(&Cell(index));
}

}  // namespace quillon
