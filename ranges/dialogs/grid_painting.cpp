#include "ranges/dialogs/grid_painting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <string>
#include <variant>

#include "ranges/range_messages.h"
#include "ranges/range_notation.h"
#include "toolkit/accessible_control.h"
#include "toolkit/application.h"
#include "toolkit/form_keys.h"
#include "toolkit/popup_menu.h"
#include "toolkit/text.h"

namespace quillon {
namespace {

constexpr QKeyCombination kCopyKey = Qt::CTRL | Qt::Key_C;
constexpr QKeyCombination kPasteKey = Qt::CTRL | Qt::Key_V;
constexpr QKeyCombination kUndoKey = Qt::CTRL | Qt::Key_Z;
constexpr QKeyCombination kRedoKey = Qt::CTRL | Qt::SHIFT | Qt::Key_Z;

}  // namespace

GridPainting::GridPainting(QWidget& form, FormCardGrid& grid, const QCheckBox& half, const DialogSurroundings& around)
    : form_(form), grid_(grid), half_(half), around_(around) {
  grid_.TakeTexts();
  Bind();
}

void GridPainting::Bind() {
  connect(&grid_, &FormCardGrid::CellClicked, this, [this](qint16 index) {
    grid_.Toggle(index);
    AddStep();
    Q_EMIT Painted();
  });
  connect(&grid_, &FormCardGrid::MenuWanted, this, [this](qint16 /*index*/, const QPoint& place) { ShowMenu(place); });
  // Queued, so that the source of the drag does not wait while a message is read.
  connect(&grid_, &FormCardGrid::TextDropped, this, &GridPainting::PaintText, Qt::QueuedConnection);
  BindKeyBesideText(form_, kCopyKey, [this] { Copy(); });
  BindKeyBesideText(form_, kPasteKey, [this] { Paste(); });
  BindKeyBesideText(form_, kUndoKey, [this] { Undo(); });
  BindKeyBesideText(form_, kRedoKey, [this] { Redo(); });
}

void GridPainting::ShowMenu(const QPoint& place) {
  PopUpMenu(
      form_, place,
      {{.Text = QStringLiteral("Copy"), .Action = [this] { Copy(); }, .Key = kCopyKey},
       {.Text = QStringLiteral("Paste"), .Action = [this] { Paste(); }, .Key = kPasteKey},
       {},
       {.Text = QStringLiteral("Everything"), .Action = [this] { Paint(EverySelectedCell(half_.isChecked())); }},
       {.Text = QStringLiteral("Clear"), .Action = [this] { Paint(UnselectedCells()); }},
       {.Text = QStringLiteral("Invert"),
        .Action = [this] { Paint(InvertedCells(grid_.Colors(), half_.isChecked())); }},
       {.Text = QStringLiteral("Top x%..."), .Action = [this] { PaintBest(); }},
       {},
       {.Text = QStringLiteral("Undo"), .Action = [this] { Undo(); }, .Key = kUndoKey, .Enabled = history_.CanUndo()},
       {.Text = QStringLiteral("Redo"), .Action = [this] { Redo(); }, .Key = kRedoKey, .Enabled = history_.CanRedo()}});
}

void GridPainting::Copy() {
  QGuiApplication::clipboard()->setText(ToQt(RangeNotation(RangeTextFromGrid(grid_.Colors()))));
  Announce(form_, QStringLiteral("Copied."));
}

void GridPainting::Paste() {
  PaintText(QGuiApplication::clipboard()->text());
}

void GridPainting::PaintText(const QString& notation) {
  // A drop is an action in the window of its source.
  const Answering answering({.ByKey = AnswersKey(), .Window = &form_});
  const std::string text = FromQt(notation);
  const auto cells = CellsOfNotation(text, around_.BestFirst());
  if (const auto* error = std::get_if<NotationError>(&cells)) {
    around_.Messages.Show(NotARangeMessage(text, *error));
  } else {
    Paint(std::get<CellColors>(cells));
  }
}

void GridPainting::PaintBest() {
  const std::string share = around_.Ask(kAskTopShare);
  if (share.empty()) return;
  if (const auto cells = BestCells(share, half_.isChecked(), around_.BestFirst())) {
    Paint(*cells);
  } else {
    around_.Messages.Show(NotAShareMessage());
  }
}

void GridPainting::Undo() {
  if (history_.CanUndo()) Paint(history_.Undo());
}

void GridPainting::Redo() {
  if (history_.CanRedo()) Paint(history_.Redo());
}

void GridPainting::Paint(const CellColors& wanted) {
  grid_.Toggle(TogglesBetween(grid_.Colors(), wanted));
  AddStep();
  Q_EMIT Painted();
  Announce(form_, ToQt(GridCaption(grid_.Colors())));
}

}  // namespace quillon
