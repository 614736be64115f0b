#include "ranges/dialogs/manager_form.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <utility>

#include "ranges/dialogs/dialog_window.h"
#include "ranges/dialogs/form_place.h"
#include "ranges/dialogs/manager_layout.h"
#include "toolkit/text.h"

namespace quillon {

ManagerForm::ManagerForm(DialogSurroundings surroundings)
    : around_(std::move(surroundings)),
      controls_(BuildDialog(*this, {.Title = kManagerTitle, .Size = kManagerSize, .Tables = ManagerLayout()})),
      grid_(controls_, *this, around_.Shift, &controls_.Get<QCheckBox>("chkHalf")),
      list_(controls_.Get<QListWidget>("lstRanges")) {
  Bind();
}

void ManagerForm::Load() {
  FormPlace place(*this);
  RestoreWindowPosition(place, kManagerSection, around_.Folder);
  BuildCardGrid(grid_);
  OrderTabs(controls_, ManagerTabOrder());
  RefreshLists();
}

void ManagerForm::SetRangeName(std::string_view caption) {
  controls_.LabelAt("lblRangeName").SetText(ToQt(caption));
}

void ManagerForm::SetSelectionCaption(std::string_view caption) {
  controls_.LabelAt("lblRangeInfo").SetText(ToQt(caption));
}

void ManagerForm::SetSummary(std::string_view text) {
  controls_.Get<QPlainTextEdit>("txtRangeAbbr").setPlainText(ToQt(text));
}

void ManagerForm::closeEvent(QCloseEvent* event) {
  event->accept();
  SaveWindowPosition(FormPlace(*this), kManagerSection, around_.Folder);
  around_.Owner.SetDefaultPointer();
  Q_EMIT Closed();
}

void ManagerForm::Bind() {
  connect(&list_, &FormListBox::Clicked, this, [this] { ClickRangeList(*this, around_.Folder); });
  connect(&grid_, &FormCardGrid::CellClicked, this, [this](qint16 index) { ClickManagerCell(*this, index); });
  BindPicture("imgNew", ClickNew);
  BindPicture("imgSave", ClickSave);
  BindPicture("imgSaveAs", ClickSaveAs);
  BindPicture("imgRename", ClickRename);
  BindPicture("imgDelete", ClickDelete);
  connect(&controls_.Get<QPushButton>("cmdOK"), &QPushButton::clicked, this,
          [this] { ClickManagerOk(*this, around_.Folder); });
}

void ManagerForm::BindPicture(std::string_view name, Action action) {
  connect(&controls_.PictureAt(name), &Control::Clicked, this, [this, action] { action(*this, around_.Folder); });
}

}  // namespace quillon
