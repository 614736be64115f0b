#include "shell/screens/situation_view.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "analysis/analysis_driver.h"
#include "ranges/range_lists.h"
#include "toolkit/accessible_control.h"
#include "toolkit/focus_mark.h"
#include "toolkit/form_keys.h"
#include "toolkit/form_list.h"
#include "toolkit/text.h"
#include "toolkit/twip_geometry.h"

namespace quillon {
namespace {

// The list that Ctrl+O shows, for opening a saved situation. Typing jumps to the next name that starts so; Enter and a
// double click open, Esc cancels, Del deletes after a question.
class SituationDialog : public QDialog {
 public:
  // With the situation of that name selected, or else the first. Fails as SituationNames does.
  SituationDialog(QWidget* parent, ProgramFolder folder, MessageBoxes& messages, std::string_view selected);

  // The selected name; empty if there are none.
  [[nodiscard]] std::string Name() const { return entries_.CurrentText(); }

 private:
  void Fill(std::string_view selected);
  void Delete();

  ProgramFolder folder_;
  MessageBoxes& messages_;
  QListWidget& list_;
  FormListBox entries_;
  FocusMark focusMark_{*this};
};

SituationDialog::SituationDialog(QWidget* parent, ProgramFolder folder, MessageBoxes& messages,
                                 std::string_view selected)
    : QDialog(parent), folder_(std::move(folder)), messages_(messages), list_(*new QListWidget(this)), entries_(list_) {
  setWindowTitle(QStringLiteral("Open Situation"));
  auto* prompt = new QLabel(QStringLiteral("Which situation do you want to open?"), this);
  list_.setAccessibleName(prompt->text());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this);
  const QPushButton* const remove = buttons->addButton(QStringLiteral("Delete"), QDialogButtonBox::DestructiveRole);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(prompt);
  rows->addWidget(&list_);
  rows->addWidget(buttons);
  resize(LinePixels(360), LinePixels(320));

  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(remove, &QPushButton::clicked, this, &SituationDialog::Delete);
  connect(&list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  BindKey(*this, Qt::Key_Delete, [this] { Delete(); });
  list_.setFocus(Qt::OtherFocusReason);
  Fill(selected);
}

void SituationDialog::Fill(std::string_view selected) {
  RangeListContents contents{SituationNames(folder_), {}};
  if (!contents.Entries.empty()) contents.Selected = EntryIndex(contents.Entries, selected).value_or(0);
  entries_.Show(contents);
}

// Then selects the next one, or the last.
void SituationDialog::Delete() {
  const QListWidgetItem* const next =
      list_.item(list_.currentRow() + (list_.currentRow() + 1 < list_.count() ? 1 : -1));
  const std::string nextName = next == nullptr ? std::string() : FromQt(next->text());
  if (!AskAndDeleteSituation(Name(), folder_, messages_)) return;
  Fill(nextName);
  if (list_.count() == 0) reject();
}

}  // namespace

void SituationView::Save() {
  const InputScreen* const screen = ShownInputs();
  if (screen == nullptr) {
    parts_.Messages.Show(NoInputScreenMessage());
    return;
  }
  const ScreenSituation situation{screen->Mode, EnteredOn(*screen, parts_.Inputs)};
  auto name = AskAndSaveSituation(situation, lastName_, parts_.Folder, parts_.Ask, parts_.Messages);
  if (!name) return;
  lastName_ = *std::move(name);
  const Message saved = SituationSavedMessage(lastName_);
  Announce(parts_.Form, ToQt(saved.text));
  parts_.Messages.Show(saved);
}

void SituationView::Open(const AnalysisState& state) {
  if (state.Running) {
    parts_.Messages.Show(RunningMessage());
    return;
  }
  SituationDialog dialog(&parts_.Form, parts_.Folder, parts_.Messages, lastName_);
  if (dialog.Name().empty()) {
    parts_.Messages.Show(NoSituationsMessage());
    return;
  }
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string name = dialog.Name();
  const auto opened = OpenSituation(name, parts_.Folder, parts_.Messages);
  if (!opened) return;
  lastName_ = name;
  Show(opened->Situation);
  Announce(parts_.Form, ToQt(SituationOpenedText(name)));
  if (opened->Remarks) parts_.Messages.Show(*opened->Remarks);
}

const InputScreen* SituationView::ShownInputs() const {
  const std::string shown = parts_.Screens.ShownScreen();
  const auto* const screen =
      std::ranges::find_if(kInputScreens, [&](const InputScreen& row) { return ScenarioOf(row.Mode).Name == shown; });
  return screen == kInputScreens.end() ? nullptr : screen;
}

void SituationView::Show(const ScreenSituation& situation) {
  const InputScreen& screen = RowOf(kInputScreens, situation.Mode);
  const EnteredSituation& entered = situation.Entered;
  parts_.ClickNav(static_cast<std::int16_t>(&screen - kInputScreens.data()));  // this fills the lists
  for (std::size_t i = 0; i < kEnteredAmounts.size(); ++i) {
    const std::int16_t box = screen.AmountBoxes.at(i);
    if (box != kNoControl) parts_.Amounts.Set(box, entered.*kEnteredAmounts.at(i));
  }
  const std::array ranges = {&entered.Range, &entered.CallingRange};
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    if (screen.RangeLists.at(i) != kNoControl) parts_.Choosers.List(screen.RangeLists.at(i)).SelectEntry(*ranges.at(i));
  }
}

}  // namespace quillon
