#pragma once

// The card grid of a form, made of the form's own controls. It also carries what the keyboard does: Tab reaches the
// grid at one cell, the arrow keys go from there to the neighbours, and Enter or Space presses the cell.

#include <QCheckBox>
#include <QObject>
#include <array>
#include <cstdint>
#include <string_view>

#include "hand/hand_classes.h"
#include "ranges/card_grid.h"
#include "ranges/dialogs/shift_watch.h"
#include "toolkit/form_builder.h"

namespace quillon {

class FormCardGrid : public QObject, public CardGridForm {
  Q_OBJECT

 public:
  /// `container` is the form or screen that holds the design cell, of index 0, and `shapeBlue`. `half` is the check box
  /// for half weight, null where the form has none. New cells are made known to `controls`.
  FormCardGrid(FormControls& controls, QWidget& container, ShiftWatch& shift, const QCheckBox* half);

  [[nodiscard]] TwipRect FrameRect() const override { return frame_; }
  void SetFrameRect(const TwipRect& rect) override;
  void CreateCell(std::int16_t index) override;
  [[nodiscard]] TwipRect SquareRect(std::int16_t index) const override;
  void SetSquareRect(std::int16_t index, const TwipRect& rect) override;
  void SetLabelRect(std::int16_t index, const TwipRect& rect) override;
  void SetLabelCaption(std::int16_t index, std::string_view caption) override;
  void ShowSquare(std::int16_t index) override;
  void ShowLabel(std::int16_t index) override;
  [[nodiscard]] Rgb CellColor(std::int16_t index) const override;
  void SetCellColor(std::int16_t index, Rgb color) override;
  void SetCaptionColor(std::int16_t index, Rgb color) override;
  [[nodiscard]] bool HalfChecked() const override;
  [[nodiscard]] bool ShiftKeyPressed() override { return shift_.Ask(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void CellClicked(qint16 index);
  void CellReached(qint16 index);  // the mouse moved over it, or the keyboard went there

 private:
  void Listen(std::int16_t index);
  void MoveFocus(std::int16_t from, int key);
  void MakeTabStop(std::int16_t index);
  [[nodiscard]] Shape& Square(std::int16_t index) const { return *squares_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] Label& Cell(std::int16_t index) const { return *labels_.at(static_cast<std::size_t>(index)); }

  FormControls& controls_;
  QWidget& container_;
  ShiftWatch& shift_;
  const QCheckBox* half_;
  TwipRect frame_;
  std::array<TwipRect, kHandClassCount> squareRects_{};
  std::array<Shape*, kHandClassCount> squares_{};
  std::array<Label*, kHandClassCount> labels_{};
  std::int16_t tabStop_ = 0;
};

}  // namespace quillon
