#include "ranges/dialogs/new_range_form.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <utility>

#include "ranges/dialogs/dialog_window.h"
#include "ranges/dialogs/form_place.h"
#include "ranges/dialogs/new_range_layout.h"
#include "toolkit/text.h"
#include "toolkit/text_box.h"

namespace quillon {

NewRangeForm::NewRangeForm(DialogSurroundings surroundings)
    : around_(std::move(surroundings)),
      controls_(BuildDialog(*this, {.Title = kNewRangeTitle, .Size = kNewRangeSize, .Tables = NewRangeLayout()})),
      grid_(controls_, *this, around_.Shift, &controls_.Get<QCheckBox>("chkHalf")) {
  controls_.Get<QCheckBox>("chkSaveRange").setChecked(true);

  FormPlace place(*this);
  RestoreWindowPosition(place, kNewRangeSection, around_.Folder);
  BuildCardGrid(grid_);
  OrderTabs(controls_, NewRangeTabOrder());
  Bind();
}

void NewRangeForm::SetSelectionCaption(std::string_view caption) {
  controls_.LabelAt("lblPercSelected").SetText(ToQt(caption));
}

void NewRangeForm::SetSummary(std::string_view text) {
  controls_.Get<QPlainTextEdit>("txtRangeAbbr").setPlainText(ToQt(text));
}

std::string NewRangeForm::RangeName() const {
  return FromQt(controls_.Get<TextBox>("txtRangeName").text());
}

void NewRangeForm::SetRangeName(std::string_view text) {
  controls_.Get<TextBox>("txtRangeName").setText(ToQt(text));
}

void NewRangeForm::SetRangeNameEnabled(bool enabled) {
  controls_.Get<TextBox>("txtRangeName").setEnabled(enabled);
}

void NewRangeForm::FocusRangeName() {
  controls_.Get<TextBox>("txtRangeName").setFocus(Qt::OtherFocusReason);
}

void NewRangeForm::SelectWholeRangeName() {
  controls_.Get<TextBox>("txtRangeName").selectAll();
}

bool NewRangeForm::SaveRangeChecked() const {
  return controls_.Get<QCheckBox>("chkSaveRange").isChecked();
}

void NewRangeForm::closeEvent(QCloseEvent* event) {
  event->accept();
  SaveWindowPosition(FormPlace(*this), kNewRangeSection, around_.Folder);
  around_.Owner.SetDefaultPointer();
  Q_EMIT Closed();
}

void NewRangeForm::Bind() {
  connect(&grid_, &FormCardGrid::CellClicked, this, [this](qint16 index) { ClickNewRangeCell(*this, index); });
  connect(&controls_.Get<QCheckBox>("chkSaveRange"), &QCheckBox::toggled, this, [this] { ClickSaveRange(*this); });
  connect(&controls_.Get<TextBox>("txtRangeName"), &TextBox::EnterPressed, this,
          [this] { TypeInRangeName(*this, around_.Folder, kEnterCharacter); });
  connect(&controls_.Get<QPushButton>("cmdOK"), &QPushButton::clicked, this,
          [this] { ClickNewRangeOk(*this, around_.Folder); });
  connect(&controls_.Get<QPushButton>("cmdCancel"), &QPushButton::clicked, this,
          [this] { ClickNewRangeCancel(*this); });
}

}  // namespace quillon
