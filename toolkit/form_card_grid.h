#pragma once

// The card grid of a form, made of the form's own controls: the cell of index 0, of which all others are copies, and
// `shapeBlue`, which is fitted round them. It also carries what the keyboard does: Tab reaches the grid at one cell,
// the arrow keys go from there to the neighbours, Home and End to the ends of the row and with Ctrl to those of the
// grid, and Enter or Space presses the cell; the menu key or Shift+F10 asks for its menu, as the right mouse button
// does all over the grid. An index is that of a class.

#include <QCheckBox>
#include <QDropEvent>
#include <QKeyEvent>
#include <QObject>
#include <QPoint>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "hand/hand_classes.h"
#include "ranges/card_grid.h"
#include "ranges/grid_edits.h"
#include "toolkit/form_builder.h"
#include "toolkit/shift_watch.h"

namespace quillon {

class FormCardGrid : public QObject {
  Q_OBJECT

 public:
  /// Builds the cells, shown and unselected, each label in front of its square and all in front of what `container`,
  /// the form or screen, has besides. The captions keep the colour of label 0. `half` is the check box for half weight,
  /// null where the form has none. New cells are made known to `controls`.
  template <typename Controls>
  FormCardGrid(Controls& controls, QWidget& container, ShiftWatch& shift, const QCheckBox* half)
      : FormCardGrid({.Frame = controls.ShapeAt("shapeBlue"),
                      .Square = controls.ShapeAt("shapeCardBack", 0),
                      .Cell = controls.LabelAt("lblCards", 0)},
                     controls, container, shift, half) {}

  /// The fills of the squares as they are.
  [[nodiscard]] CellColors Colors() const;

  /// Gives each square its colour and each caption the one that goes with it.
  void Show(const CellColors& cells);

  /// Gives one square a colour; its caption keeps its own.
  void SetFill(std::int16_t index, Rgb color);

  /// What a screen reader says of a cell besides its class.
  void Describe(std::int16_t index, const QString& text);

  /// What a click does: toggles the cell by the check box and the Shift test, which is used up by that.
  void Toggle(std::int16_t index);

  /// Toggles cells one after another, whatever the check box says and whether Shift is pressed or not.
  void Toggle(std::span<const CellToggle> toggles);

  /// What the mouse is told over every cell; nothing by the empty text.
  void SetToolTip(const QString& text);

  /// Lets texts be dropped on the grid.
  void TakeTexts();

  /// Brings a cell to the front.
  void Raise(std::int16_t index);

  [[nodiscard]] const TwipRect& SquarePlace(std::int16_t index) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void CellClicked(qint16 index);
  void CellHovered(qint16 index);  // the mouse moved over it
  void CellReached(qint16 index);  // the keyboard went there: Tab, or a key that goes from cell to cell
  void CellLeft();  // the keyboard went away, or the user pressed Escape
  /// The user wants a menu at that point of the screen, of the cell there, -1 for a gap between cells.
  void MenuWanted(qint16 index, const QPoint& place);
  void TextDropped(const QString& text);

 private:
  /// What the form has of the grid before it is built.
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
