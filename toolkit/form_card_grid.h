#pragma once

// The card grid of a form, made of the form's own controls: the cell of index 0, which all others are copies of, and
// `shapeBlue`, which is fitted around them. It also handles the keyboard: Tab reaches one cell, the arrow keys move to
// its neighbours, Home and End to the ends of the row and with Ctrl to those of the grid, and Enter or Space presses
// the cell; the menu key, Shift+F10 and the right mouse button open its menu. Indexes are those of classes.

#include <QCheckBox>
#include <QDropEvent>
#include <QKeyEvent>
#include <QObject>
#include <QPoint>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "hand/hand_classes.h"
#include "ranges/card_grid.h"
#include "ranges/grid_edits.h"
#include "toolkit/form_builder.h"
#include "toolkit/shift_watch.h"

namespace quillon {

class FormCardGrid : public QObject {
  Q_OBJECT

 public:
  /// Builds the cells, visible and unselected, each label in front of its square and all in front of everything else in
  /// `container`, the form or screen. The captions keep the colour of label 0. `half` is the check box for half weight,
  /// null if the form has none. New cells are added to `controls`.
  template <typename Controls>
  FormCardGrid(Controls& controls, QWidget& container, ShiftWatch& shift, const QCheckBox* half)
      : FormCardGrid({.Frame = controls.ShapeAt("shapeBlue"),
                      .Square = controls.ShapeAt("shapeCardBack", 0),
                      .Cell = controls.LabelAt("lblCards", 0)},
                     controls, container, shift, half) {}

  /// The current fills of the squares.
  [[nodiscard]] CellColors Colors() const;

  /// Sets the colour of each square, and the matching caption colour.
  void Show(const CellColors& cells);

  /// Sets the colour of one square; its caption keeps its own.
  void SetFill(std::int16_t index, Rgb color);

  /// What a screen reader says of a cell besides its class.
  void Describe(std::int16_t index, const QString& text);

  /// Acts as a click: toggles the cell, depending on the check box and the Shift test, which it uses up.
  void Toggle(std::int16_t index);

  /// Toggles cells in order, ignoring the check box and Shift.
  void Toggle(std::span<const CellToggle> toggles);

  /// The tool tip of every cell; the empty text for none.
  void SetToolTip(const QString& text);

  /// Accepts drops of text.
  void TakeTexts();

  /// Brings a cell to the front.
  void Raise(std::int16_t index);

  [[nodiscard]] const TwipRect& SquarePlace(std::int16_t index) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void CellClicked(qint16 index);
  void CellHovered(qint16 index);  // the mouse moved over it
  void CellReached(qint16 index);  // by Tab, or a key that moves between cells
  void CellLeft();  // the keyboard focus left, or the user pressed Escape
  /// The user wants a menu at that point of the screen, for the cell there, or -1 for a gap between cells.
  void MenuWanted(qint16 index, const QPoint& place);
  void TextDropped(const QString& text);

 private:
  /// The controls that the grid is built from.
  struct Patterns {
    Shape& Frame;
    Shape& Square;
    Label& Cell;
  };

  FormCardGrid(const Patterns& patterns, FormControls& controls, QWidget& container, ShiftWatch& shift,
               const QCheckBox* half);
  void ShowHalo(std::int16_t index);
  void BuildCell(std::int16_t index);
  void Listen(std::int16_t index);
  [[nodiscard]] std::optional<std::int16_t> CellOf(const QObject* label) const;
  [[nodiscard]] bool IsOverGrid(const QPoint& place) const;
  [[nodiscard]] bool HandlesKey(std::int16_t from, const QKeyEvent& press);
  [[nodiscard]] bool HandlesDrag(QDropEvent& event);
  void AskForMenu(const QPoint& place);
  void MoveFocus(std::int16_t to);
  void MakeTabStop(std::int16_t index);
  [[nodiscard]] Shape& Square(std::int16_t index) const { return *squares_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] Label& Cell(std::int16_t index) const { return *labels_.at(static_cast<std::size_t>(index)); }

  FormControls& controls_;
  QWidget& container_;
  const Shape& frame_;
  ShiftWatch& shift_;
  const QCheckBox* half_ = nullptr;
  CardGridPlaces places_;
  std::array<Shape*, kHandClassCount> squares_{};
  std::array<Label*, kHandClassCount> labels_{};
  std::int16_t tabStop_ = 0;
};

}  // namespace quillon
