#include "ranges/dialogs/manager_form.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <utility>

#include "ranges/dialogs/form_place.h"
#include "ranges/range_names.h"
#include "toolkit/accessible_control.h"
#include "toolkit/form_keys.h"
#include "toolkit/text.h"

namespace quillon {

ManagerForm::ManagerForm(DialogSurroundings surroundings)
    : around_(std::move(surroundings)),
      controls_(BuildDialog<ManagerControls>(*this, kManagerTitle, kManagerSize)),
      grid_(controls_, *this, around_.Shift, &controls_.Get<QCheckBox>("chkHalf")),
      painting_(*this, grid_, controls_.Get<QCheckBox>("chkHalf"), around_),
      list_(controls_.Get<QListWidget>("lstRanges")) {
  RestorePlace(*this, kManagerSection, around_.Folder);
  OrderTabs(controls_.All(manager_layout::kTabOrder));
  Bind();
}

void ManagerForm::RefreshList() {
  list_.Show(FillRangeList(around_.Folder, ListStart::kFirstRange, list_.CurrentText()));
}

void ManagerForm::showEvent(QShowEvent* /*event*/) {
  if (!lostWeights_.empty()) Announce(*this, ToQt(lostWeights_));
}

void ManagerForm::closeEvent(QCloseEvent* event) {
  event->accept();
  WriteIniValues(PlaceSettings(kManagerSection, *this), around_.Folder);
  Q_EMIT Closed();
}

void ManagerForm::Bind() {
  connect(&list_, &FormListBox::Clicked, this, &ManagerForm::ShowRange);
  connect(&painting_, &GridPainting::Painted, this, &ManagerForm::SumUp);
  connect(&controls_.PictureAt("imgNew"), &Control::Clicked, this, &ManagerForm::ClickNew);
  connect(&controls_.PictureAt("imgSave"), &Control::Clicked, this, &ManagerForm::ClickSave);
  connect(&controls_.PictureAt("imgSaveAs"), &Control::Clicked, this, &ManagerForm::ClickSaveAs);
  connect(&controls_.PictureAt("imgRename"), &Control::Clicked, this, &ManagerForm::ClickRename);
  connect(&controls_.PictureAt("imgDelete"), &Control::Clicked, this, &ManagerForm::ClickDelete);
  connect(&controls_.Get<QPushButton>("cmdOK"), &QPushButton::clicked, this, &ManagerForm::ClickOk);

  BindPress(controls_.PictureAt("imgNew"), Qt::CTRL | Qt::Key_N);
  BindPress(controls_.PictureAt("imgSave"), Qt::CTRL | Qt::Key_S);
  BindPress(controls_.PictureAt("imgSaveAs"), Qt::CTRL | Qt::SHIFT | Qt::Key_S);
  BindPress(controls_.PictureAt("imgRename"), Qt::Key_F2);
  BindPress(controls_.PictureAt("imgDelete"), Qt::Key_Delete);
  for (const QKeyCombination key : {QKeyCombination(Qt::Key_Escape), Qt::CTRL | Qt::Key_W})
    BindKey(*this, key, [this] { close(); });
}

void ManagerForm::ShowRange() {
  const std::string name = list_.CurrentText();
  CellColors cells = UnselectedCells();
  grid_.Show(cells);
  const ClassWeights file = ShowRangeOnGrid(cells, around_.Folder, name);
  grid_.Show(cells);
  painting_.Start();
  // Sums up what the grid shows: a weight such as 0.25 in the file does not appear.
  SumUp();
  controls_.LabelAt("lblRangeName").SetText(ToQt(name));
  TellLostWeights(name, file);
}

void ManagerForm::SumUp() {
  ShowSelectionCaption();
  SetSummary(GridSummary(grid_.Colors()));
}

// Refreshing the same range again is no reason to repeat the note.
void ManagerForm::TellLostWeights(std::string_view name, const ClassWeights& file) {
  const std::string before = std::exchange(lostWeights_, LostWeightsNote(name, file));
  grid_.SetToolTip(ToQt(lostWeights_));
  if (!lostWeights_.empty() && lostWeights_ != before) Announce(*this, ToQt(lostWeights_));
}

void ManagerForm::ClickNew() {
  const std::string answer = AskName(kAskNewName, {});
  if (answer.empty() || !ValidateRangeName(around_.Folder, answer, around_.Messages)) return;

  grid_.Show(UnselectedCells());
  SetSummary({});
  ShowSelectionCaption();
  SaveGridAs(answer);
  RefreshAndSelect(answer);
  Announce(*this, ToQt(RangeSavedMessage(answer).text));  // there is no message box for it
}

void ManagerForm::ClickSave() {
  const std::string name = list_.CurrentText();
  SaveGridAs(name);
  TellSaved(*this, around_, name);
  Q_EMIT RangesChanged();
}

void ManagerForm::ClickSaveAs() {
  const std::string answer = AskName(kAskSaveAsName, list_.CurrentText());
  if (answer.empty() || !ValidateRangeName(around_.Folder, answer, around_.Messages)) return;

  SaveGridAs(answer);
  RefreshAndSelect(answer);
  TellSaved(*this, around_, answer);
}

void ManagerForm::ClickRename() {
  const std::string name = list_.CurrentText();
  const std::string answer = AskName(kAskRename, name);
  // Intentional: cancelling is not silent here; its empty answer is refused like any other.
  if (!ValidateNewName(around_.Folder, name, answer, around_.Messages)) return;

  RenameRange(around_.Folder, name, answer, RangeTextFromGrid(grid_.Colors()));
  RefreshAndSelect(answer);
  around_.Messages.Show(RangeRenamedMessage(name, answer));
}

void ManagerForm::ClickDelete() {
  const std::string name = list_.CurrentText();
  if (around_.Messages.Show(DeleteRangeQuestion(name)) != MessageAnswer::kYes) return;

  DeleteRange(around_.Folder, name);
  Q_EMIT RangesChanged();
}

void ManagerForm::ClickOk() {
  if (HasBeenModified()) {
    const MessageAnswer answer = around_.Messages.Show(SaveRangeQuestion(list_.CurrentText()));
    if (answer == MessageAnswer::kYes) ClickSave();
    if (answer == MessageAnswer::kCancel) return;
  }
  close();
}

std::string ManagerForm::AskName(const LineQuestion& question, std::string_view onOffer) const {
  return around_.Ask({question.Prompt, question.Title, onOffer});
}

// Compared as texts: a weight that the grid cannot show, such as 0.25, is a change, and so is having no range.
bool ManagerForm::HasBeenModified() const {
  return RangeTextFromGrid(grid_.Colors()) != LoadRangeText(around_.Folder, list_.CurrentText());
}

void ManagerForm::SaveGridAs(std::string_view name) {
  SaveRangeText(around_.Folder, name, RangeTextFromGrid(grid_.Colors()));
}

void ManagerForm::RefreshAndSelect(std::string_view name) {
  Q_EMIT RangesChanged();
  list_.SelectEntry(name);
}

void ManagerForm::ShowSelectionCaption() {
  controls_.LabelAt("lblRangeInfo").SetText(ToQt(GridCaption(grid_.Colors())));
}

void ManagerForm::SetSummary(std::string_view text) {
  controls_.Get<QPlainTextEdit>("txtRangeAbbr").setPlainText(ToQt(text));
}

}  // namespace quillon
