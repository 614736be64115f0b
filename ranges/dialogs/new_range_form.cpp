#include "ranges/dialogs/new_range_form.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <utility>

#include "ranges/dialogs/form_place.h"
#include "ranges/range_names.h"
#include "toolkit/form_keys.h"
#include "toolkit/text.h"

namespace quillon {

NewRangeForm::NewRangeForm(DialogSurroundings surroundings)
    : around_(std::move(surroundings)),
      controls_(BuildDialog<NewRangeControls>(*this, kNewRangeTitle, kNewRangeSize)),
      grid_(controls_, *this, around_.Shift, &controls_.Get<QCheckBox>("chkHalf")),
      painting_(*this, grid_, controls_.Get<QCheckBox>("chkHalf"), around_),
      name_(controls_.Get<TextBox>("txtRangeName")) {
  controls_.Get<QCheckBox>("chkSaveRange").setChecked(true);

  RestorePlace(*this, kNewRangeSection, around_.Folder);
  OrderTabs(controls_.All(new_range_layout::kTabOrder));
  Bind();
}

void NewRangeForm::Propose(std::span<const std::int16_t> cells) {
  for (const std::int16_t index : cells)
    grid_.Toggle(index);
  painting_.AddStep();
  SumUp();
  name_.setFocus(Qt::OtherFocusReason);
}

void NewRangeForm::closeEvent(QCloseEvent* event) {
  event->accept();
  WriteIniValues(PlaceSettings(kNewRangeSection, *this), around_.Folder);
  Q_EMIT Closed();
}

void NewRangeForm::Bind() {
  connect(&painting_, &GridPainting::Painted, this, &NewRangeForm::SumUp);
  connect(&controls_.Get<QCheckBox>("chkSaveRange"), &QCheckBox::toggled, this, &NewRangeForm::ClickSaveRange);
  connect(&name_, &TextBox::EnterPressed, this, &NewRangeForm::ClickOk);
  connect(&controls_.Get<QPushButton>("cmdOK"), &QPushButton::clicked, this, &NewRangeForm::ClickOk);
  connect(&controls_.Get<QPushButton>("cmdCancel"), &QPushButton::clicked, this, &NewRangeForm::hide);
  BindKey(*this, Qt::Key_Escape, [this] { hide(); });
  BindKey(*this, Qt::CTRL | Qt::Key_W, [this] { close(); });
}

void NewRangeForm::SumUp() {
  const CellColors cells = grid_.Colors();
  controls_.LabelAt("lblPercSelected").SetText(ToQt(GridCaption(cells)));
  controls_.Get<QPlainTextEdit>("txtRangeAbbr").setPlainText(ToQt(GridSummary(cells)));
}

void NewRangeForm::ClickSaveRange(bool save) {
  if (!save) name_.setText(ToQt(kScratchRangeName));
  name_.setEnabled(save);
  if (!save) return;
  // The old name is gone; the scratch name is selected for typing over.
  name_.setFocus(Qt::OtherFocusReason);
  name_.selectAll();
}

void NewRangeForm::ClickOk() {
  const std::string name = FromQt(name_.text());
  if (!ValidateRangeName(around_.Folder, name, around_.Messages)) return;

  SaveRangeText(around_.Folder, name, RangeTextFromGrid(grid_.Colors()));
  TellSaved(*this, around_, name);
  Q_EMIT RangeSaved(name);
  close();
}

}  // namespace quillon
